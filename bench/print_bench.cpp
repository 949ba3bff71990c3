// La impresión: las marcas de 32.767 boletos (la lista de páginas) y el PDF de 1.000 boletos, en
// boletos oficiales y en papel blanco.
#include <benchmark/benchmark.h>

#include <vector>

#include "engine/columns.h"
#include "outputs/pdf_writer.h"
#include "outputs/print_paper.h"
#include "outputs/print_slips.h"
#include "outputs/slip_marks.h"

namespace {

using quinteva::engine::RegistroColumna;
namespace outputs = quinteva::outputs;

std::vector<RegistroColumna> Columnas(std::int64_t boletos) {
    std::vector<RegistroColumna> columnas;
    const char signos[] = {'1', 'X', '2'};
    for (std::int64_t i = 0; i < boletos * 8; ++i) {
        RegistroColumna r;
        for (std::size_t p = 0; p < r.columna.size(); ++p) r.columna[p] = signos[(i >> p) % 3];
        r.pleno = {'0', 'M'};
        columnas.push_back(r);
    }
    return columnas;
}

outputs::DisposicionBoleto Disposicion(bool papel) {
    const auto d = outputs::Direccion::Apaisada;
    return papel ? outputs::DisposicionDePapel(d, outputs::AjustePapel{}, "09/03/24")
                 : outputs::DisposicionDeBoletos(d, outputs::ValoresDeRestaurar(d), "09/03/24");
}

void ListaDePaginas(benchmark::State& estado) {
    const auto columnas = Columnas(estado.range(0));
    const auto disposicion = Disposicion(estado.range(1) != 0);
    std::size_t textos = 0;
    for (auto _ : estado) {
        const auto hoja = outputs::ImprimirTodos(
            columnas, 1, static_cast<std::int32_t>(columnas.size()), disposicion);
        textos = hoja.Textos().size();
        benchmark::DoNotOptimize(textos);
    }
    estado.counters["textos"] = static_cast<double>(textos);
}
BENCHMARK(ListaDePaginas)->Args({32767, 0})->Args({32767, 1})->Unit(benchmark::kMillisecond);

void Pdf(benchmark::State& estado) {
    const auto columnas = Columnas(estado.range(0));
    const auto hoja = outputs::ImprimirTodos(
        columnas, 1, static_cast<std::int32_t>(columnas.size()), Disposicion(estado.range(1) != 0));
    std::size_t bytes = 0;
    for (auto _ : estado) {
        bytes = outputs::PdfDeImpresion(hoja).size();
        benchmark::DoNotOptimize(bytes);
    }
    estado.counters["MiB"] = static_cast<double>(bytes) / (1 << 20);
}
BENCHMARK(Pdf)->Args({1000, 0})->Args({1000, 1})->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
