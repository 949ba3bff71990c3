// Un conjunto de números de 0 a n - 1 que se añaden y se quitan en tiempo constante (el último
// ocupa el hueco del que sale), con la lista de los que están.
#pragma once

#include <cstddef>
#include <vector>

namespace sistemas {

class Conjunto {
  public:
    explicit Conjunto(std::size_t n) : posicion_(n, -1) {}

    void Anadir(int c) {
        posicion_[static_cast<std::size_t>(c)] = static_cast<int>(lista_.size());
        lista_.push_back(c);
    }
    void Quitar(int c) {
        const auto i = static_cast<std::size_t>(posicion_[static_cast<std::size_t>(c)]);
        lista_[i] = lista_.back();
        posicion_[static_cast<std::size_t>(lista_[i])] = static_cast<int>(i);
        lista_.pop_back();
        posicion_[static_cast<std::size_t>(c)] = -1;
    }
    bool Contiene(int c) const { return posicion_[static_cast<std::size_t>(c)] >= 0; }
    const std::vector<int>& Lista() const { return lista_; }

  private:
    std::vector<int> posicion_;
    std::vector<int> lista_;
};

}  // namespace sistemas
