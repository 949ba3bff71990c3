#include "outputs/import_list.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "base/error.h"
#include "outputs/json_bag.h"
#include "outputs/official_file.h"
#include "tests/outputs/official_fixture.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::outputs {
namespace {

namespace fs = std::filesystem;
using pruebas::AjustesEnMemoria;
using pruebas::CarpetaTemporal;
using pruebas::DialogoGuionado;

void Escribir(const fs::path& ruta, const std::string& texto) {
    std::ofstream(ruta, std::ios::binary) << texto;
}

std::string Leer(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

std::string Bytes(const std::vector<std::pair<std::string, std::string>>& columnas) {
    std::string bytes;
    for (const auto& [signos, pleno] : columnas) {
        const auto b =
            engine::RegistroColumna{
                engine::ColumnaDeTexto(signos), {pleno[0], pleno[1]}, engine::kActiva}
                .ABytes();
        bytes.append(b.begin(), b.end());
    }
    return bytes;
}

TEST(ImportarTexto, ConElPlenoEnSusFormasYLosComentarios) {
    CarpetaTemporal carpeta;
    Escribir(carpeta / "lista.txt",
             "# mis columnas\r\n1X21X21X21X21X 1-M\r\n\r\n1 x 2 1 X 2 1 X 2 1 X 2 1 X\t0M\n"
             "22222222222222,2,0\n");
    const ListaImportada lista = ImportarTexto(carpeta / "lista.txt", true, carpeta.Ruta());
    EXPECT_EQ(lista.columnasImportadas, 3);
    EXPECT_FALSE(lista.json);
    EXPECT_EQ(
        Leer(carpeta / "Arimp.tmp"),
        Bytes({{"1X21X21X21X21X", "1M"}, {"1X21X21X21X21X", "0M"}, {"22222222222222", "20"}}));
}

TEST(ImportarTexto, SinElPlenoLosGolesQuedanEnBlanco) {
    CarpetaTemporal carpeta;
    Escribir(carpeta / "lista.txt", "1X21X21X21X21X\n11111111111111\n");
    EXPECT_EQ(ImportarTexto(carpeta / "lista.txt", false, carpeta.Ruta()).columnasImportadas, 2);
    EXPECT_EQ(Leer(carpeta / "Arimp.tmp"),
              Bytes({{"1X21X21X21X21X", "  "}, {"11111111111111", "  "}}));
}

TEST(ImportarTexto, UnaLineaMalaNoEscribeNada) {
    CarpetaTemporal carpeta;
    Escribir(carpeta / "Arimp.tmp", "lo de antes");
    Escribir(carpeta / "lista.txt", "1X21X21X21X21X 1-M\n1X21X21X21X21 1-M\n");
    try {
        ImportarTexto(carpeta / "lista.txt", true, carpeta.Ruta());
        FAIL();
    } catch (const base::Error& e) {
        EXPECT_STREQ(e.what(),
                     "La línea 2 no es una columna con su Pleno al 15: 1X21X21X21X21 1-M");
    }
    Escribir(carpeta / "otra.txt", "1X21X21X21X21X 1-M\n");
    EXPECT_THROW(ImportarTexto(carpeta / "otra.txt", false, carpeta.Ruta()), base::Error);
    Escribir(carpeta / "goles.txt", "1X21X21X21X21X 3-M\n");
    EXPECT_THROW(ImportarTexto(carpeta / "goles.txt", true, carpeta.Ruta()), base::Error);
    Escribir(carpeta / "vacio.txt", "# nada\n");
    EXPECT_THROW(ImportarTexto(carpeta / "vacio.txt", true, carpeta.Ruta()), base::Error);
    EXPECT_THROW(ImportarTexto(carpeta / "no-esta.txt", true, carpeta.Ruta()), base::Error);
    EXPECT_EQ(Leer(carpeta / "Arimp.tmp"), "lo de antes");
}

TEST(ListaImportada, NueveColumnasSonDosBoletosYElSegundoConUna) {
    CarpetaTemporal carpeta;
    std::string texto;
    for (int i = 0; i < 9; ++i) texto += "1X21X21X21X21X 1-M\n";
    Escribir(carpeta / "nueve.txt", texto);
    const auto lista = ImportarTexto(carpeta / "nueve.txt", true, carpeta.Ruta());
    EXPECT_EQ(BoletosImportados(lista), 2);
    const auto segundo = EscrolImportado(lista, carpeta.Ruta(), 2);
    EXPECT_EQ(segundo.columnas, std::vector<std::string>{"1X21X21X21X21X"});
    EXPECT_EQ(segundo.pleno, "1-M");
    EXPECT_EQ(segundo.numero, "2");
    EXPECT_EQ(EscrolImportado(lista, carpeta.Ruta(), 1).columnas.size(), 8U);
}

// Un archivo oficial de las nueve columnas de ejemplo, escrito como lo escribe el programa.
fs::path ArchivoOficial(const CarpetaTemporal& carpeta) {
    JsonBag raiz;
    ArbolGenerado(raiz, pruebas::ColumnasDeEjemplo(), {1234, "2024/007", 0.75F});
    EscribirArchivoOficial(carpeta / "oficial.json", raiz);
    return carpeta / "oficial.json";
}

TEST(ImportarJson, CadaColumnaConElPlenoDeSuBoleto) {
    CarpetaTemporal carpeta;
    const auto lista = ImportarJson(ArchivoOficial(carpeta), carpeta.Ruta());
    ASSERT_TRUE(lista.json);
    EXPECT_EQ(lista.columnasImportadas, 9);
    EXPECT_EQ(BoletosImportados(lista), 2);
    const auto columnas = LeerImportadas(carpeta.Ruta());
    const auto ejemplo = pruebas::ColumnasDeEjemplo();
    ASSERT_EQ(columnas.size(), 9U);
    for (std::size_t i = 0; i < 9; ++i) {
        EXPECT_EQ(columnas[i].columna, ejemplo[i].columna) << i;
        // El Pleno de un Boleto es el de su última columna.
        EXPECT_EQ(columnas[i].pleno, ejemplo[i < 8 ? 7 : 8].pleno) << i;
    }
    const auto primero = EscrolImportado(lista, carpeta.Ruta(), 1);
    EXPECT_EQ(primero.columnas.front(), "1X21X21X21X21X");
    EXPECT_EQ(primero.pleno, "2-M");
}

TEST(ImportarJson, UnBoletoConLaCombinacionVaciaSeVeVacio) {
    CarpetaTemporal carpeta;
    const auto ruta = ArchivoOficial(carpeta);
    std::string texto = Leer(ruta);
    const auto segunda = texto.find("\"combinacion\"", texto.find("\"combinacion\"") + 1);
    const auto abre = texto.find('"', segunda + 13);
    const auto cierra = texto.find('"', abre + 1);
    texto.replace(abre, cierra - abre + 1, "\"\"");
    Escribir(ruta, texto);
    const auto lista = ImportarJson(ruta, carpeta.Ruta());
    const auto vacio = EscrolImportado(lista, carpeta.Ruta(), 2);
    EXPECT_TRUE(vacio.columnas.empty());
    EXPECT_EQ(vacio.pleno, "");
    EXPECT_EQ(lista.columnasImportadas, 8);
}

TEST(CompletarA100, ColumnasAlAzarConElPlenoDeLaPrimera) {
    CarpetaTemporal carpeta;
    Escribir(carpeta / "dos.txt", "1X21X21X21X21X 2-1\n11111111111111 0-0\n");
    auto lista = ImportarTexto(carpeta / "dos.txt", true, carpeta.Ruta());
    base::AzarEstandar azar(7);
    DialogoGuionado dialogo;
    dialogo.Responder(base::Respuesta::Cancelar);
    EXPECT_FALSE(CompletarA100(lista, carpeta.Ruta(), azar, dialogo));
    EXPECT_EQ(LeerImportadas(carpeta.Ruta()).size(), 2U);
    dialogo.Responder(base::Respuesta::Aceptar);
    EXPECT_TRUE(CompletarA100(lista, carpeta.Ruta(), azar, dialogo));
    EXPECT_EQ(lista.columnasImportadas, 100);
    const auto columnas = LeerImportadas(carpeta.Ruta());
    ASSERT_EQ(columnas.size(), 100U);
    for (std::size_t i = 2; i < columnas.size(); ++i) {
        EXPECT_EQ(columnas[i].pleno, (engine::PlenoBase{'2', '1'}));
        EXPECT_EQ(columnas[i].estado, engine::kActiva);
        for (char s : columnas[i].columna) EXPECT_GE(engine::IndiceSigno(s), 0);
    }
    EXPECT_EQ(dialogo.Textos(), (std::vector<std::string>{std::string(kPreguntaCompletar),
                                                          std::string(kPreguntaCompletar),
                                                          std::string(kMsgCompletado)}));
    // Con 100 o más no se añade nada, ni se pregunta.
    EXPECT_FALSE(CompletarA100(lista, carpeta.Ruta(), azar, dialogo));
    EXPECT_EQ(dialogo.Textos().size(), 3U);
}

TEST(PuedeImprimir, ElDorsoDelAjusteYElAjusteHecho) {
    AjustesEnMemoria ajustes;
    DialogoGuionado dialogo;
    EXPECT_FALSE(PuedeImprimir(ajustes, ModoImportado::Boletos, dialogo));
    EXPECT_FALSE(PuedeImprimir(ajustes, ModoImportado::Papel0, dialogo));
    EXPECT_FALSE(PuedeImprimir(ajustes, ModoImportado::Papel1, dialogo));
    ajustes.Guardar("Quinteva-07", "Avisos", "AjusteBoletos", "SI");
    ajustes.Guardar("Quinteva-07", "Avisos", "AjustePapel", "SI");
    EXPECT_TRUE(PuedeImprimir(ajustes, ModoImportado::Boletos, dialogo));
    EXPECT_TRUE(PuedeImprimir(ajustes, ModoImportado::Papel2, dialogo));
    ajustes.Guardar("Quinteva-07", "Valores", "DB", "1");
    ajustes.Guardar("Quinteva-07", "Valores", "ImpDorsoBoleto", "V");
    EXPECT_FALSE(PuedeImprimir(ajustes, ModoImportado::Papel1, dialogo));
    EXPECT_TRUE(PuedeImprimir(ajustes, ModoImportado::Papel0, dialogo));
    EXPECT_EQ(dialogo.Textos(), (std::vector<std::string>{
                                    std::string(kMsgAjusteAntes), std::string(kMsgDorsoDistinto),
                                    std::string(kMsgAjusteAntes), std::string(kMsgDorsoDistinto)}));
}

TEST(ModoImportado, SeGuardaConSuTexto) {
    AjustesEnMemoria ajustes;
    EXPECT_EQ(ModoGuardado(ajustes), ModoImportado::Boletos);
    GuardarModo(ajustes, ModoImportado::Papel2);
    EXPECT_EQ(ajustes.Leer("Quinteva-07", "Importar", "Imprimir", ""), "Papel2");
    EXPECT_EQ(ModoGuardado(ajustes), ModoImportado::Papel2);
    EXPECT_EQ(LeyendaModo(ModoImportado::Papel0), "En dorso de boletos oficiales");
}

}  // namespace
}  // namespace quinteva::outputs
