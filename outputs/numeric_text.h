#pragma once

#include <cmath>
#include <limits>
#include <string_view>

#include "base/error.h"

namespace quinteva::outputs {

// Si un texto tecleado es un número, como lo entiende el sistema en español: blancos alrededor,
// signo delante, cifras con "." de millares y "," decimal. "" no es un número.
bool EsNumerico(std::string_view texto);

// Su valor: "1.234" es 1234 y "7,5" es 7.5. Requiere EsNumerico.
double ValorNumerico(std::string_view texto);

// Asignar un número a un campo entero: redondea al par más cercano y desborda fuera del rango.
template <typename T>
T EnteroDe(double valor) {
    const double redondeado = std::nearbyint(valor);
    if (!(redondeado >= std::numeric_limits<T>::min() &&
          redondeado <= std::numeric_limits<T>::max())) {
        throw base::Desbordamiento();
    }
    return static_cast<T>(redondeado);
}

}  // namespace quinteva::outputs
