#pragma once

#include <string_view>

namespace quinteva::outputs {

// El ancho en twips de un texto (UTF-8) impreso en esa fuente y tamaño, para centrar o alinear a
// la derecha: "Courier New" es de paso fijo y las demás toman las métricas de Helvetica, las de
// Arial, que son las que usa el PDF.
float AnchoDeTexto(std::string_view texto, std::string_view fuente, int tamano, bool negrita);

}  // namespace quinteva::outputs
