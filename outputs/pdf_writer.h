#pragma once

#include <string>

#include "outputs/print_list.h"

namespace quinteva::outputs {

// El tamaño de la página en twips: A4 vertical, como la hoja de la impresora por defecto.
inline constexpr float kAnchoA4 = 11906.0F;
inline constexpr float kAltoA4 = 16838.0F;

// Un PDF de las páginas de una impresión, sin nada más que el estándar: "Courier New" sale en
// Courier y las demás en Helvetica (las métricas de Arial), el texto en WinAnsi (Windows-1252) y
// la posición de cada texto es la de su esquina superior izquierda, como en la impresora.
std::string PdfDeImpresion(const Impresion& impresion, float anchoTwips = kAnchoA4,
                           float altoTwips = kAltoA4);

}  // namespace quinteva::outputs
