#include "espacio.h"

namespace sistemas {

Espacio::Espacio(int triples, int dobles) : triples_(triples), dobles_(dobles) {
    for (int l = 0; l < Lugares(); ++l) {
        pesos_.push_back(palabras_);
        palabras_ *= Base(l);
    }
}

std::int64_t Espacio::Indice(const Palabra& p) const {
    std::int64_t i = 0;
    for (std::size_t l = 0; l < p.size(); ++l) i += p[l] * pesos_[l];
    return i;
}

Palabra Espacio::DeIndice(std::int64_t indice) const {
    Palabra p(static_cast<std::size_t>(Lugares()));
    for (int l = 0; l < Lugares(); ++l) {
        p[static_cast<std::size_t>(l)] = static_cast<std::uint8_t>(indice % Base(l));
        indice /= Base(l);
    }
    return p;
}

int Distancia(const Palabra& a, const Palabra& b) {
    int d = 0;
    for (std::size_t l = 0; l < a.size(); ++l) d += a[l] != b[l] ? 1 : 0;
    return d;
}

std::string ATexto(const Palabra& p) {
    std::string texto;
    for (auto c : p) texto += "1X2"[c];
    return texto;
}

Palabra DeTexto(std::string_view texto) {
    Palabra p;
    for (char c : texto) p.push_back(c == '1' ? 0 : c == 'X' ? 1 : 2);
    return p;
}

}  // namespace sistemas
