#include "base/text1252.h"

#include "base/utf8.h"

#include <array>
#include <cstdint>

namespace quinteva::base {
namespace {

// Los puntos de código de 0x80 a 0x9F; los cinco huecos de la página se tratan como los controles
// C1 del mismo número, igual que hace el sistema, para que la ida y vuelta no pierda nada.
constexpr std::array<char32_t, 32> kAltos = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char ByteDe(char32_t cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
    for (std::size_t i = 0; i < kAltos.size(); ++i) {
        if (kAltos[i] == cp) return static_cast<char>(0x80 + i);
    }
    return '?';
}

}  // namespace

std::string AWindows1252(std::string_view utf8) {
    std::string salida;
    salida.reserve(utf8.size());
    std::size_t i = 0;
    while (i < utf8.size()) {
        const auto cp = LeerUtf8(utf8, i);
        salida += cp ? ByteDe(*cp) : '?';
    }
    return salida;
}

std::string DeWindows1252(std::string_view bytes) {
    std::string salida;
    salida.reserve(bytes.size());
    for (const char c : bytes) {
        const auto b = static_cast<std::uint8_t>(c);
        AnadirUtf8(salida, (b >= 0x80 && b < 0xA0) ? kAltos[b - 0x80] : char32_t{b});
    }
    return salida;
}

std::string_view Recortar(std::string_view texto) {
    const auto inicio = texto.find_first_not_of(' ');
    if (inicio == std::string_view::npos) return {};
    const auto fin = texto.find_last_not_of(' ');
    return texto.substr(inicio, fin - inicio + 1);
}

bool MismoTexto(std::string_view a, std::string_view b) { return Recortar(a) == Recortar(b); }

// La minúscula de un carácter de Windows-1252: A-Z y las mayúsculas acentuadas de 0xC0 a 0xDE
// (salvo el signo de multiplicar, 0xD7), más 0x20.
std::string ClaveSinMayusculas(std::string_view utf8) {
    std::string bytes = AWindows1252(Recortar(utf8));
    for (char& c : bytes) {
        const auto u = static_cast<unsigned char>(c);
        if ((u >= 'A' && u <= 'Z') || (u >= 0xC0 && u <= 0xDE && u != 0xD7)) {
            c = static_cast<char>(u + 0x20);
        }
    }
    return bytes;
}

bool MismoTextoSinMayusculas(std::string_view a, std::string_view b) {
    return ClaveSinMayusculas(a) == ClaveSinMayusculas(b);
}

}  // namespace quinteva::base
