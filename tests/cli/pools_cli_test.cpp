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

std::string Columna(const std::filesystem::path& carpetaTrabajo, int jornada) {
    const auto temporada = seasons::CarpetaTemporadaEnCurso(carpetaTrabajo);
    base::ArchivoDe<seasons::RegJornadaQuin> columnas(temporada / seasons::kJornadas);
    for (std::int32_t n = 1; n <= columnas.Cuenta(); ++n) {
        const auto r = columnas.Leer(n);
        if (r.jornada == jornada && r.temporada == "23/24") return r.signos;
    }
    return {};
}

TEST(CliQuiniela, LosQuincePartidosYSuColumna) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    ASSERT_EQ(EjecutarCli("demo" + carpeta).codigo, 0);
    const Salida json = EjecutarCli("quiniela --jornada 12 --json" + carpeta);
    ASSERT_EQ(json.codigo, 0) << json.errores;
    EXPECT_EQ(Veces(json.salida, "\"Partido\": "), 15U);
    EXPECT_EQ(json.salida.rfind("[{\"Jornada\": 12, \"Fecha\": \"29/10/23\", \"Partido\": 1, ", 0),
              0U)
        << json.salida;
    EXPECT_NE(json.salida.find("\"Partido\": 15, \"Temporada\": \"23/24\""), std::string::npos);
    const Salida texto = EjecutarCli("quiniela --jornada 12" + carpeta);
    EXPECT_EQ(texto.salida.rfind("JORNADA 12,  Fecha 29/10/23\n1\t", 0), 0U) << texto.salida;
    const Salida falta = EjecutarCli("quiniela --jornada 69" + carpeta);
    EXPECT_EQ(falta.codigo, 1);
    EXPECT_EQ(falta.errores, "Error: No hay partidos de la Jornada 69\n");

    const std::string antes = Columna(trabajo.Ruta(), 12);
    const Salida sinPleno =
        EjecutarCli("quiniela-resultados --jornada 12 --signos 1X21X21X21X21X --pleno 1" + carpeta);
    EXPECT_EQ(sinPleno.codigo, 1);
    EXPECT_EQ(sinPleno.errores.rfind("El pleno al 15 hay que introducirlo con dos dígitos", 0), 0U);
    EXPECT_EQ(Columna(trabajo.Ruta(), 12), antes);
    EXPECT_EQ(EjecutarCli("quiniela-resultados --jornada 12 --signos 1X21X21X21X21Y --pleno 1-1" +
                          carpeta)
                  .codigo,
              1);
    const Salida bien = EjecutarCli(
        "quiniela-resultados --jornada 12 --signos 1X21X21X21X21X --pleno 2-M" + carpeta);
    ASSERT_EQ(bien.codigo, 0) << bien.errores;
    EXPECT_EQ(Columna(trabajo.Ruta(), 12), "1X21X21X21X21XL");
    EXPECT_NE(
        EjecutarCli("quiniela --jornada 12 --json" + carpeta).salida.find("\"Signo\": \"L\"}]"),
        std::string::npos);
}

}  // namespace
}  // namespace quinteva::pruebas
