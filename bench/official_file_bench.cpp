// Escribir y volver a leer un archivo oficial de 4.096 y de 32.767 Boletos de 8 columnas.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <vector>

#include "engine/columns.h"
#include "outputs/json_bag.h"
#include "outputs/official_file.h"

namespace {

using quinteva::engine::RegistroColumna;
namespace outputs = quinteva::outputs;

const std::filesystem::path kRuta =
    std::filesystem::temp_directory_path() / "quinteva-bench-oficial.json";

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

void Escribir(const std::vector<RegistroColumna>& columnas) {
    outputs::JsonBag raiz;
    outputs::ArbolGenerado(raiz, columnas, {1234, "2024/007", 0.75F});
    outputs::EscribirArchivoOficial(kRuta, raiz);
}

// Lee el archivo y recorre sus Boletos; devuelve cuántos hay.
std::int64_t Leer() {
    outputs::JsonBag raiz;
    raiz.JSON(outputs::LeerTextoArchivo(kRuta));
    const outputs::JsonBag& apuestas = raiz.Hija("asm").Hija("apuestas");
    std::int64_t longitud = 0;
    for (std::int32_t i = 1; i <= apuestas.Count(); ++i) {
        longitud += static_cast<std::int64_t>(
            std::get<std::string>(apuestas.Hija(i).Item("combinacion")).size());
    }
    benchmark::DoNotOptimize(longitud);
    return apuestas.Count();
}

void BM_EscribirArchivoOficial(benchmark::State& estado) {
    const auto columnas = Columnas(estado.range(0));
    for (auto _ : estado) Escribir(columnas);
    estado.counters["bytes"] = static_cast<double>(std::filesystem::file_size(kRuta));
}
BENCHMARK(BM_EscribirArchivoOficial)->Arg(4096)->Arg(32767)->Unit(benchmark::kMillisecond);

void BM_LeerArchivoOficial(benchmark::State& estado) {
    Escribir(Columnas(estado.range(0)));
    std::int64_t boletos = 0;
    for (auto _ : estado) boletos = Leer();
    estado.counters["boletos"] = static_cast<double>(boletos);
}
BENCHMARK(BM_LeerArchivoOficial)->Arg(4096)->Arg(32767)->Unit(benchmark::kMillisecond);

void BM_EscribirYLeerArchivoOficial(benchmark::State& estado) {
    const auto columnas = Columnas(estado.range(0));
    for (auto _ : estado) {
        Escribir(columnas);
        benchmark::DoNotOptimize(Leer());
    }
    std::filesystem::remove(kRuta);
}
BENCHMARK(BM_EscribirYLeerArchivoOficial)->Arg(4096)->Arg(32767)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
