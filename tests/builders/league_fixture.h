#pragma once

#include <string>

#include "base/dates.h"
#include "seasons/record_files.h"

namespace quinteva::pruebas {

// Un partido de liga de septiembre de 2023 (el día es la Jornada), para las pruebas que leen la
// temporada.
inline seasons::RegPartidoLiga Liga(int division, int jornada, std::string local,
                                    std::string visitante, int gl, int gv) {
    seasons::RegPartidoLiga p;
    p.division = division;
    p.jornada = jornada;
    p.local = std::move(local);
    p.visitante = std::move(visitante);
    p.golesLocal = gl;
    p.golesVisitante = gv;
    p.fecha = base::FechaASerie({2023, 9, jornada});
    return p;
}

}  // namespace quinteva::pruebas
