#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "base/dialog.h"
#include "outputs/winning_column.h"

namespace quinteva::outputs {

// Lo que pone la ventana de "Comprobación de Aciertos" al abrirse sobre una Jornada.
struct AperturaAciertos {
    // El registro de la Jornada y la Temporada está en "Jornadas.rar".
    bool encontrada = false;
    RejillaGanadora rejilla;
    ColumnaGanadora ganadora;
    // Botones que se habilitan y la etiqueta "Posibilidad de:".
    bool aciertos = false;
    bool otras = false;
    bool avance = false;
    bool posibilidad = false;
};

// Busca en "Jornadas.rar" de la carpeta de la temporada el registro de la Jornada y la Temporada
// ("aa/aa"). Con un blanco en el resultado solo vale "A&vance"; sin Combinación guardada
// (rutaCombinacion vacía) tampoco "&Aciertos".
AperturaAciertos AbrirAciertos(const std::filesystem::path& carpetaTemporada,
                               std::string_view temporada, int jornada,
                               const std::filesystem::path& rutaCombinacion);

// Lo que queda tras "&Guardar": la ganadora nueva y si algún resultado está en blanco (entonces
// "&Aciertos" se deshabilita y "A&vance" se habilita; si no, al revés con "&Otras").
struct GanadoraGuardada {
    ColumnaGanadora ganadora;
    bool incompleta = false;
};

// "&Guardar": escribe el resultado de la rejilla en el registro de la Jornada de "Jornadas.rar"
// (se añade si no lo hay) y el signo de cada fila en los partidos de la Jornada de "Jquin.rar"
// (la fila 15 por su letra). Con camino de error: nada si falló.
std::optional<GanadoraGuardada> GuardarGanadora(const std::filesystem::path& carpetaTemporada,
                                                std::string_view temporada, int jornada,
                                                const RejillaGanadora& rejilla,
                                                base::Dialogo& dialogo);

}  // namespace quinteva::outputs
