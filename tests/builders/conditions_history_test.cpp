#include "builders/conditions_history.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "base/record_files.h"
#include "engine/conditions.h"
#include "seasons/season_folder.h"
#include "tests/support/temp_folder.h"

namespace quinteva::builders {
namespace {

using seasons::RegJornadaQuin;

void Escribir(const std::filesystem::path& carpeta, const std::vector<RegJornadaQuin>& registros) {
    std::filesystem::create_directories(carpeta);
    base::ArchivoDe<RegJornadaQuin> archivo(carpeta / seasons::kJornadas);
    for (const auto& r : registros) archivo.Anadir(r);
}

std::string ColumnaAlAzar(std::mt19937& azar) {
    std::string s;
    for (int p = 0; p < engine::kPartidos; ++p) s += "1X2"[azar() % 3];
    return s + "1";
}

// La base: triples salvo el partido 14, solo "1". Condiciones: como mucho 4 equis
// (Generales) y el Grupo 1, partidos 1 a 3, con como mucho un "1".
engine::Combinacion Combinacion() {
    engine::Combinacion c;
    for (int p = 1; p <= engine::kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) c.base.Elegir(p, s, p < engine::kPartidos || s == 0);
    }
    c.base.PonerGoles("1", "0");
    c.condiciones = engine::CondicionesIniciales(c.base);
    c.condiciones.casilla[engine::kCasillaGenerales] = true;
    c.condiciones.minEquis = 0;
    c.condiciones.maxEquis = 4;
    engine::Grupo& g = c.condiciones.grupos[0];
    g.activo = true;
    g.partidos[0] = g.partidos[1] = g.partidos[2] = true;
    engine::CalcularPosiblesGrupo(g, c.base);
    g.max[engine::kUno] = 1;
    return c;
}

TEST(HistoricoCondiciones, CadaFamiliaSolaYTodasFrenteALasCuentasDeCadaGanadora) {
    pruebas::CarpetaTemporal trabajo;
    std::mt19937 azar(26);
    std::vector<RegJornadaQuin> actual;
    for (int j = 1; j <= 30; ++j) actual.push_back({"23/24", j, ColumnaAlAzar(azar)});
    actual.push_back({"23/24", 31, std::string(15, ' ')});                     // sin resultado aún
    std::vector<RegJornadaQuin> anterior(actual.begin(), actual.begin() + 5);  // copias
    for (int j = 1; j <= 10; ++j) anterior.push_back({"22/23", j, ColumnaAlAzar(azar)});
    seasons::FijarTemporadaActual(trabajo.Ruta(), "Temporada2324");
    Escribir(trabajo / "Temporada2324", actual);
    Escribir(trabajo / "Temporada2223", anterior);

    const auto ganadoras = GanadorasGuardadas(trabajo.Ruta());
    ASSERT_EQ(ganadoras.size(), 40U);
    EXPECT_EQ(ganadoras.front().temporada, "23/24");
    EXPECT_EQ(ganadoras.back().temporada, "22/23");

    const auto h = HistoricoDeCondiciones(Combinacion(), ganadoras);
    int equis = 0, grupo = 0, todas = 0, enLaBase = 0;
    for (std::size_t i = 0; i < ganadoras.size(); ++i) {
        const std::string c = ganadoras[i].signos.substr(0, 14);
        const bool pasaEquis = std::count(c.begin(), c.end(), 'X') <= 4;
        const bool pasaGrupo = std::count(c.begin(), c.begin() + 3, '1') <= 1;
        equis += pasaEquis;
        grupo += pasaGrupo;
        todas += pasaEquis && pasaGrupo;
        enLaBase += c[13] == '1';
        const auto& j = h.jornadas[i];
        EXPECT_EQ(j.columna, c);
        EXPECT_EQ(j.enLaBase, c[13] == '1');
        EXPECT_EQ(j.rechazo, !pasaEquis   ? "Condiciones Generales"
                             : !pasaGrupo ? "Grupo nº 1"
                                          : "")
            << c;
    }
    EXPECT_EQ(h.ganadoras, 40);
    EXPECT_EQ(h.enLaBase, enLaBase);
    EXPECT_EQ(h.pasan, todas);
    ASSERT_EQ(h.familias.size(), 2U);
    EXPECT_EQ(h.familias[0].nombre, "Condiciones Generales");
    EXPECT_EQ(h.familias[0].pasan, equis);
    EXPECT_EQ(h.familias[1].nombre, "Grupos");
    EXPECT_EQ(h.familias[1].pasan, grupo);
    // Que el caso no sea trivial.
    EXPECT_GT(todas, 0);
    EXPECT_LT(todas, std::min(equis, grupo));
}

TEST(HistoricoCondiciones, SinTemporadasNoHayGanadoras) {
    pruebas::CarpetaTemporal trabajo;
    EXPECT_TRUE(GanadorasGuardadas(trabajo.Ruta()).empty());
    EXPECT_TRUE(GanadorasGuardadas(trabajo / "no existe").empty());
    const auto h = HistoricoDeCondiciones(Combinacion(), {});
    EXPECT_EQ(h.ganadoras, 0);
    EXPECT_EQ(h.familias.size(), 2U);
}

}  // namespace
}  // namespace quinteva::builders
