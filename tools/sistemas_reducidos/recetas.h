// Cómo se obtiene cada uno de los 73 sistemas reducidos.
#pragma once

#include <functional>
#include <vector>

#include "codigo.h"

namespace sistemas {

using Receta = std::function<Codigo()>;

struct Sistema {
    int nivel;  // 13, 12 u 11: radio 14 - nivel
    int triples;
    int dobles;
    int filas;  // las que muestra el programa
    Receta receta;
};

// En el orden de las tablas de selección del programa.
std::vector<Sistema> Sistemas();

}  // namespace sistemas
