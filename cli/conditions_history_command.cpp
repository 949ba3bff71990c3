// historico-condiciones: las columnas ganadoras guardadas frente a las condiciones de una
// Combinación.
#include "builders/conditions_history.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "engine/combination_files.h"

namespace quinteva::cli {

namespace {

constexpr std::string_view kUso = "historico-condiciones RUTA.uxd [--carpeta DIR] [--json]";

void EscribirJson(const builders::HistoricoCondiciones& h, std::ostream& salida) {
    salida << "{\"Ganadoras\": " << h.ganadoras << ", \"EnLaBase\": " << h.enLaBase
           << ", \"Pasan\": " << h.pasan << ", \"Familias\": [";
    for (std::size_t i = 0; i < h.familias.size(); ++i) {
        salida << (i ? ", " : "") << "{\"Nombre\": " << TextoJson(h.familias[i].nombre)
               << ", \"Pasan\": " << h.familias[i].pasan << "}";
    }
    salida << "], \"Jornadas\": [";
    for (std::size_t i = 0; i < h.jornadas.size(); ++i) {
        const auto& j = h.jornadas[i];
        salida << (i ? ", " : "") << "{\"Temporada\": " << TextoJson(j.temporada)
               << ", \"Jornada\": " << j.jornada << ", \"Columna\": " << TextoJson(j.columna)
               << ", \"EnLaBase\": " << (j.enLaBase ? "true" : "false")
               << ", \"Rechazo\": " << TextoJson(j.rechazo) << "}";
    }
    salida << "]}\n";
}

void EscribirTexto(const builders::HistoricoCondiciones& h, std::ostream& salida) {
    salida << "Columnas ganadoras: " << h.ganadoras << " (en la Quiniela Base: " << h.enLaBase
           << ")\nCumplen todas las condiciones: " << h.pasan << '\n';
    for (const auto& f : h.familias) salida << f.nombre << ": " << f.pasan << '\n';
    for (const auto& j : h.jornadas) {
        salida << j.temporada << '\t' << j.jornada << '\t' << j.columna << '\t'
               << (j.rechazo.empty() ? "Cumple" : j.rechazo) << '\n';
    }
}

}  // namespace

int HistoricoCondicionesCmd(const Argumentos& a, std::ostream& salida) {
    a.ExigirPosicionales(1, kUso);
    engine::Combinacion comb;
    comb.ruta = a.Posicionales()[0];
    engine::CargarCabecera(comb, engine::LeerCabecera(comb.ruta));
    const auto h =
        builders::HistoricoDeCondiciones(comb, builders::GanadorasGuardadas(a.CarpetaTrabajo()));
    if (a.Json()) {
        EscribirJson(h, salida);
    } else {
        EscribirTexto(h, salida);
    }
    return 0;
}

}  // namespace quinteva::cli
