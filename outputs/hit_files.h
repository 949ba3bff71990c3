#pragma once

#include <filesystem>
#include <string_view>

#include "base/dialog.h"
#include "outputs/hit_check.h"

namespace quinteva::outputs {

inline constexpr std::string_view kMsgComprobacionFinalizada = "Comprobación finalizada.";
inline constexpr std::string_view kMsgNoJson = "Posiblemente este archivo no tenga formato JSON.";

// `AciertosJSON`: las columnas de un archivo oficial. Pregunta si el Sorteo es de la Jornada
// (No termina) y exige que el año de "idSorteo" sea el de la fecha de la Jornada (anioJornada,
// "yyyy"). Ruta vacía: nada. Con camino de error.
Comprobacion AciertosJSON(const std::filesystem::path& ruta, std::string_view ganadora, int jornada,
                          std::string_view anioJornada, base::Dialogo& dialogo);

// `AciertosAD243`: las columnas de un archivo AD243 de la Jornada. Con camino de error.
Comprobacion AciertosAD243(const std::filesystem::path& ruta, std::string_view ganadora,
                           int jornada, base::Dialogo& dialogo);

// De dónde vienen las columnas que se comprueban.
enum class OrigenAciertos { Combinacion, Json, AD243 };

// Se distingue por el contenido: la cabecera "C...243" es un AD243; un texto que empieza por
// "{" o "[" es JSON; 5.189 bytes son la cabecera de una Combinación. Si el contenido no lo dice
// (vacío, dañado) decide la extensión ".json" o ".uxd"; lo demás va a `AciertosAD243`, que lo
// rechaza con su mensaje.
OrigenAciertos OrigenDeArchivo(const std::filesystem::path& ruta);

}  // namespace quinteva::outputs
