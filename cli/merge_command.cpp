// refundir: varias Combinaciones guardadas de una Jornada a un archivo de texto sin repetidas.
#include <iostream>

#include "base/chance.h"
#include "builders/merge_combinations.h"
#include "cli/answering_dialog.h"
#include "cli/commands.h"

namespace quinteva::cli {

namespace {

constexpr std::string_view kUso =
    "refundir SALIDA.txt A.uxd B.uxd ... [--estructura continuo|separadores|columna] "
    "[--semilla S]";

builders::EstructuraRefundido Estructura(const Argumentos& a) {
    const std::string estructura = a.Valor("estructura").value_or("columna");
    if (estructura == "continuo") return builders::EstructuraRefundido::Continuo;
    if (estructura == "separadores") return builders::EstructuraRefundido::Separadores;
    if (estructura == "columna") return builders::EstructuraRefundido::Columna;
    throw ErrorDeUso{"--estructura es continuo, separadores o columna"};
}

}  // namespace

int RefundirCmd(const Argumentos& a, std::ostream& salida) {
    const auto& posicionales = a.Posicionales();
    if (posicionales.size() < 2) throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUso)};
    const builders::EstructuraRefundido estructura = Estructura(a);
    const std::filesystem::path archivo = posicionales.front();
    DialogoDeOrdenes dialogo(std::cerr, {}, archivo);
    if (!builders::ElegirArchivoRefundido(dialogo, archivo.parent_path())) return 1;
    std::vector<builders::CombinacionARefundir> filas;
    for (std::size_t i = 1; i < posicionales.size(); ++i) {
        const auto fila = builders::ComprobarParaRefundir(posicionales[i], filas, dialogo);
        if (!fila) return 1;
        filas.push_back(*fila);
    }
    base::AzarEstandar azar(a.Semilla().value_or(base::AzarEstandar::SemillaDelReloj()));
    const auto refusion = builders::Refundir(filas, archivo, estructura, azar, dialogo);
    if (!refusion) return 1;
    if (a.Json()) {
        salida << "{\"Columnas\": " << refusion->columnas
               << ", \"Repetidas\": " << refusion->repetidas
               << ", \"Agregadas\": " << refusion->agregadas << "}\n";
    }
    return 0;
}

}  // namespace quinteva::cli
