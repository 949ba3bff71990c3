#include "outputs/utf16.h"

#include "base/utf8.h"

namespace quinteva::outputs {
namespace {

using base::AnadirUtf8;

constexpr char32_t kSustituto = 0xFFFD;

bool Continuacion(unsigned char c) { return (c & 0xC0) == 0x80; }

bool Alta(char16_t u) { return u >= 0xD800 && u <= 0xDBFF; }
bool Baja(char16_t u) { return u >= 0xDC00 && u <= 0xDFFF; }

}  // namespace

char32_t LeerPunto(std::string_view s, std::size_t& i) {
    const auto c = static_cast<unsigned char>(s[i]);
    const std::size_t largo = c < 0x80 ? 1 : c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : c >= 0xC0 ? 2 : 0;
    if (largo == 0 || largo > 4 || i + largo > s.size() || c > 0xF4) {
        ++i;
        return c < 0x80 ? c : kSustituto;
    }
    char32_t cp = largo == 1 ? c : c & (0x7F >> largo);
    for (std::size_t k = 1; k < largo; ++k) {
        const auto siguiente = static_cast<unsigned char>(s[i + k]);
        if (!Continuacion(siguiente)) {
            ++i;
            return kSustituto;
        }
        cp = (cp << 6) | (siguiente & 0x3F);
    }
    // Formas demasiado largas o fuera de rango: no son UTF-8.
    constexpr char32_t kMinimo[] = {0, 0, 0x80, 0x800, 0x10000};
    if (cp < kMinimo[largo] || cp > 0x10FFFF) {
        ++i;
        return kSustituto;
    }
    i += largo;
    return cp;
}

std::u16string AUtf16(std::string_view utf8) {
    // Nunca salen más unidades que bytes entran: se reserva y se escribe en su sitio.
    std::u16string salida(utf8.size(), u'\0');
    std::size_t n = 0;
    std::size_t i = 0;
    while (i < utf8.size()) {
        if (static_cast<unsigned char>(utf8[i]) < 0x80) {
            salida[n++] = static_cast<char16_t>(utf8[i++]);
            continue;
        }
        const char32_t cp = LeerPunto(utf8, i);
        if (cp < 0x10000) {
            salida[n++] = static_cast<char16_t>(cp);
        } else {
            salida[n++] = static_cast<char16_t>(0xD800 + ((cp - 0x10000) >> 10));
            salida[n++] = static_cast<char16_t>(0xDC00 + ((cp - 0x10000) & 0x3FF));
        }
    }
    salida.resize(n);
    return salida;
}

std::string DeUtf16(std::u16string_view utf16) {
    std::string salida;
    salida.reserve(utf16.size());
    std::size_t i = 0;
    while (i < utf16.size()) {
        // El tramo ASCII va de una vez.
        const std::size_t tramo = i;
        while (i < utf16.size() && utf16[i] < 0x80) ++i;
        salida.append(utf16.begin() + static_cast<std::ptrdiff_t>(tramo),
                      utf16.begin() + static_cast<std::ptrdiff_t>(i));
        if (i == utf16.size()) break;
        const char16_t u = utf16[i];
        if (Alta(u) && i + 1 < utf16.size() && Baja(utf16[i + 1])) {
            AnadirUtf8(salida, 0x10000 + ((char32_t{u} - 0xD800) << 10) + (utf16[i + 1] - 0xDC00));
            i += 2;
        } else {
            AnadirUtf8(salida, u);
            ++i;
        }
    }
    return salida;
}

}  // namespace quinteva::outputs
