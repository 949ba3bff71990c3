// Búsqueda local con pesos de un código que es unión de clases laterales de un grupo de
// traslaciones: el grupo lo generan unas palabras que se suman lugar a lugar (módulo 3 en los
// triples y 2 en los dobles) y el código es una unión de sus clases. Una clase cubre las clases
// que tienen alguna palabra a distancia <= radio de alguna de las suyas, así que la búsqueda se
// hace sobre las clases y no sobre las palabras.
//
// Cada palabra sin cubrir pesa un poco más en cada paso en que sigue sin cubrir; en cada paso sale
// del código la clase que deja menos peso sin cubrir (no la que acaba de entrar) y entra, de las
// que cubren una clase sin cubrir tomada al azar, la que cubre más peso sin cubrir, entre las que
// han visto cambiar algo a su alrededor desde que salieron. Con el grupo de una sola palabra, la
// búsqueda es sobre el espacio entero.
//
// Con "permitida", solo pueden entrar en el código las clases cuyo representante (su primera
// palabra) la cumple; todas las palabras siguen teniendo que quedar cubiertas.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "codigo.h"

namespace sistemas {

using Permitida = std::function<bool(const Palabra&)>;

std::optional<Codigo> BuscarConPesos(const Espacio& espacio, int radio, int filas,
                                     const std::vector<Palabra>& generadores, std::uint64_t semilla,
                                     std::int64_t pasos, const Permitida& permitida = nullptr);

}  // namespace sistemas
