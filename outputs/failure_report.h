#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "engine/analysis.h"
#include "engine/combination.h"

namespace quinteva::outputs {

inline constexpr std::string_view kTituloFallos = "Condiciones incumplidas";
inline constexpr std::array<std::string_view, 2> kCabecerasFallos = {"Condición", "Filtro"};

// "Informe sobre Fallos": las condiciones de la Combinación que incumple la columna ganadora
// (sus 14 primeros caracteres), con la marca de eliminada de su conjunto jugado.
std::vector<engine::FilaInforme> InformeFallos(const engine::Combinacion& combinacion,
                                               std::string_view ganadora);

}  // namespace quinteva::outputs
