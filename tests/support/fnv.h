#pragma once

#include <cstdint>
#include <string_view>

namespace quinteva::pruebas {

// FNV-1a de 64 bits: la suma de comprobación de las firmas de lo que se mide.
inline std::uint64_t Fnv(std::string_view bytes) {
    std::uint64_t h = 1469598103934665603ULL;
    for (const unsigned char c : bytes) h = (h ^ c) * 1099511628211ULL;
    return h;
}

}  // namespace quinteva::pruebas
