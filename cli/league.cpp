#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <sstream>

#include "base/error.h"
#include "base/settings_ini.h"
#include "base/text1252.h"
#include "cli/answering_dialog.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "seasons/league.h"
#include "seasons/league_cleanup.h"
#include "seasons/league_results.h"
#include "seasons/league_table.h"
#include "seasons/season_folder.h"

namespace quinteva::cli {
namespace {

constexpr std::string_view kUsoClasificacion = "clasificacion --division 1|2 [--json]";
constexpr std::string_view kUsoRecalcular = "recalcular --division 1|2";
constexpr std::string_view kUsoLigaJornada =
    "liga-jornada --division 1|2 --jornada N --fecha dd/mm/aa --equipos \"L1,V1,L2,V2,...\"";
constexpr std::string_view kUsoLigaResultados =
    "liga-resultados --division 1|2 --jornada N --goles \"2-1 0-0 - 3-1 ...\"";

void PuestoJson(const seasons::PuestoClasificacion& p, std::ostream& salida) {
    salida << "{\"Posicion\": " << p.posicion << ", \"Nombre\": " << TextoJson(p.nombre)
           << ", \"Puntos\": " << p.puntos << ", \"Jugados\": " << p.jugados
           << ", \"Ganados\": " << p.ganados << ", \"Empatados\": " << p.empatados
           << ", \"Perdidos\": " << p.perdidos << ", \"GolesFavor\": " << p.golesFavor
           << ", \"GolesContra\": " << p.golesContra << ", \"Diferencia\": " << p.diferencia << '}';
}

// Lo que el usuario haría en la rejilla: si los equipos son otros, la vacía y los agrega de la
// lista uno a uno (HayCambios); si no, nada.
bool PonerEquipos(seasons::VentanaJornadasLiga& v, const std::vector<std::string>& equipos) {
    std::vector<std::string> actuales;
    for (const auto& fila : v.Rejilla()) actuales.insert(actuales.end(), fila.begin(), fila.end());
    if (equipos == actuales) return true;
    if (equipos.size() > actuales.size()) {
        throw base::Error("La Jornada tiene " + std::to_string(v.Rejilla().size()) +
                          " partidos: sobran equipos");
    }
    for (int f = 0; f < static_cast<int>(v.Rejilla().size()); ++f) {
        for (int c = 0; c < 2; ++c) {
            v.ElegirCelda({f, c});
            v.Vaciar();
        }
    }
    for (const auto& equipo : equipos) {
        if (std::find(v.Equipos().begin(), v.Equipos().end(), equipo) == v.Equipos().end()) {
            throw base::Error("El equipo " + equipo + " no es de la división");
        }
        if (!v.Agregar(equipo)) return false;
    }
    return true;
}

// Los goles de cada fila, "L-V" o "-" para dejarla en blanco, en la rejilla de la ventana; cada
// fila se comprueba antes de guardar, así que un rechazo no toca los archivos.
void PonerResultados(seasons::VentanaResultadosLiga& v, const std::string& goles) {
    std::istringstream texto(goles);
    std::vector<std::string> filas{std::istream_iterator<std::string>(texto), {}};
    if (filas.size() != v.Rejilla().size()) {
        throw base::Error("La Jornada tiene " + std::to_string(v.Rejilla().size()) +
                          " partidos y se dieron " + std::to_string(filas.size()) + " resultados");
    }
    for (std::size_t f = 0; f < filas.size(); ++f) {
        const std::string& fila = filas[f];
        const auto guion = fila.find('-');
        const bool enBlanco = fila == "-";
        const std::string local = enBlanco ? "" : fila.substr(0, guion);
        const std::string visitante = enBlanco ? "" : fila.substr(guion + 1);
        if (!enBlanco && (guion == std::string::npos || local.empty() || visitante.empty() ||
                          !v.PonerGoles(static_cast<int>(f), local, visitante))) {
            throw base::Error("Los goles se dan con cifras, como 2-1: " + fila);
        }
        if (enBlanco) v.PonerGoles(static_cast<int>(f), "", "");
    }
}

}  // namespace

int LigaJornada(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, kUsoLigaJornada);
    const int division = argumentos.Division(kUsoLigaJornada);
    const int jornada = std::atoi(argumentos.Exigir("jornada", kUsoLigaJornada).c_str());
    const std::string fecha = argumentos.Exigir("fecha", kUsoLigaJornada);
    const auto equipos = SepararPorComas(argumentos.Exigir("equipos", kUsoLigaJornada));
    const auto carpetaTrabajo = argumentos.CarpetaTrabajo();
    const base::AjustesIni ajustes(carpetaTrabajo);
    DialogoDeOrdenes dialogo(std::cerr);
    const auto carpeta = seasons::CarpetaTemporadaEnCurso(carpetaTrabajo);
    seasons::VentanaJornadasLiga v(
        carpeta, seasons::TemporadaDeCarpeta(carpeta.filename().string()), ajustes, dialogo);
    v.ElegirDivision(division);
    if (jornada < 1 || jornada > v.Jornadas())
        throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUsoLigaJornada)};
    v.ElegirJornada(jornada);
    if (!PonerEquipos(v, equipos)) return 1;
    if (fecha != v.Fecha()) {
        for (char tecla : fecha) {
            if (!v.TeclaFecha(tecla)) return 1;
        }
        v.EscribirFecha(fecha);
    }
    if (!v.Guardar()) return 1;
    salida << "Jornada " << jornada << " de " << division << "ª División guardada\n";
    return 0;
}

int LigaResultados(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, kUsoLigaResultados);
    const int division = argumentos.Division(kUsoLigaResultados);
    const int jornada = std::atoi(argumentos.Exigir("jornada", kUsoLigaResultados).c_str());
    const std::string goles = argumentos.Exigir("goles", kUsoLigaResultados);
    const auto carpetaTrabajo = argumentos.CarpetaTrabajo();
    base::AjustesIni ajustes(carpetaTrabajo);
    DialogoDeOrdenes dialogo(std::cerr);
    const auto carpeta = seasons::CarpetaTemporadaEnCurso(carpetaTrabajo);
    seasons::VentanaResultadosLiga v(carpetaTrabajo, carpeta,
                                     seasons::TemporadaDeCarpeta(carpeta.filename().string()),
                                     ajustes, dialogo);
    v.ElegirDivision(division);
    if (jornada < 1 || jornada > v.Jornadas())
        throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUsoLigaResultados)};
    v.ElegirJornada(jornada);
    PonerResultados(v, goles);
    if (!v.Guardar()) return 1;
    salida << "Resultados de la Jornada " << jornada << " de " << division
           << "ª División guardados\n";
    return 0;
}

int DepurarLigaCmd(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, "depurar-liga");
    const auto carpeta = seasons::CarpetaTemporadaEnCurso(argumentos.CarpetaTrabajo());
    const int quitados =
        seasons::DepurarLiga(carpeta, seasons::TemporadaDeCarpeta(carpeta.filename().string()));
    salida << "Partidos de otras temporadas quitados de \"Jlig2.rar\": " << quitados << '\n';
    return 0;
}

int ClasificacionCmd(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, kUsoClasificacion);
    const int division = argumentos.Division(kUsoClasificacion);
    const auto carpetaTrabajo = argumentos.CarpetaTrabajo();
    const base::AjustesIni ajustes(carpetaTrabajo);
    const auto filas = seasons::FilasClasificacion(seasons::CarpetaTemporadaEnCurso(carpetaTrabajo),
                                                   division, ajustes);
    if (argumentos.Json()) {
        salida << '[';
        bool primero = true;
        for (const auto& fila : filas) {
            if (!fila) continue;
            salida << (primero ? "" : ", ");
            PuestoJson(*fila, salida);
            primero = false;
        }
        salida << "]\n";
        return 0;
    }
    salida << "Nº\tEQUIPO\tPtos.\tJ\tG\tE\tP\tGF\tGC\tDG\n";
    for (const auto& fila : filas) {
        if (!fila) {
            salida << '\n';
            continue;
        }
        salida << fila->posicion << '\t' << fila->nombre << '\t' << fila->puntos << '\t'
               << fila->jugados << '\t' << fila->ganados << '\t' << fila->empatados << '\t'
               << fila->perdidos << '\t' << fila->golesFavor << '\t' << fila->golesContra << '\t'
               << fila->diferencia << '\n';
    }
    return 0;
}

int RecalcularCmd(const Argumentos& argumentos, std::ostream&) {
    argumentos.ExigirPosicionales(0, kUsoRecalcular);
    const int division = argumentos.Division(kUsoRecalcular);
    const auto carpetaTrabajo = argumentos.CarpetaTrabajo();
    base::AjustesIni ajustes(carpetaTrabajo);
    DialogoDeOrdenes dialogo(std::cerr);
    const auto carpeta = seasons::CarpetaTemporadaEnCurso(carpetaTrabajo);
    // "MaxJor1ª" y "MaxJor2ª" como los deja el arranque del programa, que habría precedido.
    seasons::MaxJornada(carpeta, ajustes);
    seasons::Recalcular(carpeta, division, ajustes, dialogo);
    return 0;
}

}  // namespace quinteva::cli
