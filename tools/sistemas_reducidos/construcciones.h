// Construcciones de sistemas: códigos perfectos, sumas directas, sumas
// amalgamadas y adaptación de un sistema a un espacio menor.
#pragma once

#include <optional>
#include <vector>

#include "espacio.h"

namespace sistemas {

// Código de Hamming ternario de longitud 4: 9 palabras, radio 1 (perfecto).
Codigo HammingTernario();
// Código de Hamming binario de longitud 7: 16 palabras, radio 1 (perfecto).
Codigo HammingBinario();
// Código de Golay ternario de longitud 11: 729 palabras, radio 2 (perfecto),
// en forma sistemática sobre los lugares 6 a 11 y en el orden de su
// mensaje, con el primer lugar del mensaje como cifra más rápida.
Codigo GolayTernario();

// Suma directa: radio r1 + r2 y tamaño producto. Los triples de ambos van
// delante, luego los dobles, conservando el orden de cada uno.
Codigo SumaDirecta(const Codigo& a, const Codigo& b);

// Suma amalgamada: a y b comparten un lugar del mismo tipo (el lugar `la` de
// a y `lb` de b, cuyos símbolos se emparejan con `permutacion`). Sólo
// conserva las palabras cuyas dos copias del lugar coinciden; el radio
// puede ser r1 + r2 o no serlo, así que hay que comprobarlo siempre.
Codigo SumaAmalgamada(const Codigo& a, int la, const Codigo& b, int lb,
                      const std::vector<int>& permutacion);

// Lleva un sistema a un espacio con no más triples ni más lugares: quita
// lugares y usa triples como dobles (el "2" pasa a "X"). El radio no
// crece, porque toda palabra binaria es también ternaria.
std::optional<Codigo> Adaptar(const Codigo& c, const Forma& destino);

// Palabras distintas, ordenadas.
void Depurar(Codigo& c);

}  // namespace sistemas
