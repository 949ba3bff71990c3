#include "codigo.h"

#include <algorithm>
#include <map>
#include <set>

namespace sistemas {
namespace {

std::vector<char> Cubiertas(const Codigo& c, int radio) {
    std::vector<char> cubierta(static_cast<std::size_t>(c.espacio.Palabras()), 0);
    for (const Palabra& f : c.filas) {
        c.espacio.Bola(f, radio,
                       [&](std::int64_t i) { cubierta[static_cast<std::size_t>(i)] = 1; });
    }
    return cubierta;
}

// Las partes de una palabra: triples y dobles.
Palabra Triples(const Codigo& c, const Palabra& p) {
    return {p.begin(), p.begin() + c.espacio.Triples()};
}
Palabra Dobles(const Codigo& c, const Palabra& p) {
    return {p.begin() + c.espacio.Triples(), p.end()};
}

void Anadir(Palabra& destino, const Palabra& origen) {
    destino.insert(destino.end(), origen.begin(), origen.end());
}

Palabra SinLugar(Palabra p, int lugar) {
    p.erase(p.begin() + lugar);
    return p;
}

}  // namespace

std::vector<std::int64_t> NoCubiertas(const Codigo& c, int radio) {
    const auto cubierta = Cubiertas(c, radio);
    std::vector<std::int64_t> faltan;
    for (std::size_t i = 0; i < cubierta.size(); ++i) {
        if (!cubierta[i]) faltan.push_back(static_cast<std::int64_t>(i));
    }
    return faltan;
}

bool SinRepetidas(const Codigo& c) {
    return std::set<Palabra>(c.filas.begin(), c.filas.end()).size() == c.filas.size();
}

Codigo EspacioEntero(const Espacio& e) {
    Codigo c{e, {}};
    for (std::int64_t i = 0; i < e.Palabras(); ++i) c.filas.push_back(e.DeIndice(i));
    return c;
}

Codigo UnaPalabra(const Espacio& e) { return {e, {e.DeIndice(0)}}; }

Codigo SumaDirecta(const Codigo& a, const Codigo& b) {
    Codigo c{
        Espacio(a.espacio.Triples() + b.espacio.Triples(), a.espacio.Dobles() + b.espacio.Dobles()),
        {}};
    for (const Palabra& x : a.filas) {
        for (const Palabra& y : b.filas) {
            Palabra p = Triples(a, x);
            Anadir(p, Triples(b, y));
            Anadir(p, Dobles(a, x));
            Anadir(p, Dobles(b, y));
            c.filas.push_back(std::move(p));
        }
    }
    return c;
}

Codigo Amalgama(const Codigo& a, int la, const Codigo& b, int lb,
                std::array<std::uint8_t, 3> cambio) {
    const bool triple = la < a.espacio.Triples();
    const int lbParte = triple ? lb : lb - b.espacio.Triples();
    Codigo c{Espacio(a.espacio.Triples() + b.espacio.Triples() - (triple ? 1 : 0),
                     a.espacio.Dobles() + b.espacio.Dobles() - (triple ? 0 : 1)),
             {}};
    for (const Palabra& x : a.filas) {
        for (const Palabra& y : b.filas) {
            if (x[static_cast<std::size_t>(la)] != cambio[y[static_cast<std::size_t>(lb)]])
                continue;
            Palabra p = Triples(a, x);
            Anadir(p, triple ? SinLugar(Triples(b, y), lbParte) : Triples(b, y));
            Anadir(p, Dobles(a, x));
            Anadir(p, triple ? Dobles(b, y) : SinLugar(Dobles(b, y), lbParte));
            c.filas.push_back(std::move(p));
        }
    }
    return c;
}

Codigo Completar(Codigo c, int radio) {
    auto faltan = NoCubiertas(c, radio);
    while (!faltan.empty()) {
        std::map<std::int64_t, int> cuenta;
        for (std::int64_t f : faltan) {
            c.espacio.Bola(c.espacio.DeIndice(f), radio, [&](std::int64_t i) { ++cuenta[i]; });
        }
        const auto mejor = std::max_element(cuenta.begin(), cuenta.end(),
                                            [](auto& x, auto& y) { return x.second < y.second; });
        const Palabra nueva = c.espacio.DeIndice(mejor->first);
        std::set<std::int64_t> ahora;
        c.espacio.Bola(nueva, radio, [&](std::int64_t i) { ahora.insert(i); });
        std::erase_if(faltan, [&](std::int64_t f) { return ahora.contains(f); });
        c.filas.push_back(nueva);
    }
    return c;
}

Codigo Podar(Codigo c, int radio) {
    std::vector<int> cuenta(static_cast<std::size_t>(c.espacio.Palabras()), 0);
    for (const Palabra& f : c.filas) {
        c.espacio.Bola(f, radio, [&](std::int64_t i) { ++cuenta[static_cast<std::size_t>(i)]; });
    }
    for (std::size_t k = c.filas.size(); k-- > 0;) {
        bool sobra = true;
        c.espacio.Bola(c.filas[k], radio, [&](std::int64_t i) {
            sobra = sobra && cuenta[static_cast<std::size_t>(i)] > 1;
        });
        if (!sobra) continue;
        c.espacio.Bola(c.filas[k], radio,
                       [&](std::int64_t i) { --cuenta[static_cast<std::size_t>(i)]; });
        c.filas.erase(c.filas.begin() + static_cast<std::ptrdiff_t>(k));
    }
    return c;
}

Codigo Rellenar(Codigo c, std::size_t filas) {
    std::set<Palabra> hay(c.filas.begin(), c.filas.end());
    for (std::int64_t i = 0; c.filas.size() < filas; ++i) {
        Palabra p = c.espacio.DeIndice(i);
        if (hay.insert(p).second) c.filas.push_back(std::move(p));
    }
    return c;
}

}  // namespace sistemas
