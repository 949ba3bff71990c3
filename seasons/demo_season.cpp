#include "seasons/demo_season.h"

#include <system_error>

#include "base/error.h"
#include "seasons/season_folder.h"

namespace quinteva::seasons {

bool InstalarTemporadaDemo(const std::filesystem::path& carpetaPrograma,
                           const std::filesystem::path& carpetaTrabajo) {
    const auto demo = carpetaPrograma / kCarpetaDemo;
    if (TemporadaActual(carpetaTrabajo) || !TemporadaActual(demo)) return false;
    const auto carpetaTemporada = CarpetaTemporada(carpetaTrabajo, *TemporadaActual(demo));
    std::error_code error;
    std::filesystem::create_directories(carpetaTemporada, error);
    if (error) throw base::Error("No se pudo crear la carpeta " + carpetaTemporada.string());
    for (const ArchivoTemporada& archivo : kArchivosTemporada) {
        const auto origen = demo / archivo.nombre;
        if (!std::filesystem::exists(origen)) continue;
        const auto destino = RutaArchivo(archivo, carpetaTrabajo, carpetaTemporada);
        // "Tempor.rar" se escribe siempre: sin él no hay temporada.
        const auto modo = archivo.nombre == kTempor
                              ? std::filesystem::copy_options::overwrite_existing
                              : std::filesystem::copy_options::skip_existing;
        std::filesystem::copy_file(origen, destino, modo, error);
        if (error)
            throw base::Error("No se pudo instalar la temporada de demostración: " +
                              destino.string());
    }
    return true;
}

}  // namespace quinteva::seasons
