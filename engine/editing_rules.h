#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/dialog.h"
#include "engine/combination.h"
#include "engine/conditions.h"
#include "engine/quiniela_base.h"

namespace quinteva::engine {

// Los textos de las reglas de edición de las condiciones.
inline constexpr std::string_view kMsgGeneralesTocados =
    "Este cambio ha llevado consigo modificación en los límites fijados en Condiciones Generales.";
inline constexpr std::string_view kMsgSeguidosTocados =
    "Se ha modificado alguna de las condiciones de 'Seguidos'.";
inline constexpr std::string_view kMsgComparacionesTocadas =
    "Este cambio ha afectado a la condición 'Comparaciones'.";
inline constexpr std::string_view kMsgMinimoMayor = "El Mínimo no puede ser mayor que el Máximo.";
inline constexpr std::string_view kMsgMaximoMenor = "El Máximo no puede ser menor que el Mínimo.";
inline constexpr std::string_view kMsgToleranciaGrupos =
    "No tiene sentido que el número de Grupos fallados pueda ser mayor que el número de Grupos "
    "creados.";
inline constexpr std::string_view kMsgToleranciaGruposAc =
    "No tiene sentido que el número de Grupos de Aciertos fallados pueda ser mayor que el número "
    "de Grupos creados.";
inline constexpr std::string_view kMsgComparacionIncompleta =
    "Tiene que consignar todos los datos de la Comparación.";
inline constexpr std::string_view kMsgComparacionMismaColumna =
    "Las comparaciones deben hacerse entre distintas columnas.";
inline constexpr std::string_view kMsgSumasFuera =
    "Debe indicar la Suma mínima y máxima dentro de los límites. La mínima debe ser menor o igual "
    "que la máxima.";

// Todo cambio de una condición o de la base anula los resultados: "Condicionada", las filas
// reducidas y el precio en blanco, "Guardada" en "NO".
void AnularResultados(Combinacion& combinacion);

// QuinComp: tras cambiar una celda de signo o de goles, recalcula lo que sale de la base.
// anterior es la base antes del cambio (para saber qué partidos cambiaron). Devuelve false si la
// base está incompleta (la ventana deshabilita páginas y órdenes de guardar); entonces solo deja
// en blanco "Al Directo", Dobles y Triples. Cada mensaje se muestra una vez.
bool QuinComp(Combinacion& combinacion, const QuinielaBase& anterior, base::Dialogo& dialogo);

// Un límite de una pareja mínimo/máximo de las listas de Seguidos, Parejas, Tríos o
// Interrupciones consecutivas. Rechaza con su mensaje un mínimo mayor que el máximo o un máximo
// menor que el mínimo (y devuelve false: la lista vuelve a su valor); si vale, lo guarda, enciende
// la casilla de la familia y anula los resultados.
template <typename T>
bool CambiarLimite(Combinacion& combinacion, Casilla familia, T& minimo, T& maximo, bool esMinimo,
                   int valor, base::Dialogo& dialogo) {
    if (esMinimo && valor > maximo) {
        dialogo.Mensaje(kMsgMinimoMayor, base::Icono::Aviso);
        return false;
    }
    if (!esMinimo && valor < minimo) {
        dialogo.Mensaje(kMsgMaximoMenor, base::Icono::Aviso);
        return false;
    }
    (esMinimo ? minimo : maximo) = static_cast<T>(valor);
    combinacion.condiciones.casilla[static_cast<std::size_t>(familia)] = true;
    AnularResultados(combinacion);
    return true;
}

// "Tolerancia Grupos fallados" y "Tolerancia Grupos Ac. fallados": un valor por encima de
// UltimoGrupo + 1 se cambia por ese número, con su mensaje. Devuelve el valor que queda.
int FijarToleranciaGrupos(SetCondiciones& condiciones, int valor, base::Dialogo& dialogo);
int FijarToleranciaGruposAc(SetCondiciones& condiciones, int valor, base::Dialogo& dialogo);

// Comparaciones: un clic en la celda (lista 1 a 4, partido 1 a 14) pone o quita el partido de
// la lista, que se rehace en el orden de los partidos.
void AlternarPartidoLista(SetCondiciones& condiciones, int lista, int partido);
// La casilla de una fila (0 a 7): valida los cinco datos y la activa, o muestra su mensaje y
// devuelve false. La casilla 8 se enciende con la fila.
bool ActivarComparacion(Combinacion& combinacion, int fila, const Comparacion& datos,
                        base::Dialogo& dialogo);
// Apaga la fila; con la última apagada, la casilla 8 se apaga también.
void DesactivarComparacion(Combinacion& combinacion, int fila);

// Repeticiones: elegir un largo borra el límite de esa clase; elegir un límite con un largo
// elegido guarda los dos y enciende la familia. clase 0 a 3: "1", "X", "2", Variantes.
void ElegirLargoRepeticion(Combinacion& combinacion, int clase, int largo);
bool ElegirLimiteRepeticion(Combinacion& combinacion, int clase, int limite);

// Sumas. Una fila de la rejilla: los porcentajes de 1, X, 2 de un partido (vacío: celda en
// blanco).
using FilaSumas = std::array<std::optional<int>, 3>;
// SumaCien tras escribir en la celda columna (0 a 2) de la fila: deja la fila en 100 tocando la
// celda siguiente (y la otra si hace falta).
void SumaCien(FilaSumas& fila, int columna);
// ConSumas: la suma más baja y más alta posibles (sumas de los mínimos y de los máximos de cada
// fila), o nada si alguna celda está en blanco.
std::optional<std::pair<int, int>> ConSumas(const std::array<FilaSumas, kPartidos>& rejilla);
// La casilla 7 al encenderse: los dos límites han de estar dentro de ConSumas y el mínimo no
// por encima del máximo; si no, mensaje y false. Si valen, guarda tabla y límites y la enciende.
bool ActivarSumas(Combinacion& combinacion, const std::array<FilaSumas, kPartidos>& rejilla,
                  std::optional<int> minima, std::optional<int> maxima, base::Dialogo& dialogo);

}  // namespace quinteva::engine
