#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace quinteva::builders {

// Una cifra de la "Tabla de reducciones": su texto ("-" cuando no hay) y si va en negrita.
struct CeldaReduccion {
    std::string_view texto;
    bool negrita = false;
};

// Una fila de la "Tabla de reducciones": la etiqueta tal como se muestra, los triples y dobles de
// la base (las dos columnas ocultas) y las cifras al 13, al 12 y al 11.
struct FilaReduccion {
    std::string_view etiqueta;
    int triples = 0;
    int dobles = 0;
    std::array<CeldaReduccion, 3> cifras;
};

inline constexpr std::string_view kTituloTablaReducciones =
    "Tabla de Reducciones que se utiliza si no hay Condiciones (en negrita reducciones óptimas)";

// TablaReducciones: las 73 filas fijas de la ventana, constantes y no calculadas.
const std::vector<FilaReduccion>& TablaReducciones();

}  // namespace quinteva::builders
