// "Quiniela muy reducida" de la fila mayor de la tabla (11 triples al 12: 177.147 columnas, 729
// reducidas) de punta a punta (generar, reducir, guardar) frente a copiar una vez su Combinación
// en el mismo disco.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "base/progress.h"
#include "builders/reduce.h"
#include "engine/combination_files.h"
#include "engine/generation.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace {

using namespace quinteva;
namespace fs = std::filesystem;

constexpr int kAlDoce = 1;

engine::Combinacion OnceTriples(const fs::path& ruta) {
    engine::Combinacion c;
    for (int p = 1; p <= engine::kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) c.base.Elegir(p, s, p <= 11 || s == 0);
    }
    c.base.PonerGoles("1", "0");
    c.pleno = c.base.Pleno();
    c.condiciones = engine::CondicionesIniciales(c.base);
    c.ruta = ruta;
    return c;
}

void BM_MuyReducidaFilaMayor(benchmark::State& estado) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    base::SinProgreso progreso;
    std::int32_t reducidas = 0;
    for (auto _ : estado) {
        engine::Combinacion c = OnceTriples(carpeta / "Mayor.uxd");
        engine::Generar(c, carpeta.Ruta(), progreso, ajustes);
        builders::ClaseBase clases{};
        builders::Reducir(c, carpeta.Ruta(), kAlDoce, std::nullopt, clases, progreso, ajustes);
        engine::Guardar(c, carpeta.Ruta(), ajustes);
        reducidas = c.totalReducidas;
    }
    estado.counters["reducidas"] = reducidas;
}
BENCHMARK(BM_MuyReducidaFilaMayor)->Unit(benchmark::kMillisecond);

// Copiar la Combinación guardada (".uxd", ".cnd" y ".red") una vez.
void BM_CopiarSuCombinacion(benchmark::State& estado) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::AjustesEnMemoria ajustes;
    base::SinProgreso progreso;
    engine::Combinacion c = OnceTriples(carpeta / "Mayor.uxd");
    engine::Generar(c, carpeta.Ruta(), progreso, ajustes);
    builders::ClaseBase clases{};
    builders::Reducir(c, carpeta.Ruta(), kAlDoce, std::nullopt, clases, progreso, ajustes);
    engine::Guardar(c, carpeta.Ruta(), ajustes);
    fs::create_directories(carpeta / "copia");
    std::uintmax_t bytes = 0;
    for (auto _ : estado) {
        bytes = 0;
        for (const char* extension : {".uxd", ".cnd", ".red"}) {
            const fs::path origen = fs::path(carpeta / "Mayor").replace_extension(extension);
            fs::copy_file(origen, carpeta / "copia" / origen.filename(),
                          fs::copy_options::overwrite_existing);
            bytes += fs::file_size(origen);
        }
    }
    estado.counters["MiB"] = static_cast<double>(bytes) / (1 << 20);
}
BENCHMARK(BM_CopiarSuCombinacion)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
