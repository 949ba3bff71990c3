#include "engine/optimized_cover.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "engine/column_code.h"
#include "engine/cover.h"
#include "engine/guarantee_check.h"

namespace quinteva::engine {
namespace {

// Un desarrollo "condicionado": las columnas de t triples y d dobles (el resto "1") que pasan un
// sorteo, en el orden del desarrollo.
std::vector<RegistroColumna> Condicionado(int triples, int dobles, double queda,
                                          std::mt19937& motor) {
    std::vector<RegistroColumna> columnas;
    std::vector<Columna> todas(1);
    todas[0].fill('1');
    for (int p = 0; p < triples + dobles; ++p) {
        std::vector<Columna> siguientes;
        for (const Columna& c : todas) {
            for (int s = 0; s < (p < triples ? 3 : 2); ++s) {
                Columna n = c;
                n[static_cast<std::size_t>(p)] = kSignos[static_cast<std::size_t>(s)];
                siguientes.push_back(n);
            }
        }
        todas = std::move(siguientes);
    }
    std::bernoulli_distribution pasa(queda);
    for (const Columna& c : todas) {
        if (pasa(motor)) columnas.push_back({c, {'1', '0'}, kActiva});
    }
    return columnas;
}

std::size_t Voraz(const std::vector<RegistroColumna>& columnas, int radio) {
    Recubrimiento cubierto(radio);
    std::size_t guardadas = 0;
    for (const auto& r : columnas) guardadas += cubierto.Considerar(r.columna) ? 1 : 0;
    return guardadas;
}

TEST(ReduccionOptimizada, CubreSiempreYNuncaGuardaMasQueLaVoraz) {
    std::mt19937 motor(25);
    std::size_t totalOptimizada = 0;
    std::size_t totalVoraz = 0;
    for (int vuelta = 0; vuelta < 16; ++vuelta) {
        const int triples = 3 + static_cast<int>(motor() % 4);
        const int dobles = static_cast<int>(motor() % 4);
        const auto columnas =
            Condicionado(triples, dobles, 0.4 + 0.6 * (motor() % 100) / 100.0, motor);
        if (columnas.empty()) continue;
        std::vector<std::int32_t> codigos;
        for (const auto& r : columnas) codigos.push_back(CodigoColumna(r.columna));
        const int radio = 1 + static_cast<int>(motor() % 3);
        base::SinProgreso progreso;
        const auto elegidas = CubrirOptimizado(codigos, radio, {10.0, 7, 5}, progreso);
        std::vector<RegistroColumna> guardadas;
        for (const std::size_t i : elegidas) guardadas.push_back(columnas[i]);
        EXPECT_TRUE(VerificarGarantia(columnas, guardadas, radio).Cumple()) << vuelta;
        const std::size_t voraz = Voraz(columnas, radio);
        EXPECT_LE(elegidas.size(), voraz) << vuelta;
        if (vuelta % 8 == 0) {
            EXPECT_EQ(CubrirOptimizado(codigos, radio, {10.0, 7, 5}, progreso), elegidas) << vuelta;
        }
        totalOptimizada += elegidas.size();
        totalVoraz += voraz;
    }
    // En conjunto, bastante menos que la voraz columna a columna.
    EXPECT_LT(totalOptimizada * 10, totalVoraz * 9);
}

}  // namespace
}  // namespace quinteva::engine
