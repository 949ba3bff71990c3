#include "cli/commands.h"

#include <vector>

namespace quinteva::cli {

std::span<const Subcomando> Subcomandos() {
    static const std::vector<Subcomando> subcomandos = {
        {"temporada",
         "temporada [--carpeta DIR] [--json]",
         "La temporada actual, su carpeta y los registros de cada archivo de la temporada.",
         {},
         &Temporada},
        {"nueva",
         "nueva RUTA.uxd --base \"1X2 1 X 12 ...\" --pleno H-A [--jornada N] [--carpeta DIR]",
         "Una Combinación nueva con esa Quiniela Base y las condiciones por defecto, guardada.",
         {{"base", "pleno", "jornada"}, {}},
         &Nueva},
        {"info",
         "info RUTA.uxd [--json]",
         "Nombre, Jornada, base, Pleno, cuentas de la cabecera, familias activas y Nº Condiciones.",
         {},
         &Info},
        {"generar",
         "generar RUTA.uxd [--carpeta DIR] [--json]",
         "Abre la Combinación, genera las columnas, la guarda y muestra las rechazadas.",
         {},
         &GenerarCmd},
        {"analizar",
         "analizar RUTA.uxd --columna 14SIGNOS",
         "Las condiciones que no cumple una columna, una por línea (Condición, tabulador, Filtro).",
         {{"columna"}, {}},
         &Analizar},
        {"reducir",
         "reducir RUTA.uxd --al 13|12|11 [--partidos 2,5,9] [--carpeta DIR] [--json]",
         "Reduce las columnas generadas como \"&Reducir\" (por tablas sin condiciones, si no por "
         "recubrimiento; --partidos elige los partidos de la reducción por tablas), guarda y "
         "muestra la cuenta.",
         {{"al", "partidos"}, {}},
         &ReducirCmd},
        {"tablas",
         "tablas [--json] | tablas --sistema NIVEL TRIPLES DOBLES",
         "Las 73 filas de la Tabla de reducciones (\"*\": en negrita), o las filas de un sistema "
         "reducido, una por línea.",
         {{}, {"sistema"}},
         &Tablas},
    };
    return subcomandos;
}

}  // namespace quinteva::cli
