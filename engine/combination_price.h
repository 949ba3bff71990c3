#pragma once

#include "base/settings.h"
#include "engine/combination.h"

namespace quinteva::engine {

// Precio de una columna: "PrecioApu15" de "Opciones" (0,75 por defecto; admite la coma).
double PrecioColumna(const base::Ajustes& ajustes);

// PrecioComb: con TotalGeneradas mayor que 0, "Condicionada" muestra ActivasGeneradas, el precio
// es esa cuenta por el de una columna y las cuatro filas reducidas quedan en blanco; con 0, el
// precio queda en blanco.
void PrecioComb(Combinacion& combinacion, const base::Ajustes& ajustes);

}  // namespace quinteva::engine
