#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "engine/columns.h"
#include "engine/combination.h"
#include "engine/conditions.h"

namespace quinteva::engine {

// Índice de lo que no es signo en ColumnaFiltro::signo.
inline constexpr std::uint8_t kNoSigno = 3;

// Una columna dentro del filtro: el índice del signo de cada partido (0, 1, 2 por 1, X, 2;
// kNoSigno si no es signo) y, por signo, la máscara de 14 bits de los partidos que lo llevan
// (bit p para el partido p + 1). La generación los mantiene al avanzar; MascarasDe los calcula.
struct Mascaras {
    std::array<std::uint16_t, 3> m{};
    std::array<std::uint8_t, kPartidos> signo{kNoSigno, kNoSigno, kNoSigno, kNoSigno, kNoSigno,
                                              kNoSigno, kNoSigno, kNoSigno, kNoSigno, kNoSigno,
                                              kNoSigno, kNoSigno, kNoSigno, kNoSigno};
};
Mascaras MascarasDe(const Columna& columna);

// Condicionar: el SetCondiciones preparado una vez para probar millones de columnas. Las pruebas
// van en su orden fijo (Interrupciones, consecutivas, Generales, Seguidos, Parejas, Tríos, Sumas,
// Grupos, Grupos de Aciertos, Comparaciones, Repeticiones); la primera que rechaza suma uno a su
// contador. Los veredictos y contadores son los del algoritmo literal sobre el texto.
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
    // Cuentas de hasta 8 por palabra de 64 bits, un byte cada una (todas caben en 0 a 15), con
    // sus límites recortados a 0..15 en las mismas posiciones y el bit alto de cada carril usado.
    template <std::size_t kPalabras>
    struct Carriles {
        std::array<std::uint64_t, kPalabras> min{};
        std::array<std::uint64_t, kPalabras> max{};
        std::array<std::uint64_t, kPalabras> usados{};
        void Poner(std::size_t carril, int minimo, int maximo);
    };
    struct ComparacionProbada {
        int izq, der;  // celda: signo * 4 + lista; -1 fuera de rango (cuenta 0)
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

    // Parejas en el byte a * 4 + b, tríos en a * 16 + b * 4 + c.
    bool parejas_ = false, trios_ = false;
    Carriles<2> limParejas_;
    Carriles<8> limTrios_;

    bool sumas_ = false;
    Limites limSumas_;
    // Suma de cada signo por mitades de la máscara: partidos 1 a 7 y 8 a 14.
    std::array<std::array<std::array<int, 128>, 2>, 3> sumaMitad_{};

    // Grupos probados (activos, hasta UltimoGrupo), un carril cada uno en su orden.
    static constexpr std::size_t kPalabrasGrupo = 7;
    std::vector<int> indiceGrupo_;
    std::size_t palabrasGrupo_ = 0;
    // Por partido y palabra, 1 en el carril de cada Grupo que tiene el partido.
    std::array<std::array<std::uint64_t, kPalabrasGrupo>, kPartidos> miembro_{};
    std::array<Carriles<kPalabrasGrupo>, 4> limGrupo_{};
    int toleranciaGrupos_ = 0;

    std::vector<int> indiceGrupoAc_;
    std::size_t palabrasGrupoAc_ = 0;
    // Por partido, signo (y kNoSigno) y palabra, 1 en el carril de cada grupo que acierta.
    std::array<std::array<std::array<std::uint64_t, kPalabrasGrupo>, 4>, kPartidos> acierto_{};
    Carriles<kPalabrasGrupo> limGrupoAc_{};
    int toleranciaGruposAc_ = 0;

    bool comparaciones_ = false;
    // Por partido, las veces que está en las listas A, B, C, D, un byte por lista.
    std::array<std::uint32_t, kPartidos> vecesEnListas_{};
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
