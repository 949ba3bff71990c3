// Las probabilidades de cada premio: con las 4.782.969 columnas jugadas, con 500.000 y con 1.000
// al azar, la ganadora con porcentajes distintos en cada partido. Imprime el tiempo de cada una.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <vector>

#include "engine/column_code.h"
#include "engine/prize_odds.h"

namespace {

using namespace quinteva;

void Medir(const char* nombre, const std::vector<std::int32_t>& jugadas,
           const engine::ProbabilidadesSignos& p) {
    const auto inicio = std::chrono::steady_clock::now();
    const auto r = engine::Probabilidades(jugadas, p);
    const double s =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio).count();
    std::printf("%s: %zu jugadas en %.3f s; 14: %.3g, 10 o más: %.6f\n", nombre, jugadas.size(), s,
                r.aciertos[0], 1.0 - r.aciertos[5]);
}

}  // namespace

int main() {
    std::mt19937 azar(15);
    engine::ProbabilidadesSignos p{};
    for (auto& partido : p) {
        double suma = 0;
        for (double& v : partido) suma += v = 10.0 + azar() % 60;
        for (double& v : partido) v /= suma;
    }
    std::vector<std::int32_t> todas(static_cast<std::size_t>(engine::kCodigosColumna));
    for (std::size_t i = 0; i < todas.size(); ++i) todas[i] = static_cast<std::int32_t>(i);
    Medir("todas", todas, p);
    std::shuffle(todas.begin(), todas.end(), azar);
    Medir("al azar", {todas.begin(), todas.begin() + 500000}, p);
    Medir("al azar", {todas.begin(), todas.begin() + 1000}, p);
    return 0;
}
