#include "golay.h"

#include <algorithm>
#include <array>
#include <set>

namespace sistemas {
namespace {

constexpr int kLongitud = 11;
// Coeficientes de menor a mayor grado; 2 es -1.
constexpr std::array<int, 6> kGenerador{2, 0, 1, 2, 1, 1};

std::vector<Palabra> Multiplos() {
    std::vector<Palabra> palabras;
    const Espacio mensajes(6, 0);
    for (std::int64_t m = 0; m < mensajes.Palabras(); ++m) {
        const Palabra mensaje = mensajes.DeIndice(m);
        Palabra p(kLongitud, 0);
        for (std::size_t i = 0; i < mensaje.size(); ++i) {
            for (std::size_t j = 0; j < kGenerador.size(); ++j) {
                p[i + j] = static_cast<std::uint8_t>((p[i + j] + mensaje[i] * kGenerador[j]) % 3);
            }
        }
        palabras.push_back(p);
    }
    return palabras;
}

// El orden de los lugares: los unos de la palabra elegida, un cero, sus doses y los demás ceros.
std::vector<std::size_t> Orden(const std::vector<Palabra>& palabras) {
    std::set<Palabra> ordenadas(palabras.begin(), palabras.end());
    const auto elegida = std::find_if(ordenadas.begin(), ordenadas.end(), [](const Palabra& p) {
        return std::count(p.begin(), p.end(), 1) == 3 && std::count(p.begin(), p.end(), 2) == 2;
    });
    std::vector<std::size_t> unos, doses, ceros;
    for (std::size_t l = 0; l < kLongitud; ++l) {
        ((*elegida)[l] == 1 ? unos : (*elegida)[l] == 2 ? doses : ceros).push_back(l);
    }
    std::vector<std::size_t> orden = unos;
    orden.push_back(ceros[0]);
    orden.insert(orden.end(), doses.begin(), doses.end());
    orden.insert(orden.end(), ceros.begin() + 1, ceros.end());
    return orden;
}

}  // namespace

Codigo Golay() {
    const auto palabras = Multiplos();
    const auto orden = Orden(palabras);
    const Espacio e(kLongitud, 0);
    std::set<std::int64_t> indices;
    for (const Palabra& p : palabras) {
        Palabra q;
        for (std::size_t l : orden) q.push_back(p[l]);
        indices.insert(e.Indice(q));
    }
    const std::vector<std::string> primeras{"11111111111", "2221XX11111", "XXX12211111"};
    const std::vector<std::string> ultimas{"1112XX22222", "22222222222"};
    Codigo c{e, {}};
    for (const auto& t : primeras) c.filas.push_back(DeTexto(t));
    for (std::int64_t i : indices) {
        const std::string t = ATexto(e.DeIndice(i));
        if (std::find(primeras.begin(), primeras.end(), t) == primeras.end() &&
            std::find(ultimas.begin(), ultimas.end(), t) == ultimas.end()) {
            c.filas.push_back(e.DeIndice(i));
        }
    }
    for (const auto& t : ultimas) c.filas.push_back(DeTexto(t));
    return c;
}

}  // namespace sistemas
