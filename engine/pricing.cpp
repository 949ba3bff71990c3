#include "engine/pricing.h"

#include <algorithm>
#include <string>

namespace quinteva::engine {

float PrecioColumna(const base::Ajustes& ajustes) {
    std::string texto = ajustes.Leer(base::kAplicacion, "Opciones", "PrecioApu15", "0.75");
    std::replace(texto.begin(), texto.end(), ',', '.');
    try {
        return std::stof(texto);
    } catch (const std::exception&) {
        return 0.75F;  // un valor ilegible en los ajustes no deja el programa sin precio
    }
}

double Importe(std::int64_t columnas, const base::Ajustes& ajustes) {
    return static_cast<double>(PrecioColumna(ajustes)) * static_cast<double>(columnas);
}

void PrecioComb(Combinacion& comb, const base::Ajustes& ajustes) {
    if (comb.totalGeneradas <= 0) {
        comb.panel.precio.reset();
        return;
    }
    comb.panel.condicionada = comb.activasGeneradas;
    comb.panel.precio = Importe(comb.activasGeneradas, ajustes);
    comb.panel.reducidas = {};
}

}  // namespace quinteva::engine
