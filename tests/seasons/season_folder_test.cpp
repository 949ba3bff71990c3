#include "seasons/season_folder.h"

#include <gtest/gtest.h>

#include "base/error.h"
#include "base/record_files.h"
#include "seasons/record_files.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::seasons {
namespace {

using pruebas::AjustesEnMemoria;
using pruebas::CarpetaTemporal;

RegPartidoLiga Partido(int division, int jornada, int gl, int gv) {
    RegPartidoLiga p;
    p.division = division;
    p.jornada = jornada;
    p.golesLocal = gl;
    p.golesVisitante = gv;
    p.temporada = "23/24";
    return p;
}

TEST(CarpetaTemporada, NombreConLasCifrasDeLaTemporada) {
    EXPECT_EQ(NombreCarpetaTemporada("01/02"), "Temporada0102");
    EXPECT_EQ(NombreCarpetaTemporada("23/24"), "Temporada2324");
}

TEST(CarpetaTemporada, LaTemporadaDeSuNombre) {
    EXPECT_EQ(TemporadaDeCarpeta("Temporada0102"), "01/02");
    EXPECT_EQ(TemporadaDeCarpeta("Temporada2324 "), "23/24");
    EXPECT_EQ(TemporadaDeCarpeta(NombreCarpetaTemporada("99/00")), "99/00");
    EXPECT_EQ(TemporadaDeCarpeta("Temporada23"), "");
    EXPECT_EQ(TemporadaDeCarpeta("Temporada23a4"), "");
    EXPECT_EQ(TemporadaDeCarpeta("Otra2324"), "");
}

TEST(TemporadaActual, DeTemporRar) {
    CarpetaTemporal trabajo;
    EXPECT_FALSE(TemporadaActual(trabajo.Ruta()));
    EXPECT_FALSE(std::filesystem::exists(trabajo / "Tempor.rar"));
    FijarTemporadaActual(trabajo.Ruta(), "Temporada2324");
    EXPECT_EQ(std::filesystem::file_size(trabajo / "Tempor.rar"), 13U);
    EXPECT_EQ(TemporadaActual(trabajo.Ruta()), "Temporada2324");
    EXPECT_EQ(CarpetaTemporada(trabajo.Ruta(), "Temporada2324"), trabajo / "Temporada2324");
}

TEST(Archivos, CadaUnoEnSuCarpeta) {
    const std::filesystem::path t = "/t";
    const std::filesystem::path s = "/t/Temporada2324";
    for (const auto& a : kArchivosTemporada) {
        const bool arriba = a.nombre == kTempor || a.nombre == kHist;
        EXPECT_EQ(RutaArchivo(a, t, s), (arriba ? t : s) / a.nombre);
    }
}

TEST(MaxJornada, UnJlig2NuevoEstaVacioYNoHayJornadas) {
    CarpetaTemporal temporada;
    AjustesEnMemoria ajustes;
    const MaximasJornadas m = MaxJornada(temporada.Ruta(), ajustes);
    EXPECT_TRUE(std::filesystem::exists(temporada / "Jlig2.rar"));
    EXPECT_EQ(std::filesystem::file_size(temporada / "Jlig2.rar"), 0U);
    EXPECT_EQ(m.primera, 0);
    EXPECT_EQ(m.segunda, 0);
    EXPECT_EQ(ajustes.Leer(base::kAplicacion, "Valores", "MaxJor1ª", ""), "0");
}

TEST(MaxJornada, LaMasAltaConGolesDeCadaDivision) {
    CarpetaTemporal temporada;
    {
        base::ArchivoDe<RegPartidoLiga> liga(temporada / "Jlig2.rar");
        liga.Anadir(Partido(1, 1, 2, 1));
        liga.Anadir(Partido(1, 2, 0, 1));
        liga.Anadir(Partido(1, 3, 0, 0));  // 0-0 en toda la Jornada: no jugada
        liga.Anadir(Partido(1, 3, 0, 0));
        liga.Anadir(Partido(2, 5, 1, 0));
        liga.Anadir(Partido(2, 6, 0, 0));
    }
    AjustesEnMemoria ajustes;
    const MaximasJornadas m = MaxJornada(temporada.Ruta(), ajustes);
    EXPECT_EQ(m.primera, 2);
    EXPECT_EQ(m.segunda, 5);
    EXPECT_EQ(ajustes.Leer(base::kAplicacion, "Valores", "MaxJor1ª", ""), "2");
    EXPECT_EQ(ajustes.Leer(base::kAplicacion, "Valores", "MaxJor2ª", ""), "5");
}

TEST(ArchivoDe, UnDesbordamientoNoEscribeNada) {
    CarpetaTemporal temporada;
    base::ArchivoDe<RegEquipo> equipos(temporada / "Nomeq.rar");
    RegEquipo equipo;
    equipo.nombre = "Betis";
    equipo.golesFavor = 255;
    equipos.Anadir(equipo);
    equipo.golesFavor += 1;
    EXPECT_THROW(equipos.Escribir(1, equipo), base::Desbordamiento);
    EXPECT_EQ(equipos.Cuenta(), 1);
    EXPECT_EQ(equipos.Leer(1).golesFavor, 255);
}

}  // namespace
}  // namespace quinteva::seasons
