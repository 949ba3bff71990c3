#pragma once

#include <array>
#include <cstdint>

#include "engine/columns.h"
#include "engine/quiniela_base.h"

namespace quinteva::engine {

// Las casillas de actividad de las familias, por su número en la matriz de casillas. 5 y 6 solo
// muestran y ponen la marca del Grupo que está en pantalla; no son familias por sí mismas.
enum Casilla : int {
    kCasillaGenerales = 0,
    kCasillaSeguidos = 1,
    kCasillaInterrupciones = 2,
    kCasillaParejas = 3,
    kCasillaTrios = 4,
    kCasillaGrupoMostrado = 5,
    kCasillaGrupoAcMostrado = 6,
    kCasillaSumas = 7,
    kCasillaComparaciones = 8,
    kCasillaRepeticiones = 9,
    kCasillaInterConsecutivas = 10,
};
inline constexpr int kCasillas = 11;
inline constexpr int kGrupos = 50;
inline constexpr int kComparacionesFilas = 8;

// Índices de las cuatro clases de Seguidos, Grupos y Repeticiones: "1", "X", "2", Variantes.
inline constexpr int kUno = 0;
inline constexpr int kEquis = 1;
inline constexpr int kDos = 2;
inline constexpr int kVariantes = 3;

// Las parejas y los tríos en su orden fijo (el orden de los signos 1, X, 2).
inline constexpr std::array<const char*, 9> kTextoParejas = {"11", "1X", "12", "X1", "XX",
                                                             "X2", "21", "2X", "22"};
extern const std::array<std::array<char, 3>, 27> kTextoTrios;
// Valor "sin límite" del máximo: 13 para "11", "XX", "22", 7 para las demás; 12 y 6 en tríos.
int SinLimitePareja(int pareja);
int SinLimiteTrio(int trio);

struct Grupo {
    bool activo = false;
    std::array<bool, kPartidos> partidos{};
    // Por clase "1", "X", "2", Variantes.
    std::array<std::uint8_t, 4> min{0, 0, 0, 0};
    std::array<std::uint8_t, 4> max{14, 14, 14, 14};
    std::array<std::uint8_t, 4> posMin{};
    std::array<std::uint8_t, 4> posMax{};

    friend bool operator==(const Grupo&, const Grupo&) = default;
};

struct GrupoAciertos {
    bool activo = false;
    // Por partido los signos del pronóstico, cada uno en su sitio ("1", "X", "2"); "   " si el
    // partido no es del grupo.
    std::array<std::array<char, 3>, kPartidos> signos;
    std::uint8_t numPartidos = 0;
    std::uint8_t aciertosMin = 0;
    std::uint8_t aciertosMax = 0;
    std::uint8_t fallosMin = 0;
    std::uint8_t fallosMax = 0;

    GrupoAciertos() {
        for (auto& s : signos) s = {' ', ' ', ' '};
    }
    bool EsDelGrupo(int partido0) const;
    friend bool operator==(const GrupoAciertos&, const GrupoAciertos&) = default;
};

struct Comparacion {
    std::uint8_t activa = 0;
    std::uint8_t signoIzq = 0;  // 1 a 3
    std::uint8_t listaIzq = 0;  // 1 a 4
    std::uint8_t operador = 0;  // 1 "<", 2 "<=", 3 "=", 4 ">=", 5 ">"
    std::uint8_t signoDer = 0;
    std::uint8_t listaDer = 0;

    friend bool operator==(const Comparacion&, const Comparacion&) = default;
};

// Todo lo que se pide a una columna además de la Quiniela Base: las once familias.
struct SetCondiciones {
    std::array<bool, kCasillas> casilla{};

    // Generales. Los "Pos" se calculan de la base; los elegidos empiezan iguales.
    std::uint8_t posMinVariantes = 0, posMaxVariantes = 14;
    std::uint8_t posMinUnos = 0, posMaxUnos = 14;
    std::uint8_t posMinEquis = 0, posMaxEquis = 14;
    std::uint8_t posMinDoses = 0, posMaxDoses = 14;
    std::uint8_t minVariantes = 0, maxVariantes = 14;
    std::uint8_t minEquis = 0, maxEquis = 14;
    std::uint8_t minDoses = 0, maxDoses = 14;

    // Seguidos por clase "1", "X", "2", Variantes.
    std::array<std::uint8_t, 4> posMinSeg{};
    std::array<std::uint8_t, 4> posMaxSeg{14, 14, 14, 14};
    std::array<std::uint8_t, 4> minSeg{};
    std::array<std::uint8_t, 4> maxSeg{14, 14, 14, 14};

    // Interrupciones y consecutivas. El programa las tiene en variables anchas, aunque el
    // archivo guarda un byte para MaxInter y MinInterCons.
    std::int16_t minInter = 0, maxInter = 13;
    std::int16_t minInterCons = 0, maxInterCons = 13;

    std::array<std::uint8_t, 9> minPareja{};
    std::array<std::uint8_t, 9> maxPareja{13, 7, 7, 7, 13, 7, 7, 7, 13};
    std::array<std::uint8_t, 27> minTrio{};
    std::array<std::uint8_t, 27> maxTrio{};

    std::array<Grupo, kGrupos> grupos{};
    std::int16_t ultimoGrupo = 0;
    std::int16_t toleranciaGrupos = 0;
    std::array<GrupoAciertos, kGrupos> gruposAc{};
    std::int16_t ultimoGrupoAc = 0;
    std::int16_t toleranciaGruposAc = 0;

    // Sumas: porcentaje de los signos 1, X, 2 de cada partido.
    std::array<std::array<std::uint8_t, kPartidos>, 3> sumasTabla{};
    std::int16_t sumaMinima = 0, sumaMaxima = 0;

    // Comparaciones: las listas A a D de números de partido (1 a 14), en las posiciones 1 a 14;
    // la posición 0 no se usa, como en el archivo.
    std::array<std::array<std::uint8_t, 15>, 4> listas{};
    std::array<std::uint8_t, 4> numListas{};
    std::array<Comparacion, kComparacionesFilas> comparaciones{};

    // Repeticiones por clase "1", "X", "2", Variantes. LimiteRep 0: no se prueba.
    std::array<std::uint8_t, 4> longRep{};
    std::array<std::uint8_t, 4> limiteRep{};

    SetCondiciones();
    friend bool operator==(const SetCondiciones&, const SetCondiciones&) = default;
};

// Condiciones por defecto para una base: los límites posibles calculados y los elegidos iguales.
SetCondiciones CondicionesIniciales(const QuinielaBase& base);

// Los límites posibles que salen de la base, sin tocar los elegidos.
struct PosiblesGenerales {
    std::uint8_t minVariantes, maxVariantes, minUnos, maxUnos, minEquis, maxEquis, minDoses,
        maxDoses;
};
PosiblesGenerales CalcularPosiblesGenerales(const QuinielaBase& base);
// Mínimo y máximo posibles de Seguidos por clase: la racha más larga de partidos donde el signo
// es obligado y la de partidos donde está permitido (Variantes: sin "1" / con "X" o "2").
struct PosiblesSeguidos {
    std::array<std::uint8_t, 4> min, max;
};
PosiblesSeguidos CalcularPosiblesSeguidos(const QuinielaBase& base);
// Límites posibles de un Grupo: máximo, partidos que permiten el signo; mínimo, partidos donde es
// el único (Variantes: con "X" o "2" / sin "1").
void CalcularPosiblesGrupo(Grupo& grupo, const QuinielaBase& base);

// NºDeCondiciones: una por casilla 0 a 4 encendida, una por Grupo activo, una por Grupo de
// Aciertos activo, una por casilla 7 a 10 encendida.
std::int16_t NumeroDeCondiciones(const SetCondiciones& condiciones);

// MaxGr y MaxAGr: el índice más alto con la marca activa, 0 si no hay ninguno.
std::int16_t MaxGr(const SetCondiciones& condiciones);
std::int16_t MaxAGr(const SetCondiciones& condiciones);

// Reinicios. TriosACero y ParejasACero ponen los valores por defecto y apagan su casilla;
// InterAcero pone los de Interrupciones.
void TriosACero(SetCondiciones& condiciones);
void ParejasACero(SetCondiciones& condiciones);
void InterAcero(SetCondiciones& condiciones);
// "&Reiniciar" de cada pestaña: la familia a sus valores por defecto y su casilla apagada (los
// posibles de Generales y Seguidos se recalculan de la base). Para 5 reinicia todos los Grupos,
// para 6 todos los Grupos de Aciertos.
void ReiniciarFamilia(SetCondiciones& condiciones, Casilla familia, const QuinielaBase& base);
// "Desactivar todos": quita la marca activa de todos los Grupos (o Grupos de Aciertos).
void DesactivarGrupos(SetCondiciones& condiciones);
void DesactivarGruposAc(SetCondiciones& condiciones);

}  // namespace quinteva::engine
