#include "espacio.h"

#include <stdexcept>

namespace sistemas {

std::int64_t Forma::Palabras() const {
    std::int64_t n = 1;
    for (int i = 0; i < Lugares(); ++i) n *= Base(i);
    return n;
}

std::vector<int> Forma::Bases() const {
    std::vector<int> bases;
    for (int i = 0; i < Lugares(); ++i) bases.push_back(Base(i));
    return bases;
}

int Distancia(const Palabra& a, const Palabra& b) {
    int d = 0;
    for (std::size_t i = 0; i < a.size(); ++i) d += a[i] != b[i];
    return d;
}

std::int64_t Indice(const Forma& forma, const Palabra& p) {
    std::int64_t indice = 0;
    for (int i = 0; i < forma.Lugares(); ++i) indice = indice * forma.Base(i) + p[i];
    return indice;
}

Palabra PalabraDeIndice(const Forma& forma, std::int64_t indice) {
    Palabra p(forma.Lugares());
    for (int i = forma.Lugares() - 1; i >= 0; --i) {
        p[i] = static_cast<std::uint8_t>(indice % forma.Base(i));
        indice /= forma.Base(i);
    }
    return p;
}

std::string ATexto(const Palabra& p) {
    static const char kSignos[] = {'1', 'X', '2'};
    std::string texto;
    for (auto c : p) texto.push_back(kSignos[c]);
    return texto;
}

Palabra DeTexto(std::string_view texto) {
    Palabra p;
    for (char c : texto) {
        switch (c) {
            case '1': p.push_back(0); break;
            case 'X': p.push_back(1); break;
            case '2': p.push_back(2); break;
            default: throw std::invalid_argument("signo desconocido en una fila");
        }
    }
    return p;
}

}  // namespace sistemas
