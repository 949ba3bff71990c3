#pragma once

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <string>

#include "engine/columns.h"
#include "engine/combination_files.h"

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

// Una cabecera de ".uxd" con la Jornada y el juego dados, cortada a "longitud" bytes.
inline void EscribirCabecera(const std::filesystem::path& ruta, std::uint8_t jornada,
                             const std::string& juego,
                             std::size_t longitud = engine::RegistroCabecera::kLongitud) {
    engine::RegistroCabecera cabecera;
    cabecera.jornada = jornada;
    cabecera.jugada = juego;
    const auto bytes = cabecera.ABytes();
    std::ofstream(ruta, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(longitud));
}

inline std::string BytesDe(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

}  // namespace quinteva::pruebas
