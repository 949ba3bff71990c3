// Generador pseudoaleatorio propio: la salida de la herramienta debe ser la
// misma con cualquier biblioteca estándar, y las distribuciones de <random>
// no garantizan eso.
#pragma once

#include <cstdint>

namespace sistemas {

class Azar {
   public:
    explicit Azar(std::uint64_t semilla) : estado_(semilla) {}

    std::uint64_t Siguiente() {
        // splitmix64
        std::uint64_t z = (estado_ += 0x9E3779B97F4A7C15ULL);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }
    // Entero en [0, n).
    int Menor(int n) { return static_cast<int>(Siguiente() % static_cast<std::uint64_t>(n)); }
    // Real en [0, 1).
    double Real() { return static_cast<double>(Siguiente() >> 11) * (1.0 / 9007199254740992.0); }

   private:
    std::uint64_t estado_;
};

}  // namespace sistemas
