#include "simetrias.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace sistemas {

Simetria Identidad(const Forma& forma) {
    Simetria s;
    for (int i = 0; i < forma.Lugares(); ++i) s.destino.push_back(i);
    s.factor.assign(forma.Lugares(), 1);
    s.suma.assign(forma.Lugares(), 0);
    return s;
}

Simetria Giro(const Forma& forma, int desde, int hasta) {
    Simetria s = Identidad(forma);
    for (int i = desde; i < hasta; ++i) s.destino[i] = i + 1 < hasta ? i + 1 : desde;
    return s;
}

Simetria Traslacion(const Forma& forma, const Palabra& p) {
    Simetria s = Identidad(forma);
    s.suma = p;
    return s;
}

std::optional<std::vector<Palabra>> BuscarConSimetrias(const Forma& forma, int radio, int tamano,
                                                       const std::vector<Simetria>& generadores,
                                                       const PresupuestoConjuntos& presupuesto) {
    const int n = static_cast<int>(forma.Palabras());
    const int lugares = forma.Lugares();
    // Órbitas por recorrido en anchura con los generadores.
    std::vector<int> orbita(n, -1);
    std::vector<std::vector<int>> orbitas;
    for (int x = 0; x < n; ++x) {
        if (orbita[x] >= 0) continue;
        const int id = static_cast<int>(orbitas.size());
        orbitas.push_back({x});
        orbita[x] = id;
        for (std::size_t k = 0; k < orbitas[id].size(); ++k) {
            const Palabra p = PalabraDeIndice(forma, orbitas[id][k]);
            for (const auto& g : generadores) {
                Palabra q(lugares);
                for (int i = 0; i < lugares; ++i)
                    q[g.destino[i]] =
                        static_cast<std::uint8_t>((g.factor[i] * p[i] + g.suma[i]) % forma.Base(i));
                const int y = static_cast<int>(Indice(forma, q));
                if (orbita[y] < 0) {
                    orbita[y] = id;
                    orbitas[id].push_back(y);
                }
            }
        }
    }
    std::size_t mayor = 0;
    for (const auto& o : orbitas) mayor = std::max(mayor, o.size());
    const int elegir = tamano / static_cast<int>(mayor);
    if (elegir < 1) return std::nullopt;
    // Candidatas: las órbitas completas. Cada una cubre las órbitas que
    // tienen una palabra a distancia <= radio de alguna suya; basta mirar un
    // representante de cada órbita cubierta.
    std::vector<int> candidata(orbitas.size(), -1);
    std::vector<int> candidatas;
    for (std::size_t o = 0; o < orbitas.size(); ++o) {
        if (orbitas[o].size() == mayor) {
            candidata[o] = static_cast<int>(candidatas.size());
            candidatas.push_back(static_cast<int>(o));
        }
    }
    Ejemplar e;
    e.puntos = static_cast<int>(orbitas.size());
    e.cubre.resize(candidatas.size());
    // Bola alrededor del representante: todas las palabras a distancia <= radio.
    std::vector<std::int64_t> pesos(lugares);
    for (int i = lugares - 1, peso = 1; i >= 0; --i) {
        pesos[i] = peso;
        peso *= forma.Base(i);
    }
    std::vector<int> marca(orbitas.size(), -1);
    for (std::size_t o = 0; o < orbitas.size(); ++o) {
        const int r = orbitas[o][0];
        // Recorre la bola con una pila de (palabra, lugar desde, radio que queda).
        struct Nodo {
            int x, desde, resto;
        };
        std::vector<Nodo> pila{{r, 0, radio}};
        while (!pila.empty()) {
            const Nodo nodo = pila.back();
            pila.pop_back();
            const int c = candidata[orbita[nodo.x]];
            if (c >= 0 && marca[c] != static_cast<int>(o)) {
                marca[c] = static_cast<int>(o);
                e.cubre[c].push_back(static_cast<int>(o));
            }
            if (nodo.resto == 0) continue;
            for (int i = nodo.desde; i < lugares; ++i) {
                const int cifra = static_cast<int>((nodo.x / pesos[i]) % forma.Base(i));
                for (int v = 0; v < forma.Base(i); ++v)
                    if (v != cifra)
                        pila.push_back({static_cast<int>(nodo.x + (v - cifra) * pesos[i]), i + 1,
                                        nodo.resto - 1});
            }
        }
    }
    if (std::getenv("DEPURAR"))
        std::fprintf(stderr, "orbitas %zu, completas %zu de %zu, elegir %d\n", orbitas.size(),
                     candidatas.size(), mayor, elegir);
    auto elegidas = CubrirConjuntos(e, elegir, presupuesto);
    if (!elegidas) return std::nullopt;
    std::vector<Palabra> filas;
    for (int c : *elegidas)
        for (int x : orbitas[candidatas[c]]) filas.push_back(PalabraDeIndice(forma, x));
    return filas;
}

}  // namespace sistemas
