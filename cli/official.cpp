#include <iostream>

#include "base/dates.h"
#include "base/error.h"
#include "base/record_files.h"
#include "base/settings_ini.h"
#include "cli/answering_dialog.h"
#include "cli/commands.h"
#include "outputs/numeric_text.h"
#include "outputs/official_generation.h"
#include "outputs/played_set.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"

namespace quinteva::cli {
namespace {

constexpr std::string_view kUso =
    "oficial RUTA.uxd --receptor NNNNN --jornada N --salida DIR/NOMBRE [--anio AAAA]";

// El año de la fecha de una Jornada de Quiniela en "Jquin.rar" de la temporada actual.
std::optional<int> AnioDeJornada(const std::filesystem::path& carpetaTrabajo, int jornada) {
    const auto actual = seasons::TemporadaActual(carpetaTrabajo);
    if (!actual) return std::nullopt;
    const auto ruta = seasons::CarpetaTemporada(carpetaTrabajo, *actual) / seasons::kJquin;
    if (base::CuentaRegistros(ruta, seasons::RegPartidoQuin::kLongitud) == 0) return std::nullopt;
    const base::ArchivoDe<seasons::RegPartidoQuin> jquin(ruta);
    for (std::int32_t n = 1; n <= jquin.Cuenta(); ++n) {
        const seasons::RegPartidoQuin partido = jquin.Leer(n);
        if (partido.jornada == jornada) return base::SerieAFecha(partido.fecha).anio;
    }
    return std::nullopt;
}

int Anio(const Argumentos& argumentos, int jornada) {
    if (const auto anio = argumentos.Valor("anio")) {
        if (anio->size() != 4 || !outputs::EsNumerico(*anio)) {
            throw ErrorDeUso{"--anio debe tener cuatro cifras"};
        }
        return static_cast<int>(outputs::ValorNumerico(*anio));
    }
    if (const auto anio = AnioDeJornada(argumentos.CarpetaTrabajo(), jornada)) return *anio;
    throw base::Error("No se encuentra la fecha de la Jornada " + std::to_string(jornada) +
                      " en la temporada actual; indique --anio");
}

}  // namespace

int Oficial(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(1, kUso);
    const std::filesystem::path destino = argumentos.Exigir("salida", kUso);
    const std::string jornada = argumentos.Exigir("jornada", kUso);
    const outputs::JuegoJugado juego = outputs::LeerJuegoJugado(argumentos.Posicionales()[0]);
    const auto activas = outputs::LeerColumnas(juego.columnas, true);

    const outputs::PeticionPrincipal peticion{
        argumentos.Exigir("receptor", kUso), destino.filename().string(),
        static_cast<std::int32_t>(activas.size()), juego.columnas, Anio(argumentos, juego.jornada)};
    const auto carpeta =
        destino.parent_path().empty() ? std::filesystem::path(".") : destino.parent_path();
    DialogoDeOrdenes dialogo(std::cerr, {jornada}, carpeta);
    base::AjustesIni ajustes(argumentos.CarpetaTrabajo());
    const auto resultado = outputs::GenerarDesdePrincipal(peticion, dialogo, ajustes);
    if (!resultado.terminado) return 1;
    salida << resultado.archivo->string() << '\n';
    return 0;
}

}  // namespace quinteva::cli
