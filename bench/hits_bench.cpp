// "&Aciertos" sobre un conjunto jugado guardado de 4.782.969 columnas (catorce triples), junto
// al tiempo de leer el mismo ".cnd" en la misma ejecución.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "base/progress.h"
#include "base/record_files.h"
#include "cli/answering_dialog.h"
#include "engine/combination_files.h"
#include "engine/cover.h"
#include "outputs/hit_check.h"

namespace {

using namespace quinteva;

const std::filesystem::path kCarpeta =
    std::filesystem::temp_directory_path() / "quinteva-bench-aciertos";
const std::filesystem::path kUxd = kCarpeta / "Catorce.uxd";
const std::filesystem::path kCnd = kCarpeta / "Catorce.cnd";

// La Combinación guardada de catorce triples, con el Pleno de cada Boleto distinto; se escribe
// una vez por ejecución.
std::int32_t EscribirCombinacion() {
    static const std::int32_t total = [] {
        std::filesystem::create_directories(kCarpeta);
        engine::RegistroCabecera cabecera;
        cabecera.jugada = "cnd";
        const auto bytes = cabecera.ABytes();
        std::ofstream(kUxd, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
        std::filesystem::remove(kCnd);
        base::AnexadorRegistros cnd(kCnd, engine::RegistroColumna::kLongitud);
        engine::RegistroColumna r{engine::ColumnaDeTexto("11111111111111"), {'0', '0'}, '0'};
        for (std::int32_t n = 0; n < engine::kCodigosColumna; ++n) {
            std::int32_t resto = n;
            for (int p = engine::kPartidos - 1; p >= 0; --p, resto /= 3) {
                r.columna[static_cast<std::size_t>(p)] =
                    engine::kSignos[static_cast<std::size_t>(resto % 3)];
            }
            r.pleno = {"012M"[n / 8 % 4], "012M"[n / 32 % 4]};
            cnd.Anadir(r.ABytes());
        }
        cnd.Cerrar();
        return cnd.Cuenta();
    }();
    return total;
}

void BM_LeerCnd(benchmark::State& estado) {
    const std::int32_t total = EscribirCombinacion();
    for (auto _ : estado) {
        base::LectorRegistros cnd(kCnd, engine::RegistroColumna::kLongitud);
        std::int64_t suma = 0;
        for (auto r = cnd.Siguiente(); !r.empty(); r = cnd.Siguiente()) suma += r[0];
        benchmark::DoNotOptimize(suma);
    }
    estado.counters["registros"] = total;
}
BENCHMARK(BM_LeerCnd)->Unit(benchmark::kMillisecond);

void BM_Aciertos(benchmark::State& estado) {
    EscribirCombinacion();
    std::ostringstream mensajes;
    cli::DialogoDeOrdenes dialogo(mensajes);
    base::SinProgreso progreso;
    outputs::Comprobacion c;
    for (auto _ : estado) {
        c = outputs::Aciertos(kUxd, "1X21X21X21X21X1M", dialogo, progreso);
        benchmark::DoNotOptimize(c.tabla.cuentas);
    }
    for (std::size_t lugar = 0; lugar < c.tabla.cuentas.size(); ++lugar) {
        estado.counters[std::string(outputs::kTitulosAciertos[lugar])] = c.tabla.cuentas[lugar];
    }
}
BENCHMARK(BM_Aciertos)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
