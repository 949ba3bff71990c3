#include "base/dates.h"

#include <cmath>

namespace quinteva::base {
namespace {

// Días desde el 1 de enero de 1970 en el calendario gregoriano proléptico.
long DiasDesdeCivil(long y, long m, long d) {
    y -= m <= 2 ? 1 : 0;
    const long era = (y >= 0 ? y : y - 399) / 400;
    const long yoe = y - era * 400;
    const long doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const long doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

void CivilDesdeDias(long z, int& y, int& m, int& d) {
    z += 719468;
    const long era = (z >= 0 ? z : z - 146096) / 146097;
    const long doe = z - era * 146097;
    const long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const long mp = (5 * doy + 2) / 153;
    d = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
    m = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    y = static_cast<int>(yoe + era * 400 + (m <= 2 ? 1 : 0));
}

const long kOrigen = DiasDesdeCivil(1899, 12, 30);
constexpr double kSegundosDia = 86400.0;

}  // namespace

double FechaASerie(const FechaHora& f) {
    const long dias = DiasDesdeCivil(f.anio, f.mes, f.dia) - kOrigen;
    const double fraccion = (f.hora * 3600.0 + f.minuto * 60.0 + f.segundo) / kSegundosDia;
    return dias >= 0 ? dias + fraccion : dias - fraccion;
}

FechaHora SerieAFecha(double serie) {
    const double entero = std::trunc(serie);
    long segundos = std::lround(std::fabs(serie - entero) * kSegundosDia);
    long dias = static_cast<long>(entero);
    if (segundos >= 86400) {  // el redondeo llevó la hora al día siguiente
        segundos -= 86400;
        dias += serie >= 0 ? 1 : -1;
    }
    FechaHora f;
    CivilDesdeDias(dias + kOrigen, f.anio, f.mes, f.dia);
    f.hora = static_cast<int>(segundos / 3600);
    f.minuto = static_cast<int>(segundos / 60 % 60);
    f.segundo = static_cast<int>(segundos % 60);
    return f;
}

}  // namespace quinteva::base
