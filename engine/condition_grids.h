#pragma once

#include "engine/conditions.h"

namespace quinteva::engine {

// Los clics en las rejillas de la página de condiciones.

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

// Un clic en el signo (0 a 2) de un partido (0 a 13) de un Grupo de Aciertos: solo un signo que la
// base tiene entra o sale del pronóstico. Cambia el número de partidos, así que los límites
// vuelven a abarcarlo todo. Devuelve false si el signo no está en la base.
bool AlternarSignoGrupoAc(GrupoAciertos& grupo, const QuinielaBase& base, int partido0, int signo);

}  // namespace quinteva::engine
