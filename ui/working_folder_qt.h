#pragma once

#include <filesystem>

namespace quinteva::ui {

// La carpeta de datos del usuario según Qt (GenericDataLocation) más "Quinteva"; la variable
// QUINTEVA_CARPETA la sustituye, como en quinteva-cli.
std::filesystem::path CarpetaTrabajoDelPrograma();

}  // namespace quinteva::ui
