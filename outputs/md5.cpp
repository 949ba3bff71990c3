#include "outputs/md5.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

#include "base/error.h"
#include "base/text1252.h"

namespace quinteva::outputs {
namespace {

constexpr std::array<std::uint32_t, 64> kSenos = {
    0xd76aa478, 0xe8c7b756, 0x242070db, 0xc1bdceee, 0xf57c0faf, 0x4787c62a, 0xa8304613, 0xfd469501,
    0x698098d8, 0x8b44f7af, 0xffff5bb1, 0x895cd7be, 0x6b901122, 0xfd987193, 0xa679438e, 0x49b40821,
    0xf61e2562, 0xc040b340, 0x265e5a51, 0xe9b6c7aa, 0xd62f105d, 0x02441453, 0xd8a1e681, 0xe7d3fbc8,
    0x21e1cde6, 0xc33707d6, 0xf4d50d87, 0x455a14ed, 0xa9e3e905, 0xfcefa3f8, 0x676f02d9, 0x8d2a4c8a,
    0xfffa3942, 0x8771f681, 0x6d9d6122, 0xfde5380c, 0xa4beea44, 0x4bdecfa9, 0xf6bb4b60, 0xbebfbc70,
    0x289b7ec6, 0xeaa127fa, 0xd4ef3085, 0x04881d05, 0xd9d4d039, 0xe6db99e5, 0x1fa27cf8, 0xc4ac5665,
    0xf4292244, 0x432aff97, 0xab9423a7, 0xfc93a039, 0x655b59c3, 0x8f0ccc92, 0xffeff47d, 0x85845dd1,
    0x6fa87e4f, 0xfe2ce6e0, 0xa3014314, 0x4e0811a1, 0xf7537e82, 0xbd3af235, 0x2ad7d2bb, 0xeb86d391};

constexpr std::array<int, 16> kGiros = {7, 12, 17, 22, 5, 9, 14, 20, 4, 11, 16, 23, 6, 10, 15, 21};

std::uint32_t Palabra(std::span<const std::uint8_t, 64> bloque, std::size_t i) {
    return static_cast<std::uint32_t>(bloque[4 * i]) |
           static_cast<std::uint32_t>(bloque[4 * i + 1]) << 8 |
           static_cast<std::uint32_t>(bloque[4 * i + 2]) << 16 |
           static_cast<std::uint32_t>(bloque[4 * i + 3]) << 24;
}

}  // namespace

std::uint32_t MD5::LongLeftRotate(std::uint32_t valor, int bits) {
    bits &= 31;
    if (bits == 0) return valor;
    return (valor << bits) | (valor >> (32 - bits));
}

void MD5::MD5Init() {
    estado_ = {0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476};
    bytes_ = 0;
}

void MD5::Transformar(std::span<const std::uint8_t, 64> bloque) {
    auto [a, b, c, d] = estado_;
    for (std::size_t i = 0; i < 64; ++i) {
        std::uint32_t f = 0;
        std::size_t g = 0;
        const std::size_t ronda = i / 16;
        if (ronda == 0) {
            f = (b & c) | (~b & d);
            g = i;
        } else if (ronda == 1) {
            f = (d & b) | (~d & c);
            g = (5 * i + 1) % 16;
        } else if (ronda == 2) {
            f = b ^ c ^ d;
            g = (3 * i + 5) % 16;
        } else {
            f = c ^ (b | ~d);
            g = (7 * i) % 16;
        }
        const std::uint32_t giro =
            LongLeftRotate(a + f + kSenos[i] + Palabra(bloque, g), kGiros[ronda * 4 + i % 4]);
        a = d;
        d = c;
        c = b;
        b = b + giro;
    }
    estado_[0] += a;
    estado_[1] += b;
    estado_[2] += c;
    estado_[3] += d;
}

void MD5::MD5Update(std::span<const std::uint8_t> bytes) {
    for (const std::uint8_t byte : bytes) {
        bloque_[bytes_ % 64] = byte;
        ++bytes_;
        if (bytes_ % 64 == 0) Transformar(bloque_);
    }
}

void MD5::MD5Final() {
    const auto bits = static_cast<std::uint32_t>(bytes_ * 8);
    const auto posicion = static_cast<std::size_t>(bytes_ % 64);
    // La regla del sistema: en la posición 56 justa no hay relleno.
    const std::size_t relleno = posicion <= 56 ? 56 - posicion : 120 - posicion;
    std::vector<std::uint8_t> cola(relleno, 0);
    if (!cola.empty()) cola[0] = 0x80;
    for (int i = 0; i < 4; ++i) cola.push_back(static_cast<std::uint8_t>(bits >> (8 * i)));
    cola.insert(cola.end(), 4, 0);
    MD5Update(cola);
}

std::string MD5::GetValues() const {
    std::string hex;
    for (const std::uint32_t registro : estado_) {
        for (int i = 0; i < 4; ++i) {
            char byte[3];
            std::snprintf(byte, sizeof byte, "%02X", (registro >> (8 * i)) & 0xFF);
            hex += byte;
        }
    }
    return hex;
}

std::string MD5::DigestStrToHexStr(std::string_view texto) {
    const std::string ansi = base::AWindows1252(texto);
    const std::vector<std::uint8_t> bytes(ansi.begin(), ansi.end());
    MD5Init();
    MD5Update(bytes);
    MD5Final();
    return GetValues();
}

std::string MD5::DigestFileToHexStr(const std::filesystem::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    if (!archivo) throw base::Error("No se puede leer el archivo " + ruta.string());
    const std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(archivo),
                                          std::istreambuf_iterator<char>()};
    MD5Init();
    MD5Update(bytes);
    MD5Final();
    return GetValues();
}

}  // namespace quinteva::outputs
