// Espacio de palabras de un sistema reducido: primero los lugares triples
// (cifras 0, 1, 2 para "1", "X", "2") y luego los dobles (0, 1 para "1", "X").
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace sistemas {

using Palabra = std::vector<std::uint8_t>;

// Forma de un espacio: lugares triples y dobles.
struct Forma {
    int triples = 0;
    int dobles = 0;
    int Lugares() const { return triples + dobles; }
    int Base(int lugar) const { return lugar < triples ? 3 : 2; }
    std::int64_t Palabras() const;
    std::vector<int> Bases() const;
};

int Distancia(const Palabra& a, const Palabra& b);

// Índice denso de una palabra (el primer lugar es el más significativo).
std::int64_t Indice(const Forma& forma, const Palabra& p);
Palabra PalabraDeIndice(const Forma& forma, std::int64_t indice);

std::string ATexto(const Palabra& p);
Palabra DeTexto(std::string_view texto);

// Un sistema: lista de filas distintas que cubre su espacio con ese radio.
struct Codigo {
    Forma forma;
    int radio = 0;
    std::vector<Palabra> filas;
    std::string origen;  // cómo se obtuvo, para el informe
};

}  // namespace sistemas
