#include "engine/guarantee_check.h"

#include <vector>

#include "engine/column_code.h"

namespace quinteva::engine {

namespace {

// Marca la columna y las que difieren de ella en "quedan" signos o menos, desde el partido dado.
void MarcarEntorno(std::vector<bool>& cubierta, Columna c, std::size_t desde, int quedan) {
    cubierta[static_cast<std::size_t>(CodigoColumna(c))] = true;
    if (quedan == 0) return;
    for (std::size_t p = desde; p < static_cast<std::size_t>(kPartidos); ++p) {
        const Signo propio = c[p];
        for (const Signo otro : kSignos) {
            if (otro == propio) continue;
            c[p] = otro;
            MarcarEntorno(cubierta, c, p + 1, quedan - 1);
        }
        c[p] = propio;
    }
}

}  // namespace

Verificacion VerificarGarantia(std::span<const RegistroColumna> generadas,
                               std::span<const RegistroColumna> reducidas, int radio) {
    Verificacion v;
    std::vector<bool> cubierta(static_cast<std::size_t>(kCodigosColumna), false);
    for (const RegistroColumna& r : reducidas) {
        if (!r.Activa() || CodigoColumna(r.columna) < 0) continue;
        ++v.reducidas;
        MarcarEntorno(cubierta, r.columna, 0, radio);
    }
    for (std::size_t i = 0; i < generadas.size(); ++i) {
        const RegistroColumna& g = generadas[i];
        if (!g.Activa()) continue;
        ++v.generadas;
        const std::int32_t codigo = CodigoColumna(g.columna);
        if (!v.registro && (codigo < 0 || !cubierta[static_cast<std::size_t>(codigo)])) {
            v.registro = static_cast<std::int32_t>(i) + 1;
            v.columna = g.columna;
        }
    }
    return v;
}

}  // namespace quinteva::engine
