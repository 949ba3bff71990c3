#pragma once

#include <filesystem>
#include <optional>

namespace quinteva::base {

// Variable de entorno que sustituye la carpeta de trabajo (pruebas, guiones).
inline constexpr const char* kVariableCarpeta = "QUINTEVA_CARPETA";

// La carpeta de datos del usuario en la plataforma, más "Quinteva": en Linux
// $XDG_DATA_HOME/Quinteva o ~/.local/share/Quinteva; en Windows %APPDATA%\Quinteva.
std::filesystem::path CarpetaDatosUsuario();

// CarpetaTrabajo: la indicada (--carpeta), si no la de QUINTEVA_CARPETA, si no la del usuario.
std::filesystem::path ResolverCarpetaTrabajo(
    const std::optional<std::filesystem::path>& indicada = std::nullopt);

// La crea si falta; si no se puede, Error "No se pudo crear el directorio de trabajo".
void AsegurarCarpeta(const std::filesystem::path& carpeta);

}  // namespace quinteva::base
