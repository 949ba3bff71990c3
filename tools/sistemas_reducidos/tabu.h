// Búsqueda tabú de un código de recubrimiento con un número fijo de filas: en cada paso se toma
// una palabra sin cubrir y se acerca a ella, un lugar, alguna fila que está a distancia radio + 1;
// se elige el cambio que deja menos palabras sin cubrir, y el lugar cambiado de esa fila no se
// puede volver a cambiar durante un tiempo.
#pragma once

#include <cstdint>
#include <optional>

#include "codigo.h"

namespace sistemas {

std::optional<Codigo> BuscarTabu(const Espacio& espacio, int radio, int filas,
                                 std::uint64_t semilla, std::int64_t pasos);

}  // namespace sistemas
