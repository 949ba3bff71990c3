#include <gtest/gtest.h>

#include <fstream>

#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/cli/cli_runner.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {
namespace {

std::size_t Veces(const std::string& texto, const std::string& trozo) {
    std::size_t n = 0;
    for (auto p = texto.find(trozo); p != std::string::npos; p = texto.find(trozo, p + 1)) ++n;
    return n;
}

TEST(CliClasificacion, LaTablaYRecalcular) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    ASSERT_EQ(EjecutarCli("demo" + carpeta).codigo, 0);
    const Salida tabla = EjecutarCli("clasificacion --division 2 --json" + carpeta);
    EXPECT_EQ(tabla.codigo, 0) << tabla.errores;
    EXPECT_EQ(Veces(tabla.salida, "\"Posicion\": "), 22U);
    EXPECT_EQ(tabla.salida.rfind("[{\"Posicion\": 1, \"Nombre\": ", 0), 0U);

    // Recalcular rehace la 1ª desde la Jornada 1 hasta la última con goles: cada equipo, tantos
    // partidos como Jornadas jugadas.
    const Salida recalcular = EjecutarCli("recalcular --division 1" + carpeta);
    EXPECT_EQ(recalcular.codigo, 0) << recalcular.errores;
    const auto temporada = seasons::CarpetaTemporadaEnCurso(trabajo.Ruta());
    base::ArchivoDe<seasons::RegEquipo> equipos(temporada / seasons::kNomeq);
    for (std::int32_t n = 1; n <= equipos.Cuenta(); ++n) {
        const auto e = equipos.Leer(n);
        if (e.division == 1) {
            EXPECT_EQ(e.jugados, 20) << e.nombre;
        }
    }
    EXPECT_EQ(EjecutarCli("clasificacion --division 3" + carpeta).codigo, 2);
}

// Una Jornada de Liga nueva en una temporada nueva, luego cambiada, luego solo su fecha.
TEST(CliLigaJornada, NuevaCambiadaYSoloLaFecha) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    ASSERT_EQ(EjecutarCli("demo" + carpeta).codigo, 0);
    ASSERT_EQ(EjecutarCli("nueva-temporada 24/25 --equipos1 20 --equipos2 22" + carpeta).codigo, 0);
    const auto temporada = seasons::CarpetaTemporadaEnCurso(trabajo.Ruta());
    std::string equipos;
    {
        base::ArchivoDe<seasons::RegEquipo> nomeq(temporada / seasons::kNomeq);
        for (std::int32_t n = 1; n <= nomeq.Cuenta(); ++n) {
            const auto e = nomeq.Leer(n);
            if (e.division == 1)
                equipos += (equipos.empty() ? "" : ",") + std::string(base::Recortar(e.nombre));
        }
    }
    const Salida faltan = EjecutarCli(
        "liga-jornada --division 1 --jornada 1 --fecha 17/08/24 "
        "--equipos 'Girona,Betis'" +
        carpeta);
    EXPECT_EQ(faltan.codigo, 1);
    EXPECT_EQ(faltan.errores, "No están introducidos todos los Equipos.\n");
    const Salida nueva =
        EjecutarCli("liga-jornada --division 1 --jornada 1 --fecha 17/08/24 --equipos '" + equipos +
                    "'" + carpeta);
    EXPECT_EQ(nueva.codigo, 0) << nueva.errores;
    base::ArchivoDe<seasons::RegPartidoLiga> liga(temporada / seasons::kJlig2);
    ASSERT_EQ(liga.Cuenta(), 10);
    EXPECT_EQ(liga.Leer(10).partido, 10);
    EXPECT_EQ(liga.Leer(1).temporada, "24/25");
    const Salida fecha =
        EjecutarCli("liga-jornada --division 1 --jornada 1 --fecha 18/08/24 --equipos '" + equipos +
                    "'" + carpeta);
    EXPECT_EQ(fecha.codigo, 0) << fecha.errores;
    EXPECT_EQ(liga.Cuenta(), 10);
    EXPECT_EQ(liga.Leer(10).fecha, liga.Leer(1).fecha);
    const Salida ajena = EjecutarCli(
        "liga-jornada --division 1 --jornada 1 --fecha 18/08/24 "
        "--equipos 'Leganés,Betis'" +
        carpeta);
    EXPECT_EQ(ajena.codigo, 1);
    EXPECT_NE(ajena.errores.find("no es de la división"), std::string::npos);
    EXPECT_EQ(liga.Cuenta(), 10);
}

std::string Leer(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

// Los resultados de una Jornada de la temporada de demostración, con una fila en blanco, y lo
// que se rehúsa sin tocar los archivos.
TEST(CliLigaResultados, GuardaLosGolesYLaClasificacion) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    ASSERT_EQ(EjecutarCli("demo" + carpeta).codigo, 0);
    ASSERT_EQ(EjecutarCli("nueva-temporada 24/25 --equipos1 4 --equipos2 22" + carpeta).codigo, 0);
    const auto temporada = seasons::CarpetaTemporadaEnCurso(trabajo.Ruta());
    const Salida jornada = EjecutarCli(
        "liga-jornada --division 1 --jornada 1 --fecha 17/08/24 --equipos "
        "'Girona,Betis,Cádiz,Celta'" +
        carpeta);
    ASSERT_EQ(jornada.codigo, 0) << jornada.errores;
    const std::string antes = Leer(temporada / seasons::kJlig2);

    for (const char* goles : {"'2-x -'", "'2-1'", "'2-1 0-0 1-1'", "'21 -'", "'2- -'"}) {
        const Salida mal = EjecutarCli("liga-resultados --division 1 --jornada 1 --goles " +
                                       std::string(goles) + carpeta);
        EXPECT_EQ(mal.codigo, 1) << goles;
        EXPECT_FALSE(mal.errores.empty()) << goles;
        EXPECT_EQ(Leer(temporada / seasons::kJlig2), antes) << goles;
    }
    EXPECT_EQ(
        EjecutarCli("liga-resultados --division 1 --jornada 7 --goles '- -'" + carpeta).codigo, 2);

    const Salida bien =
        EjecutarCli("liga-resultados --division 1 --jornada 1 --goles '3-1 -'" + carpeta);
    ASSERT_EQ(bien.codigo, 0) << bien.errores;
    EXPECT_EQ(bien.salida, "Resultados de la Jornada 1 de 1ª División guardados\n");
    base::ArchivoDe<seasons::RegPartidoLiga> liga(temporada / seasons::kJlig2);
    EXPECT_EQ(liga.Leer(1).golesLocal, 3);
    EXPECT_EQ(liga.Leer(1).golesVisitante, 1);
    const Salida depurar = EjecutarCli("depurar-liga" + carpeta);
    EXPECT_EQ(depurar.salida, "Partidos de otras temporadas quitados de \"Jlig2.rar\": 0\n");
    EXPECT_EQ(Leer(temporada / seasons::kJlig2Bak), Leer(temporada / seasons::kJlig2));
    const Salida tabla = EjecutarCli("clasificacion --division 1 --json" + carpeta);
    EXPECT_EQ(tabla.salida.rfind("[{\"Posicion\": 1, \"Nombre\": \"Girona\", \"Puntos\": 3, "
                                 "\"Jugados\": 1",
                                 0),
              0U)
        << tabla.salida;
}

}  // namespace
}  // namespace quinteva::pruebas
