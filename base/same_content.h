#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>

namespace quinteva::base {

// Lee el archivo entero una vez, por trozos, y da cada trozo a "ver"; Error si no se puede leer.
void LeerPorTrozos(const std::filesystem::path& ruta,
                   const std::function<void(std::span<const unsigned char>)>& ver);

// Verdadero si "copia" tiene exactamente "bytes" bytes y son los primeros "bytes" de "origen"
// (que los tiene). Se comparan por trozos y se para en la primera diferencia: quien guarda no
// reescribe un archivo que ya tiene lo que va a escribir.
bool MismoContenido(const std::filesystem::path& origen, const std::filesystem::path& copia,
                    std::uintmax_t bytes);

}  // namespace quinteva::base
