// "Quiniela por Porcentajes" de 100.000 columnas sobre 14 triples: el reparto con sus pasadas y
// QuitarRepes, y el "Generar" entero hasta dejar "Cmb.tmp" en el disco.
#include <benchmark/benchmark.h>

#include "builders/by_percentages.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace {

using namespace quinteva;

constexpr std::int32_t kColumnas = 100000;

engine::Combinacion CatorceTriples() {
    engine::Combinacion c;
    for (int p = 1; p <= engine::kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) c.base.Elegir(p, s, true);
    }
    c.base.PonerGoles("1", "0");
    c.pleno = c.base.Pleno();
    return c;
}

builders::Porcentajes CuarentaTreintaTreinta() {
    builders::Porcentajes p{};
    p[0].fill(40);
    p[1].fill(30);
    p[2].fill(30);
    return p;
}

void BM_Reparto(benchmark::State& estado) {
    const engine::Combinacion c = CatorceTriples();
    int pasadas = 0;
    for (auto _ : estado) {
        base::AzarEstandar azar(42);
        const builders::Reparto r = builders::RepartirPorPorcentajes(
            c.base, c.pleno, kColumnas, CuarentaTreintaTreinta(), azar);
        pasadas = r.pasadas;
        benchmark::DoNotOptimize(r.generadas);
    }
    estado.counters["pasadas"] = pasadas;
}
BENCHMARK(BM_Reparto)->Unit(benchmark::kMillisecond);

void BM_GenerarHastaCmbTmp(benchmark::State& estado) {
    pruebas::CarpetaTemporal carpeta;
    std::int32_t generadas = 0;
    for (auto _ : estado) {
        engine::Combinacion c = CatorceTriples();
        pruebas::DialogoGuionado dialogo;
        base::AzarEstandar azar(42);
        generadas = builders::GenerarPorPorcentajes(c, carpeta.Ruta(), "100000",
                                                    CuarentaTreintaTreinta(), azar, dialogo)
                        .value_or(0);
    }
    estado.counters["columnas"] = generadas;
}
BENCHMARK(BM_GenerarHastaCmbTmp)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
