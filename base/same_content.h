#pragma once

#include <cstdint>
#include <filesystem>

namespace quinteva::base {

// Verdadero si "copia" tiene exactamente "bytes" bytes y son los primeros "bytes" de "origen"
// (que los tiene). Se comparan por trozos y se para en la primera diferencia: quien guarda no
// reescribe un archivo que ya tiene lo que va a escribir.
bool MismoContenido(const std::filesystem::path& origen, const std::filesystem::path& copia,
                    std::uintmax_t bytes);

}  // namespace quinteva::base
