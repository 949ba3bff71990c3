#include "base/bytes.h"

#include <bit>
#include <cstring>
#include <limits>

#include "base/error.h"
#include "base/text1252.h"

namespace quinteva::base {
namespace {

template <typename Entero>
void PonerEntero(std::span<Byte> registro, std::size_t posicion, long long valor) {
    if (valor < std::numeric_limits<Entero>::min() || valor > std::numeric_limits<Entero>::max()) {
        throw Desbordamiento();
    }
    auto bits = static_cast<std::make_unsigned_t<Entero>>(static_cast<Entero>(valor));
    for (std::size_t i = 0; i < sizeof(Entero); ++i) {
        registro[posicion + i] = static_cast<Byte>(bits & 0xFF);
        bits = static_cast<decltype(bits)>(bits >> 8);
    }
}

template <typename Entero>
Entero TomarEntero(std::span<const Byte> registro, std::size_t posicion) {
    std::make_unsigned_t<Entero> bits = 0;
    for (std::size_t i = sizeof(Entero); i-- > 0;) {
        bits = static_cast<decltype(bits)>((bits << 8) | registro[posicion + i]);
    }
    return static_cast<Entero>(bits);
}

}  // namespace

void PonerByte(std::span<Byte> registro, std::size_t posicion, long long valor) {
    PonerEntero<std::uint8_t>(registro, posicion, valor);
}
void PonerInt16(std::span<Byte> registro, std::size_t posicion, long long valor) {
    PonerEntero<std::int16_t>(registro, posicion, valor);
}
void PonerInt32(std::span<Byte> registro, std::size_t posicion, long long valor) {
    PonerEntero<std::int32_t>(registro, posicion, valor);
}
void PonerFloat32(std::span<Byte> registro, std::size_t posicion, float valor) {
    PonerEntero<std::uint32_t>(registro, posicion, std::bit_cast<std::uint32_t>(valor));
}
void PonerDouble(std::span<Byte> registro, std::size_t posicion, double valor) {
    auto bits = std::bit_cast<std::uint64_t>(valor);
    for (std::size_t i = 0; i < 8; ++i, bits >>= 8) {
        registro[posicion + i] = static_cast<Byte>(bits & 0xFF);
    }
}
void PonerTexto(std::span<Byte> registro, std::size_t posicion, std::size_t ancho,
                std::string_view utf8) {
    const std::string bytes = AWindows1252(utf8);
    for (std::size_t i = 0; i < ancho; ++i) {
        registro[posicion + i] = static_cast<Byte>(i < bytes.size() ? bytes[i] : ' ');
    }
}

std::uint8_t TomarByte(std::span<const Byte> registro, std::size_t posicion) {
    return registro[posicion];
}
std::int16_t TomarInt16(std::span<const Byte> registro, std::size_t posicion) {
    return TomarEntero<std::int16_t>(registro, posicion);
}
std::int32_t TomarInt32(std::span<const Byte> registro, std::size_t posicion) {
    return TomarEntero<std::int32_t>(registro, posicion);
}
float TomarFloat32(std::span<const Byte> registro, std::size_t posicion) {
    return std::bit_cast<float>(TomarEntero<std::uint32_t>(registro, posicion));
}
double TomarDouble(std::span<const Byte> registro, std::size_t posicion) {
    std::uint64_t bits = 0;
    for (std::size_t i = 8; i-- > 0;) bits = (bits << 8) | registro[posicion + i];
    return std::bit_cast<double>(bits);
}
std::string TomarTexto(std::span<const Byte> registro, std::size_t posicion, std::size_t ancho) {
    const auto* inicio = reinterpret_cast<const char*>(registro.data() + posicion);
    return DeWindows1252(std::string_view(inicio, ancho));
}

}  // namespace quinteva::base
