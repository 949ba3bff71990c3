#pragma once

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <string>

#include "engine/columns.h"

namespace quinteva::pruebas {

// Escribe registros de 17 bytes tal como quedan en ".cnd", ".red" y los almacenes.
inline void EscribirColumnas(const std::filesystem::path& ruta,
                             std::span<const engine::RegistroColumna> columnas) {
    std::ofstream archivo(ruta, std::ios::binary);
    for (const auto& r : columnas) {
        const auto bytes = r.ABytes();
        archivo.write(reinterpret_cast<const char*>(bytes.data()),
                      static_cast<std::streamsize>(bytes.size()));
    }
}

inline std::string BytesDe(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

}  // namespace quinteva::pruebas
