#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

#include "base/progress.h"
#include "base/settings.h"
#include "engine/column_code.h"
#include "engine/combination.h"
#include "engine/optimized_cover.h"
#include "engine/reduction.h"

namespace quinteva::engine {

// Lo que deja la "Reducción optimizada": las cuentas de siempre y cuántas columnas guarda, para
// lo mismo, el recubrimiento voraz de "&Reducir".
struct ResultadoOptimizada {
    ResultadoReduccion reduccion;
    std::int32_t voraz = 0;
};

// La "Reducción optimizada" de "Cmb.tmp": lee una vez los TotalGeneradas registros, cuenta de
// paso lo que guardaría el recubrimiento voraz y busca entre las activas unas pocas que las
// cubran todas a "distancia" o menos (una activa repetida cuenta una vez; una que no es una
// columna de signos solo se cubre a sí misma y se queda). Escribe las elegidas en "Red.tmp" en
// el orden de "Cmb.tmp", con el PlenoBase y estado "0", y deja las cuentas y el precio como
// "&Reducir". Con "&Detener" se queda el mejor recubrimiento hallado, que también cubre todas.
// "deSemilla", si se da, marca las activas de un comienzo más (las de un sistema de las tablas).
using EnSemilla = std::function<bool(SignosColumna signos)>;
ResultadoOptimizada ReducirOptimizado(Combinacion& combinacion,
                                      const std::filesystem::path& carpetaTrabajo, int distancia,
                                      const OpcionesOptimizada& opciones, base::Progreso& progreso,
                                      const base::Ajustes& ajustes,
                                      const EnSemilla& deSemilla = {});

// El aviso al acabar: las columnas que quedan y las que se ahorran frente a la voraz.
std::string MensajeOptimizada(const ResultadoOptimizada& resultado);

}  // namespace quinteva::engine
