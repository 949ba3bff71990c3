#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "base/dialog.h"
#include "engine/combination.h"

namespace quinteva::builders {

inline constexpr std::string_view kTextoMuyReducida =
    "Ajuste los Dobles y Triples de la Quiniela Base a una de las combinaciones de esta tabla. "
    "Marque si quiere reducir al 13, 12 o 11 y pulse Generar.";
inline constexpr std::string_view kMsgHayCondiciones =
    "Se detecta que hay Condiciones puestas. Para utilizar esta forma de generar apuestas "
    "reducidas no debe haber ninguna Condición activada.";
inline constexpr std::string_view kPreguntaProcesoLargo =
    "El proceso puede ser largo, desea continuar?";
inline constexpr std::string_view kMsgCiertoTiempo = "El proceso puede durar cierto tiempo";

// Fijar: la fila de la "Tabla de reducciones" cuyos Triples y Dobles ocultos son los de la base;
// nada si la base no tiene esa forma (sin dobles ni triples, o "4 Dobles"). Solo con ella se
// habilita "Generar".
std::optional<std::size_t> FilaDeLaBase(const engine::QuinielaBase& base);

// El segundo paso de "Generar" por las columnas de la base: por encima de 100.000, la pregunta;
// si no, por encima de 40.000, el aviso. false si el usuario no sigue.
bool AvisarPorColumnas(float columnas, base::Dialogo& dialogo);

// Los dos primeros pasos de "Generar": ninguna condición activa, y el aviso o la pregunta según
// las columnas de la base (40.000 y 100.000 no cuentan como "por encima"). false si se para.
bool EmpezarMuyReducida(const engine::Combinacion& combinacion, base::Dialogo& dialogo);

}  // namespace quinteva::builders
