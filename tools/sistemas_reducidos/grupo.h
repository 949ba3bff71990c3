// Grupo abeliano Z3^a x Z2^c con suma rápida por tablas. Sirve igual para el
// espacio de palabras que para el de síndromes del método de matrices.
#pragma once

#include <cstdint>
#include <vector>

#include "espacio.h"

namespace sistemas {

class Grupo {
   public:
    explicit Grupo(std::vector<int> bases);

    int Elementos() const { return elementos_; }
    int Dimension() const { return static_cast<int>(bases_.size()); }
    const std::vector<int>& Bases() const { return bases_; }

    int Codificar(const Palabra& p) const;
    Palabra Decodificar(int x) const;

    // El índice se parte en una mitad alta y una baja; la suma de cada mitad
    // va por tabla, así que sumar cuesta dos lecturas.
    int Alta(int x) const { return x / baja_; }
    int Baja(int x) const { return x % baja_; }
    const int* FilaAlta(int a) const { return &sumaAlta_[static_cast<std::size_t>(a) * alta_]; }
    const int* FilaBaja(int b) const { return &sumaBaja_[static_cast<std::size_t>(b) * baja_]; }
    int Suma(int x, int y) const { return FilaAlta(Alta(x))[Alta(y)] + FilaBaja(Baja(x))[Baja(y)]; }
    int Opuesto(int x) const { return opuesto_[x]; }
    int Resta(int x, int y) const { return Suma(x, opuesto_[y]); }

    // Distancia desde el cero con los generadores dados (búsqueda en anchura);
    // 255 si no se alcanza.
    std::vector<std::uint8_t> Distancias(const std::vector<int>& generadores) const;

   private:
    std::vector<int> bases_;
    int elementos_ = 1;
    int alta_ = 1;  // elementos de la mitad alta
    int baja_ = 1;  // elementos de la mitad baja
    std::vector<int> sumaAlta_;  // ya multiplicada por baja_
    std::vector<int> sumaBaja_;
    std::vector<int> opuesto_;
};

}  // namespace sistemas
