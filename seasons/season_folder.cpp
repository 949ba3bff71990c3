#include "seasons/season_folder.h"

#include <algorithm>

#include "base/error.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/record_files.h"

namespace quinteva::seasons {

const std::array<ArchivoTemporada, 8> kArchivosTemporada = {{
    {kTempor, RegTempor::kLongitud, true},
    {kNomeq, RegEquipo::kLongitud, false},
    {kJlig2, RegPartidoLiga::kLongitud, false},
    {kJlig2Bak, RegPartidoLiga::kLongitud, false},
    {kHist, RegPartidoLiga::kLongitud, true},
    {kJquin, RegPartidoQuin::kLongitud, false},
    {kJornadas, RegJornadaQuin::kLongitud, false},
    {kRean, RegReanalisis::kLongitud, false},
}};

std::string NombreCarpetaTemporada(std::string_view temporada) {
    const std::string_view t = base::Recortar(temporada);
    std::string cifras;
    std::copy_if(t.begin(), t.end(), std::back_inserter(cifras),
                 [](char c) { return c >= '0' && c <= '9'; });
    return "Temporada" + cifras;
}

std::string TemporadaDeCarpeta(std::string_view carpetaTemporada) {
    constexpr std::string_view kPrefijo = "Temporada";
    const std::string_view t = base::Recortar(carpetaTemporada);
    const std::string_view cifras = t.substr(std::min(t.size(), kPrefijo.size()));
    if (!t.starts_with(kPrefijo) || cifras.size() != 4 ||
        !std::all_of(cifras.begin(), cifras.end(), [](char c) { return c >= '0' && c <= '9'; })) {
        return {};
    }
    return std::string(cifras.substr(0, 2)) + "/" + std::string(cifras.substr(2));
}

std::optional<std::string> TemporadaActual(const std::filesystem::path& carpetaTrabajo) {
    const auto ruta = carpetaTrabajo / kTempor;
    if (base::CuentaRegistros(ruta, RegTempor::kLongitud) < 1) return std::nullopt;
    const base::ArchivoDe<RegTempor> tempor(ruta);
    const std::string nombre(base::Recortar(tempor.Leer(1).carpetaTemporada));
    if (nombre.empty()) return std::nullopt;
    return nombre;
}

void FijarTemporadaActual(const std::filesystem::path& carpetaTrabajo,
                          std::string_view carpetaTemporada) {
    base::ArchivoDe<RegTempor> tempor(carpetaTrabajo / kTempor);
    tempor.Escribir(1, RegTempor{std::string(carpetaTemporada)});
    tempor.Cerrar();
}

std::filesystem::path CarpetaTemporada(const std::filesystem::path& carpetaTrabajo,
                                       std::string_view temporadaActual) {
    return carpetaTrabajo / std::string(temporadaActual);
}

std::filesystem::path CarpetaTemporadaEnCurso(const std::filesystem::path& carpetaTrabajo) {
    const auto actual = TemporadaActual(carpetaTrabajo);
    if (!actual) {
        throw base::Error("No hay temporada en curso: falta el archivo " + std::string(kTempor) +
                          " en " + carpetaTrabajo.string());
    }
    return CarpetaTemporada(carpetaTrabajo, *actual);
}

std::filesystem::path RutaArchivo(const ArchivoTemporada& archivo,
                                  const std::filesystem::path& carpetaTrabajo,
                                  const std::filesystem::path& carpetaTemporada) {
    return (archivo.enCarpetaTrabajo ? carpetaTrabajo : carpetaTemporada) / archivo.nombre;
}

std::string ClaveMaxJor(int division) { return division == 1 ? "MaxJor1ª" : "MaxJor2ª"; }

MaximasJornadas MaxJornada(const std::filesystem::path& carpetaTemporada, base::Ajustes& ajustes) {
    MaximasJornadas maximas;
    const base::ArchivoDe<RegPartidoLiga> liga(carpetaTemporada / kJlig2);
    const std::int32_t cuenta = liga.Cuenta();
    for (std::int32_t n = 1; n <= cuenta; ++n) {
        const RegPartidoLiga partido = liga.Leer(n);
        if (partido.golesLocal == 0 && partido.golesVisitante == 0) continue;
        if (partido.division == 1) maximas.primera = std::max(maximas.primera, partido.jornada);
        if (partido.division == 2) maximas.segunda = std::max(maximas.segunda, partido.jornada);
    }
    ajustes.Guardar(base::kAplicacion, "Valores", ClaveMaxJor(1), std::to_string(maximas.primera));
    ajustes.Guardar(base::kAplicacion, "Valores", ClaveMaxJor(2), std::to_string(maximas.segunda));
    return maximas;
}

}  // namespace quinteva::seasons
