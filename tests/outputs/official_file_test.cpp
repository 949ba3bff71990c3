#include "outputs/official_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "base/error.h"
#include "tests/outputs/official_fixture.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::outputs {
namespace {

using engine::RegistroColumna;

std::string Bytes(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

DatosOficiales DatosDeEjemplo() { return {1234, "2024/007", 0.75F}; }

std::vector<RegistroColumna> Iguales(std::size_t n) {
    return std::vector<RegistroColumna>(n, RegistroColumna{engine::ColumnaDeTexto("1X21X21X21X21X"),
                                                           engine::PlenoDeTexto("00"), '0'});
}

TEST(ArchivoOficial, ArchivoDeReferenciaByteAByte) {
    pruebas::CarpetaTemporal carpeta;
    JsonBag raiz;
    ArbolGenerado(raiz, pruebas::ColumnasDeEjemplo(), DatosDeEjemplo());
    EscribirArchivoOficial(carpeta / "apuesta.json", raiz);
    const std::string escrito = Bytes(carpeta / "apuesta.json");
    EXPECT_EQ(escrito, Bytes(pruebas::DatoDePrueba("oficial_generado.json")));
    // Una línea, sin blancos, sin fin de línea ni marca de orden de bytes.
    EXPECT_EQ(escrito.find_first_of(" \r\n"), std::string::npos);
    EXPECT_EQ(escrito.front(), '{');
    EXPECT_EQ(escrito.back(), '}');
}

TEST(ArchivoOficial, LeidoYEscritoDeNuevoDaElMismoTexto) {
    for (const char* nombre : {"oficial_generado.json", "oficial_guardado.json"}) {
        const std::string texto = LeerTextoArchivo(pruebas::DatoDePrueba(nombre));
        JsonBag raiz;
        raiz.JSON(texto);
        EXPECT_EQ(raiz.JSON(), texto) << nombre;
    }
}

TEST(ArchivoOficial, BoletoDeDosColumnas) {
    std::vector<RegistroColumna> columnas = {
        {engine::ColumnaDeTexto("1X2111X2111X21"), engine::PlenoDeTexto("00"), '0'},
        {engine::ColumnaDeTexto("11111111111112"), engine::PlenoDeTexto("2M"), '0'}};
    const auto boletos = ConstruirBoletos(columnas, 0.75F);
    ASSERT_EQ(boletos.size(), 1U);
    EXPECT_EQ(boletos[0].combinacion,
              ".1=1,X,2,1,1,1,X,2,1,1,1,X,2,1.2=1,1,1,1,1,1,1,1,1,1,1,1,1,2:.1=2-M");
    EXPECT_EQ(boletos[0].numApuestas, 2);
    EXPECT_EQ(boletos[0].importe, 150);
}

TEST(ArchivoOficial, OchoColumnasUnBoletoYNueveDos) {
    const auto ocho = ConstruirBoletos(Iguales(8), 0.75F);
    ASSERT_EQ(ocho.size(), 1U);
    EXPECT_EQ(ocho[0].numApuestas, 8);
    // Al precio por defecto un Boleto lleno cuesta 600 céntimos.
    EXPECT_EQ(ocho[0].importe, 600);
    const auto nueve = ConstruirBoletos(Iguales(9), 0.75F);
    ASSERT_EQ(nueve.size(), 2U);
    EXPECT_EQ(nueve[1].seqBoleto, 2);
    EXPECT_EQ(nueve[1].numApuestas, 1);
    EXPECT_EQ(nueve[1].importe, 75);
    EXPECT_EQ(nueve[1].tipoSorteo, 1);
    EXPECT_EQ(nueve[1].metodo, 1);
    EXPECT_TRUE(ConstruirBoletos({}, 0.75F).empty());
}

TEST(ArchivoOficial, CadaBoletoLlevaElPlenoDeSuUltimaColumna) {
    const auto boletos = ConstruirBoletos(pruebas::ColumnasDeEjemplo(), 0.75F);
    ASSERT_EQ(boletos.size(), 2U);
    EXPECT_TRUE(boletos[0].combinacion.ends_with(":.1=2-M"));
    EXPECT_TRUE(boletos[1].combinacion.ends_with(":.1=1-0"));
}

TEST(ArchivoOficial, MasAllaDelBoleto32767Desborda) {
    EXPECT_EQ(ConstruirBoletos(Iguales(262136), 0.75F).back().seqBoleto, 32767);
    EXPECT_THROW(ConstruirBoletos(Iguales(262144), 0.75F), base::Desbordamiento);
}

TEST(ArchivoOficial, IdSorteoConTresCifrasAlMenos) {
    EXPECT_EQ(IdSorteo("2024", 7), "2024/007");
    EXPECT_EQ(IdSorteo("2024", 100), "2024/100");
    EXPECT_EQ(IdSorteo("2024", 0), "2024/000");
    EXPECT_EQ(IdSorteo("2024", -5), "2024/-005");
}

TEST(ArchivoOficial, ResumenDeLaCabecera) {
    EXPECT_EQ(HashCabecera("2", "2024/007", "1234", "2", "12", "900"),
              "169023D628CB786B932585DD874167B4");
}

TEST(ArchivoOficial, ImporteTotalConColaDelPrecioEnSingle) {
    JsonBag raiz;
    ArbolGenerado(raiz, pruebas::ColumnasDeEjemplo(), {1234, "2024/007", 0.1F});
    const JsonBag& cabecera = raiz.Hija("asm").Hija("cabecera");
    EXPECT_EQ(std::get<double>(cabecera.Item("importeTotal")),
              9.0 * static_cast<double>(0.1F) * 100.0);
    // La cola entra en el resumen tal como queda en texto.
    EXPECT_EQ(std::get<std::string>(cabecera.Item("hash")),
              HashCabecera("2", "2024/007", "1234", "2", "9", "90.0000013411045"));
    EXPECT_EQ(std::get<std::string>(cabecera.Item("hash")), "C3F4CC57501540FA83F3D68D4E180E76");
    EXPECT_NE(raiz.JSON().find("\"importeTotal\":90.0000013411045,"), std::string::npos);
}

TEST(ArchivoOficial, RecorridoDeUnArchivoLeido) {
    JsonBag raiz;
    raiz.JSON(LeerTextoArchivo(pruebas::DatoDePrueba("oficial_generado.json")));
    const ArchivoOficialLeido leido = RecorrerArchivoOficial(raiz);
    const CabeceraOficial& c = leido.cabecera;
    EXPECT_EQ(c.idJuego, 2);
    EXPECT_EQ(c.idSorteo, "2024/007");
    EXPECT_EQ(c.idReceptor, 1234);
    EXPECT_EQ(c.totalBoletos, 2);
    EXPECT_EQ(c.totalApuestasSencillas, 9);
    EXPECT_EQ(c.importeTotal, 675);
    EXPECT_EQ(c.hash, "12A41531702D5EC052C295B943597A0D");
    EXPECT_EQ(c.boletos, ConstruirBoletos(pruebas::ColumnasDeEjemplo(), 0.75F));
    EXPECT_EQ(leido.igualPleno, "NO");
}

TEST(ArchivoOficial, ElPlenoLoDecideElUltimoBoletoComparado) {
    JsonBag raiz;
    raiz.JSON(R"({"asm":{"apuestas":[{"combinacion":"x:.1=0-0"},{"combinacion":"x:.1=1-1"},)"
              R"({"combinacion":"x:.1=0-0"}]}})");
    EXPECT_EQ(RecorrerArchivoOficial(raiz).igualPleno, "SI");
    raiz.JSON(R"({"asm":{"apuestas":[{"combinacion":"x:.1=0-0"},{"combinacion":"x:.1=1-1"}]}})");
    EXPECT_EQ(RecorrerArchivoOficial(raiz).igualPleno, "NO");
    raiz.JSON(R"({"asm":{"apuestas":[]}})");
    EXPECT_EQ(RecorrerArchivoOficial(raiz).igualPleno, "");
}

TEST(ArchivoOficial, ElRecorridoVaPorClaveYNoPorPosicion) {
    JsonBag raiz;
    raiz.JSON(
        R"({"otro":[1,{"x":2}],"asm":{"cabecera":{"hash":"H","desconocida":5,)"
        R"("idSorteo":"2023/0123456","idJuego":"3"},"apuestas":[{"metodo":1,"seqBoleto":1.5}]}})");
    const ArchivoOficialLeido leido = RecorrerArchivoOficial(raiz);
    EXPECT_EQ(leido.cabecera.hash, "H");
    EXPECT_EQ(leido.cabecera.idJuego, 3);
    // idSorteo es un texto fijo de 8.
    EXPECT_EQ(leido.cabecera.idSorteo, "2023/012");
    ASSERT_EQ(leido.cabecera.boletos.size(), 1U);
    EXPECT_EQ(leido.cabecera.boletos[0].metodo, 1);
    EXPECT_EQ(leido.cabecera.boletos[0].seqBoleto, 2);
}

TEST(ArchivoOficial, MasDe32767ColumnasNoSePuedenLeer) {
    JsonBag raiz;
    raiz.JSON(R"({"asm":{"cabecera":{"totalApuestasSencillas":32768}}})");
    EXPECT_THROW(RecorrerArchivoOficial(raiz), base::Desbordamiento);
    raiz.JSON(R"({"asm":{"cabecera":{"hash":null}}})");
    EXPECT_THROW(RecorrerArchivoOficial(raiz), base::Error);
}

TEST(ArchivoOficial, GuardadoConElOtroOrdenYElMismoResumen) {
    JsonBag leida;
    leida.JSON(LeerTextoArchivo(pruebas::DatoDePrueba("oficial_generado.json")));
    const CabeceraOficial cabecera = RecorrerArchivoOficial(leida).cabecera;
    JsonBag guardada;
    EXPECT_EQ(ArbolGuardado(guardada, cabecera), cabecera.hash);
    EXPECT_EQ(guardada.JSON(), LeerTextoArchivo(pruebas::DatoDePrueba("oficial_guardado.json")));
}

TEST(ArchivoOficial, GuardadoConReceptorDeMasDe16BitsDesborda) {
    CabeceraOficial cabecera;
    cabecera.idReceptor = 32768;
    JsonBag raiz;
    EXPECT_THROW(ArbolGuardado(raiz, cabecera), base::Desbordamiento);
}

}  // namespace
}  // namespace quinteva::outputs
