#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/dialog.h"

namespace quinteva::outputs {

// Una columna de la rejilla de "Quinteva [Análisis de datos]": la de una Jornada analizada.
struct ColumnaAnalisis {
    std::string cabecera;  // "Jorn. " y el número
    // Una celda por fila, en el orden de FilasAnalisis().
    std::vector<std::string> celdas;
    // La celda de "Premios" dice "SI": va con otro color de fondo.
    bool premiada = false;
};

// Un valor del panel de resumen, con su etiqueta.
struct ValorResumen {
    std::string etiqueta;
    std::string valor;
};

struct AnalisisDatos {
    std::vector<ColumnaAnalisis> columnas;
    // Siempre con todas sus etiquetas; los valores en blanco si no hay registros.
    std::vector<ValorResumen> resumen;
};

// Los títulos de las filas, la columna fija de la rejilla.
const std::vector<std::string_view>& FilasAnalisis();

// `Contenido`: recorre "Rean.rar" de la carpeta de la temporada para cada Jornada de 1 a 70 y
// toma cada registro de esa Jornada, así que las columnas van en orden de Jornada. Con camino de
// error ("Error: " y la descripción): queda lo que se llenó hasta el fallo.
AnalisisDatos Contenido(const std::filesystem::path& carpetaTemporada, base::Dialogo& dialogo);

}  // namespace quinteva::outputs
