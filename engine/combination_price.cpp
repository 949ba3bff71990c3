#include "engine/combination_price.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace quinteva::engine {

double PrecioColumna(const base::Ajustes& ajustes) {
    std::string texto = ajustes.Leer(base::kAplicacion, "Opciones", "PrecioApu15", "0.75");
    std::replace(texto.begin(), texto.end(), ',', '.');
    try {
        return static_cast<double>(std::stof(texto));
    } catch (const std::exception&) {
        return 0.75;
    }
}

void PrecioComb(Combinacion& comb, const base::Ajustes& ajustes) {
    if (comb.totalGeneradas <= 0) {
        comb.panel.precio.reset();
        return;
    }
    comb.panel.condicionada = comb.activasGeneradas;
    comb.panel.precio = comb.activasGeneradas * PrecioColumna(ajustes);
    comb.panel.reducidas = {};
}

}  // namespace quinteva::engine
