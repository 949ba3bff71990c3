#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/columns.h"
#include "outputs/print_list.h"
#include "outputs/slip_geometry.h"

namespace quinteva::outputs {

// La marca de una casilla: el carácter 176 de Windows-1252, en "Arial" negrita del 14.
inline constexpr std::string_view kMarca = "°";
inline constexpr int kColumnasPorBoleto = 8;
// La línea del producto bajo la cabecera, con la dirección del editor entre paréntesis.
inline constexpr std::string_view kLineaProducto = "Quinteva (quinteva.example)";

// Cómo se imprimen los boletos: la geometría, la dirección, la fecha de la Jornada de la
// cabecera y, en papel blanco, el marco que se dibuja antes de cada boleto (ImpBaseQ, con lo que
// baja el boleto en la hoja). Con dos boletos por hoja, el segundo baja "separacion" twips.
struct DisposicionBoleto {
    GeometriaBoleto geometria;
    Direccion direccion = Direccion::Apaisada;
    std::string fecha;
    std::function<void(Impresion&, float abajo)> marco;
    int boletosPorHoja = 1;
    float separacion = 0;
};

// Los boletos que llenan tantas columnas, ocho en cada uno.
std::int32_t NumeroDeBoletos(std::size_t columnas);

// Escrol: el boleto que elige la barra, en pantalla: sus columnas (14 signos cada una), el Pleno
// de la primera como "1-M" y su número con "#,##0".
struct BoletoEnPantalla {
    std::vector<std::string> columnas;
    std::string pleno;
    std::string numero;
};
BoletoEnPantalla Escrol(std::span<const engine::RegistroColumna> activas, int boleto);

// "Imprimir &Uno": el boleto dado (desde 1) de las columnas activas, las que van de
// (boleto - 1) × 8 + 1 a boleto × 8; el número del boleto sin formato.
Impresion ImprimirUno(std::span<const engine::RegistroColumna> activas, int boleto,
                      const DisposicionBoleto& disposicion);

// ImprimirTodos(desde, hasta): las columnas activas cuyo número está entre los dos, ocho por
// boleto y un boleto por página; el número del boleto con "#,##0".
Impresion ImprimirTodos(std::span<const engine::RegistroColumna> activas, std::int32_t desde,
                        std::int32_t hasta, const DisposicionBoleto& disposicion);

}  // namespace quinteva::outputs
