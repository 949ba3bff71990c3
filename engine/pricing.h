#pragma once

#include <cstdint>

#include "base/settings.h"
#include "engine/combination.h"

namespace quinteva::engine {

// El precio de una columna: el ajuste "PrecioApu15" de "Opciones" (0,75 por defecto), en
// precisión simple; admite coma o punto decimal.
float PrecioColumna(const base::Ajustes& ajustes);

// Lo que cuestan n columnas.
double Importe(std::int64_t columnas, const base::Ajustes& ajustes);

// PrecioComb: con TotalGeneradas mayor que 0, "Condicionada" muestra ActivasGeneradas, el precio
// es esa cuenta por el de una columna y las cuatro filas reducidas quedan en blanco; con 0, el
// precio queda en blanco.
void PrecioComb(Combinacion& combinacion, const base::Ajustes& ajustes);

}  // namespace quinteva::engine
