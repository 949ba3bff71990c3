#pragma once

#include <filesystem>
#include <string_view>

namespace quinteva::seasons {

// La carpeta, dentro de la del programa, con la temporada de demostración: "Tempor.rar" y
// "Hist.rar" para la carpeta de trabajo y los archivos de la temporada.
inline constexpr std::string_view kCarpetaDemo = "temporada_demo";

// En el primer arranque (no hay "Tempor.rar" en la carpeta de trabajo) instala la temporada de
// demostración: "Tempor.rar" y "Hist.rar" en la carpeta de trabajo y los demás en la carpeta de
// la temporada que nombra su "Tempor.rar". No pisa nada que ya exista. Devuelve true si la
// instaló; false si ya había temporada o el programa no trae la de demostración.
bool InstalarTemporadaDemo(const std::filesystem::path& carpetaPrograma,
                           const std::filesystem::path& carpetaTrabajo);

}  // namespace quinteva::seasons
