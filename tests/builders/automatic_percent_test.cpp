#include "builders/automatic_percent.h"

#include <gtest/gtest.h>

#include "base/record_files.h"
#include "seasons/season_folder.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::builders {
namespace {

seasons::RegEquipo Equipo(std::string nombre, int puntos, int valoracion, int casa, int fuera) {
    seasons::RegEquipo e;
    e.nombre = std::move(nombre);
    e.division = 1;
    e.puntos = puntos;
    e.valoracion = valoracion;
    e.puntosCasa = casa;
    e.puntosFuera = fuera;
    return e;
}

seasons::RegPartidoLiga Liga(int division, int jornada, std::string local, std::string visitante,
                             int gl, int gv) {
    seasons::RegPartidoLiga p;
    p.division = division;
    p.jornada = jornada;
    p.local = std::move(local);
    p.visitante = std::move(visitante);
    p.golesLocal = gl;
    p.golesVisitante = gv;
    return p;
}

// Jornadas 1 a 5 de primera y una de segunda; la última jugada de primera es la 4.
std::vector<seasons::RegPartidoLiga> LigaDePrueba() {
    return {Liga(1, 1, "Betis", "Sevilla", 3, 0), Liga(1, 2, "Cádiz", "Betis", 0, 2),
            Liga(1, 3, "Betis", "Celta", 1, 1),   Liga(1, 4, "Sevilla", "Betis", 2, 1),
            Liga(2, 4, "Betis", "Eibar", 5, 0),   Liga(1, 5, "Betis", "Cádiz", 4, 0)};
}

TEST(Forma, DosPorVictoriaUnoPorEmpateEnLasTresUltimasJornadasDeSuDivision) {
    const auto liga = LigaDePrueba();
    EXPECT_EQ(Forma(liga, "Betis", 1, 4), 3);  // gana fuera en la 2, empata en la 3, pierde en la 4
    EXPECT_EQ(Forma(liga, "Sevilla", 1, 4), 2);
    EXPECT_EQ(Forma(liga, "Betis", 2, 4), 2);
    EXPECT_EQ(Forma(liga, "Betis", 1, 0), 0);
}

TEST(PorcentajesDePartido, FuerzasYPorcentajesDeUnPartido) {
    // Local: 0,5 x 7 + 2 + 3 x 3 + 5 + 5 = 24,5, que queda en 24 (al par).
    // Visitante: 0,5 x 4 + 1 + 3 x 1 + 2 x 3 = 12.
    // p = 2400 / 36 = 66,7 -> 67; X = (100 - 34) / 2,3 = 28,7 -> 29; "1" = 0,71 x 67 = 47,6 -> 48.
    const Porcentajes p =
        PorcentajesDePartido(Equipo("Betis", 7, 2, 5, 0), 3, Equipo("Sevilla", 4, 1, 0, 3), 1);
    EXPECT_EQ(p, (Porcentajes{48, 29, 23}));
}

TEST(PorcentajesDePartido, SinFuerzaEnNingunoNoHayFavorito) {
    const Porcentajes p =
        PorcentajesDePartido(Equipo("A", 0, -5, 0, 0), 0, Equipo("B", 0, 0, 0, 0), 0);
    // p = 50; X = 100 / 2,3 = 43,5 -> 43; "1" = 0,57 x 50 = 28,5 -> 29 (la mitad, hacia fuera).
    EXPECT_EQ(p, (Porcentajes{29, 43, 28}));
}

TEST(PorcentajesAutomaticos, DesdeLosArchivosDeLaTemporada) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    {
        base::ArchivoDe<seasons::RegEquipo> nomeq(carpeta / seasons::kNomeq);
        nomeq.Anadir(Equipo("Sevilla", 4, 1, 0, 3));
        nomeq.Anadir(Equipo("Betis", 7, 2, 5, 0));
        nomeq.Cerrar();
        base::ArchivoDe<seasons::RegPartidoLiga> liga(carpeta / seasons::kJlig2);
        for (const auto& p : LigaDePrueba()) liga.Anadir(p);
        liga.Cerrar();
    }
    ajustes.Guardar(base::kAplicacion, "Valores", "MaxJor1ª", "4");
    std::array<std::string, engine::kPartidos> partidos;
    std::array<int, engine::kPartidos> divisiones{};
    partidos[0] = "Betis - Sevilla";
    divisiones[0] = 1;
    partidos[1] = "Nadie - Otro";
    divisiones[1] = 2;
    partidos[2] = "Betis - Sevilla";
    const auto tabla = PorcentajesAutomaticos(carpeta.Ruta(), partidos, divisiones, ajustes);
    // Betis forma 3 (fuerza 24), Sevilla forma 2: 0,5 x 4 + 1 + 6 + 6 = 15. p = 2400 / 39 = 61,5
    // -> 62; X = (100 - 24) / 2,3 = 33,04 -> 33; "1" = 0,67 x 62 = 41,5 -> 42.
    EXPECT_EQ(tabla[0], (Porcentajes{42, 33, 25}));
    // Equipos que no están: el local tiene 5 de fuerza, el visitante 0.
    EXPECT_EQ(tabla[1], (Porcentajes{100, 0, 0}));
    // Sin división.
    EXPECT_EQ(tabla[2], kPorcentajesSinDivision);
    EXPECT_EQ(tabla[13], kPorcentajesSinDivision);
}

TEST(PorcentajesAutomaticos, SinArchivosLosEquiposCuentanACero) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    std::array<std::string, engine::kPartidos> partidos;
    std::array<int, engine::kPartidos> divisiones{};
    partidos[0] = "Betis - Sevilla";
    divisiones[0] = 1;
    const auto tabla = PorcentajesAutomaticos(carpeta.Ruta(), partidos, divisiones, ajustes);
    EXPECT_EQ(tabla[0], (Porcentajes{100, 0, 0}));
    // Leer no crea los archivos que faltan.
    EXPECT_FALSE(std::filesystem::exists(carpeta / seasons::kNomeq));
    EXPECT_FALSE(std::filesystem::exists(carpeta / seasons::kJlig2));
}

}  // namespace
}  // namespace quinteva::builders
