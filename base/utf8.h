#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quinteva::base {

// Añade el punto de código en UTF-8.
void AnadirUtf8(std::string& salida, char32_t codigo);

// Lee el carácter UTF-8 que empieza en i y avanza i; una secuencia mal formada da nullopt y
// avanza al menos un byte.
std::optional<char32_t> LeerUtf8(std::string_view texto, std::size_t& i);

}  // namespace quinteva::base
