#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "engine/columns.h"
#include "engine/combination.h"
#include "engine/conditions.h"

namespace quinteva::engine {

// Una columna dentro del filtro: por signo 1, X, 2 la máscara de 14 bits de los partidos que lo
// llevan (bit p para el partido p + 1). Un carácter que no es signo no está en ninguna.
struct Mascaras {
    std::array<std::uint16_t, 3> m{};
};
Mascaras MascarasDe(const Columna& columna);

// Condicionar: el SetCondiciones preparado una vez para probar millones de columnas. Las pruebas
// van en su orden fijo (Interrupciones, consecutivas, Generales, Seguidos, Parejas, Tríos, Sumas,
// Grupos, Grupos de Aciertos, Comparaciones, Repeticiones); la primera que rechaza suma uno a su
// contador y termina. Los veredictos y contadores son los del algoritmo literal sobre el texto.
class Filtro {
  public:
    explicit Filtro(const SetCondiciones& condiciones);

    // ColumnaAceptada: true si pasa; si no, suma 1 a un contador de rechazos.
    bool Condicionar(const Mascaras& columna, Rechazos& rechazos) const;
    bool Condicionar(const Columna& columna, Rechazos& rechazos) const {
        return Condicionar(MascarasDe(columna), rechazos);
    }

  private:
    struct Limites {
        int min = 0;
        int max = 0;
        bool Fuera(int v) const { return (v < min) | (v > max); }
    };
    struct ParejaProbada {
        int a, b, c;  // signos; c = -1 en las parejas
        Limites lim;
    };
    struct GrupoProbado {
        int indice;
        std::uint16_t partidos;
        std::array<Limites, 4> lim;
    };
    struct GrupoAcProbado {
        int indice;
        std::array<std::uint16_t, 3> acierto;  // partidos donde el signo está en la celda
        Limites lim;
    };
    struct ComparacionProbada {
        int izq, der;  // celda de la tabla: signo * 4 + lista, -1 fuera de rango
        int operador;
    };

    bool inter_ = false, interCons_ = false;
    Limites limInter_, limInterCons_;

    bool generales_ = false;
    bool probarEquis_ = false, probarDoses_ = false, probarVariantes_ = false;
    Limites limEquis_, limDoses_, limVariantes_;

    bool seguidos_ = false;
    // Por clase, si se prueba y, por la racha más larga (0 a 14), si la columna pasa.
    std::array<bool, 4> probarSeg_{};
    std::array<std::array<bool, 15>, 4> segPasa_{};

    bool parejas_ = false, trios_ = false;
    std::vector<ParejaProbada> parejasProbadas_, triosProbados_;

    bool sumas_ = false;
    Limites limSumas_;
    // Suma de cada signo por mitades de la máscara: partidos 1 a 7 y 8 a 14.
    std::array<std::array<std::array<int, 128>, 2>, 3> sumaMitad_{};

    std::vector<GrupoProbado> grupos_;
    int toleranciaGrupos_ = 0;
    std::vector<GrupoAcProbado> gruposAc_;
    int toleranciaGruposAc_ = 0;

    bool comparaciones_ = false;
    // Por lista, los partidos por planos de bits de su multiplicidad (un partido repetido en una
    // lista cuenta cada vez).
    std::array<std::array<std::uint16_t, 4>, 4> planosLista_{};
    std::array<std::size_t, 4> planos_{};
    std::vector<ComparacionProbada> comparacionesProbadas_;

    bool repeticiones_ = false;
    // Por clase con límite: cuántas repeticiones cuenta la regla para cada máscara del signo
    // (Variantes: para cada máscara de los "1").
    std::array<bool, 4> probarRep_{};
    std::array<int, 4> limiteRep_{};
    std::array<std::vector<std::uint8_t>, 4> cuentaRep_;
};

// La regla de Repeticiones de un signo, sobre la máscara de sus partidos: las rachas de largo
// exactamente L, y además la que llega al lugar 13 o 14 desde un comienzo en 14 - L o después,
// aunque sea más larga. L 0 no cuenta nada.
int RepeticionesSigno(std::uint16_t mascara, int largo);
// La regla de Variantes, sobre la máscara de los "1": en cada "1" cuenta si las Variantes
// seguidas que lo preceden son exactamente L; las que acaban en el partido 14 no cuentan.
int RepeticionesVariantes(std::uint16_t unos, int largo);
// Racha más larga de bits seguidos en una máscara de 14 bits.
int RachaMasLarga(std::uint16_t mascara);

}  // namespace quinteva::engine
