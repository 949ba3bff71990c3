#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace quinteva::pruebas {

// Los bytes de un archivo entero, para compararlos con los que dicen los formatos; vacío si no
// existe.
inline std::string BytesDeArchivo(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

}  // namespace quinteva::pruebas
