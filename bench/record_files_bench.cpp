// Escribir registros de columnas con el anexador frente a copiar un archivo del mismo tamaño.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "base/record_files.h"
#include "engine/columns.h"

namespace {

using quinteva::base::AnexadorRegistros;
using quinteva::engine::ColumnaDeTexto;
using quinteva::engine::RegistroColumna;

const std::filesystem::path kRuta = std::filesystem::temp_directory_path() / "quinteva-bench.tmp";

void EscribirRegistros(std::int64_t cuantos) {
    std::filesystem::remove(kRuta);
    AnexadorRegistros anexador(kRuta, RegistroColumna::kLongitud);
    RegistroColumna r{ColumnaDeTexto("1X21X21X21X21X"), {'0', '0'}, '0'};
    for (std::int64_t i = 0; i < cuantos; ++i) anexador.Anadir(r.ABytes());
    anexador.Cerrar();
}

void BM_AnexarRegistros(benchmark::State& estado) {
    for (auto _ : estado) EscribirRegistros(estado.range(0));
    estado.SetBytesProcessed(estado.iterations() * estado.range(0) * 17);
}
BENCHMARK(BM_AnexarRegistros)->Arg(4782969)->Unit(benchmark::kMillisecond);

void BM_CopiarArchivo(benchmark::State& estado) {
    EscribirRegistros(estado.range(0));
    const auto copia = kRuta.string() + ".copia";
    for (auto _ : estado) {
        std::filesystem::copy_file(kRuta, copia, std::filesystem::copy_options::overwrite_existing);
    }
    estado.SetBytesProcessed(estado.iterations() * estado.range(0) * 17);
    std::filesystem::remove(copia);
}
BENCHMARK(BM_CopiarArchivo)->Arg(4782969)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
