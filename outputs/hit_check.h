#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/dialog.h"
#include "base/progress.h"
#include "outputs/hit_count.h"

namespace quinteva::outputs {

inline constexpr std::string_view kMsgNoGuardada = "La Quiniela que se juega no está guardada.";
inline constexpr std::string_view kMsgNoGenerada =
    "La Quiniela que se juega no está generada. Vaya a BOLETOS (último botón verde) e indique si "
    "se juega la combinación Condicionada o Reducida.";
inline constexpr std::string_view kMuyBien = "Muy bien!";
inline constexpr std::string_view kEnhorabuena = "Enhorabuena!!!";

// Lo que deja una comprobación en la ventana de "Comprobación de Aciertos".
struct Comprobacion {
    TablaAciertos tabla;
    // false si se abandonó con un mensaje, un No o un error: las cuentas quedan como iban.
    bool hecha = false;
    // El saludo nuevo; nada si la etiqueta conserva el texto que tenía.
    std::optional<std::string> saludo;
    bool parpadea = false;
    // Los botones que se habilitan: "&Fallos", "Colu&mnas", "A &Peña", "&Datos".
    bool fallos = false;
    bool columnas = false;
    bool pena = false;
    bool datos = false;
};

// "&Aciertos": las columnas activas del conjunto jugado de la Combinación guardada, con el Pleno
// de su Boleto (el de la primera columna de cada bloque de 8). Con camino de error.
Comprobacion Aciertos(const std::filesystem::path& rutaCombinacion, std::string_view ganadora,
                      base::Dialogo& dialogo, base::Progreso& progreso);

// "A&vance": la comprobación en marcha sobre los partidos conocidos, sin listas. El 15 toma la
// cuenta del 14 si la celda del Pleno ("1 M") está llena y coincide con la ganadora.
Comprobacion Avance(const std::filesystem::path& rutaCombinacion, std::string_view ganadora,
                    std::string_view celdaPleno, base::Dialogo& dialogo, base::Progreso& progreso);

// El final común de las tres fuentes de "&Aciertos": "&Fallos" si no hay 14, el saludo si los
// hay, "Colu&mnas" y "A &Peña" si hay columnas localizadas, "&Datos" siempre.
void TerminarAciertos(Comprobacion& comprobacion);

// El camino de error de las acciones de la ventana: "Error: ", el texto y ".".
void MostrarError(base::Dialogo& dialogo, const std::exception& error);

}  // namespace quinteva::outputs
