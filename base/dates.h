#pragma once

namespace quinteva::base {

// Fecha y hora tal como las ve el usuario.
struct FechaHora {
    int anio = 1899;
    int mes = 12;
    int dia = 30;
    int hora = 0;
    int minuto = 0;
    int segundo = 0;

    friend bool operator==(const FechaHora&, const FechaHora&) = default;
};

// Las fechas se guardan como double de días desde el 30 de diciembre de 1899: la parte entera es
// el día y la fracción la hora. Antes de esa fecha la fracción cuenta hacia delante igualmente
// (-1,25 es el 29 de diciembre a las 6:00), como en los archivos del sistema.
double FechaASerie(const FechaHora& fecha);
FechaHora SerieAFecha(double serie);

}  // namespace quinteva::base
