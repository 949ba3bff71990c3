// Búsqueda de un grupo de traslaciones con el que la búsqueda con pesos llega a un código: se
// prueban grupos al azar, generados por palabras de solo triples (de orden 3) o de solo dobles (de
// orden 2), cuyo tamaño divide las filas y cuyas palabras distintas de cero tienen todas al menos
// "pesoMinimo" lugares distintos de "1" (así las bolas de una clase se solapan poco).
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "codigo.h"

namespace sistemas {

// Pasos de la búsqueda con pesos en cada grupo que se prueba (y en cada receta que la repite).
constexpr std::int64_t kPasosPorGrupo = 1'000'000;

struct Grupo {
    std::vector<Palabra> generadores;
    std::uint64_t semilla;  // la de la búsqueda con pesos que llegó
    Codigo codigo;
};

std::optional<Grupo> BuscarGrupo(const Espacio& espacio, int radio, int filas, int pesoMinimo,
                                 std::uint64_t semilla, std::int64_t pasos, int intentos);

// Los grupos de dos generadores de triples: salvo el orden de los lugares y el cambio de
// símbolos en cada lugar, uno de ellos queda dado por cuántos lugares tienen en los generadores
// (0, 0) y cuántos cada una de las cuatro direcciones (1, 0), (0, 1), (1, 1) y (1, 2). Se prueban
// todos los repartos, en orden, con la semilla 1; el primero que llega es el que se devuelve.
std::optional<Grupo> BuscarPlano(const Espacio& espacio, int radio, int filas, std::int64_t pasos);

// Con unos generadores dados: prueba las semillas 1, 2, ... hasta "intentos".
std::optional<Grupo> BuscarSemilla(const Espacio& espacio, int radio, int filas,
                                   const std::vector<Palabra>& generadores, std::int64_t pasos,
                                   int intentos);

}  // namespace sistemas
