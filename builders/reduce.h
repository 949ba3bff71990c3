#pragma once

#include <filesystem>
#include <optional>

#include "base/progress.h"
#include "base/settings.h"
#include "builders/reduction_tables.h"
#include "engine/combination.h"
#include "engine/optimized_reduction.h"

namespace quinteva::builders {

// Lo que la ventana muestra tras "&Reducir".
struct ResultadoReducir {
    engine::ResultadoReduccion reduccion;
    // Se redujo por tablas y no había sistema para la base: nada cambia en las cuentas.
    bool sinSistema = false;
    // No se hizo nada: la opción " Reducir al 10" no tiene acción.
    bool sinAccion = false;
    // Mostrar el aviso sobre los Boletos (ajuste "AvBoletos" de "Valores", "SI" por defecto).
    bool avisoBoletos = false;
    // Con la "Reducción optimizada": lo que guardaría la voraz, para el aviso.
    std::optional<engine::ResultadoOptimizada> optimizada;
};

// "&Reducir" con la opción de índice 0, 1, 2 o 3 ("al 13", "al 12", "al 11", "al 10"): por
// tablas si NumCondiciones es 0, si no el recubrimiento voraz a la distancia índice + 1. Con
// "optimizada", la "Reducción optimizada" de todas las generadas, haya o no condiciones (la
// selección de partidos es cosa de las tablas y no cuenta), que empieza también por lo que pasa
// del sistema de las tablas para la forma de la base. Guarda el índice como NivelReducida.
ResultadoReducir Reducir(engine::Combinacion& combinacion,
                         const std::filesystem::path& carpetaTrabajo, int opcion,
                         const SeleccionPartidos& seleccion, ClaseBase& clases,
                         base::Progreso& progreso, const base::Ajustes& ajustes,
                         const std::optional<engine::OpcionesOptimizada>& optimizada = {});

}  // namespace quinteva::builders
