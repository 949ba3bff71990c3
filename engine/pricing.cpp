#include "engine/pricing.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace quinteva::engine {

float PrecioColumna(const base::Ajustes& ajustes) {
    std::string texto = ajustes.Leer(base::kAplicacion, "Opciones", "PrecioApu15", "0.75");
    std::replace(texto.begin(), texto.end(), ',', '.');
    return std::strtof(texto.c_str(), nullptr);
}

double Importe(std::int64_t columnas, const base::Ajustes& ajustes) {
    return static_cast<double>(PrecioColumna(ajustes)) * static_cast<double>(columnas);
}

}  // namespace quinteva::engine
