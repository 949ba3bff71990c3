#pragma once

#include <string>
#include <string_view>

namespace quinteva::outputs {

// El modelo JSON cuenta posiciones y escapa por unidades UTF-16, como el texto del sistema. Las
// mitades de un par sueltas viajan en UTF-8 generalizado (tres bytes), para que "\uD800" leído
// vuelva a salir igual. Un byte UTF-8 mal formado se lee como U+FFFD.
std::u16string AUtf16(std::string_view utf8);
std::string DeUtf16(std::u16string_view utf16);

// Lee un punto de código desde i y avanza; lo mal formado da U+FFFD y avanza un byte.
char32_t LeerPunto(std::string_view utf8, std::size_t& i);

}  // namespace quinteva::outputs
