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
    };
    return subcomandos;
}

}  // namespace quinteva::cli
