#include <gtest/gtest.h>

#include "base/record_files.h"
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

}  // namespace
}  // namespace quinteva::pruebas
