#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "engine/columns.h"
#include "engine/combination.h"
#include "engine/conditions.h"

namespace quinteva::engine {

// Índice de lo que no es signo (un blanco de una columna ganadora, por ejemplo).
inline constexpr std::uint8_t kNoSigno = 3;
// La columna se parte en dos mitades: partidos 1 a 7 y 8 a 14.
inline constexpr int kMitad = 7;
using SignosMitad = std::array<std::uint8_t, kMitad>;

// Por signo 1, X, 2, la máscara de 14 bits de los partidos que lo llevan (bit p, partido p + 1).
struct Mascaras {
    std::array<std::uint16_t, 3> m{};
};
Mascaras MascarasDe(const Columna& columna);

// Lo que una mitad aporta a las cuentas del filtro. Las cuentas de parejas, tríos, Grupos y
// Grupos de Aciertos van en carriles de un byte, ocho por palabra, en un bloque aparte de
// Filtro::Palabras() palabras; las de la segunda mitad incluyen las parejas y tríos que cruzan
// del partido 7 al 8.
struct Aporte {
    std::array<std::uint16_t, 3> m{};
    int suma = 0;
    // Comparaciones: por signo (y kNoSigno), las cuentas de las listas A a D, un byte cada una.
    std::array<std::uint32_t, 4> listas{};
};

// Condicionar: el SetCondiciones preparado una vez para probar columnas sueltas (la generación
// usa FiltroPorBloques). Las pruebas van en su orden fijo (Interrupciones, consecutivas,
// Generales, Seguidos, Parejas, Tríos, Sumas, Grupos, Grupos de Aciertos, Comparaciones,
// Repeticiones); la primera que rechaza suma uno a su contador. Veredictos y contadores son los
// del algoritmo literal sobre el texto. Por dentro la columna son dos mitades (partidos 1 a 7 y
// 8 a 14) cuyas cuentas se suman.
class Filtro {
  public:
    explicit Filtro(const SetCondiciones& condiciones);

    // ColumnaAceptada: true si pasa; si no, suma 1 a un contador de rechazos.
    bool Condicionar(const Columna& columna, Rechazos& rechazos) const;

    // Las familias que no se suman por mitades, cada una por separado (sin mirar su casilla):
    // el filtro por bloques las usa para llenar sus cachés.
    bool FallaInterConsecutivas(const Mascaras& columna) const;
    bool FallaSeguidos(const Mascaras& columna) const;
    bool FallaRepeticiones(const Mascaras& columna) const;

  private:
    friend class FiltroPorBloques;

    std::size_t Palabras() const { return palabras_; }
    // Aporte de los partidos 1 a 7; carriles ha de tener Palabras() palabras.
    void AportePrimera(const SignosMitad& signos, Aporte& aporte, std::uint64_t* carriles) const;
    // Aporte de los partidos 8 a 14, tras una primera mitad acabada en penultimo, ultimo.
    void AporteSegunda(std::uint8_t penultimo, std::uint8_t ultimo, const SignosMitad& signos,
                       Aporte& aporte, std::uint64_t* carriles) const;
    // La columna de esas dos mitades.
    bool Condicionar(const Aporte& a, const std::uint64_t* carrilesA, const Aporte& b,
                     const std::uint64_t* carrilesB, Rechazos& rechazos) const;

    struct Limites {
        int min = 0;
        int max = 0;
        bool Fuera(int v) const { return (v < min) | (v > max); }
    };
    struct ComparacionProbada {
        int izq, der;  // celda: signo * 4 + lista; -1 fuera de rango (cuenta 0)
        int operador;
    };
    void PonerCarril(std::size_t carril, int minimo, int maximo);
    void SumarCarril(std::uint64_t* carriles, std::size_t carril) const {
        carriles[carril / 8] += std::uint64_t{1} << (carril % 8 * 8);
    }
    void Aportar(int desde, const SignosMitad& signos, Aporte& aporte,
                 std::uint64_t* carriles) const;
    void AportarPareja(std::uint8_t a, std::uint8_t b, std::uint64_t* carriles) const;
    void AportarTrio(std::uint8_t a, std::uint8_t b, std::uint8_t c, std::uint64_t* carriles) const;

    bool inter_ = false, interCons_ = false;
    Limites limInter_, limInterCons_;

    bool generales_ = false;
    bool probarEquis_ = false, probarDoses_ = false, probarVariantes_ = false;
    Limites limEquis_, limDoses_, limVariantes_;

    bool seguidos_ = false;
    // Por clase, si se prueba y, por la racha más larga (0 a 14), si la columna pasa.
    std::array<bool, 4> probarSeg_{};
    std::array<std::array<bool, 15>, 4> segPasa_{};

    bool sumas_ = false;
    Limites limSumas_;
    std::array<std::array<int, kPartidos>, 4> tablaSumas_{};

    // Carriles: parejas (9, en su orden), tríos (27), Grupos probados (4 por Grupo: 1, X, 2,
    // Variantes) y Grupos de Aciertos probados (1 cada uno); cada familia empieza en palabra nueva.
    bool parejas_ = false, trios_ = false;
    std::size_t palabras_ = 0;
    std::size_t palabraParejas_ = 0, palabraTrios_ = 0, palabraGrupos_ = 0, palabraAc_ = 0;
    std::size_t palabrasGrupos_ = 0, palabrasAc_ = 0;
    std::vector<std::uint64_t> min_, max_, usados_;

    std::vector<int> indiceGrupo_;
    // Por partido, los Grupos probados (su orden) que lo tienen.
    std::array<std::vector<std::uint8_t>, kPartidos> gruposDelPartido_;
    int toleranciaGrupos_ = 0;
    std::vector<int> indiceGrupoAc_;
    // Por partido y signo, los Grupos de Aciertos probados que aciertan con él.
    std::array<std::array<std::vector<std::uint8_t>, 3>, kPartidos> aciertaEn_;
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
