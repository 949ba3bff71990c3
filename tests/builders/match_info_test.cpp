#include "builders/match_info.h"

#include <gtest/gtest.h>

#include "base/dates.h"
#include "base/record_files.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/builders/league_fixture.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::builders {
namespace {

using pruebas::AjustesEnMemoria;
using pruebas::CarpetaTemporal;

seasons::RegEquipo Equipo(std::string nombre, int division, int posicion, int puntos) {
    seasons::RegEquipo e;
    e.nombre = std::move(nombre);
    e.division = division;
    e.posicion = posicion;
    e.puntos = puntos;
    e.puntosCasa = puntos - 1;
    e.puntosFuera = 1;
    e.valoracion = 10 * posicion;
    for (std::size_t j = 0; j < 6; ++j) e.posicionJornada[j] = posicion + static_cast<int>(j);
    return e;
}

using pruebas::Liga;

// Una división de cuatro equipos (seis Jornadas) con tres jugadas.
struct Temporada {
    CarpetaTemporal carpeta;
    AjustesEnMemoria ajustes;
    Temporada() {
        base::ArchivoDe<seasons::RegEquipo> nomeq(carpeta / seasons::kNomeq);
        nomeq.Anadir(Equipo("Betis", 1, 2, 6));
        nomeq.Anadir(Equipo("Sevilla", 1, 1, 7));
        nomeq.Anadir(Equipo("Eibar", 2, 1, 9));
        nomeq.Anadir(Equipo("Cádiz", 1, 4, 1));
        nomeq.Anadir(Equipo("Celta", 1, 3, 3));
        nomeq.Cerrar();
        base::ArchivoDe<seasons::RegPartidoLiga> liga(carpeta / seasons::kJlig2);
        liga.Anadir(Liga(1, 1, "Betis", "Sevilla", 1, 1));
        liga.Anadir(Liga(1, 1, "Celta", "Cádiz", 2, 0));
        liga.Anadir(Liga(1, 2, "Sevilla", "Celta", 3, 1));
        liga.Anadir(Liga(2, 2, "Betis", "Eibar", 5, 5));
        liga.Anadir(Liga(1, 2, "Cádiz", "Betis", 0, 2));
        liga.Anadir(Liga(1, 3, "Betis", "Celta", 1, 0));
        liga.Anadir(Liga(1, 4, "Sevilla", "Betis", 0, 0));
        liga.Cerrar();
        ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", "4");
        ajustes.Guardar(base::kAplicacion, "Valores", "MaxJor1ª", "3");
    }
};

TEST(DividirPartido, HastaDosAntesDelGuionYDesdeDosDespues) {
    const Enfrentamiento e = DividirPartido("Real Madrid - Atlético Madrid");
    EXPECT_EQ(e.local, "Real Madrid");
    EXPECT_EQ(e.visitante, "Atlético Madrid");
    EXPECT_EQ(DividirPartido("Betis - ").visitante, "");
    EXPECT_EQ(DividirPartido("Betis").local, "Betis");
    EXPECT_EQ(DividirPartido("-").local, "");
}

TEST(Info, LosDosEquiposSusPuestosYSusUltimosPartidos) {
    Temporada t;
    const InfoPartido info = Info(t.carpeta.Ruta(), "Betis - Sevilla", 1, t.ajustes);
    EXPECT_EQ(info.equipos, 4);
    EXPECT_EQ(info.local.nombre, "Betis");
    EXPECT_TRUE(info.local.encontrado);
    EXPECT_EQ(info.local.posicion, 2);
    EXPECT_EQ(info.local.puntos, 6);
    EXPECT_EQ(info.local.valoracion, 20);
    EXPECT_EQ(info.visitante.valoracion, 10);
    // Hasta 2 x 4 - 2 = 6 Jornadas.
    EXPECT_EQ(info.local.puestos, (std::vector<int>{2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(info.visitante.puestos.size(), 6U);
    // Solo hasta MaxJor1ª (3), de 1ª, la más reciente primero.
    ASSERT_EQ(info.local.recientes.size(), 3U);
    EXPECT_EQ(info.local.recientes[0].local, "Betis");
    EXPECT_EQ(info.local.recientes[0].visitante, "Celta");
    EXPECT_EQ(info.local.recientes[0].fecha, "03/09/23");
    EXPECT_EQ(info.local.recientes[1].local, "Cádiz");
    EXPECT_EQ(info.local.recientes[1].golesVisitante, 2);
    EXPECT_EQ(info.local.recientes[2].visitante, "Sevilla");
    ASSERT_EQ(info.visitante.recientes.size(), 2U);
    // La clasificación de 1ª por puesto.
    ASSERT_EQ(info.clasificacion.size(), 4U);
    EXPECT_EQ(info.clasificacion[0].equipo, "Sevilla");
    EXPECT_EQ(info.clasificacion[0].puntos, 7);
    EXPECT_EQ(info.clasificacion[0].puntosCasa, 6);
    EXPECT_EQ(info.clasificacion[3].equipo, "Cádiz");
}

TEST(Info, UnEquipoQueNoEstaNoSeEncuentra) {
    Temporada t;
    const InfoPartido info = Info(t.carpeta.Ruta(), "Betis - Xerez", 1, t.ajustes);
    EXPECT_TRUE(info.local.encontrado);
    EXPECT_FALSE(info.visitante.encontrado);
    EXPECT_TRUE(info.visitante.puestos.empty());
    EXPECT_TRUE(info.visitante.recientes.empty());
}

TEST(Info, SinDivisionOSinEquiposNoMuestraNada) {
    Temporada t;
    EXPECT_EQ(Info(t.carpeta.Ruta(), "Betis - Sevilla", 0, t.ajustes).equipos, 0);
    // NEq2 no está: 0 equipos.
    const InfoPartido info = Info(t.carpeta.Ruta(), "Eibar - Betis", 2, t.ajustes);
    EXPECT_EQ(info.equipos, 0);
    EXPECT_TRUE(info.local.nombre.empty());
    EXPECT_TRUE(info.clasificacion.empty());
}

}  // namespace
}  // namespace quinteva::builders
