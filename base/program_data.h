#pragma once

#include <filesystem>

namespace quinteva::base {

// La carpeta de los datos que trae el programa (la temporada de demostración, la lista de
// equipos), relativa a la de sus ejecutables: instalado, bin/ y share/quinteva/ cuelgan del mismo
// prefijo; el árbol de compilación copia data/ al mismo lugar relativo, así que la regla es una.
inline constexpr const char* kDatosJuntoAlPrograma = "../share/quinteva";

std::filesystem::path CarpetaDatosPrograma(const std::filesystem::path& carpetaEjecutable);

// La carpeta del ejecutable que corre (en Linux, el destino de /proc/self/exe); la actual si el
// sistema no lo dice.
std::filesystem::path CarpetaEjecutable();

}  // namespace quinteva::base
