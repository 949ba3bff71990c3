#include "bloques.h"

#include <algorithm>
#include <map>
#include <set>
#include <cstdio>
#include <cstdlib>

namespace sistemas {

namespace {

Palabra Sumar(const Forma& f, const Palabra& x, const Palabra& y) {
    Palabra r(x.size());
    for (std::size_t i = 0; i < x.size(); ++i)
        r[i] = static_cast<std::uint8_t>((x[i] + y[i]) % f.Base(static_cast<int>(i)));
    return r;
}

// Palabra del espacio suma: triples de a, triples de b, dobles de a, dobles de b.
Palabra Juntar(const Forma& fa, const Palabra& a, const Forma& fb, const Palabra& b) {
    Palabra p(a.begin(), a.begin() + fa.triples);
    p.insert(p.end(), b.begin(), b.begin() + fb.triples);
    p.insert(p.end(), a.begin() + fa.triples, a.end());
    p.insert(p.end(), b.begin() + fb.triples, b.end());
    return p;
}

}  // namespace

std::optional<Particion> PartirPorClases(const Codigo& a, const std::vector<Palabra>& nucleo) {
    const Forma& f = a.forma;
    std::set<Palabra> grupo{Palabra(f.Lugares(), 0)};
    for (bool crece = true; crece;) {
        crece = false;
        for (const auto& g : std::vector<Palabra>(grupo.begin(), grupo.end()))
            for (const auto& n : nucleo)
                crece |= grupo.insert(Sumar(f, g, n)).second;
    }
    std::set<Palabra> codigo(a.filas.begin(), a.filas.end()), usadas;
    Particion p;
    p.codigo = a;
    for (const auto& c : a.filas) {
        if (usadas.count(c)) continue;
        std::vector<Palabra> parte;
        for (const auto& g : grupo) {
            Palabra x = Sumar(f, c, g);
            if (!codigo.count(x)) return std::nullopt;
            usadas.insert(x);
            parte.push_back(x);
        }
        p.partes.push_back(parte);
    }
    p.nombre = "clases de " + std::to_string(grupo.size());
    return p;
}

Particion PartirEnPalabras(const Codigo& a) {
    Particion p;
    p.codigo = a;
    for (const auto& c : a.filas) p.partes.push_back({c});
    p.nombre = "palabras sueltas";
    return p;
}

std::optional<Codigo> BuscarPorBloques(const Particion& a, const Forma& formaB, int radio,
                                       int tamano, const PresupuestoConjuntos& presupuesto) {
    const Forma& fa = a.codigo.forma;
    const int k = static_cast<int>(a.partes.size());
    const int porParte = static_cast<int>(a.partes.front().size());
    if (tamano < porParte) return std::nullopt;
    // Perfiles: distancia (tope radio + 1) de cada palabra a cada parte. Un
    // perfil menor o igual que otro en todo no hace falta.
    std::set<std::vector<int>> todos;
    for (std::int64_t i = 0; i < fa.Palabras(); ++i) {
        const Palabra u = PalabraDeIndice(fa, i);
        std::vector<int> perfil(k, radio + 1);
        for (int j = 0; j < k; ++j)
            for (const auto& c : a.partes[j]) perfil[j] = std::min(perfil[j], Distancia(u, c));
        todos.insert(perfil);
    }
    std::vector<std::vector<int>> perfiles;
    for (const auto& f : todos) {
        bool tapado = false;
        for (const auto& g : todos) {
            if (g == f) continue;
            bool mayor = true;
            for (int j = 0; j < k && mayor; ++j) mayor = g[j] >= f[j];
            if (mayor) {
                tapado = true;
                break;
            }
        }
        if (!tapado) perfiles.push_back(f);
    }
    if (std::getenv("DEPURAR")) std::fprintf(stderr, "perfiles %zu de %zu\n", perfiles.size(), todos.size());
    // Puntos: (perfil, v). Candidatos: (b, parte).
    const int nb = static_cast<int>(formaB.Palabras());
    std::vector<Palabra> espacioB;
    for (int v = 0; v < nb; ++v) espacioB.push_back(PalabraDeIndice(formaB, v));
    Ejemplar e;
    e.puntos = static_cast<int>(perfiles.size()) * nb;
    e.cubre.resize(static_cast<std::size_t>(nb) * k);
    for (int b = 0; b < nb; ++b) {
        std::vector<int> d(nb);
        for (int v = 0; v < nb; ++v) d[v] = Distancia(espacioB[b], espacioB[v]);
        for (int j = 0; j < k; ++j) {
            auto& lista = e.cubre[static_cast<std::size_t>(b) * k + j];
            for (std::size_t pi = 0; pi < perfiles.size(); ++pi) {
                const int resto = radio - perfiles[pi][j];
                if (resto < 0) continue;
                for (int v = 0; v < nb; ++v)
                    if (d[v] <= resto) lista.push_back(static_cast<int>(pi) * nb + v);
            }
        }
    }
    auto elegidos = CubrirConjuntos(e, tamano / porParte, presupuesto);
    if (!elegidos) return std::nullopt;
    Codigo c;
    c.forma = {fa.triples + formaB.triples, fa.dobles + formaB.dobles};
    c.radio = radio;
    for (int elegido : *elegidos) {
        const int b = elegido / k, j = elegido % k;
        for (const auto& x : a.partes[j]) c.filas.push_back(Juntar(fa, x, formaB, espacioB[b]));
    }
    return c;
}

}  // namespace sistemas
