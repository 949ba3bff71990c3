// Búsqueda de un recubrimiento del grupo por trasladados de una bola:
// voraz para empezar y recocido simulado después.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "grupo.h"

namespace sistemas {

enum class Modo { kTabu, kRecocido };

struct Presupuesto {
    Modo modo = Modo::kTabu;
    int muestra = 0;  // centros cercanos que se prueban en cada paso (0: todos)
    std::uint64_t semilla = 1;
    long pasos = 2'000'000;  // por intento
    int intentos = 4;
    double temperaturaInicial = 0.6;
    double temperaturaFinal = 0.05;
    int tabu = 3;  // pasos que un centro movido queda quieto
};

// Busca a lo sumo `tamano` centros tales que todo elemento del grupo quede a
// distancia <= radio (contada con los generadores) de alguno. Devuelve los
// centros distintos, o nada si el presupuesto se agota.
std::optional<std::vector<int>> CubrirGrupo(const Grupo& grupo, std::vector<int> generadores,
                                            int radio, int tamano, const Presupuesto& presupuesto);

}  // namespace sistemas
