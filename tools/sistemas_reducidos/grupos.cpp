#include "grupos.h"

#include <algorithm>
#include <array>
#include <random>

#include "pesos.h"

namespace sistemas {
namespace {

struct Forma {
    int triples;  // generadores de orden 3
    int dobles;   // generadores de orden 2
};

// Las formas cuyo grupo divide las filas y deja al menos dos clases en el código.
std::vector<Forma> Formas(const Espacio& e, int filas) {
    std::vector<Forma> formas;
    for (int a = 0; a <= e.Triples(); ++a) {
        for (int b = 0; b <= e.Dobles(); ++b) {
            int tamano = 1;
            for (int i = 0; i < a; ++i) tamano *= 3;
            for (int i = 0; i < b; ++i) tamano *= 2;
            if (tamano > 1 && filas % tamano == 0 && filas / tamano >= 2) formas.push_back({a, b});
        }
    }
    return formas;
}

Palabra Generador(const Espacio& e, int desde, int hasta, std::mt19937_64& azar) {
    Palabra g(static_cast<std::size_t>(e.Lugares()), 0);
    for (int l = desde; l < hasta; ++l) {
        g[static_cast<std::size_t>(l)] =
            static_cast<std::uint8_t>(azar() % static_cast<std::uint64_t>(e.Base(l)));
    }
    return g;
}

// El menor número de lugares distintos de cero de las palabras del grupo distintas de cero.
int PesoMinimo(const Espacio& e, const std::vector<Palabra>& generadores) {
    std::vector<Palabra> grupo{Palabra(static_cast<std::size_t>(e.Lugares()), 0)};
    for (const Palabra& g : generadores) {
        const bool triple =
            std::any_of(g.begin(), g.begin() + e.Triples(), [](auto v) { return v != 0; });
        const std::size_t antes = grupo.size();
        for (int veces = 1; veces < (triple ? 3 : 2); ++veces) {
            for (std::size_t i = 0; i < antes; ++i) {
                Palabra q = grupo[i];
                for (std::size_t l = 0; l < q.size(); ++l) {
                    q[l] = static_cast<std::uint8_t>((q[l] + veces * g[l]) %
                                                     e.Base(static_cast<int>(l)));
                }
                grupo.push_back(q);
            }
        }
    }
    int minimo = e.Lugares();
    for (std::size_t i = 1; i < grupo.size(); ++i) {
        minimo =
            std::min(minimo, static_cast<int>(grupo[i].size()) -
                                 static_cast<int>(std::count(grupo[i].begin(), grupo[i].end(), 0)));
    }
    return minimo;
}

// Los repartos de los lugares de triples: (ceros, a, b, c, d) con a >= b >= c >= d y b > 0, para
// que los dos generadores no sean proporcionales.
std::vector<std::array<int, 5>> Repartos(int lugares) {
    std::vector<std::array<int, 5>> repartos;
    for (int ceros = 0; ceros <= lugares; ++ceros) {
        for (int a = 1; a <= lugares - ceros; ++a) {
            for (int b = 1; b <= a; ++b) {
                for (int c = 0; c <= b; ++c) {
                    const int d = lugares - ceros - a - b - c;
                    if (d >= 0 && d <= c) repartos.push_back({ceros, a, b, c, d});
                }
            }
        }
    }
    return repartos;
}

std::vector<Palabra> Plano(const Espacio& e, const std::array<int, 5>& reparto) {
    static constexpr std::array<std::array<std::uint8_t, 2>, 5> kDirecciones{
        {{0, 0}, {1, 0}, {0, 1}, {1, 1}, {1, 2}}};
    std::vector<Palabra> generadores(2, Palabra(static_cast<std::size_t>(e.Lugares()), 0));
    std::size_t lugar = 0;
    for (std::size_t d = 0; d < kDirecciones.size(); ++d) {
        for (int i = 0; i < reparto[d]; ++i, ++lugar) {
            generadores[0][lugar] = kDirecciones[d][0];
            generadores[1][lugar] = kDirecciones[d][1];
        }
    }
    return generadores;
}

}  // namespace

std::optional<Grupo> BuscarPlano(const Espacio& e, int radio, int filas, std::int64_t pasos) {
    if (filas % 9 != 0) return std::nullopt;
    for (const auto& reparto : Repartos(e.Triples())) {
        if (auto g = BuscarSemilla(e, radio, filas, Plano(e, reparto), pasos, 1)) return g;
    }
    return std::nullopt;
}

std::optional<Grupo> BuscarGrupo(const Espacio& e, int radio, int filas, int pesoMinimo,
                                 std::uint64_t semilla, std::int64_t pasos, int intentos) {
    const std::vector<Forma> formas = Formas(e, filas);
    if (formas.empty()) return std::nullopt;
    std::mt19937_64 azar(semilla);
    for (int intento = 0; intento < intentos; ++intento) {
        const Forma f = formas[azar() % formas.size()];
        std::vector<Palabra> generadores;
        for (int i = 0; i < f.triples; ++i)
            generadores.push_back(Generador(e, 0, e.Triples(), azar));
        for (int i = 0; i < f.dobles; ++i)
            generadores.push_back(Generador(e, e.Triples(), e.Lugares(), azar));
        if (PesoMinimo(e, generadores) < pesoMinimo) continue;
        const std::uint64_t s = azar();
        if (auto c = BuscarConPesos(e, radio, filas, generadores, s, pasos)) {
            return Grupo{generadores, s, std::move(*c)};
        }
    }
    return std::nullopt;
}

std::optional<Grupo> BuscarSemilla(const Espacio& e, int radio, int filas,
                                   const std::vector<Palabra>& generadores, std::int64_t pasos,
                                   int intentos) {
    for (int s = 1; s <= intentos; ++s) {
        const auto semilla = static_cast<std::uint64_t>(s);
        if (auto c = BuscarConPesos(e, radio, filas, generadores, semilla, pasos)) {
            return Grupo{generadores, semilla, std::move(*c)};
        }
    }
    return std::nullopt;
}

}  // namespace sistemas
