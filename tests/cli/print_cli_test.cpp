// quinteva-cli imprimir: las marcas de cada página y el PDF de una Combinación ajustada.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>

#include "tests/cli/cli_runner.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {
namespace {

std::size_t Veces(const std::string& texto, const std::string& trozo) {
    std::size_t n = 0;
    for (auto p = texto.find(trozo); p != std::string::npos; p = texto.find(trozo, p + 1)) ++n;
    return n;
}

// Dada una Combinación de la Jornada 12 de la temporada de demostración con 20 columnas jugadas
// (tres boletos, el último con cuatro).
class CliImprimir : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(EjecutarCli("demo" + carpeta).codigo, 0);
        ASSERT_EQ(EjecutarCli("nueva '" + uxd.string() +
                              "' --base \"1X2 1X 1 X2 1 1 X 2 1X2 1 1 2 1 X\" --pleno 1-M "
                              "--jornada 12" +
                              carpeta)
                      .codigo,
                  0);
        ASSERT_EQ(EjecutarCli("generar '" + uxd.string() + "'" + carpeta).codigo, 0);
        ASSERT_EQ(EjecutarCli("ajustar '" + uxd.string() + "' --juego cnd --apuestas 20" + carpeta)
                      .codigo,
                  0);
    }

    CarpetaTemporal trabajo;
    std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    std::filesystem::path uxd = trabajo / "J12.uxd";
};

TEST_F(CliImprimir, LasMarcasDeCadaBoletoConSuCabecera) {
    const Salida s = EjecutarCli("imprimir '" + uxd.string() + "' --marcas --json" + carpeta);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    EXPECT_EQ(Veces(s.salida, "\"Texto\": \"°\""), 20U * 14 + 3 * 2);
    EXPECT_EQ(
        s.salida.rfind("[{\"Pagina\": 1, \"Texto\": \"°\", \"Fuente\": \"Arial\", \"Tamano\": "
                       "14, \"Negrita\": true, \"X\": ",
                       0),
        0U)
        << s.salida.substr(0, 200);
    EXPECT_NE(s.salida.find("\"Texto\": \"29/10/23 Nº 3\""), std::string::npos);
    EXPECT_NE(s.salida.find("\"Y\": 1326.69}"), std::string::npos);
    EXPECT_EQ(Veces(s.salida, "\"Pagina\": 3"), 4U * 14 + 2 + 2);

    const Salida vertical = EjecutarCli("imprimir '" + uxd.string() +
                                        "' --marcas --json --direccion vertical --desde 2 "
                                        "--hasta 2" +
                                        carpeta);
    ASSERT_EQ(vertical.codigo, 0) << vertical.errores;
    EXPECT_EQ(Veces(vertical.salida, "\"Texto\": \"°\""), 8U * 14 + 2);
    EXPECT_NE(vertical.salida.find("\"Texto\": \"29/10/23 Nº 2\""), std::string::npos);
}

TEST_F(CliImprimir, UnPdfConUnaPaginaPorBoleto) {
    const auto pdf = trabajo / "boletos.pdf";
    const Salida s = EjecutarCli("imprimir '" + uxd.string() + "' --papel blanco --pdf '" +
                                 pdf.string() + "'" + carpeta);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    std::ifstream f(pdf, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(f), {}};
    EXPECT_EQ(bytes.rfind("%PDF-1.4", 0), 0U);
    EXPECT_NE(bytes.find("/Count 3"), std::string::npos);
}

TEST_F(CliImprimir, LosLimitesMalDadosYLaOrdenMalEscrita) {
    const Salida alReves = EjecutarCli("imprimir '" + uxd.string() +
                                       "' --marcas --json --desde 3 --hasta 2" + carpeta);
    EXPECT_EQ(alReves.codigo, 1);
    EXPECT_EQ(alReves.errores,
              "El segundo límite de impresión tiene que ser mayor o igual que el primero.\n");
    const Salida uno =
        EjecutarCli("imprimir '" + uxd.string() + "' --marcas --json --desde 3" + carpeta);
    EXPECT_EQ(uno.codigo, 1);
    EXPECT_EQ(uno.errores, "Tiene que indicar los dos límites de impresión.\n");
    EXPECT_EQ(EjecutarCli("imprimir '" + uxd.string() + "'" + carpeta).codigo, 2);
    EXPECT_EQ(EjecutarCli("imprimir '" + uxd.string() + "' --marcas --json --papel otro" + carpeta)
                  .codigo,
              2);
    const Salida falta =
        EjecutarCli("imprimir '" + (trabajo / "no.uxd").string() + "' --marcas --json" + carpeta);
    EXPECT_EQ(falta.codigo, 1);
}

TEST(CliImportar, UnaListaDeTextoYSusLineasMalas) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    std::ofstream(trabajo / "lista.txt") << "1X21X21X21X21X 1-M\n22222222222222 0-0\n";
    const Salida texto =
        EjecutarCli("importar '" + (trabajo / "lista.txt").string() + "'" + carpeta);
    ASSERT_EQ(texto.codigo, 0) << texto.errores;
    EXPECT_EQ(
        texto.salida,
        "Columnas importadas: 2\nBoletos: 1\n1\t1X21X21X21X21X\t1-M\n2\t22222222222222\t0-0\n");
    const Salida json =
        EjecutarCli("importar '" + (trabajo / "lista.txt").string() + "' --json" + carpeta);
    EXPECT_EQ(json.salida.rfind("{\"Columnas\": 2, \"Boletos\": 1, \"Lista\": [{\"Columna\": 1, "
                                "\"Signos\": \"1X21X21X21X21X\", \"Pleno\": \"1-M\"}",
                                0),
              0U)
        << json.salida;
    const Salida sinPleno =
        EjecutarCli("importar '" + (trabajo / "lista.txt").string() + "' --sin-pleno" + carpeta);
    EXPECT_EQ(sinPleno.codigo, 1);
    EXPECT_EQ(sinPleno.errores, "Error: La línea 1 no es una columna: 1X21X21X21X21X 1-M\n");
}

}  // namespace
}  // namespace quinteva::pruebas
