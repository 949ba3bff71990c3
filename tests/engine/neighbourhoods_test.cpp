#include "engine/neighbourhoods.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <vector>

namespace quinteva::engine {
namespace {

// Códigos distintos al azar en los que unos partidos llevan siempre el mismo signo y otros dos.
std::vector<std::int32_t> CodigosAlAzar(std::mt19937& azar, std::size_t cuantos) {
    std::array<std::string, kPartidos> signos;
    for (auto& s : signos) {
        const int tipo = static_cast<int>(azar() % 4);
        s = tipo == 0 ? "1" : tipo == 1 ? "X2" : "1X2";
    }
    std::set<std::int32_t> codigos;
    for (std::size_t intento = 0; intento < 4 * cuantos && codigos.size() < cuantos; ++intento) {
        std::int32_t codigo = 0;
        for (const auto& s : signos) {
            const char signo = s[azar() % s.size()];
            codigo = codigo * 3 + IndiceSigno(signo);
        }
        codigos.insert(codigo);
    }
    std::vector<std::int32_t> v(codigos.begin(), codigos.end());
    std::shuffle(v.begin(), v.end(), azar);
    return v;
}

int DistanciaDeCodigos(std::int32_t a, std::int32_t b) {
    int d = 0;
    for (int p = 0; p < kPartidos; ++p, a /= 3, b /= 3) d += a % 3 != b % 3;
    return d;
}

TEST(Entornos, CadaDaLasColumnasAlRadioComoLaComparacionDeCadaPar) {
    std::mt19937 azar(14);
    for (int vuelta = 0; vuelta < 30; ++vuelta) {
        const auto codigos = CodigosAlAzar(azar, 50 + azar() % 400);
        const Entornos entornos(codigos);
        const int radio = 1 + vuelta % 3;
        for (std::size_t i = 0; i < codigos.size(); i += 7) {
            std::vector<std::size_t> dados;
            entornos.Cada(i, radio, [&](std::size_t j) { dados.push_back(j); });
            std::sort(dados.begin(), dados.end());
            std::vector<std::size_t> esperados;
            for (std::size_t j = 0; j < codigos.size(); ++j) {
                if (DistanciaDeCodigos(codigos[i], codigos[j]) <= radio) esperados.push_back(j);
                EXPECT_EQ(entornos.Distancia(i, j), DistanciaDeCodigos(codigos[i], codigos[j]));
            }
            ASSERT_EQ(dados, esperados) << vuelta << " " << i;
        }
    }
}

// Con pocas columnas se cuentan recorriendo entornos; con muchas, por la transformada sobre los
// 3^14 códigos: las dos, frente a la comparación de cada par.
TEST(Entornos, LasCuentasPorEntornosYPorTransformadaSonLasDeCadaPar) {
    std::mt19937 azar(3);
    std::vector<std::int32_t> muchas;
    std::set<std::int32_t> vistas;
    while (muchas.size() < 60000) {
        const auto codigo = static_cast<std::int32_t>(azar() % kCodigosColumna);
        if (vistas.insert(codigo).second) muchas.push_back(codigo);
    }
    for (const auto& codigos : {CodigosAlAzar(azar, 300), muchas}) {
        const std::size_t cuantos = codigos.size();
        const Entornos entornos(codigos);
        const auto cuentas = entornos.Cuentas(3);
        for (std::size_t i = 0; i < codigos.size(); i += codigos.size() / 97) {
            std::int32_t esperada = 0;
            for (const std::int32_t otro : codigos)
                esperada += DistanciaDeCodigos(codigos[i], otro) <= 3;
            EXPECT_EQ(cuentas[i], esperada) << cuantos << " " << i;
        }
    }
}

}  // namespace
}  // namespace quinteva::engine
