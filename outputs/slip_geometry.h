#pragma once

#include <cstdint>
#include <string_view>

namespace quinteva::outputs {

// Cómo entra el boleto en la impresora: "Apaisada", el lado ancho al frente y los partidos hacia
// abajo; "Vertical", el lado estrecho al frente y las columnas hacia abajo.
enum class Direccion { Vertical, Apaisada };
std::string_view TextoDireccion(Direccion direccion);
Direccion DireccionDeTexto(std::string_view texto);

// Dónde cae la primera casilla y cuánto hay de una casilla a la siguiente, en twips. En Apaisada
// PasoX va de casilla en casilla (24 en fila) y PasoY de partido en partido; en Vertical al revés.
struct GeometriaBoleto {
    std::int16_t origenX = 0;
    std::int16_t origenY = 0;
    float pasoX = 0;
    float pasoY = 0;

    friend bool operator==(const GeometriaBoleto&, const GeometriaBoleto&) = default;
};

}  // namespace quinteva::outputs
