#include "engine/condition_grids.h"

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

bool AlternarSignoGrupoAc(GrupoAciertos& g, const QuinielaBase& base, int partido0, int signo) {
    if (partido0 < 0 || partido0 >= kPartidos || signo < 0 || signo > 2 ||
        !base.Elegido(partido0 + 1, signo)) {
        return false;
    }
    auto& celda = g.signos[static_cast<std::size_t>(partido0)][static_cast<std::size_t>(signo)];
    celda = celda == ' ' ? kSignos[static_cast<std::size_t>(signo)] : ' ';
    int n = 0;
    for (int p = 0; p < kPartidos; ++p) n += g.EsDelGrupo(p) ? 1 : 0;
    g.numPartidos = static_cast<std::uint8_t>(n);
    g.aciertosMin = 0;
    g.aciertosMax = g.numPartidos;
    g.fallosMin = 0;
    g.fallosMax = g.numPartidos;
    return true;
}

}  // namespace quinteva::engine
