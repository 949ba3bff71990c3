#pragma once

#include <filesystem>
#include <string_view>

#include "base/dialog.h"
#include "outputs/hit_count.h"

namespace quinteva::syndicates {

inline constexpr std::string_view kPreguntaAPena =
    "Desea copiar el número de aciertos obtenidos a la jornada correspondiente de una Peña?";
inline constexpr std::string_view kMsgDatosCopiados = "Datos copiados.";

// "A &Peña": pregunta (No por defecto), deja elegir el ".nmp" en la carpeta de Peñas de la
// temporada en curso (o en CarpetaTrabajo\Peñas, o en CarpetaTrabajo) y pone las cuentas de 15 a 10
// aciertos en el registro de la Jornada del ".jrn" del mismo nombre. Con camino de error; true si
// se copiaron.
bool CopiarAPena(const std::filesystem::path& carpetaTrabajo, int jornada,
                 const outputs::TablaAciertos& tabla, base::Dialogo& dialogo);

}  // namespace quinteva::syndicates
