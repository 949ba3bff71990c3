#pragma once

#include <filesystem>
#include <string_view>

#include "base/dialog.h"

namespace quinteva::syndicates {

inline constexpr std::string_view kPideCarpetaCopia =
    "Por favor seleccione la carpeta donde quiere que se haga las copia.";
inline constexpr std::string_view kMsgSinCarpetaCopia =
    "No se ha seleccionado la carpeta donde se va a hacer la copia de seguridad.";
inline constexpr std::string_view kMsgProcesoTerminado = "Proceso terminado";

// "Copia de Seguridad": pregunta, pide la carpeta y copia en ella el ".jrn", el ".ptc" y por
// último el ".nmp" de la Peña (rutaPena sin extensión), encima de los que hubiera. True si copió.
bool CopiaSeguridad(const std::filesystem::path& rutaPena, std::string_view nombre,
                    base::Dialogo& dialogo);

}  // namespace quinteva::syndicates
