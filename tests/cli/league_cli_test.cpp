#include <gtest/gtest.h>

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

}  // namespace
}  // namespace quinteva::pruebas
