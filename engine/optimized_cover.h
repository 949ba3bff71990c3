#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "base/progress.h"

namespace quinteva::engine {

struct OpcionesOptimizada {
    double segundos = 10.0;  // el tiempo de la búsqueda
    std::uint64_t semilla = 1;
    // Cuántos cambios sin menguar, por cada elegida, dan la búsqueda por acabada.
    std::size_t paciencia = 500;
};

// "Reducción optimizada": entre unas columnas (sus códigos, distintos y válidos), unas pocas que
// las cubren todas a "radio" signos o menos; devuelve los índices de las que se quedan, en orden.
// Se parte de la voraz del orden dado y de la voraz por la que más cubre de lo que falta, cada una
// sin las que sobran; desde la menor, la búsqueda local
// cambia elegidas una por una hasta que pasan "paciencia" cambios por elegida sin menguar, se acaba
// el tiempo o se pide "&Detener" (se queda la mejor hallada). Siempre es un recubrimiento y nunca
// mayor que la voraz del orden dado; con la misma semilla y acabando antes del tiempo, el mismo.
// Progreso avanza con el tiempo gastado. "semilla" (índices) es otro comienzo: se completa con las
// que falten, en orden, y compite con las dos voraces.
std::vector<std::size_t> CubrirOptimizado(std::span<const std::int32_t> codigos, int radio,
                                          const OpcionesOptimizada& opciones,
                                          base::Progreso& progreso,
                                          std::span<const std::size_t> semilla = {});

}  // namespace quinteva::engine
