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
    };
    return subcomandos;
}

}  // namespace quinteva::cli
