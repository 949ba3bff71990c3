#include "engine/range_grid.h"

#include <algorithm>

namespace quinteva::engine {

RangoRejilla PulsarRango(RangoRejilla r, int fila) {
    if (fila < r.posMin || fila > r.posMax) return r;
    if (fila < r.min || fila > r.max) {
        r.min = std::min(r.min, fila);
        r.max = std::max(r.max, fila);
    } else if (r.min == r.max) {
        return r;
    } else if (fila == r.min) {
        r.min = fila + 1;
    } else if (fila == r.max) {
        r.max = fila - 1;
    } else {
        r.min = fila;
    }
    return r;
}

void PulsarAciertosFallos(GrupoAciertos& g, int columna, int fila) {
    const int n = g.numPartidos;
    if (columna == 0) {
        const auto r = PulsarRango({0, n, g.aciertosMin, g.aciertosMax}, fila);
        g.aciertosMin = static_cast<std::uint8_t>(r.min);
        g.aciertosMax = static_cast<std::uint8_t>(r.max);
    } else {
        const auto r = PulsarRango({0, n, n - g.aciertosMax, n - g.aciertosMin}, fila);
        g.aciertosMin = static_cast<std::uint8_t>(n - r.max);
        g.aciertosMax = static_cast<std::uint8_t>(n - r.min);
    }
    g.fallosMin = static_cast<std::uint8_t>(n - g.aciertosMax);
    g.fallosMax = static_cast<std::uint8_t>(n - g.aciertosMin);
}

}  // namespace quinteva::engine
