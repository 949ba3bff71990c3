#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "engine/combination.h"
#include "engine/conditions.h"
#include "engine/quiniela_base.h"

namespace quinteva::engine {

// Una fila de un informe de dos columnas.
struct FilaInforme {
    std::string primera;
    std::string segunda;
    friend bool operator==(const FilaInforme&, const FilaInforme&) = default;
};

// Analisis(columna): por qué una columna no está en lo jugado. Recorre todas las familias activas
// en el orden de las pruebas de Condicionar sin pararse en el primer fallo y da una fila por
// condición incumplida ("Condición", "Filtro"). Antes, "Quiniela Base" si algún signo no está
// elegido en la base; al final, "Eliminadas" si la columna está en archivoJugado (el ".cnd" o el
// ".red" de lo jugado; vacío si no hay) con estado "1". Una columna que lo cumple todo no da filas.
std::vector<FilaInforme> Analisis(const Columna& columna, const QuinielaBase& base,
                                  const SetCondiciones& condiciones,
                                  const std::filesystem::path& archivoJugado = {});

// El archivo jugado de una Combinación guardada: el ".red" si el conjunto jugado es "red", si no
// el ".cnd".
std::filesystem::path ArchivoJugado(const Combinacion& combinacion);

// Las filas de "Rechazadas" ("Filtro", "Número"): una por contador mayor que 0 en su orden fijo,
// con el número en formato "#,##0", y al final siempre "Total rechazadas" con la suma.
std::vector<FilaInforme> FilasRechazadas(const Rechazos& rechazos, int toleranciaGrupos,
                                         int toleranciaGruposAc);

}  // namespace quinteva::engine
