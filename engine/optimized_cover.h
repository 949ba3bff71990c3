#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quinteva::engine {

// "Reducción optimizada": entre unas columnas (sus códigos, distintos y válidos), unas pocas que
// las cubren todas a "radio" signos o menos. Primero la voraz por la que más cubre de lo que
// falta (con ganancias perezosas: una ganancia solo se recalcula al salir la primera de la cola),
// y luego se quitan, de la última elegida a la primera, las que sobran; lo mismo desde la voraz
// del orden dado, y se queda la menor de las dos. Devuelve los índices de las que se quedan, en
// orden. Siempre es un recubrimiento, nunca mayor que la voraz del orden dado, y el mismo para
// las mismas columnas.
std::vector<std::size_t> CubrirOptimizado(std::span<const std::int32_t> codigos, int radio);

}  // namespace quinteva::engine
