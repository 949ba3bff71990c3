#pragma once

#include <string>
#include <string_view>

#include "outputs/hit_count.h"

namespace quinteva::pruebas {

// La comparación de una columna tal como se cuenta a mano: carácter a carácter, parando al sexto
// fallo. Es la referencia de la cuenta por palabras de outputs::Comparador.
inline void AnotarLiteral(std::string_view signos, std::string_view plenoBoleto,
                          std::string_view ganadora, std::int32_t numero,
                          outputs::TablaAciertos& tabla) {
    int fallos = 0;
    for (std::size_t p = 0; p < 14 && fallos < 6; ++p) {
        if (signos[p] != ganadora[p]) ++fallos;
    }
    if (fallos == 6) return;
    ++tabla.cuentas[static_cast<std::size_t>(fallos + 1)];
    if (fallos < 5) tabla.listas[static_cast<std::size_t>(fallos + 1)].push_back(numero);
    const std::string_view pleno = ganadora.size() > 14 ? ganadora.substr(14, 2) : "";
    if (fallos == 0 && plenoBoleto == pleno) {
        ++tabla.cuentas[0];
        tabla.listas[0].push_back(numero);
    }
}

// "A&vance" a mano: los fallos donde la ganadora no está en blanco, sin parar.
inline void AnotarAvanceLiteral(std::string_view signos, std::string_view ganadora,
                                outputs::TablaAciertos& tabla) {
    int fallos = 0;
    for (std::size_t p = 0; p < 14; ++p) {
        if (ganadora[p] != ' ' && signos[p] != ganadora[p]) ++fallos;
    }
    for (int lugar = fallos + 1; lugar <= 6; ++lugar)
        ++tabla.cuentas[static_cast<std::size_t>(lugar)];
}

}  // namespace quinteva::pruebas
