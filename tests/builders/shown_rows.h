#pragma once

#include "builders/reduction_tables.h"

namespace quinteva::pruebas {

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
