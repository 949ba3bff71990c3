#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "engine/combination.h"
#include "engine/conditions.h"
#include "engine/filter.h"

namespace quinteva::engine {

// Condicionar para la generación, una primera mitad (partidos 1 a 7) contra todas las segundas
// (8 a 14) de una vez: por cada familia, el conjunto de segundas mitades que la incumplen, como
// un mapa de bits. Con ellos, en el orden de las pruebas, cada columna rechazada se cuenta una
// vez bajo la primera familia que la rechaza; veredictos y contadores son los de Condicionar
// columna a columna.
//
// Las familias que son sumas de las dos mitades (Interrupciones, Generales, Parejas, Tríos,
// Sumas, Grupos, Grupos de Aciertos, Comparaciones) se resuelven con tablas "cuenta de la
// segunda mitad <= v"; las demás (consecutivas, Seguidos, Repeticiones) dependen de un resumen
// corto de la primera mitad y se guardan por resumen la primera vez que aparecen.
class FiltroPorBloques {
  public:
    FiltroPorBloques(const SetCondiciones& condiciones, std::vector<SignosMitad> segundas);

    std::size_t Segundas() const { return segundas_.size(); }
    std::size_t Palabras() const { return palabras_; }
    // Las n primeras segundas mitades tras esta primera: deja en pasan (Palabras() palabras) las
    // que pasan y suma a rechazos las demás.
    void Filtrar(const SignosMitad& primera, std::size_t n, std::uint64_t* pasan,
                 Rechazos& rechazos);

  private:
    // "Valor de la segunda mitad <= v" para v de desde a hasta, por palabras.
    struct TablaMenores {
        int desde = 0, hasta = -1;
        std::vector<std::uint64_t> bits;
    };
    // Una cuenta con límites: la de la segunda mitad puede depender de los últimos signos de la
    // primera (parejas y tríos que cruzan, la interrupción del 7 al 8): una tabla por variante.
    struct Carril {
        int min = 0, max = 0;
        std::vector<TablaMenores> tablas;
    };
    TablaMenores HacerTabla(const std::vector<int>& valores) const;
    // Une a fallan las segundas mitades cuyo valor queda fuera de [desde, hasta].
    void Fuera(const TablaMenores& t, int desde, int hasta, std::uint64_t* fallan) const;
    void Todas(std::uint64_t* bits) const;
    // Suma a rechazos las nuevas de fallan, y las junta con las ya rechazadas.
    template <typename Contador>
    void Anotar(const std::uint64_t* fallan, std::uint64_t* rechazadas, Contador& contador);

    const std::vector<std::uint64_t>& EnCache(
        std::unordered_map<std::uint64_t, std::vector<std::uint64_t>>& cache, std::uint64_t clave,
        const Mascaras& primera, bool (Filtro::*falla)(const Mascaras&) const);

    SetCondiciones c_;
    Filtro filtro_;
    std::vector<SignosMitad> segundas_;
    std::vector<Mascaras> mascarasSegundas_;
    std::size_t palabras_ = 0;
    std::vector<std::uint64_t> validas_;

    Carril inter_;                   // tablas por último signo de la primera mitad
    std::vector<Carril> generales_;  // X, 2, Variantes que se prueban (índice de clase aparte)
    std::vector<int> claseGenerales_;
    std::vector<std::pair<int, Carril>> parejas_;  // por último signo
    std::vector<std::pair<int, Carril>> trios_;    // por penúltimo * 3 + último
    Carril sumas_;
    std::vector<std::array<Carril, 4>> grupos_;  // por Grupo probado: 1, X, 2, Variantes
    std::vector<int> indiceGrupo_;
    std::vector<Carril> gruposAc_;
    std::vector<int> indiceGrupoAc_;
    struct FilaComparacion {
        int signoIzq, listaIzq, signoDer, listaDer, operador;
        TablaMenores diferencia;  // cuenta izquierda - derecha de la segunda mitad
    };
    std::vector<FilaComparacion> comparaciones_;

    std::unordered_map<std::uint64_t, std::vector<std::uint64_t>> cacheInterCons_, cacheSeguidos_,
        cacheRepeticiones_;
    std::vector<std::uint64_t> fallan_, rechazadas_, aux_;
    std::vector<std::vector<std::uint64_t>> planos_;
};

}  // namespace quinteva::engine
