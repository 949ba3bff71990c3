#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "base/dialog.h"
#include "engine/analysis.h"
#include "engine/combination.h"
#include "outputs/hit_count.h"
#include "seasons/record_files.h"

namespace quinteva::outputs {

inline constexpr std::string_view kMsgDatosGuardados = "Se han guardados los datos.";

// Los lugares de `Estados` de `RegReanalisis`.
enum Estado : std::size_t {
    kEstadoBase,
    kEstadoGenerales,
    kEstadoTotales,
    kEstadoConsecutivas,
    kEstadoParejas,
    kEstadoTrios,
    kEstadoSeguidos,
    kEstadoRepeticiones,
    kEstadoSumas,
    kEstadoComparaciones,
    kEstadoGrupo,
    kEstadoAciertos,
    kEstadoEliminadas,
};

// Lo que "&Datos" toma de la ventana principal.
struct DatosJugados {
    // "Al Directo" y "Condicionada"; vacío, una etiqueta en blanco.
    std::optional<double> generadas;
    std::optional<std::int32_t> condicionada;
    // "al 13", "al 12", "al 11", "al 10".
    std::array<std::optional<std::int32_t>, 4> reducidas;
    int dobles = 0;
    int triples = 0;
    // Por lugar de `Estados` de Generales a Aciertos, si la familia está en uso.
    std::array<bool, kEstadoEliminadas> enUso{};
    // Columnas eliminadas a mano del conjunto jugado.
    std::int32_t eliminadas = 0;
};

// Lo de la Combinación abierta: el panel, las familias encendidas (Grupo y Aciertos si hay algún
// Grupo activo) y las eliminadas del conjunto jugado (total menos activas).
DatosJugados DatosDe(const engine::Combinacion& combinacion);

// El registro de la Jornada: `Columnas` la primera cuenta reducida que haya (marcada en
// `Reducida`), si no la condicionada; `Premios` las siete cuentas; `Estados` de lo jugado, y
// luego cada fila del "Informe sobre Fallos" cuya primera celda contiene una palabra de una
// familia la da por fallada.
seasons::RegReanalisis RegistroDatos(int jornada, const DatosJugados& datos,
                                     const TablaAciertos& tabla,
                                     const std::vector<engine::FilaInforme>& fallos);

// "&Datos": escribe el registro en "Rean.rar" encima del de su Jornada o al final, y dice "Se
// han guardados los datos.". Con camino de error; true si se guardó.
bool GuardarDatos(const std::filesystem::path& carpetaTemporada,
                  const seasons::RegReanalisis& registro, base::Dialogo& dialogo);

}  // namespace quinteva::outputs
