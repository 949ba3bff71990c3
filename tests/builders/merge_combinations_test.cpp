// "Refundir combinaciones": las filas que se añaden y el archivo refundido, byte a byte.
#include "builders/merge_combinations.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/builders/boletos_fixture.h"
#include "tests/support/file_bytes.h"

namespace quinteva::builders {
namespace {

using pruebas::BancoBoletos;
using pruebas::Registro;

// Una Combinación guardada con las columnas dadas en su conjunto jugado.
struct Guardada {
    BancoBoletos banco;
    Guardada(int jornada, const std::vector<engine::RegistroColumna>& registros,
             Jugada jugada = Jugada::Condicionada) {
        banco.comb.jornada = static_cast<std::uint8_t>(jornada);
        banco.Columnas(jugada, registros);
    }
    const std::filesystem::path& Uxd() const { return banco.comb.ruta; }
};

CombinacionARefundir Fila(const Guardada& g, pruebas::DialogoGuionado& dialogo,
                          const std::vector<CombinacionARefundir>& filas = {}) {
    return ComprobarParaRefundir(g.Uxd(), filas, dialogo).value();
}

TEST(Refundir, LasActivasSinRepetidasConElPlenoDeLaPrimera) {
    Guardada a(7, {Registro("1X21X21X21X21X", "2M"), Registro("11111111111111", "2M"),
                   Registro("22222222222222", "2M", engine::kEliminada)});
    // La repetida de B lleva otro Pleno: no cuenta.
    Guardada b(7, {Registro("11111111111111", "00"), Registro("XXXXXXXXXXXXXX", "01")},
               Jugada::Reducida);
    pruebas::DialogoGuionado dialogo;
    std::vector<CombinacionARefundir> filas = {Fila(a, dialogo)};
    filas.push_back(Fila(b, dialogo, filas));
    EXPECT_EQ(filas[0].nombre, "J7");
    EXPECT_EQ(filas[1].columnas.extension(), ".red");
    EXPECT_EQ(filas[1].jornada, 7);
    const auto salida = a.banco.carpeta / "refundida.txt";
    dialogo.Responder(base::Respuesta::Si);
    base::AzarEstandar azar(1);
    const auto r = Refundir(filas, salida, EstructuraRefundido::Columna, azar, dialogo);
    ASSERT_TRUE(r);
    EXPECT_EQ(r->columnas, 3);
    EXPECT_EQ(r->repetidas, 1);
    EXPECT_EQ(r->agregadas, 0);
    EXPECT_EQ(pruebas::BytesDeArchivo(salida),
              "1X21X21X21X21X2M\r\n111111111111112M\r\nXXXXXXXXXXXXXX2M\r\n");
    EXPECT_EQ(dialogo.Textos(),
              (std::vector<std::string>{
                  std::string(kMsgRefundirLargo),
                  "El Pleno al 15 para toda la combinación es 2-M. Es correcto?",
                  "Proceso terminado, la nueva combinación tiene 3 apuestas. Se han eliminado 1 "
                  "columnas repetidas."}));
    EXPECT_FALSE(std::filesystem::exists(a.banco.carpeta / "refundida.bak"));
}

TEST(Refundir, NueveColumnasLlevanUnaAlAzarYSonDiez) {
    const auto todas =
        pruebas::ColumnasDeLaBase(pruebas::BaseDe("1X2 1X2 1X2 1 1 1 1 1 1 1 1 1 1 1"));
    std::vector<engine::RegistroColumna> nueve;
    for (std::size_t i = 0; i < 9; ++i) nueve.push_back(Registro(todas[i], "10"));
    Guardada a(3, nueve);
    pruebas::DialogoGuionado dialogo;
    const std::vector<CombinacionARefundir> filas = {Fila(a, dialogo)};
    // Un ".bak" que ya estaba se borra sin preguntar.
    const auto salida = a.banco.carpeta / "nueve.txt";
    std::ofstream(a.banco.carpeta / "nueve.bak") << "de antes";
    dialogo.Responder(base::Respuesta::Si);
    base::AzarEstandar azar(9);
    const auto r = Refundir(filas, salida, EstructuraRefundido::Continuo, azar, dialogo);
    ASSERT_TRUE(r);
    EXPECT_EQ(r->columnas, 10);
    EXPECT_EQ(r->agregadas, 1);
    EXPECT_EQ(dialogo.Textos().back(),
              "Proceso terminado, la nueva combinación tiene 10 apuestas. Se han eliminado 0 "
              "columnas repetidas y se han agregado aleatóriamente 1 columnas para completar el "
              "último boleto.");
    const std::string bytes = pruebas::BytesDeArchivo(salida);
    ASSERT_EQ(bytes.size(), 10U * 16U);
    EXPECT_EQ(bytes.substr(0, 16), todas[0] + "10");
    // La añadida, con el Pleno de la refundición y signos 1, X o 2.
    const std::string ultima = bytes.substr(9 * 16);
    EXPECT_EQ(ultima.substr(14), "10");
    EXPECT_EQ(ultima.substr(0, 14).find_first_not_of("1X2"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(a.banco.carpeta / "nueve.bak"));
}

TEST(Refundir, ConNoAlPlenoSeCancelaYElArchivoQuedaVacio) {
    Guardada a(7, {Registro("1X21X21X21X21X", "2M")});
    pruebas::DialogoGuionado dialogo;
    const std::vector<CombinacionARefundir> filas = {Fila(a, dialogo)};
    const auto salida = a.banco.carpeta / "cancelada.txt";
    dialogo.Responder(base::Respuesta::No);
    base::AzarEstandar azar(1);
    EXPECT_FALSE(Refundir(filas, salida, EstructuraRefundido::Separadores, azar, dialogo));
    EXPECT_EQ(dialogo.Textos().back(), kMsgProcesoCancelado);
    EXPECT_EQ(pruebas::BytesDeArchivo(salida), "");
}

TEST(Refundir, UnFalloAlEscribirEsProcesoAbortado) {
    Guardada a(7, {Registro("1X21X21X21X21X", "2M")});
    pruebas::DialogoGuionado dialogo;
    const std::vector<CombinacionARefundir> filas = {Fila(a, dialogo)};
    dialogo.Responder(base::Respuesta::Si);
    base::AzarEstandar azar(1);
    EXPECT_FALSE(Refundir(filas, a.banco.carpeta / "no" / "hay" / "carpeta.txt",
                          EstructuraRefundido::Separadores, azar, dialogo));
    EXPECT_EQ(dialogo.Textos().back(), kMsgProcesoAbortado);
}

TEST(Refundir, AlAnadirLaMismaRutaOtraJornadaOSinBoletos) {
    Guardada a(7, {Registro("1X21X21X21X21X", "2M")});
    pruebas::DialogoGuionado dialogo;
    std::vector<CombinacionARefundir> filas = {Fila(a, dialogo)};
    // La misma ruta: rechazada.
    EXPECT_FALSE(ComprobarParaRefundir(a.Uxd(), filas, dialogo));
    EXPECT_EQ(dialogo.Textos().back(), kMsgYaAnadida);
    // Una copia en otra carpeta, con el mismo contenido: las rutas no coinciden, se añade.
    const auto copia = a.banco.carpeta / "otra";
    std::filesystem::create_directories(copia);
    std::filesystem::copy_file(a.Uxd(), copia / "J7.uxd");
    std::filesystem::copy_file(engine::RutaHermana(a.Uxd(), ".cnd"), copia / "J7.cnd");
    EXPECT_TRUE(ComprobarParaRefundir(copia / "J7.uxd", filas, dialogo));
    // Otra Jornada.
    Guardada b(8, {Registro("11111111111111", "2M")});
    EXPECT_FALSE(ComprobarParaRefundir(b.Uxd(), filas, dialogo));
    EXPECT_EQ(dialogo.Textos().back(), kMsgOtraJornada);
    // Sin conjunto jugado.
    b.banco.EscribirJugada("   ");
    EXPECT_FALSE(ComprobarParaRefundir(b.Uxd(), {}, dialogo));
    EXPECT_EQ(dialogo.Textos().back(), kMsgSinBoletos);
    // Un ".uxd" que no lo es: el error dicho.
    std::ofstream(a.banco.carpeta / "corto.uxd") << "corto";
    dialogo.Responder(std::optional<std::filesystem::path>(a.banco.carpeta / "corto.uxd"));
    EXPECT_FALSE(AnadirParaRefundir(filas, a.banco.carpeta.Ruta(), dialogo));
    EXPECT_EQ(dialogo.Textos().back().rfind("Error: ", 0), 0U);
}

TEST(Refundir, ElArchivoQueYaExistePreguntaConNoPorDefecto) {
    pruebas::CarpetaTemporal carpeta;
    const auto ruta = carpeta / "salida.txt";
    std::ofstream(ruta) << "mio";
    pruebas::DialogoGuionado dialogo;
    dialogo.Responder(std::optional<std::filesystem::path>(ruta)).Responder(base::Respuesta::No);
    EXPECT_FALSE(ElegirArchivoRefundido(dialogo, carpeta.Ruta()));
    EXPECT_EQ(pruebas::BytesDeArchivo(ruta), "mio");
    EXPECT_EQ(dialogo.PorDefecto(), std::vector<base::Respuesta>{base::Respuesta::No});
    dialogo.Responder(std::optional<std::filesystem::path>(ruta)).Responder(base::Respuesta::Si);
    EXPECT_EQ(ElegirArchivoRefundido(dialogo, carpeta.Ruta()), ruta);
    EXPECT_FALSE(std::filesystem::exists(ruta));
}

}  // namespace
}  // namespace quinteva::builders
