#pragma once

#include <array>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "engine/columns.h"
#include "outputs/json_file.h"
#include "outputs/located_columns.h"
#include "outputs/print_list.h"

namespace quinteva::outputs {

// Lo que imprimen los listados en la impresora del ajuste: cada uno con sus títulos, sus fuentes
// y sus filas, en hojas A4.

// "&Imprimir" de "Quinteva [Listado de Apuestas]": "Quinteva" en "Arial" negrita del 16, la
// línea de la Jornada y una columna por línea en "Courier New" (número con "#,##0" y signos).
Impresion ImpresionListado(const std::string& jornada,
                           std::span<const engine::RegistroColumna> columnas);
// Más de 500 columnas piden permiso.
inline constexpr int kColumnasSinPreguntar = 500;
std::string PreguntaImprimirListado(std::int64_t columnas);

// "&Imprimir" de "Localización de Columnas acertadas".
Impresion ImpresionColumnasLocalizadas(const std::string& jornada,
                                       const std::vector<FilaLocalizada>& filas);

// "&Imprimir" de "Archivo JSON": siete líneas en "Ms Sans Serif" del 10 a 1500 twips del borde,
// el rótulo en redonda y el valor en negrita.
Impresion ImpresionArchivoJson(const CamposArchivoJson& campos);

// "Imprimir" de "Columnas Ganadoras": el título y las filas en "Courier New".
Impresion ImpresionColumnasGanadoras(const std::string& temporada,
                                     const std::vector<std::pair<int, std::string>>& filas);

// "Imprimir Una" de "Ver Quinielas": la cabecera, el título y la columna que se ve.
Impresion ImpresionQuiniela(const std::string& cabecera, const std::string& titulo,
                            const engine::RegistroColumna& columna);

// El informe del "Visor de Quinielas": "Quinteva - Quinielas", la línea de la Jornada, las
// columnas en bloques de 8 con "Quin. nº " y, en cada página, el pie "Página n" y la línea del
// producto.
struct DatosQuinielas {
    int jornada = 0;
    std::string fecha;
    std::string nombre;
};
Impresion InformeQuinielas(const DatosQuinielas& datos,
                           std::span<const engine::RegistroColumna> columnas);

}  // namespace quinteva::outputs
