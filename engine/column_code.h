#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <span>

#include "engine/columns.h"

namespace quinteva::engine {

using SignosColumna = std::span<const Signo, kPartidos>;

inline constexpr std::int32_t kCodigosColumna = 4782969;  // 3^14

namespace detalle {

constexpr std::uint64_t kUnos = 0x0101010101010101;

// Las cifras de ocho caracteres a la vez, un byte cada una, y si los ocho son signos. La cifra
// de "1" (0x31) es 0, la de "X" (0x58) 1 y la de "2" (0x32) 2: el bit 3 y el bit 1 del carácter;
// ningún otro carácter es el que se rehace con esos dos bits.
inline bool Cifras(std::uint64_t caracteres, std::uint64_t& cifras) {
    const std::uint64_t x = (caracteres >> 3) & kUnos;
    const std::uint64_t dos = caracteres & (kUnos << 1);
    cifras = x | dos;
    return caracteres == kUnos * '1' + x * ('X' - '1') + (dos >> 1) * ('2' - '1');
}

// El valor en base 3 de ocho cifras, la del primer byte la más significativa: se juntan de dos
// en dos, de cuatro en cuatro y de ocho en ocho con tres multiplicaciones.
inline std::int32_t BaseTres(std::uint64_t cifras) {
    cifras = ((cifras * (1 + (3ULL << 8))) >> 8) & 0x00FF00FF00FF00FFULL;
    cifras = ((cifras * (1 + (9ULL << 16))) >> 16) & 0x0000FFFF0000FFFFULL;
    return static_cast<std::int32_t>((cifras * (1 + (81ULL << 32))) >> 32);
}

}  // namespace detalle

// Código de columna: los 14 signos como cifras de base 3 (1 = 0, X = 1, 2 = 2, el partido 1 la
// más significativa). -1 si algún carácter no es un signo.
// Los catorce caracteres se leen en dos trozos de ocho que se solapan en los partidos 7 y 8; del
// segundo se quitan esas dos cifras.
inline std::int32_t CodigoColumna(SignosColumna signos) {
    static_assert(std::endian::native == std::endian::little);
    std::uint64_t primeros = 0;
    std::uint64_t ultimos = 0;
    std::memcpy(&primeros, signos.data(), 8);
    std::memcpy(&ultimos, signos.data() + kPartidos - 8, 8);
    std::uint64_t cifrasPrimeros = 0;
    std::uint64_t cifrasUltimos = 0;
    const bool validos = detalle::Cifras(primeros, cifrasPrimeros);
    if (!(detalle::Cifras(ultimos, cifrasUltimos) && validos)) return -1;
    return detalle::BaseTres(cifrasPrimeros) * 729 + detalle::BaseTres(cifrasUltimos & ~0xFFFFULL);
}

}  // namespace quinteva::engine
