#pragma once

#include <string_view>

namespace quinteva::outputs {

// Si un texto tecleado es un número, como lo entiende el sistema en español: blancos alrededor,
// signo delante, cifras con "." de millares y "," decimal. "" no es un número.
bool EsNumerico(std::string_view texto);

// Su valor: "1.234" es 1234 y "7,5" es 7.5. Requiere EsNumerico.
double ValorNumerico(std::string_view texto);

}  // namespace quinteva::outputs
