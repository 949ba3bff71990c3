#include "construcciones.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <stdexcept>

namespace sistemas {

namespace {

// Todas las combinaciones lineales (mod base) de las filas generadoras.
std::vector<Palabra> Generado(const std::vector<Palabra>& generadoras, int base) {
    std::vector<Palabra> palabras{Palabra(generadoras.front().size(), 0)};
    for (const auto& g : generadoras) {
        std::vector<Palabra> nuevas;
        for (const auto& p : palabras) {
            for (int k = 0; k < base; ++k) {
                Palabra q = p;
                for (std::size_t i = 0; i < q.size(); ++i)
                    q[i] = static_cast<std::uint8_t>((q[i] + k * g[i]) % base);
                nuevas.push_back(q);
            }
        }
        palabras.swap(nuevas);
    }
    return palabras;
}

int Peso(const Palabra& p) {
    return static_cast<int>(std::count_if(p.begin(), p.end(), [](auto x) { return x != 0; }));
}

// Resto de dividir a entre b (coeficientes de menor a mayor grado, b mónico).
std::vector<int> Resto(std::vector<int> a, const std::vector<int>& b) {
    const std::size_t grado = b.size() - 1;
    for (std::size_t i = a.size(); i-- > grado;) {
        const int f = a[i] % 3;
        if (f == 0) continue;
        for (std::size_t j = 0; j <= grado; ++j) a[i - grado + j] = ((a[i - grado + j] - f * b[j]) % 3 + 3) % 3;
    }
    a.resize(grado);
    return a;
}

// Rango sobre GF(3) de las columnas elegidas de una lista de filas.
int Rango(std::vector<Palabra> filas, const std::vector<int>& columnas) {
    int rango = 0;
    for (int c : columnas) {
        std::size_t piv = rango;
        while (piv < filas.size() && filas[piv][c] == 0) ++piv;
        if (piv == filas.size()) continue;
        std::swap(filas[piv], filas[rango]);
        const int inv = filas[rango][c];  // 1 y 2 son sus propios inversos
        for (auto& x : filas[rango]) x = static_cast<std::uint8_t>((x * inv) % 3);
        for (std::size_t f = 0; f < filas.size(); ++f) {
            if (static_cast<int>(f) == rango || filas[f][c] == 0) continue;
            const int k = filas[f][c];
            for (std::size_t i = 0; i < filas[f].size(); ++i)
                filas[f][i] = static_cast<std::uint8_t>(((filas[f][i] - k * filas[rango][i]) % 3 + 3) % 3);
        }
        ++rango;
    }
    return rango;
}

}  // namespace

Codigo HammingTernario() {
    // Matriz generadora del código [4, 2, 3].
    Codigo c;
    c.forma = {4, 0};
    c.radio = 1;
    c.filas = Generado({{1, 0, 1, 1}, {0, 1, 1, 2}}, 3);
    c.origen = "Hamming ternario";
    Depurar(c);
    return c;
}

Codigo HammingBinario() {
    Codigo c;
    c.forma = {0, 7};
    c.radio = 1;
    c.filas = Generado({{1, 0, 0, 0, 0, 1, 1},
                        {0, 1, 0, 0, 1, 0, 1},
                        {0, 0, 1, 0, 1, 1, 0},
                        {0, 0, 0, 1, 1, 1, 1}},
                       2);
    c.origen = "Hamming binario";
    Depurar(c);
    return c;
}

Codigo GolayTernario() {
    // Un factor de grado 5 de x^11 - 1 sobre GF(3) genera el código cíclico.
    std::vector<int> x11(12, 0);
    x11[0] = 2;  // -1
    x11[11] = 1;
    std::vector<int> g;
    for (int k = 0; k < 243 && g.empty(); ++k) {
        std::vector<int> p{k % 3, k / 3 % 3, k / 9 % 3, k / 27 % 3, k / 81 % 3, 1};
        const auto r = Resto(x11, p);
        if (p[0] != 0 && std::all_of(r.begin(), r.end(), [](int v) { return v == 0; })) g = p;
    }
    std::vector<Palabra> generadoras;
    for (int s = 0; s < 6; ++s) {
        Palabra fila(11, 0);
        for (int j = 0; j < 6; ++j) fila[(s + j) % 11] = static_cast<std::uint8_t>(g[j]);
        generadoras.push_back(fila);
    }
    const std::vector<Palabra> codigo = Generado(generadoras, 3);

    // Forma buscada: contiene la palabra de todo unos ("X" en cada lugar
    // tras el cambio de signos), una de peso 5 con el dibujo 2221XX11111 y
    // el mensaje en los lugares 6 a 11. Se logra con escalas y permutaciones.
    for (const Palabra& u : codigo) {
        if (Peso(u) != 11) continue;
        std::vector<Palabra> escalado;
        for (Palabra p : codigo) {
            for (int i = 0; i < 11; ++i) p[i] = static_cast<std::uint8_t>((p[i] * u[i]) % 3);
            escalado.push_back(p);
        }
        for (Palabra v : escalado) {
            if (Peso(v) != 5) continue;
            if (std::count(v.begin(), v.end(), 2) == 2)
                for (auto& x : v) x = static_cast<std::uint8_t>((2 * x) % 3);
            if (std::count(v.begin(), v.end(), 2) != 3) continue;
            std::vector<int> doses, unos, ceros;
            for (int i = 0; i < 11; ++i) (v[i] == 2 ? doses : v[i] == 1 ? unos : ceros).push_back(i);
            // Lugar nuevo -> lugar viejo. El 4.º y los 7.º a 11.º salen de los
            // ceros; el 6.º de uno de los unos.
            for (int giro = 0; giro < 2; ++giro) {
                for (std::size_t cuarto = 0; cuarto < ceros.size(); ++cuarto) {
                    std::array<int, 11> origen{};
                    origen[0] = doses[0];
                    origen[1] = doses[1];
                    origen[2] = doses[2];
                    origen[3] = ceros[cuarto];
                    origen[4] = unos[giro];
                    origen[5] = unos[1 - giro];
                    int k = 6;
                    for (std::size_t z = 0; z < ceros.size(); ++z)
                        if (z != cuarto) origen[k++] = ceros[z];
                    std::vector<Palabra> permutado;
                    for (const Palabra& p : escalado) {
                        Palabra q(11);
                        for (int i = 0; i < 11; ++i) q[i] = p[origen[i]];
                        permutado.push_back(q);
                    }
                    std::vector<Palabra> base(generadoras.size());
                    for (std::size_t f = 0; f < generadoras.size(); ++f) {
                        Palabra q(11);
                        for (int i = 0; i < 11; ++i)
                            q[i] = static_cast<std::uint8_t>((generadoras[f][origen[i]] * u[origen[i]]) % 3);
                        base[f] = q;
                    }
                    if (Rango(base, {5, 6, 7, 8, 9, 10}) != 6) continue;
                    // Cada mensaje (lugares 6 a 11) da una palabra; se
                    // recorren con el lugar 6 como cifra más rápida.
                    std::map<Palabra, Palabra> porMensaje;
                    for (const Palabra& p : permutado) porMensaje[Palabra(p.begin() + 5, p.end())] = p;
                    Codigo c;
                    c.forma = {11, 0};
                    c.radio = 2;
                    c.origen = "Golay ternario";
                    for (int m = 0; m < 729; ++m) {
                        Palabra mensaje(6);
                        for (int i = 0, r = m; i < 6; ++i, r /= 3) mensaje[i] = static_cast<std::uint8_t>(r % 3);
                        c.filas.push_back(porMensaje.at(mensaje));
                    }
                    return c;
                }
            }
        }
    }
    throw std::logic_error("no se encontró la forma del código de Golay");
}

Codigo SumaDirecta(const Codigo& a, const Codigo& b) {
    Codigo c;
    c.forma = {a.forma.triples + b.forma.triples, a.forma.dobles + b.forma.dobles};
    c.radio = a.radio + b.radio;
    for (const auto& x : a.filas) {
        for (const auto& y : b.filas) {
            Palabra p(x.begin(), x.begin() + a.forma.triples);
            p.insert(p.end(), y.begin(), y.begin() + b.forma.triples);
            p.insert(p.end(), x.begin() + a.forma.triples, x.end());
            p.insert(p.end(), y.begin() + b.forma.triples, y.end());
            c.filas.push_back(p);
        }
    }
    return c;
}

Codigo SumaAmalgamada(const Codigo& a, int la, const Codigo& b, int lb,
                      const std::vector<int>& permutacion) {
    const bool triple = la < a.forma.triples;
    Codigo c;
    c.forma = {a.forma.triples + b.forma.triples - (triple ? 1 : 0),
               a.forma.dobles + b.forma.dobles - (triple ? 0 : 1)};
    c.radio = a.radio + b.radio;
    for (const auto& x : a.filas) {
        for (const auto& y : b.filas) {
            if (permutacion[x[la]] != y[lb]) continue;
            Palabra p(x.begin(), x.begin() + a.forma.triples);
            for (int i = 0; i < b.forma.triples; ++i)
                if (i != lb) p.push_back(y[i]);
            p.insert(p.end(), x.begin() + a.forma.triples, x.end());
            for (int i = b.forma.triples; i < b.forma.Lugares(); ++i)
                if (i != lb) p.push_back(y[i]);
            c.filas.push_back(p);
        }
    }
    return c;
}

std::optional<Codigo> Adaptar(const Codigo& c, const Forma& destino) {
    const Forma& f = c.forma;
    if (f.triples < destino.triples || f.Lugares() < destino.Lugares()) return std::nullopt;
    // Lugares de origen de los dobles: primero los dobles, luego los triples
    // que sobran.
    std::vector<int> paraDobles;
    for (int i = f.triples; i < f.Lugares(); ++i) paraDobles.push_back(i);
    for (int i = destino.triples; i < f.triples; ++i) paraDobles.push_back(i);
    paraDobles.resize(destino.dobles);
    Codigo r;
    r.forma = destino;
    r.radio = c.radio;
    r.origen = c.origen;
    for (const auto& x : c.filas) {
        Palabra p(x.begin(), x.begin() + destino.triples);
        for (int i : paraDobles) p.push_back(x[i] == 2 ? 1 : x[i]);
        r.filas.push_back(p);
    }
    Depurar(r);
    return r;
}

void Depurar(Codigo& c) {
    std::sort(c.filas.begin(), c.filas.end());
    c.filas.erase(std::unique(c.filas.begin(), c.filas.end()), c.filas.end());
}

}  // namespace sistemas
