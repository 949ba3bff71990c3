#include <gtest/gtest.h>

#include <cstdlib>

#include "base/record_files.h"
#include "base/settings_ini.h"
#include "base/text1252.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/cli/cli_runner.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {
namespace {

std::size_t Lineas(const std::string& texto) {
    return static_cast<std::size_t>(std::count(texto.begin(), texto.end(), '\n'));
}

// Las estadísticas de los signos de la temporada de demostración, contadas aquí desde
// "Jornadas.rar".
TEST(CliEstadisticas, LosSignosPorPosicionDeLaTemporada) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    ASSERT_EQ(EjecutarCli("demo" + carpeta).codigo, 0);
    const auto temporada = seasons::CarpetaTemporadaEnCurso(trabajo.Ruta());
    std::array<int, 15> unos{};
    base::ArchivoDe<seasons::RegJornadaQuin> jornadas(temporada / seasons::kJornadas);
    for (std::int32_t n = 1; n <= jornadas.Cuenta(); ++n) {
        const auto r = jornadas.Leer(n);
        if (r.temporada != "23/24") continue;
        for (std::size_t p = 0; p < 15; ++p) unos[p] += r.signos[p] == '1';
    }
    std::string esperado = "1\t";
    for (std::size_t p = 0; p < 15; ++p) esperado += (p == 0 ? "" : "\t") + std::to_string(unos[p]);
    const Salida signos = EjecutarCli("estadisticas --tipo signos --temporada 23/24" + carpeta);
    ASSERT_EQ(signos.codigo, 0) << signos.errores;
    EXPECT_EQ(signos.salida.substr(0, signos.salida.find('\n')), esperado);
    EXPECT_EQ(Lineas(signos.salida), 3U);

    const Salida pareja = EjecutarCli(
        "estadisticas --tipo parejas --posiciones 1,14 --temporada 23/24 --json" + carpeta);
    ASSERT_EQ(pareja.codigo, 0) << pareja.errores;
    EXPECT_EQ(
        pareja.salida.rfind("{\"Etiqueta\": \"Pareja 1-14\", \"Combinaciones\": [{\"Signos\": "
                            "\"11\", \"Veces\": ",
                            0),
        0U)
        << pareja.salida;
    EXPECT_EQ(EjecutarCli("estadisticas --tipo trios --posiciones 1,2" + carpeta).codigo, 2);
    EXPECT_EQ(EjecutarCli("estadisticas --tipo colores" + carpeta).codigo, 2);
}

TEST(CliHistorico, LosPartidosDeUnEquipoHastaLaUltimaJornadaJugada) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    ASSERT_EQ(EjecutarCli("demo" + carpeta).codigo, 0);
    ASSERT_EQ(EjecutarCli("recalcular --division 1" + carpeta).codigo, 0);
    const int ultima = std::atoi(base::AjustesIni(trabajo.Ruta())
                                     .Leer(base::kAplicacion, "Valores", "MaxJor1ª", "0")
                                     .c_str());
    ASSERT_GT(ultima, 0);
    std::size_t esperadas = 0;
    base::ArchivoDe<seasons::RegPartidoLiga> hist(trabajo / seasons::kHist);
    for (std::int32_t n = 1; n <= hist.Cuenta(); ++n) {
        const auto p = hist.Leer(n);
        const bool betis =
            base::Recortar(p.local) == "Betis" || base::Recortar(p.visitante) == "Betis";
        esperadas += betis && p.jornada <= ultima;
    }
    ASSERT_GT(esperadas, 0U);
    const Salida betis = EjecutarCli("historico --equipo Betis" + carpeta);
    ASSERT_EQ(betis.codigo, 0) << betis.errores;
    EXPECT_EQ(Lineas(betis.salida), esperadas);
    const Salida falta = EjecutarCli("historico --equipos Betis" + carpeta);
    EXPECT_EQ(falta.codigo, 1);
    EXPECT_EQ(falta.errores, "Error: Tiene que seleccionar a los dos equipos.\n");
}

}  // namespace
}  // namespace quinteva::pruebas
