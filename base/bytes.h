#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quinteva::base {

using Byte = std::uint8_t;

// Campos de los registros fijos: uno tras otro sin relleno, enteros en little-endian, fechas como
// double de 8 bytes y text(n) en Windows-1252 rellenado con blancos. Poner* comprueba el rango del
// campo y lanza Desbordamiento en lugar de dar la vuelta.
void PonerByte(std::span<Byte> registro, std::size_t posicion, long long valor);
void PonerInt16(std::span<Byte> registro, std::size_t posicion, long long valor);
void PonerInt32(std::span<Byte> registro, std::size_t posicion, long long valor);
void PonerFloat32(std::span<Byte> registro, std::size_t posicion, float valor);
void PonerDouble(std::span<Byte> registro, std::size_t posicion, double valor);
// Escribe el texto (UTF-8) como text(ancho): cortado si es más largo, con blancos si es más corto.
void PonerTexto(std::span<Byte> registro, std::size_t posicion, std::size_t ancho,
                std::string_view utf8);

std::uint8_t TomarByte(std::span<const Byte> registro, std::size_t posicion);
std::int16_t TomarInt16(std::span<const Byte> registro, std::size_t posicion);
std::int32_t TomarInt32(std::span<const Byte> registro, std::size_t posicion);
float TomarFloat32(std::span<const Byte> registro, std::size_t posicion);
double TomarDouble(std::span<const Byte> registro, std::size_t posicion);
// El text(ancho) en UTF-8, tal cual, con sus blancos: quien compara recorta.
std::string TomarTexto(std::span<const Byte> registro, std::size_t posicion, std::size_t ancho);

}  // namespace quinteva::base
