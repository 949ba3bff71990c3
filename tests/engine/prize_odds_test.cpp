#include "engine/prize_odds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

#include "engine/neighbourhoods.h"
#include "engine/optimized_cover.h"

namespace quinteva::engine {
namespace {

int Aciertos(std::int32_t a, std::int32_t b) {
    int iguales = 0;
    for (int p = 0; p < kPartidos; ++p, a /= 3, b /= 3) iguales += a % 3 == b % 3;
    return iguales;
}

// Las ganadoras con peso, una a una, frente a cada jugada.
std::array<double, 6> PorFuerzaBruta(const std::vector<std::int32_t>& jugadas,
                                     const ProbabilidadesSignos& p) {
    std::array<double, 6> categorias{};
    std::vector<int> cifras(kPartidos, 0);
    while (true) {
        double peso = 1;
        std::int32_t codigo = 0;
        for (std::size_t m = 0; m < kPartidos; ++m) {
            peso *= p[m][static_cast<std::size_t>(cifras[m])];
            codigo = codigo * 3 + cifras[m];
        }
        if (peso > 0) {
            int mejor = 0;
            for (const std::int32_t j : jugadas) mejor = std::max(mejor, Aciertos(codigo, j));
            categorias[static_cast<std::size_t>(std::min(5, kPartidos - mejor))] += peso;
        }
        std::size_t m = kPartidos;
        while (m > 0 && ++cifras[m - 1] == 3) cifras[--m] = 0;
        if (m == 0) return categorias;
    }
}

// Un caso al azar: hasta ocho partidos con dos o tres signos posibles (a veces también fuera de
// la base), los demás seguros, y unas jugadas al azar entre las columnas de la base.
struct Caso {
    ProbabilidadesSignos p{};
    std::vector<std::int32_t> jugadas;
};

Caso CasoAlAzar(std::mt19937& azar) {
    Caso caso;
    std::array<std::vector<int>, kPartidos> signos;
    const int libres = 3 + static_cast<int>(azar() % 6);
    for (std::size_t m = 0; m < kPartidos; ++m) {
        if (static_cast<int>(m) < libres) {
            for (int s = 0; s < 3; ++s) {
                const double v = azar() % 4 == 0 ? 0.0 : 1.0 + azar() % 60;
                caso.p[m][static_cast<std::size_t>(s)] = v;
                if (v > 0) signos[m].push_back(s);
            }
            if (signos[m].empty()) signos[m].push_back(0), caso.p[m][0] = 1;
        } else {
            const int s = static_cast<int>(azar() % 3);
            caso.p[m][static_cast<std::size_t>(s)] = 1;
            signos[m].push_back(s);
        }
        const double suma = caso.p[m][0] + caso.p[m][1] + caso.p[m][2];
        for (double& v : caso.p[m]) v /= suma;
    }
    const int jugadas = 1 + static_cast<int>(azar() % 40);
    for (int j = 0; j < jugadas; ++j) {
        std::int32_t codigo = 0;
        for (std::size_t m = 0; m < kPartidos; ++m) {
            // A veces un signo que la ganadora no puede llevar.
            const int s = azar() % 5 == 0 ? static_cast<int>(azar() % 3)
                                          : signos[m][azar() % signos[m].size()];
            codigo = codigo * 3 + s;
        }
        caso.jugadas.push_back(codigo);
    }
    return caso;
}

TEST(Probabilidades, LasMismasQueCadaGanadoraFrenteACadaJugadaYSumanUno) {
    std::mt19937 azar(26);
    for (int vuelta = 0; vuelta < 12; ++vuelta) {
        const Caso caso = CasoAlAzar(azar);
        const auto r = Probabilidades(caso.jugadas, caso.p);
        const auto esperadas = PorFuerzaBruta(caso.jugadas, caso.p);
        for (std::size_t k = 0; k < 6; ++k)
            EXPECT_NEAR(r.aciertos[k], esperadas[k], 1e-12) << vuelta;
        EXPECT_NEAR(std::accumulate(r.aciertos.begin(), r.aciertos.end(), 0.0), 1.0, 1e-12);
        EXPECT_NEAR(r.pleno, r.aciertos[0] / 16, 1e-15);
    }
}

// Una reducción al 13, al 12 o al 11 con la ganadora entre las columnas de la base, todas igual
// de probables: al menos esos aciertos, seguro.
TEST(Probabilidades, UnaReduccionDaSuNivelConProbabilidadUno) {
    QuinielaBase base;
    const char* signos[kPartidos] = {"1X2", "1X2", "1X2", "1X", "X2", "1X2", "1",
                                     "X",   "2",   "1",   "1",  "1",  "1",   "1"};
    std::vector<std::int32_t> desarrollo(1, 0);
    for (int p = 1; p <= kPartidos; ++p) {
        std::vector<std::int32_t> siguiente;
        for (const std::int32_t c : desarrollo) {
            for (const char* s = signos[p - 1]; *s; ++s) {
                base.Elegir(p, IndiceSigno(*s), true);
                siguiente.push_back(c * 3 + IndiceSigno(*s));
            }
        }
        desarrollo = siguiente;
    }
    Combinacion comb;
    comb.base = base;
    const ProbabilidadesSignos p = ProbabilidadesDeLaCombinacion(comb);
    base::SinProgreso progreso;
    for (int radio = 1; radio <= 3; ++radio) {
        const auto elegidas = CubrirOptimizado(desarrollo, radio, {5.0, 1, 5}, progreso);
        std::vector<std::int32_t> jugadas;
        for (const std::size_t e : elegidas) jugadas.push_back(desarrollo[e]);
        const auto r = Probabilidades(jugadas, p);
        double alMenos = 0;
        for (int k = 0; k <= radio; ++k) alMenos += r.aciertos[static_cast<std::size_t>(k)];
        EXPECT_NEAR(alMenos, 1.0, 1e-12) << radio;
    }
}

TEST(Probabilidades, DeDondeSalenLasDeCadaSigno) {
    Combinacion comb;
    for (int p = 1; p <= kPartidos; ++p) comb.base.Elegir(p, 0, true);
    comb.base.Elegir(2, 1, true);
    auto p = ProbabilidadesDeLaCombinacion(comb);
    EXPECT_EQ(p[0], (std::array<double, 3>{1, 0, 0}));
    EXPECT_EQ(p[1], (std::array<double, 3>{0.5, 0.5, 0}));
    // Los de la Quiniela por Porcentajes, si hay alguno.
    comb.tablaPorcentajes[0][1] = 20;
    comb.tablaPorcentajes[2][1] = 60;
    p = ProbabilidadesDeLaCombinacion(comb);
    EXPECT_EQ(p[1], (std::array<double, 3>{0.25, 0, 0.75}));
    EXPECT_EQ(p[0], (std::array<double, 3>{1, 0, 0}));
    // Los de Sumas, con la familia activa.
    comb.condiciones.casilla[kCasillaSumas] = true;
    comb.condiciones.sumasTabla[1][1] = 10;
    p = ProbabilidadesDeLaCombinacion(comb);
    EXPECT_EQ(p[1], (std::array<double, 3>{0, 1, 0}));
}

TEST(Probabilidades, ElJsonLlevaLasSeisClaves) {
    ProbabilidadesPremios r;
    r.aciertos = {0.5, 0.25, 0.125, 0.0625, 0.03125, 0.03125};
    EXPECT_EQ(ProbabilidadesJson(r),
              "{\"Aciertos14\": 0.5, \"Aciertos13\": 0.25, \"Aciertos12\": 0.125, "
              "\"Aciertos11\": 0.0625, \"Aciertos10\": 0.03125, \"MenosDe10\": 0.03125}");
}

}  // namespace
}  // namespace quinteva::engine
