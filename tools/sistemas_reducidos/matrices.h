// Método de matrices: el sistema es la unión de unas cuantas clases laterales
// de un código lineal (ternario en los triples, binario en los dobles). Se
// busca el conjunto de síndromes, un espacio mucho menor que el de palabras.
#pragma once

#include <optional>
#include <vector>

#include "azar.h"
#include "espacio.h"
#include "recocido.h"

namespace sistemas {

struct Matriz {
    int filasTernarias = 0;  // síndrome ternario (<= triples)
    int filasBinarias = 0;   // síndrome binario (<= dobles)
    // Columna de cada lugar: para un triple, cifras 0..2 en las filas
    // ternarias; para un doble, cifras 0..1 en las binarias.
    std::vector<Palabra> columnas;
};

// Matriz de control al azar en forma sistemática, sin columnas repetidas
// (salvo múltiplos, que se evitan también) mientras quepa.
Matriz MatrizAlAzar(const Forma& forma, int filasTernarias, int filasBinarias, Azar& azar);

// Busca `tamano` filas como clases laterales del núcleo de la matriz. El
// tamaño ha de ser múltiplo del núcleo; si no lo es, se queda por debajo.
std::optional<std::vector<Palabra>> BuscarPorMatriz(const Forma& forma, int radio, int tamano,
                                                    const Matriz& matriz,
                                                    const Presupuesto& presupuesto);

// Búsqueda directa en el espacio de palabras.
std::optional<std::vector<Palabra>> BuscarEnEspacio(const Forma& forma, int radio, int tamano,
                                                    const Presupuesto& presupuesto);

}  // namespace sistemas
