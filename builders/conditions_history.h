#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "engine/combination.h"
#include "seasons/record_files.h"

namespace quinteva::builders {

// "Histórico de condiciones": cómo les habría ido a las columnas ganadoras guardadas con las
// condiciones de la Combinación abierta.
struct JornadaHistorica {
    std::string temporada;
    int jornada = 0;
    std::string columna;    // los 14 signos
    bool enLaBase = false;  // todos sus signos están elegidos en la Quiniela Base
    // La condición que la rechaza, con el nombre de "Rechazadas"; vacía si las cumple todas.
    std::string rechazo;
};

struct FamiliaHistorica {
    std::string nombre;
    int pasan = 0;  // las ganadoras que esa familia sola deja pasar
};

struct HistoricoCondiciones {
    int ganadoras = 0;  // con sus 14 signos
    int enLaBase = 0;
    int pasan = 0;                           // las que cumplen todas las condiciones
    std::vector<FamiliaHistorica> familias;  // las activas, en el orden de las pruebas
    std::vector<JornadaHistorica> jornadas;
};

// Las columnas ganadoras de "Jornadas.rar" de cada carpeta de temporada que hay en la carpeta de
// trabajo, la de la temporada en curso primero; cada Temporada y Jornada una vez. Las que no
// tienen los 14 signos no están.
std::vector<seasons::RegJornadaQuin> GanadorasGuardadas(
    const std::filesystem::path& carpetaTrabajo);

// Pasa cada ganadora por el filtro de las condiciones (Condicionar, con sus contadores: la primera
// que rechaza es la de la Jornada) y, por cada familia activa, por el filtro de esa familia sola.
// La base no cuenta para el filtro: se dice aparte si la ganadora estaba en ella.
HistoricoCondiciones HistoricoDeCondiciones(const engine::Combinacion& combinacion,
                                            const std::vector<seasons::RegJornadaQuin>& ganadoras);

}  // namespace quinteva::builders
