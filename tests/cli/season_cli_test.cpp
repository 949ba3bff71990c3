#include <gtest/gtest.h>

#include "base/record_files.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/cli/cli_runner.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {
namespace {

std::string Carpeta(const CarpetaTemporal& c) { return "--carpeta '" + c.Ruta().string() + "'"; }

TEST(CliAyuda, ListaLosSubcomandos) {
    const Salida s = EjecutarCli("--help");
    EXPECT_EQ(s.codigo, 0);
    EXPECT_NE(s.salida.find("temporada [--carpeta DIR] [--json]"), std::string::npos);
}

TEST(CliAyuda, SinArgumentosEsUnErrorDeUso) {
    const Salida s = EjecutarCli("");
    EXPECT_EQ(s.codigo, 2);
    EXPECT_NE(s.errores.find("Uso: quinteva-cli"), std::string::npos);
}

TEST(CliAyuda, UnSubcomandoDesconocido) {
    const Salida s = EjecutarCli("volar");
    EXPECT_EQ(s.codigo, 2);
    EXPECT_NE(s.errores.find("Subcomando desconocido: volar"), std::string::npos);
    EXPECT_TRUE(s.salida.empty());
}

TEST(CliTemporada, UnaOpcionDesconocida) {
    const Salida s = EjecutarCli("temporada --rapido");
    EXPECT_EQ(s.codigo, 2);
    EXPECT_NE(s.errores.find("Opción desconocida: --rapido"), std::string::npos);
}

TEST(CliTemporada, FaltaElValorDeCarpeta) {
    const Salida s = EjecutarCli("temporada --carpeta");
    EXPECT_EQ(s.codigo, 2);
    EXPECT_NE(s.errores.find("Falta el valor de --carpeta"), std::string::npos);
}

TEST(CliTemporada, SinTemporadaNoCreaNada) {
    CarpetaTemporal trabajo;
    const Salida s = EjecutarCli("temporada " + Carpeta(trabajo));
    EXPECT_EQ(s.codigo, 0) << s.errores;
    EXPECT_NE(s.salida.find("Temporada actual: ninguna"), std::string::npos);
    EXPECT_TRUE(std::filesystem::is_empty(trabajo.Ruta()));
}

TEST(CliTemporada, CuentaLosRegistrosDeCadaArchivo) {
    CarpetaTemporal trabajo;
    seasons::FijarTemporadaActual(trabajo.Ruta(), "Temporada2324");
    const auto temporada = trabajo / "Temporada2324";
    std::filesystem::create_directories(temporada);
    {
        base::ArchivoDe<seasons::RegEquipo> equipos(temporada / "Nomeq.rar");
        for (int i = 0; i < 3; ++i) equipos.Anadir({});
        base::ArchivoDe<seasons::RegJornadaQuin> jornadas(temporada / "Jornadas.rar");
        jornadas.Anadir({});
    }
    const Salida s = EjecutarCli("temporada " + Carpeta(trabajo));
    EXPECT_EQ(s.codigo, 0) << s.errores;
    EXPECT_NE(s.salida.find("Temporada actual: Temporada2324\n"), std::string::npos);
    EXPECT_NE(s.salida.find("Nomeq.rar: 3 registros\n"), std::string::npos);
    EXPECT_NE(s.salida.find("Jornadas.rar: 1 registros\n"), std::string::npos);
    EXPECT_NE(s.salida.find("Jlig2.rar: 0 registros\n"), std::string::npos);

    const Salida j = EjecutarCli("temporada --json " + Carpeta(trabajo));
    EXPECT_EQ(j.codigo, 0);
    EXPECT_NE(j.salida.find("\"TemporadaActual\": \"Temporada2324\""), std::string::npos);
    EXPECT_NE(j.salida.find("\"Nomeq.rar\": 3"), std::string::npos);
    EXPECT_NE(j.salida.find("\"Tempor.rar\": 1"), std::string::npos);
}

TEST(CliTemporada, LaVariableDeEntornoSustituyeLaCarpeta) {
    CarpetaTemporal trabajo;
    seasons::FijarTemporadaActual(trabajo.Ruta(), "Temporada0102");
    const Salida s = EjecutarCli("temporada", "QUINTEVA_CARPETA='" + trabajo.Ruta().string() + "'");
    EXPECT_EQ(s.codigo, 0) << s.errores;
    EXPECT_NE(s.salida.find("Temporada actual: Temporada0102"), std::string::npos);
}

}  // namespace
}  // namespace quinteva::pruebas
