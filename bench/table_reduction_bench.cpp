// La reducción por tablas de las 177.147 columnas de once triples "al 12": elegir el sistema,
// sacar sus patrones y filtrar "Cmb.tmp" hasta escribir "Red.tmp".
#include <benchmark/benchmark.h>

#include "base/progress.h"
#include "bench/peak_memory.h"
#include "builders/reduce.h"
#include "tests/builders/development.h"

namespace {

using namespace quinteva;

constexpr int kAlDoce = 1;

void BM_ReducirPorTablasOnceTriples(benchmark::State& estado) {
    pruebas::Desarrollo desarrollo(11, 0);
    base::SinProgreso progreso;
    std::int32_t reducidas = 0;
    for (auto _ : estado) {
        builders::ClaseBase clases{};
        reducidas = builders::Reducir(desarrollo.combinacion, desarrollo.carpeta.Ruta(), kAlDoce,
                                      std::nullopt, clases, progreso, desarrollo.ajustes)
                        .reduccion.reducidas;
    }
    estado.counters["generadas"] = desarrollo.combinacion.totalGeneradas;
    estado.counters["reducidas"] = reducidas;
    estado.counters["pico_MiB"] = medicion::PicoMemoriaMiB();
}
BENCHMARK(BM_ReducirPorTablasOnceTriples)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
