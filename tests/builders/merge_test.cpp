// "Generar archivo txt": las tres formas, byte a byte.
#include "builders/merge.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "base/error.h"
#include "tests/builders/boletos_fixture.h"
#include "tests/support/file_bytes.h"

namespace quinteva::builders {
namespace {

using pruebas::BancoBoletos;
using pruebas::Registro;

// Cuatro columnas, la segunda y la cuarta eliminadas; cada registro con su Pleno, distinto del
// PlenoBase "0M", que es el que se escribe.
void Preparar(BancoBoletos& b, Jugada jugada) {
    b.comb.pleno = {'0', 'M'};
    b.Columnas(jugada, {Registro("1X21X21X21X21X", "11"), Registro("11111111111111", "22", '1'),
                        Registro("2222222222222X", "12"), Registro("XXXXXXXXXXXXXX", "21", '1')});
}

TEST(RegistroTexto, LasTresFormas) {
    const auto c = engine::ColumnaDeTexto("1X2X21X2111X22");
    const engine::PlenoBase p{'2', 'M'};
    EXPECT_EQ(RegistroTexto(c, p, EstructuraRefundido::Separadores), "1X2X21X2111X222M\r");
    EXPECT_EQ(RegistroTexto(c, p, EstructuraRefundido::Columna), "1X2X21X2111X222M\r\n");
    EXPECT_EQ(RegistroTexto(c, p, EstructuraRefundido::Continuo), "1X2X21X2111X222M");
    EXPECT_EQ(LongitudRegistroTexto(EstructuraRefundido::Separadores), 17U);
    EXPECT_EQ(LongitudRegistroTexto(EstructuraRefundido::Columna), 18U);
    EXPECT_EQ(LongitudRegistroTexto(EstructuraRefundido::Continuo), 16U);
}

TEST(GenerarArchivoTxt, SoloActivasConElPlenoBaseEnCadaForma) {
    const std::vector<std::pair<int, std::string>> casos = {
        {1, "1X21X21X21X21X0M\r2222222222222X0M\r"},
        {2, "1X21X21X21X21X0M\r\n2222222222222X0M\r\n"},
        {3, "1X21X21X21X21X0M2222222222222X0M"},
    };
    for (const auto& [codigo, esperado] : casos) {
        BancoBoletos b;
        Preparar(b, Jugada::Condicionada);
        const auto salida = b.carpeta / "cols.txt";
        b.dialogo.Responder(std::optional<std::filesystem::path>(salida));
        EXPECT_EQ(GenerarArchivoTxt(b.comb, codigo, b.dialogo), 2);
        EXPECT_EQ(pruebas::BytesDeArchivo(salida), esperado) << codigo;
        EXPECT_EQ(b.dialogo.Registro().at(0).tipo, "ArchivoParaGuardar");
        EXPECT_FALSE(std::filesystem::exists(b.carpeta / "cols.txt.nuevo"));
    }
}

TEST(GenerarArchivoTxt, LaReducidaSeLeeDelRed) {
    BancoBoletos b;
    b.Generadas(8);
    Preparar(b, Jugada::Reducida);
    const auto salida = b.carpeta / "red.txt";
    b.dialogo.Responder(std::optional<std::filesystem::path>(salida));
    EXPECT_EQ(GenerarArchivoTxt(b.comb, 3, b.dialogo), 2);
    EXPECT_EQ(pruebas::BytesDeArchivo(salida), "1X21X21X21X21X0M2222222222222X0M");
}

TEST(GenerarArchivoTxt, CancelarRutaVaciaYSobrescribir) {
    BancoBoletos b;
    Preparar(b, Jugada::Condicionada);
    EXPECT_EQ(GenerarArchivoTxt(b.comb, 0, b.dialogo), std::nullopt);
    EXPECT_TRUE(b.dialogo.Registro().empty()) << "el código 0 acaba sin preguntar nada";

    b.dialogo.Responder(std::optional<std::filesystem::path>());
    EXPECT_EQ(GenerarArchivoTxt(b.comb, 1, b.dialogo), std::nullopt);
    b.dialogo.Responder(std::optional<std::filesystem::path>(std::filesystem::path()));
    EXPECT_EQ(GenerarArchivoTxt(b.comb, 1, b.dialogo), std::nullopt);

    const auto salida = b.carpeta / "ya.txt";
    std::ofstream(salida) << "lo de antes";
    b.dialogo.Responder(std::optional<std::filesystem::path>(salida))
        .Responder(base::Respuesta::No);
    EXPECT_EQ(GenerarArchivoTxt(b.comb, 1, b.dialogo), std::nullopt);
    EXPECT_EQ(pruebas::BytesDeArchivo(salida), "lo de antes");
    EXPECT_EQ(b.dialogo.Textos().back(), kPreguntaTxtExiste);

    b.dialogo.Responder(std::optional<std::filesystem::path>(salida))
        .Responder(base::Respuesta::Si);
    EXPECT_EQ(GenerarArchivoTxt(b.comb, 3, b.dialogo), 2);
    EXPECT_EQ(pruebas::BytesDeArchivo(salida), "1X21X21X21X21X0M2222222222222X0M");
}

TEST(GenerarArchivoTxt, SinJugadaElegidaOSinArchivoDeColumnas) {
    BancoBoletos b;
    Preparar(b, Jugada::Condicionada);
    b.comb.jugada.clear();
    try {
        GenerarArchivoTxt(b.comb, 1, b.dialogo);
        FAIL();
    } catch (const base::Error& e) {
        EXPECT_EQ(e.what(), kMsgSinBoletos);
    }
    b.comb.jugada = "red";
    const auto salida = b.carpeta / "x.txt";
    b.dialogo.Responder(std::optional<std::filesystem::path>(salida));
    EXPECT_THROW(GenerarArchivoTxt(b.comb, 1, b.dialogo), base::Error);
    EXPECT_FALSE(std::filesystem::exists(salida));
    EXPECT_FALSE(std::filesystem::exists(b.carpeta / "J7.red")) << "no se crea el que falta";
}

}  // namespace
}  // namespace quinteva::builders
