// Búsqueda de sistemas invariantes por un grupo de simetrías del espacio
// (permutar lugares, sumar una constante en cada lugar, cambiar de signo
// "X" y "2" en un triple). El sistema es unión de órbitas completas, así que
// la búsqueda se hace sobre órbitas: un espacio tantas veces menor como
// elementos tenga el grupo.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "conjuntos.h"
#include "espacio.h"

namespace sistemas {

// y[destino[i]] = (factor[i] * x[i] + suma[i]) mod base.
struct Simetria {
    std::vector<int> destino;
    Palabra factor;
    Palabra suma;
};

Simetria Identidad(const Forma& forma);
// Giro de los lugares [desde, hasta) un paso.
Simetria Giro(const Forma& forma, int desde, int hasta);
// Suma una palabra.
Simetria Traslacion(const Forma& forma, const Palabra& p);

std::optional<std::vector<Palabra>> BuscarConSimetrias(const Forma& forma, int radio, int tamano,
                                                       const std::vector<Simetria>& generadores,
                                                       const PresupuestoConjuntos& presupuesto);

}  // namespace sistemas
