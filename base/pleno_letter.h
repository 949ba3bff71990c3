#pragma once

#include <string>
#include <string_view>

namespace quinteva::base {

// La letra del Pleno al 15: el par de goles de "A" a "P" (local fuera, visitante dentro, en el
// orden 0, 1, 2, M); "" si el par no es válido. LetraAPleno hace lo contrario y da "" para
// cualquier otra letra.
std::string PlenoALetra(std::string_view golesLocal, std::string_view golesVisitante);
std::string LetraAPleno(std::string_view letra);

}  // namespace quinteva::base
