#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>

#include "base/dialog.h"
#include "base/network.h"
#include "base/settings.h"
#include "base/zip_expander.h"

namespace quinteva::seasons {

// La versión de este programa; se guarda al arrancar en "NVers" de "Program" de "Quinteva".
inline constexpr std::int32_t kVersionPrograma = 210000;

inline constexpr std::string_view kPreguntaVersionAlArrancar =
    "Hay disponible nueva versión del programa, desea actualizar ahora?";
inline constexpr std::string_view kPreguntaVerCambios =
    "Hay disponible una nueva versión del programa en el servidor, desea ver las modificaciones "
    "que introduce?";
inline constexpr std::string_view kMsgSinDescargaVersion =
    "No ha sido posible realizar la descarga. Compruebe si tiene conexión a internet y que ningún "
    "programa antivirus o corta fuego impida la salida de Quinteva a internet.";
inline constexpr std::string_view kAvisoInstalacion =
    "Se va a descargar e instalar en un proceso automático la nueva versión de Quinteva. Durante "
    "el "
    "mismo se cerrará Quinteva, por lo que si está realizando alguna combinación debe antes "
    "guardarla";
inline constexpr std::string_view kMsgGestorDePaquetes =
    "Esta copia de Quinteva se instaló con el gestor de paquetes del sistema. Para pasar a la "
    "versión nueva, actualícela con él (por ejemplo, «apt update» y «apt upgrade») en lugar de "
    "reemplazar sus archivos.";

void GuardarVersionDelPrograma(base::Ajustes& ajustes);
// La versión que el usuario no quiere que se le ofrezca ("NoActualizar", de fábrica "101000").
std::string NoActualizar(const base::Ajustes& ajustes);

// La comprobación del arranque: pide "/VersionActual.asp" y, si el servidor tiene una versión
// mayor que la del programa y distinta de "NoActualizar", pregunta. Devuelve si el usuario quiere
// abrir la actualización del programa. Sin conexión no dice nada: el usuario no la pidió.
bool ComprobarVersionAlArrancar(base::Red& red, base::Dialogo& dialogo,
                                const base::Ajustes& ajustes, std::int32_t versionPrograma);

// Cómo se instaló el programa: con el actualizador propio ("UpdatePr.exe" en Windows) o con el
// gestor de paquetes del sistema, que es quien debe poner la versión nueva.
enum class Instalacion { ConActualizador, GestorDePaquetes };

// La ventana de las modificaciones: muestra el texto y dice si se sigue; la otra elección guarda
// la versión en "NoActualizar".
enum class EleccionCambios { Seguir, NoActualizar };
using VerCambios = std::function<EleccionCambios(std::string_view cambios)>;

struct PeticionVersion {
    const std::filesystem::path& carpetaTrabajo;
    std::int32_t versionPrograma = kVersionPrograma;
    Instalacion instalacion = Instalacion::ConActualizador;
};

// Lo que deja la actualización del programa: la versión del servidor (0 si no se supo) y si los
// archivos están traídos y hay que pasar al actualizador.
struct ResultadoVersion {
    std::int32_t enServidor = 0;
    bool traspasar = false;
};

// La actualización del programa: la lista de versiones y los cambios, las preguntas, los archivos
// que cambiaron desde la versión del programa (los ".zip" se expanden; un fallo al expandir se
// dice y se sigue).
ResultadoVersion ActualizarVersion(base::Red& red, base::Dialogo& dialogo, base::Ajustes& ajustes,
                                   base::ExpansorZip& expansor, const PeticionVersion& peticion,
                                   const VerCambios& verCambios);

}  // namespace quinteva::seasons
