// Comprobaciones exhaustivas de un sistema antes de escribirlo.
#pragma once

#include <string>
#include <vector>

#include "espacio.h"

namespace sistemas {

// Radio de recubrimiento exacto: la mayor distancia de una palabra del
// espacio a la fila más cercana (búsqueda en anchura desde todas las filas).
int RadioDeRecubrimiento(const Forma& forma, const std::vector<Palabra>& filas);

// Devuelve la lista de fallos (vacía si el sistema es bueno): número de
// filas, filas repetidas o mal formadas, radio.
std::vector<std::string> Comprobar(const Codigo& codigo, int filasPedidas);

}  // namespace sistemas
