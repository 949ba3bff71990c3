#pragma once

#include <string>
#include <string_view>

namespace quinteva::cli {

// Escribe un valor JSON de salida para --json: texto entre comillas con sus escapes.
std::string TextoJson(std::string_view texto);

}  // namespace quinteva::cli
