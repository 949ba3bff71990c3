#pragma once

#include <filesystem>
#include <string_view>

namespace quinteva::seasons {

// DepurarLiga: "Jlig2.rar" se queda con los partidos de la temporada dada (su Temporada,
// recortada) y la misma copia se guarda como "Jlig2.bak" en la carpeta de la temporada. Cada
// archivo se escribe entero aparte y se renombra encima, así que un fallo (disco lleno) deja el
// "Jlig2.rar" del usuario como estaba. Devuelve los partidos que se quitaron.
int DepurarLiga(const std::filesystem::path& carpetaTemporada, std::string_view temporada);

}  // namespace quinteva::seasons
