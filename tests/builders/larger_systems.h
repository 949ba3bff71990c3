#pragma once

#include <algorithm>
#include <array>

#include "builders/reduction_tables.h"

namespace quinteva::pruebas {

// Los sistemas reducidos cuyo código todavía tiene más filas de las que muestra el programa:
// cubren su espacio con su radio, pero la búsqueda de la herramienta no ha llegado a esas filas.
inline constexpr std::array<std::array<int, 3>, 1> kSistemasMayores{{
    {11, 9, 2},
}};

inline bool SistemaMayor(const builders::SistemaReducido& s) {
    return std::ranges::find(kSistemasMayores, std::array{s.nivel, s.triples, s.dobles}) !=
           kSistemasMayores.end();
}

// Las filas que muestra el programa para el sistema de un nivel con T triples y D dobles.
inline int FilasMostradas(int nivel, int triples, int dobles) {
    for (const auto& t : builders::TramosSeleccion()) {
        if (t.nivel == nivel && t.triples == triples && dobles >= t.dMin && dobles <= t.dMax) {
            return t.filas;
        }
    }
    return 0;
}

}  // namespace quinteva::pruebas
