// Códigos que son unión de clases laterales de un código lineal (el método de la matriz): una
// matriz lleva cada palabra a su síndrome, en Z3^k3 x Z2^k2 (los triples a la parte de base 3 y
// los dobles a la de base 2), y el código son las palabras cuyo síndrome está en un conjunto S de
// "clases" síndromes. Las palabras a distancia <= radio del código son las de síndrome en S + B,
// con B los síndromes de las palabras de peso <= radio: basta que los trasladados de B cubran
// todos los síndromes, una búsqueda sobre unos cientos de síndromes en vez de sobre las palabras.
#pragma once

#include <cstdint>
#include <optional>

#include "codigo.h"

namespace sistemas {

struct FormaSindrome {
    int triples;  // k3: cifras de base 3 del síndrome
    int dobles;   // k2: cifras de base 2
    int clases;   // |S|
};

// Prueba matrices al azar (semilla fija) y, para las de B más grande, busca S entero con 0 en S:
// se toma el primer síndrome sin cubrir y se prueba cada trasladado de B que lo cubre. Nada si
// ninguna de las "matrices" matrices lo consigue.
std::optional<Codigo> BuscarClasesLaterales(const Espacio& espacio, int radio, FormaSindrome forma,
                                            std::uint64_t semilla, int matrices);

}  // namespace sistemas
