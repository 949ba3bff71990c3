#include "grupo.h"

#include <deque>

namespace sistemas {

namespace {

// Suma cifra a cifra de dos índices de un trozo de bases.
int SumaTrozo(const std::vector<int>& bases, int x, int y) {
    int r = 0, peso = 1;
    for (int i = static_cast<int>(bases.size()) - 1; i >= 0; --i) {
        const int base = bases[i];
        r += ((x % base + y % base) % base) * peso;
        x /= base;
        y /= base;
        peso *= base;
    }
    return r;
}

}  // namespace

Grupo::Grupo(std::vector<int> bases) : bases_(std::move(bases)) {
    for (int b : bases_) elementos_ *= b;
    // Parte las bases para que las dos tablas queden parejas.
    std::size_t corte = 0;
    int alta = 1;
    while (corte < bases_.size() && static_cast<long>(alta) * alta * bases_[corte] <= elementos_) {
        alta *= bases_[corte];
        ++corte;
    }
    alta_ = alta;
    baja_ = elementos_ / alta_;
    std::vector<int> basesAltas(bases_.begin(), bases_.begin() + corte);
    std::vector<int> basesBajas(bases_.begin() + corte, bases_.end());
    sumaAlta_.resize(static_cast<std::size_t>(alta_) * alta_);
    for (int a = 0; a < alta_; ++a)
        for (int c = 0; c < alta_; ++c)
            sumaAlta_[static_cast<std::size_t>(a) * alta_ + c] = SumaTrozo(basesAltas, a, c) * baja_;
    sumaBaja_.resize(static_cast<std::size_t>(baja_) * baja_);
    for (int a = 0; a < baja_; ++a)
        for (int c = 0; c < baja_; ++c)
            sumaBaja_[static_cast<std::size_t>(a) * baja_ + c] = SumaTrozo(basesBajas, a, c);
    opuesto_.resize(elementos_);
    for (int x = 0; x < elementos_; ++x) {
        Palabra p = Decodificar(x);
        for (std::size_t i = 0; i < p.size(); ++i) p[i] = (bases_[i] - p[i]) % bases_[i];
        opuesto_[x] = Codificar(p);
    }
}

int Grupo::Codificar(const Palabra& p) const {
    int x = 0;
    for (std::size_t i = 0; i < bases_.size(); ++i) x = x * bases_[i] + p[i];
    return x;
}

Palabra Grupo::Decodificar(int x) const {
    Palabra p(bases_.size());
    for (int i = static_cast<int>(bases_.size()) - 1; i >= 0; --i) {
        p[i] = static_cast<std::uint8_t>(x % bases_[i]);
        x /= bases_[i];
    }
    return p;
}

std::vector<std::uint8_t> Grupo::Distancias(const std::vector<int>& generadores) const {
    std::vector<std::uint8_t> d(elementos_, 255);
    std::deque<int> cola{0};
    d[0] = 0;
    while (!cola.empty()) {
        const int x = cola.front();
        cola.pop_front();
        for (int g : generadores) {
            const int y = Suma(x, g);
            if (d[y] == 255) {
                d[y] = static_cast<std::uint8_t>(d[x] + 1);
                cola.push_back(y);
            }
        }
    }
    return d;
}

}  // namespace sistemas
