// quinteva-cli historico-condiciones sobre la temporada de demostración.
#include <gtest/gtest.h>

#include <algorithm>

#include "base/record_files.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/cli/cli_runner.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {
namespace {

// Las Jornadas con sus 14 signos en el "Jornadas.rar" de la temporada en curso.
int GanadorasCompletas(const std::filesystem::path& trabajo) {
    const auto archivo = seasons::CarpetaTemporadaEnCurso(trabajo) / seasons::kJornadas;
    const auto registros = base::LeerTodos<seasons::RegJornadaQuin>(archivo);
    return static_cast<int>(std::count_if(registros.begin(), registros.end(), [](const auto& r) {
        return std::all_of(r.signos.begin(), r.signos.begin() + 14,
                           [](char c) { return c == '1' || c == 'X' || c == '2'; });
    }));
}

TEST(CliHistoricoCondiciones, SinCondicionesPasanTodasLasGanadorasGuardadas) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    ASSERT_EQ(EjecutarCli("demo" + carpeta).codigo, 0);
    const std::string uxd = "'" + (trabajo / "H.uxd").string() + "'";
    ASSERT_EQ(EjecutarCli("nueva " + uxd +
                          " --base \"1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2\" "
                          "--pleno 1-0" +
                          carpeta)
                  .codigo,
              0);
    const int ganadoras = GanadorasCompletas(trabajo.Ruta());
    ASSERT_GT(ganadoras, 0);
    const Salida s = EjecutarCli("historico-condiciones " + uxd + " --json" + carpeta);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    const std::string n = std::to_string(ganadoras);
    EXPECT_EQ(s.salida.rfind("{\"Ganadoras\": " + n + ", \"EnLaBase\": " + n + ", \"Pasan\": " + n +
                                 ", \"Familias\": [], \"Jornadas\": [{\"Temporada\": ",
                             0),
              0U)
        << s.salida;
    const Salida texto = EjecutarCli("historico-condiciones " + uxd + carpeta);
    EXPECT_EQ(texto.salida.rfind("Columnas ganadoras: " + n + " (en la Quiniela Base: " + n +
                                     ")\nCumplen todas las condiciones: " + n + "\n",
                                 0),
              0U)
        << texto.salida;
    EXPECT_EQ(EjecutarCli("historico-condiciones" + carpeta).codigo, 2);
}

}  // namespace
}  // namespace quinteva::pruebas
