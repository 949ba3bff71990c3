#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "engine/combination.h"

namespace quinteva::engine {

// La probabilidad de cada signo 1, X, 2 en cada partido, sumando 1 en cada uno.
using ProbabilidadesSignos = std::array<std::array<double, 3>, kPartidos>;

// De dónde salen: los porcentajes de "Sumas" si esa familia está activa; si no, los de la
// "Quiniela por Porcentajes" si hay alguno; si no, iguales entre los signos de la base. En cada
// partido se llevan a sumar 1; un partido sin porcentajes toma los de la base.
ProbabilidadesSignos ProbabilidadesDeLaCombinacion(const Combinacion& combinacion);

// Las probabilidades de que la mejor columna jugada tenga 14, 13, 12, 11 o 10 aciertos, o menos
// de 10, cuando la ganadora sale con las probabilidades de cada signo; y la del Pleno al 15 con
// los 14 aciertos (el Pleno, uno de sus 16 resultados con la misma probabilidad).
struct ProbabilidadesPremios {
    std::array<double, 6> aciertos{};  // 14, 13, 12, 11, 10 y menos de 10
    double pleno = 0;
};

// El Pleno al 15 jugado sale con esta probabilidad si no se dice otra: uno de sus 16 resultados.
inline constexpr double kPlenoUniforme = 1.0 / 16;
// La del Pleno con los 14 aciertos, con la probabilidad que se dé al resultado jugado del Pleno.
void PonerPleno(ProbabilidadesPremios& p, double probabilidadDelPleno);

// Exactas, sin sorteos: la menor distancia de cada una de las 3^14 columnas ganadoras a las
// jugadas sale de un recorrido en anchura desde todas las jugadas a la vez (hasta 4 signos; más
// lejos son menos de 10), y cada ganadora pesa el producto de las probabilidades de sus signos.
// Las jugadas son códigos de columna válidos (repetidos no importan).
ProbabilidadesPremios Probabilidades(std::span<const std::int32_t> jugadas,
                                     const ProbabilidadesSignos& signos);

// Las de las columnas activas de un archivo de columnas (un almacén, un ".cnd" o un ".red"), con
// las probabilidades de los signos de la Combinación. Un archivo que falta no tiene columnas.
ProbabilidadesPremios ProbabilidadesDeArchivo(const Combinacion& combinacion,
                                              const std::filesystem::path& columnas);

// De dónde salen las probabilidades de los signos, para decírselo al usuario.
std::string OrigenDeLasProbabilidades(const Combinacion& combinacion);

// Las filas que se muestran: "14 aciertos" ... "Menos de 10" y "Pleno al 15", cada una con su
// porcentaje ("11,111111 %").
std::vector<std::pair<std::string, std::string>> FilasProbabilidades(
    const ProbabilidadesPremios& p);

// El texto de "quinteva-cli probabilidades" en JSON: Aciertos14 ... Aciertos10 y MenosDe10.
std::string ProbabilidadesJson(const ProbabilidadesPremios& p);

}  // namespace quinteva::engine
