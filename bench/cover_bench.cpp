// El recubrimiento voraz de las 4.782.969 columnas de catorce triples a distancia 1, 2 y 3, junto
// al tiempo de leer "Cmb.tmp" en la misma ejecución, y la versión por rondas frente a la rápida
// sobre las 59.049 columnas de diez triples.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "base/progress.h"
#include "base/record_files.h"
#include "bench/peak_memory.h"
#include "engine/reduction.h"
#include "tests/support/literal_cover.h"
#include "tests/support/memory_settings.h"

namespace {

using namespace quinteva;

const std::filesystem::path kCarpeta = std::filesystem::temp_directory_path() / "quinteva-bench";

// Todas las columnas de "triples" triples (los primeros partidos) y fijos "1", en el orden de la
// generación.
std::int32_t EscribirDesarrollo(int triples) {
    std::filesystem::create_directories(kCarpeta);
    std::filesystem::remove(kCarpeta / engine::kCmbTmp);
    base::AnexadorRegistros cmb(kCarpeta / engine::kCmbTmp, engine::RegistroColumna::kLongitud);
    std::int32_t total = 1;
    for (int i = 0; i < triples; ++i) total *= 3;
    engine::RegistroColumna r{engine::ColumnaDeTexto("11111111111111"), {'0', '0'}, '0'};
    for (std::int32_t n = 0; n < total; ++n) {
        std::int32_t resto = n;
        for (int p = triples - 1; p >= 0; --p, resto /= 3) {
            r.columna[static_cast<std::size_t>(p)] =
                engine::kSignos[static_cast<std::size_t>(resto % 3)];
        }
        cmb.Anadir(r.ABytes());
    }
    cmb.Cerrar();
    return total;
}

void BM_LeerCmb(benchmark::State& estado) {
    const std::int32_t total = EscribirDesarrollo(14);
    for (auto _ : estado) {
        base::LectorRegistros cmb(kCarpeta / engine::kCmbTmp, 17);
        std::int64_t suma = 0;
        for (auto r = cmb.Siguiente(); !r.empty(); r = cmb.Siguiente()) suma += r[0];
        benchmark::DoNotOptimize(suma);
    }
    estado.counters["registros"] = total;
}
BENCHMARK(BM_LeerCmb)->Unit(benchmark::kMillisecond);

void BM_RecubrimientoCatorceTriples(benchmark::State& estado) {
    const std::int32_t total = EscribirDesarrollo(14);
    pruebas::AjustesEnMemoria ajustes;
    base::SinProgreso progreso;
    std::int32_t reducidas = 0;
    for (auto _ : estado) {
        engine::Combinacion comb;
        comb.totalGeneradas = total;
        reducidas = engine::ReducirConCondiciones(comb, kCarpeta, static_cast<int>(estado.range(0)),
                                                  progreso, ajustes)
                        .reducidas;
    }
    estado.counters["reducidas"] = reducidas;
    estado.counters["pico_MiB"] = medicion::PicoMemoriaMiB();
}
BENCHMARK(BM_RecubrimientoCatorceTriples)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

std::vector<std::string> DiezTriples() {
    std::vector<std::string> columnas;
    const std::int32_t total = EscribirDesarrollo(10);
    base::LectorRegistros cmb(kCarpeta / engine::kCmbTmp, 17);
    for (auto r = cmb.Siguiente(); !r.empty(); r = cmb.Siguiente()) {
        columnas.emplace_back(r.begin(), r.begin() + 14);
    }
    benchmark::DoNotOptimize(total);
    return columnas;
}

void BM_PorRondasDiezTriples(benchmark::State& estado) {
    const auto columnas = DiezTriples();
    for (auto _ : estado) {
        benchmark::DoNotOptimize(
            pruebas::ReducirPorRondas(columnas, static_cast<int>(estado.range(0))));
    }
}
BENCHMARK(BM_PorRondasDiezTriples)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

void BM_RapidoDiezTriples(benchmark::State& estado) {
    const auto columnas = DiezTriples();
    pruebas::AjustesEnMemoria ajustes;
    base::SinProgreso progreso;
    for (auto _ : estado) {
        engine::Combinacion comb;
        comb.totalGeneradas = static_cast<std::int32_t>(columnas.size());
        benchmark::DoNotOptimize(engine::ReducirConCondiciones(
            comb, kCarpeta, static_cast<int>(estado.range(0)), progreso, ajustes));
    }
}
BENCHMARK(BM_RapidoDiezTriples)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
