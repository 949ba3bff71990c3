#pragma once

#include <cstdint>

#include "base/settings.h"

namespace quinteva::engine {

// El precio de una columna: el ajuste "PrecioApu15" de "Opciones" (0,75 por defecto), en
// precisión simple; admite coma o punto decimal.
float PrecioColumna(const base::Ajustes& ajustes);

// Lo que cuestan n columnas.
double Importe(std::int64_t columnas, const base::Ajustes& ajustes);

}  // namespace quinteva::engine
