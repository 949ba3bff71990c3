#pragma once

#include <string>
#include <string_view>

#include "base/dates.h"

namespace quinteva::base {

// Los formatos numéricos que muestra el sistema, con separadores españoles (coma decimal, punto de
// millares): "#,##0", "#,##0.#0", "#,##0.##0", "##0", "00#", "0#", "0.#0", "standard" (dos
// decimales con millares) y "currency" (como "standard" seguido de " €"). El redondeo es a la
// mitad hacia fuera del cero. Los dígitos mínimos de la parte entera son los marcadores desde el
// primer "0" hasta el punto: "00#" da "007" y "0#" da "07".
std::string Formato(double valor, std::string_view patron);

// Fechas: "dd/mm/yy" y "dd/MM/yy" (día, mes y año de dos cifras); también "yyyy" y "d", "m".
std::string FormatoFecha(const FechaHora& fecha, std::string_view patron);

}  // namespace quinteva::base
