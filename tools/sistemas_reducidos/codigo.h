// Un código de recubrimiento y las construcciones que forman unos a partir de otros.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "espacio.h"

namespace sistemas {

struct Codigo {
    Espacio espacio;
    std::vector<Palabra> filas;
};

// Palabras del espacio que no quedan a distancia <= radio de ninguna fila.
std::vector<std::int64_t> NoCubiertas(const Codigo& c, int radio);
bool SinRepetidas(const Codigo& c);

// Todas las palabras del espacio (el código de radio 0) y una sola palabra (radio >= lugares).
Codigo EspacioEntero(const Espacio& e);
Codigo UnaPalabra(const Espacio& e);

// Suma directa: los radios se suman y los tamaños se multiplican. Triples de a, triples de b,
// dobles de a, dobles de b.
Codigo SumaDirecta(const Codigo& a, const Codigo& b);

// Suma amalgamada: filas de a y de b que coinciden en el lugar la de a y lb de b (los dos triples
// o los dos dobles), que se funden en uno; el símbolo s de b en ese lugar se lee como cambio[s].
Codigo Amalgama(const Codigo& a, int la, const Codigo& b, int lb,
                std::array<std::uint8_t, 3> cambio);

// Añade con avidez la palabra que cubre más palabras sin cubrir hasta cubrir todo el espacio.
Codigo Completar(Codigo c, int radio);

// Quita, de la última a la primera, cada fila sin la que el código sigue cubriendo su espacio.
Codigo Podar(Codigo c, int radio);

// Añade palabras distintas, en el orden de su índice, hasta tener "filas" filas.
Codigo Rellenar(Codigo c, std::size_t filas);

}  // namespace sistemas
