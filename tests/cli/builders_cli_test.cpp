// quinteva-cli muy-reducida: la Combinación nueva, generada, reducida, guardada y con las
// reducidas para jugar.
#include <gtest/gtest.h>

#include "outputs/played_set.h"
#include "tests/cli/cli_runner.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {
namespace {

TEST(CliMuyReducida, TresDoblesAlTreceSonDosColumnas) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    const auto uxd = trabajo / "Muy.uxd";
    const Salida s =
        EjecutarCli("muy-reducida '" + uxd.string() +
                    "' --base \"1X 1X 1X 1 1 1 1 1 1 1 1 1 1 1\" --pleno 1-0 --nivel 13 "
                    "--json" +
                    carpeta);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    EXPECT_EQ(s.salida,
              "{\"NivelReducida\": 0, \"TotalGeneradas\": 8, \"TotalReducidas\": 2, \"Jugada\": "
              "\"red\"}\n");
    EXPECT_EQ(s.errores, "Proceso terminado. Ya puede imprimir sus boletos\n");
    EXPECT_EQ(outputs::LeerJuegoJugado(uxd).juego, "red");
    EXPECT_EQ(outputs::LeerColumnas(trabajo / "Muy.red", true).size(), 2U);
}

TEST(CliMuyReducida, UnaBaseSinFilaNoSeGenera) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    const auto uxd = trabajo / "Cuatro.uxd";
    const Salida s = EjecutarCli(
        "muy-reducida '" + uxd.string() +
        "' --base \"1X 1X 1X 1X 1 1 1 1 1 1 1 1 1 1\" --pleno 1-0 --nivel 13" + carpeta);
    EXPECT_EQ(s.codigo, 1);
    EXPECT_EQ(s.errores,
              "Error: La Quiniela Base no es ninguna de las combinaciones de la tabla de "
              "reducciones.\n");
    EXPECT_FALSE(std::filesystem::exists(uxd));
    EXPECT_EQ(EjecutarCli("muy-reducida '" + uxd.string() +
                          "' --base \"1X\" --pleno 1-0 --nivel 10" + carpeta)
                  .codigo,
              2);
}

}  // namespace
}  // namespace quinteva::pruebas
