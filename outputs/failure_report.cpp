#include "outputs/failure_report.h"

namespace quinteva::outputs {

std::vector<engine::FilaInforme> InformeFallos(const engine::Combinacion& combinacion,
                                               std::string_view ganadora) {
    const engine::Columna columna = engine::ColumnaDeTexto(ganadora.substr(0, engine::kPartidos));
    return engine::Analisis(columna, combinacion.base, combinacion.condiciones,
                            engine::ArchivoJugado(combinacion));
}

}  // namespace quinteva::outputs
