// "Recalcular" de una 2ª División entera (22 equipos, 42 Jornadas, empates a puntos en cada
// Jornada) y Clasifica de una Jornada, con la clasificación del programa (los partidos leídos una
// vez por Jornada) y con el recorrido literal de los archivos en cada consulta.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

#include "base/record_files.h"
#include "seasons/league_table.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/seasons/literal_table.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"

namespace {

using namespace quinteva;
namespace fs = std::filesystem;

constexpr int kEquipos = 22;
constexpr int kJornadas = 2 * (kEquipos - 1);
const fs::path kCarpeta = fs::temp_directory_path() / "quinteva-bench-liga";

// La liga a doble vuelta por el método del círculo, con goles de 0 a 1: muchos empates a puntos.
void EscribirLiga() {
    fs::remove_all(kCarpeta);
    fs::create_directories(kCarpeta);
    base::ArchivoDe<seasons::RegEquipo> nomeq(kCarpeta / seasons::kNomeq);
    for (int i = 0; i < kEquipos; ++i) {
        seasons::RegEquipo e;
        e.temporada = "23/24";
        e.nombre = "Equipo " + std::to_string(i + 1);
        e.division = 2;
        nomeq.Anadir(e);
    }
    nomeq.Cerrar();
    std::mt19937 azar(2324);
    std::uniform_int_distribution<int> gol(0, 1);
    base::ArchivoDe<seasons::RegPartidoLiga> liga(kCarpeta / seasons::kJlig2);
    std::vector<int> ruedas(kEquipos);
    for (int i = 0; i < kEquipos; ++i) ruedas[static_cast<std::size_t>(i)] = i;
    for (int j = 1; j <= kJornadas; ++j) {
        for (int k = 0; k < kEquipos / 2; ++k) {
            seasons::RegPartidoLiga p;
            p.jornada = j;
            p.division = 2;
            p.partido = k + 1;
            p.temporada = "23/24";
            const int x = ruedas[static_cast<std::size_t>(k)];
            const int y = ruedas[static_cast<std::size_t>(kEquipos - 1 - k)];
            p.local = "Equipo " + std::to_string((j > kJornadas / 2 ? y : x) + 1);
            p.visitante = "Equipo " + std::to_string((j > kJornadas / 2 ? x : y) + 1);
            p.golesLocal = gol(azar);
            p.golesVisitante = gol(azar);
            liga.Anadir(p);
        }
        std::rotate(ruedas.begin() + 1, ruedas.end() - 1, ruedas.end());
    }
    liga.Cerrar();
}

void Recalcular(benchmark::State& estado) {
    EscribirLiga();
    pruebas::AjustesEnMemoria ajustes;
    ajustes.Guardar(base::kAplicacion, "Valores", "MaxJor2ª", std::to_string(kJornadas));
    for (auto _ : estado) {
        pruebas::DialogoGuionado dialogo;
        dialogo.Responder(base::Respuesta::Si);
        benchmark::DoNotOptimize(seasons::Recalcular(kCarpeta, 2, ajustes, dialogo));
    }
}
BENCHMARK(Recalcular)->Unit(benchmark::kMillisecond);

void RecalcularLiteral(benchmark::State& estado) {
    EscribirLiga();
    for (auto _ : estado) {
        seasons::CifrasACero(kCarpeta, 2);
        pruebas::ClasificacionLiteral literal(kCarpeta, 2);
        for (int j = 1; j <= kJornadas; ++j) benchmark::DoNotOptimize(literal.Clasifica(j));
    }
}
BENCHMARK(RecalcularLiteral)->Unit(benchmark::kMillisecond);

// Clasifica de la última Jornada sobre la tabla de las 41 anteriores, con "Nomeq.rar" devuelto a
// su estado antes de cada vuelta.
template <typename Clasificador>
void ClasificaUnaJornada(benchmark::State& estado) {
    EscribirLiga();
    Clasificador clasificacion(kCarpeta, 2);
    for (int j = 1; j < kJornadas; ++j) clasificacion.Clasifica(j);
    const fs::path copia = kCarpeta / "Nomeq.copia";
    fs::copy_file(kCarpeta / seasons::kNomeq, copia, fs::copy_options::overwrite_existing);
    for (auto _ : estado) {
        estado.PauseTiming();
        fs::copy_file(copia, kCarpeta / seasons::kNomeq, fs::copy_options::overwrite_existing);
        estado.ResumeTiming();
        benchmark::DoNotOptimize(clasificacion.Clasifica(kJornadas));
    }
}
BENCHMARK(ClasificaUnaJornada<seasons::Clasificacion>)->Unit(benchmark::kMicrosecond);
BENCHMARK(ClasificaUnaJornada<pruebas::ClasificacionLiteral>)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
