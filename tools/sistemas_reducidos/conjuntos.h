// Recubrimiento de un conjunto finito con P candidatos de una lista dada
// (cada candidato cubre una lista explícita de puntos). Búsqueda local con
// pesos: los puntos que quedan sin cubrir pesan más en cada paso.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace sistemas {

struct Ejemplar {
    int puntos = 0;
    std::vector<std::vector<int>> cubre;  // por candidato, puntos que cubre
};

struct PresupuestoConjuntos {
    std::uint64_t semilla = 1;
    long pasos = 200'000;
    int intentos = 3;
};

// Elige `elegir` candidatos distintos que cubran todos los puntos.
std::optional<std::vector<int>> CubrirConjuntos(const Ejemplar& ejemplar, int elegir,
                                                const PresupuestoConjuntos& presupuesto);

}  // namespace sistemas
