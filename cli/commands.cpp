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
        {"oficial",
         "oficial RUTA.uxd --receptor NNNNN --jornada N --salida DIR/NOMBRE [--anio AAAA]",
         "Escribe DIR/NOMBRE.json, el archivo oficial de apuestas del juego jugado de la "
         "Combinación (el año, de la fecha de su Jornada si no se da).",
         {{"receptor", "jornada", "salida", "anio"}, {}},
         &Oficial},
        {"json-leer",
         "json-leer F.json [--json]",
         "Los datos que muestra \"Archivo JSON\" de un archivo oficial.",
         {},
         &JsonLeer},
        {"json-modificar",
         "json-modificar F.json [--jornada N] [--anio AAAA] [--receptor NNNNN] [--json]",
         "Cambia Jornada, año o Receptor de un archivo oficial y lo guarda con su resumen nuevo.",
         {{"jornada", "anio", "receptor"}, {}},
         &JsonModificar},
    };
    return subcomandos;
}

}  // namespace quinteva::cli
