#pragma once

#include "engine/conditions.h"

namespace quinteva::engine {

// Un límite de una rejilla de rangos (Generales, Interrupciones, Grupos, Grupos de Aciertos): las
// filas posibles y las elegidas, que siempre forman un tramo seguido.
struct RangoRejilla {
    int posMin, posMax, min, max;
    friend bool operator==(const RangoRejilla&, const RangoRejilla&) = default;
};

// Un clic en una fila: fuera de lo posible, nada; fuera del tramo elegido, lo alarga hasta ella;
// en un extremo, lo acorta (sin dejarlo vacío); dentro, el tramo empieza en ella.
RangoRejilla PulsarRango(RangoRejilla rango, int fila);

// Grupos de Aciertos: "Aciertos" (columna 0) y "Fallos" (columna 1) son los mismos límites vistos
// desde los dos lados; un clic en uno pone el otro como NumPartidosAc menos él.
void PulsarAciertosFallos(GrupoAciertos& grupo, int columna, int fila);

}  // namespace quinteva::engine
