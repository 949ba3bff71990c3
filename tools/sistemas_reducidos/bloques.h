// Suma por bloques: el sistema es la unión de A_i x B_i, donde A_i son las
// partes de un código conocido A (clases de un subcódigo) y los B_i se
// buscan. Sólo importa, de cada palabra del espacio de A, su perfil de
// distancias a las partes, así que la búsqueda queda en el espacio de B.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "conjuntos.h"
#include "espacio.h"

namespace sistemas {

struct Particion {
    Codigo codigo;
    std::vector<std::vector<Palabra>> partes;  // todas del mismo tamaño
    std::string nombre;
};

// Partes = clases de A módulo el subgrupo generado por `nucleo` (palabras de
// A que, sumadas cifra a cifra, dejan A en sí mismo).
std::optional<Particion> PartirPorClases(const Codigo& a, const std::vector<Palabra>& nucleo);

// Cada palabra de A en su propia parte.
Particion PartirEnPalabras(const Codigo& a);

std::optional<Codigo> BuscarPorBloques(const Particion& a, const Forma& formaB, int radio,
                                       int tamano, const PresupuestoConjuntos& presupuesto);

}  // namespace sistemas
