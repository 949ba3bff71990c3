#include "base/utf8.h"

#include <cstdint>

namespace quinteva::base {

void AnadirUtf8(std::string& salida, char32_t cp) {
    if (cp < 0x80) {
        salida += static_cast<char>(cp);
    } else if (cp < 0x800) {
        salida += static_cast<char>(0xC0 | (cp >> 6));
        salida += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        salida += static_cast<char>(0xE0 | (cp >> 12));
        salida += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        salida += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        salida += static_cast<char>(0xF0 | (cp >> 18));
        salida += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        salida += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        salida += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

std::optional<char32_t> LeerUtf8(std::string_view s, std::size_t& i) {
    const auto b0 = static_cast<std::uint8_t>(s[i++]);
    if (b0 < 0x80) return b0;
    int resto = 0;
    char32_t cp = 0;
    if ((b0 & 0xE0) == 0xC0) {
        resto = 1;
        cp = b0 & 0x1F;
    } else if ((b0 & 0xF0) == 0xE0) {
        resto = 2;
        cp = b0 & 0x0F;
    } else if ((b0 & 0xF8) == 0xF0) {
        resto = 3;
        cp = b0 & 0x07;
    } else {
        return std::nullopt;
    }
    for (int k = 0; k < resto; ++k) {
        if (i >= s.size()) return std::nullopt;
        const auto b = static_cast<std::uint8_t>(s[i]);
        if ((b & 0xC0) != 0x80) return std::nullopt;
        cp = (cp << 6) | (b & 0x3F);
        ++i;
    }
    return cp;
}

}  // namespace quinteva::base
