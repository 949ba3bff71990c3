// El espacio de palabras de un sistema reducido: primero los lugares triples (cifras 0, 1, 2 para
// "1", "X", "2") y luego los dobles (0, 1 para "1", "X").
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace sistemas {

using Palabra = std::vector<std::uint8_t>;

class Espacio {
  public:
    Espacio(int triples, int dobles);

    int Triples() const { return triples_; }
    int Dobles() const { return dobles_; }
    int Lugares() const { return triples_ + dobles_; }
    int Base(int lugar) const { return lugar < triples_ ? 3 : 2; }
    std::int64_t Palabras() const { return palabras_; }

    std::int64_t Indice(const Palabra& p) const;
    Palabra DeIndice(std::int64_t indice) const;

    // Llama a f con el índice de cada palabra a distancia de Hamming <= radio de p.
    template <class F>
    void Bola(const Palabra& p, int radio, F&& f) const {
        Recorrer(p, Indice(p), 0, radio, f);
    }

  private:
    template <class F>
    void Recorrer(const Palabra& p, std::int64_t i, int desde, int radio, F& f) const {
        f(i);
        if (radio == 0) return;
        for (int l = desde; l < Lugares(); ++l) {
            for (int d = 1; d < Base(l); ++d) {
                const int nueva = (p[static_cast<std::size_t>(l)] + d) % Base(l);
                Recorrer(p,
                         i + (nueva - p[static_cast<std::size_t>(l)]) *
                                 pesos_[static_cast<std::size_t>(l)],
                         l + 1, radio - 1, f);
            }
        }
    }

    int triples_;
    int dobles_;
    std::int64_t palabras_ = 1;
    std::vector<std::int64_t> pesos_;
};

int Distancia(const Palabra& a, const Palabra& b);
std::string ATexto(const Palabra& p);
Palabra DeTexto(std::string_view texto);

}  // namespace sistemas
