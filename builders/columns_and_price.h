#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quinteva::builders {

// Las dos cajas de los asistentes que piden un número de columnas: la del número y la del precio,
// que se recalculan la una a la otra con el precio de una columna ("PrecioApu15").

// Lo que admite la caja del número: solo cifras y sin "0" delante.
std::string LimpiarNumero(std::string_view texto);
// Lo que admite la del precio: cifras y una coma ("." se vuelve ","), sin coma delante.
std::string LimpiarPrecio(std::string_view texto);

// El precio de ese número de columnas en formato "currency"; vacío si no hay número.
std::string PrecioDeColumnas(std::string_view numero, float precioColumna);
// Las columnas que da ese precio (la parte entera del cociente); nada si el precio es 0 o no hay.
std::optional<std::string> ColumnasDePrecio(std::string_view precio, float precioColumna);

}  // namespace quinteva::builders
