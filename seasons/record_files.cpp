#include "seasons/record_files.h"

namespace quinteva::seasons {

using namespace base;

std::array<Byte, RegTempor::kLongitud> RegTempor::ABytes() const {
    std::array<Byte, kLongitud> b{};
    PonerTexto(b, 0, 13, carpetaTemporada);
    return b;
}

RegTempor RegTempor::DeBytes(std::span<const Byte> b) { return {TomarTexto(b, 0, 13)}; }

std::array<Byte, RegEquipo::kLongitud> RegEquipo::ABytes() const {
    std::array<Byte, kLongitud> b{};
    PonerTexto(b, 0, 5, temporada);
    PonerTexto(b, 5, 15, nombre);
    const std::array<int, 10> primeros = {division, valoracion, posicion, jugados,    puntos,
                                          ganados,  empatados,  perdidos, golesFavor, golesContra};
    for (std::size_t i = 0; i < primeros.size(); ++i) PonerByte(b, 20 + i, primeros[i]);
    PonerInt16(b, 30, diferencia);
    const std::array<int, 8> casaFuera = {puntosCasa,  ganadosCasa,  empatadosCasa,  perdidosCasa,
                                          puntosFuera, ganadosFuera, empatadosFuera, perdidosFuera};
    for (std::size_t i = 0; i < casaFuera.size(); ++i) PonerByte(b, 32 + i, casaFuera[i]);
    for (std::size_t j = 0; j < kJornadas; ++j) PonerByte(b, 40 + j, posicionJornada[j]);
    return b;
}

RegEquipo RegEquipo::DeBytes(std::span<const Byte> b) {
    RegEquipo r;
    r.temporada = TomarTexto(b, 0, 5);
    r.nombre = TomarTexto(b, 5, 15);
    int* primeros[] = {&r.division, &r.valoracion, &r.posicion, &r.jugados,    &r.puntos,
                       &r.ganados,  &r.empatados,  &r.perdidos, &r.golesFavor, &r.golesContra};
    for (std::size_t i = 0; i < std::size(primeros); ++i) *primeros[i] = TomarByte(b, 20 + i);
    r.diferencia = TomarInt16(b, 30);
    int* casaFuera[] = {&r.puntosCasa,  &r.ganadosCasa,  &r.empatadosCasa,  &r.perdidosCasa,
                        &r.puntosFuera, &r.ganadosFuera, &r.empatadosFuera, &r.perdidosFuera};
    for (std::size_t i = 0; i < std::size(casaFuera); ++i) *casaFuera[i] = TomarByte(b, 32 + i);
    for (std::size_t j = 0; j < kJornadas; ++j) r.posicionJornada[j] = TomarByte(b, 40 + j);
    return r;
}

std::array<Byte, RegPartidoLiga::kLongitud> RegPartidoLiga::ABytes() const {
    std::array<Byte, kLongitud> b{};
    PonerByte(b, 0, jornada);
    PonerTexto(b, 1, 2, siglo);
    PonerDouble(b, 3, fecha);
    PonerTexto(b, 11, 5, temporada);
    PonerByte(b, 16, division);
    PonerByte(b, 17, partido);
    PonerTexto(b, 18, 15, local);
    PonerTexto(b, 33, 15, visitante);
    PonerByte(b, 48, golesLocal);
    PonerByte(b, 49, golesVisitante);
    PonerTexto(b, 50, 1, reservado);
    return b;
}

RegPartidoLiga RegPartidoLiga::DeBytes(std::span<const Byte> b) {
    RegPartidoLiga r;
    r.jornada = TomarByte(b, 0);
    r.siglo = TomarTexto(b, 1, 2);
    r.fecha = TomarDouble(b, 3);
    r.temporada = TomarTexto(b, 11, 5);
    r.division = TomarByte(b, 16);
    r.partido = TomarByte(b, 17);
    r.local = TomarTexto(b, 18, 15);
    r.visitante = TomarTexto(b, 33, 15);
    r.golesLocal = TomarByte(b, 48);
    r.golesVisitante = TomarByte(b, 49);
    r.reservado = TomarTexto(b, 50, 1);
    return r;
}

std::array<Byte, RegPartidoQuin::kLongitud> RegPartidoQuin::ABytes() const {
    std::array<Byte, kLongitud> b{};
    PonerByte(b, 0, jornada);
    PonerTexto(b, 1, 2, siglo);
    PonerDouble(b, 3, fecha);
    PonerByte(b, 11, partido);
    PonerTexto(b, 12, 5, temporada);
    PonerByte(b, 17, jornadaDiv1);
    PonerByte(b, 18, jornadaDiv2);
    PonerByte(b, 19, division);
    PonerTexto(b, 20, 15, local);
    PonerTexto(b, 35, 15, visitante);
    PonerTexto(b, 50, 1, signo);
    return b;
}

RegPartidoQuin RegPartidoQuin::DeBytes(std::span<const Byte> b) {
    RegPartidoQuin r;
    r.jornada = TomarByte(b, 0);
    r.siglo = TomarTexto(b, 1, 2);
    r.fecha = TomarDouble(b, 3);
    r.partido = TomarByte(b, 11);
    r.temporada = TomarTexto(b, 12, 5);
    r.jornadaDiv1 = TomarByte(b, 17);
    r.jornadaDiv2 = TomarByte(b, 18);
    r.division = TomarByte(b, 19);
    r.local = TomarTexto(b, 20, 15);
    r.visitante = TomarTexto(b, 35, 15);
    r.signo = TomarTexto(b, 50, 1);
    return r;
}

std::array<Byte, RegJornadaQuin::kLongitud> RegJornadaQuin::ABytes() const {
    std::array<Byte, kLongitud> b{};
    PonerTexto(b, 0, 5, temporada);
    PonerInt16(b, 5, jornada);
    PonerTexto(b, 7, 15, signos);
    return b;
}

RegJornadaQuin RegJornadaQuin::DeBytes(std::span<const Byte> b) {
    return {TomarTexto(b, 0, 5), TomarInt16(b, 5), TomarTexto(b, 7, 15)};
}

std::array<Byte, RegReanalisis::kLongitud> RegReanalisis::ABytes() const {
    std::array<Byte, kLongitud> b{};
    PonerInt16(b, 0, jornada);
    PonerInt32(b, 2, columnas);
    PonerInt16(b, 6, variantes0);
    PonerInt16(b, 8, variantes1);
    for (std::size_t i = 0; i < premios.size(); ++i) PonerInt32(b, 10 + 4 * i, premios[i]);
    for (std::size_t i = 0; i < reducida.size(); ++i) PonerInt16(b, 38 + 2 * i, reducida[i]);
    PonerInt16(b, 46, condicionada);
    for (std::size_t i = 0; i < kEstados; ++i) PonerTexto(b, 48 + 10 * i, 10, estados[i]);
    return b;
}

RegReanalisis RegReanalisis::DeBytes(std::span<const Byte> b) {
    RegReanalisis r;
    r.jornada = TomarInt16(b, 0);
    r.columnas = TomarInt32(b, 2);
    r.variantes0 = TomarInt16(b, 6);
    r.variantes1 = TomarInt16(b, 8);
    for (std::size_t i = 0; i < r.premios.size(); ++i) r.premios[i] = TomarInt32(b, 10 + 4 * i);
    for (std::size_t i = 0; i < r.reducida.size(); ++i) r.reducida[i] = TomarInt16(b, 38 + 2 * i);
    r.condicionada = TomarInt16(b, 46);
    for (std::size_t i = 0; i < kEstados; ++i) r.estados[i] = TomarTexto(b, 48 + 10 * i, 10);
    return r;
}

}  // namespace quinteva::seasons
