// El código de Golay ternario de longitud 11: 729 palabras, radio 2, perfecto.
#pragma once

#include "codigo.h"

namespace sistemas {

// Los múltiplos de x^5 + x^4 - x^3 + x^2 - 1 (código cíclico, contiene el vector de unos), con los
// lugares ordenados para que la palabra de peso 5 con tres unos y dos doses que se elige sea
// "XXX12211111". Las filas empiezan por "11111111111", "2221XX11111", "XXX12211111" y acaban en
// "1112XX22222", "22222222222"; las demás van en el orden de su índice.
Codigo Golay();

}  // namespace sistemas
