#include <iostream>
#include <sstream>

#include "base/settings_ini.h"
#include "cli/answering_dialog.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "seasons/league_table.h"
#include "seasons/season_folder.h"

namespace quinteva::cli {
namespace {

constexpr std::string_view kUsoClasificacion = "clasificacion --division 1|2 [--json]";
constexpr std::string_view kUsoRecalcular = "recalcular --division 1|2";

int Division(const Argumentos& argumentos, std::string_view uso) {
    const std::string division = argumentos.Exigir("division", uso);
    if (division != "1" && division != "2") {
        throw ErrorDeUso{"Uso: quinteva-cli " + std::string(uso)};
    }
    return division == "1" ? 1 : 2;
}

void PuestoJson(const seasons::PuestoClasificacion& p, std::ostream& salida) {
    salida << "{\"Posicion\": " << p.posicion << ", \"Nombre\": " << TextoJson(p.nombre)
           << ", \"Puntos\": " << p.puntos << ", \"Jugados\": " << p.jugados
           << ", \"Ganados\": " << p.ganados << ", \"Empatados\": " << p.empatados
           << ", \"Perdidos\": " << p.perdidos << ", \"GolesFavor\": " << p.golesFavor
           << ", \"GolesContra\": " << p.golesContra << ", \"Diferencia\": " << p.diferencia << '}';
}

}  // namespace

int ClasificacionCmd(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, kUsoClasificacion);
    const int division = Division(argumentos, kUsoClasificacion);
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
    const int division = Division(argumentos, kUsoRecalcular);
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
