#pragma once

#include <string_view>

#include "cli/arguments.h"
#include "engine/combination.h"

namespace quinteva::cli {

// Una Combinación nueva de RUTA.uxd, --base, --pleno y --jornada, con las condiciones por
// defecto, sin guardar: la de "nueva" y la de los asistentes de un paso. Los datos mal dados son
// ErrorDeUso con el uso dado.
engine::Combinacion CombinacionNueva(const Argumentos& argumentos, std::string_view uso);

}  // namespace quinteva::cli
