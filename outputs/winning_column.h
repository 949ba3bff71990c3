#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace quinteva::outputs {

// ColumnaGanadora: los 14 signos ("1", "X", "2"; un blanco para un partido que no se sabe) y los
// dos caracteres del Pleno al 15 (goles del local y del visitante: "0", "1", "2", "M"). Si la
// letra del Pleno no es de "A" a "P" solo tiene los 14 signos, y ninguna columna acierta el Pleno.
using ColumnaGanadora = std::string;

// La rejilla de la ventana: 15 celdas, una por partido; la 15 muestra los dos caracteres del
// Pleno con un blanco entre ellos ("1 M"). Una celda vacía es un resultado que no se sabe.
using RejillaGanadora = std::array<std::string, 15>;

// De los 15 caracteres de `RegJornadaQuin` (14 signos y la letra del Pleno).
ColumnaGanadora GanadoraDeResultado(std::string_view resultado);
RejillaGanadora RejillaDeResultado(std::string_view resultado);
// Los 15 caracteres que se guardan: los 14 signos y la fila 15 por su letra; blanco lo que falta.
std::string ResultadoDeRejilla(const RejillaGanadora& rejilla);
// Algún carácter del resultado en blanco: solo vale "A&vance".
bool ResultadoIncompleto(std::string_view resultado);

// Lo que admite una celda de la fila (1 a 15) al pulsar una tecla: "1", "X", "2" en los partidos
// ("x" pasa a "X") y "0", "1", "2", "M" en el Pleno ("m" pasa a "M"); nada si se rechaza.
std::optional<char> TeclaAdmitida(int fila, char tecla);

}  // namespace quinteva::outputs
