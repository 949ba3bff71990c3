#pragma once

#include <filesystem>
#include <string>

namespace quinteva::cli {

// La fecha de una Jornada de Quinielas en la temporada en curso, "dd/mm/aa"; vacía si no está.
std::string FechaDeJornada(const std::filesystem::path& carpetaTrabajo, int jornada);

}  // namespace quinteva::cli
