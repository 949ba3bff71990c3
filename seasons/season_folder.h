#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/settings.h"

namespace quinteva::seasons {

inline constexpr std::string_view kTempor = "Tempor.rar";
inline constexpr std::string_view kNomeq = "Nomeq.rar";
inline constexpr std::string_view kNomeq2 = "Nomeq2.rar";
inline constexpr std::string_view kJlig2 = "Jlig2.rar";
inline constexpr std::string_view kJlig2Bak = "Jlig2.bak";
inline constexpr std::string_view kHist = "Hist.rar";
inline constexpr std::string_view kJquin = "Jquin.rar";
inline constexpr std::string_view kJornadas = "Jornadas.rar";
inline constexpr std::string_view kRean = "Rean.rar";

// Un archivo de la temporada: su nombre, la longitud del registro y si vive en CarpetaTrabajo
// (los demás viven en CarpetaTemporada).
struct ArchivoTemporada {
    std::string_view nombre;
    std::size_t longitud;
    bool enCarpetaTrabajo;
};

// Los archivos permanentes de la temporada (el transitorio "Nomeq2.rar" no está).
extern const std::array<ArchivoTemporada, 8> kArchivosTemporada;

// "Temporada" seguido de las dos primeras y las dos últimas cifras: "01/02" da "Temporada0102".
std::string NombreCarpetaTemporada(std::string_view temporada);
// Al revés: "Temporada0102" da "01/02", la Temporada como la guardan los registros. Sin sus cuatro
// cifras tras "Temporada", vacío.
std::string TemporadaDeCarpeta(std::string_view carpetaTemporada);

// TemporadaActual: el nombre de la carpeta guardado en "Tempor.rar", recortado; nada si el archivo
// falta o está vacío. No crea el archivo.
std::optional<std::string> TemporadaActual(const std::filesystem::path& carpetaTrabajo);

// Escribe "Tempor.rar" con la temporada dada (registro 1).
void FijarTemporadaActual(const std::filesystem::path& carpetaTrabajo,
                          std::string_view carpetaTemporada);

std::filesystem::path CarpetaTemporada(const std::filesystem::path& carpetaTrabajo,
                                       std::string_view temporadaActual);

// La carpeta de la temporada que nombra "Tempor.rar"; sin él, Error "No hay temporada en curso".
std::filesystem::path CarpetaTemporadaEnCurso(const std::filesystem::path& carpetaTrabajo);

// La ruta de un archivo de la temporada, en su carpeta.
std::filesystem::path RutaArchivo(const ArchivoTemporada& archivo,
                                  const std::filesystem::path& carpetaTrabajo,
                                  const std::filesystem::path& carpetaTemporada);

// La Jornada más alta con goles de cada división en "Jlig2.rar".
struct MaximasJornadas {
    int primera = 0;
    int segunda = 0;
};

// La clave de la última Jornada clasificada de una división: "MaxJor1ª" o "MaxJor2ª".
std::string ClaveMaxJor(int division);

// MaxJornada: recorre "Jlig2.rar" y guarda "MaxJor1ª" y "MaxJor2ª" en la sección "Valores". Un
// partido 0-0 cuenta como no jugado.
MaximasJornadas MaxJornada(const std::filesystem::path& carpetaTemporada, base::Ajustes& ajustes);

}  // namespace quinteva::seasons
