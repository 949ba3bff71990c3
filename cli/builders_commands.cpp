// Los asistentes de un paso: muy-reducida.
#include <iostream>

#include "base/chance.h"
#include "base/error.h"
#include "base/formats.h"
#include "base/progress.h"
#include "base/settings_ini.h"
#include "builders/boletos.h"
#include "builders/reduce.h"
#include "builders/very_reduced.h"
#include "cli/answering_dialog.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "cli/new_combination.h"
#include "cli/private_folder.h"
#include "engine/combination_files.h"
#include "engine/generation.h"

namespace quinteva::cli {

namespace {

constexpr std::string_view kUso =
    "muy-reducida RUTA.uxd --base \"1X2 1 X 12 ...\" --pleno H-A --nivel 13|12|11 [--jornada N]";
constexpr std::string_view kMsgSinFila =
    "La Quiniela Base no es ninguna de las combinaciones de la tabla de reducciones.";

int Nivel(const Argumentos& a) {
    const std::string nivel = a.Exigir("nivel", kUso);
    if (nivel != "13" && nivel != "12" && nivel != "11") throw ErrorDeUso{"--nivel es 13, 12 u 11"};
    return std::stoi(nivel);
}

}  // namespace

int MuyReducidaCmd(const Argumentos& a, std::ostream& salida) {
    const int nivel = Nivel(a);
    engine::Combinacion c = CombinacionNueva(a, kUso);
    if (!builders::FilaDeLaBase(c.base)) throw base::Error(std::string(kMsgSinFila));
    DialogoDeOrdenes dialogo(std::cerr);
    if (!builders::EmpezarMuyReducida(c, dialogo)) return 1;
    const CarpetaDeAlmacenes almacenes(a);
    base::AjustesIni ajustes(a.CarpetaTrabajo());
    base::SinProgreso progreso;
    engine::Generar(c, almacenes.Ruta(), progreso, ajustes);
    builders::ClaseBase clases{};
    const auto reduccion =
        builders::Reducir(c, almacenes.Ruta(), 13 - nivel, std::nullopt, clases, progreso, ajustes);
    engine::Guardar(c, almacenes.Ruta(), ajustes);
    if (reduccion.sinSistema || c.activasReducidas == 0) {
        throw base::Error("No hay reducción por tablas para esta base al " + std::to_string(nivel));
    }
    base::AzarEstandar azar(base::AzarEstandar::SemillaDelReloj());
    builders::ElegirJugada(c, builders::Jugada::Reducida,
                           {almacenes.Ruta(), ajustes, dialogo, azar}, [] { return false; });
    dialogo.Mensaje(builders::kMsgMuyReducidaTerminada, base::Icono::Informacion);
    if (a.Json()) {
        salida << "{\"NivelReducida\": " << int{c.nivelReducida}
               << ", \"TotalGeneradas\": " << c.totalGeneradas
               << ", \"TotalReducidas\": " << c.totalReducidas
               << ", \"Jugada\": " << TextoJson(c.jugada) << "}\n";
        return 0;
    }
    salida << "Generadas: " << base::Formato(c.totalGeneradas, "#,##0") << "\nReducida al " << nivel
           << ": " << base::Formato(c.totalReducidas, "#,##0") << '\n';
    return 0;
}

}  // namespace quinteva::cli
