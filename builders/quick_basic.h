#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "base/dialog.h"
#include "engine/conditions.h"

namespace quinteva::builders {

// "Quiniela rápida Básica": las ocho filas de límites opcionales, en su orden.
inline constexpr int kFilasBasica = 8;
inline constexpr std::array<std::string_view, kFilasBasica> kRotulosBasica = {
    "Nº de Equis",
    "Nº de Doses",
    "Nº de Variantes",
    "Nº de Interrupciones",
    "Nº de Interrupciones consecutivas",
    "Nº de Unos seguidos",
    "Nº de Equis seguidas",
    "Nº de Doses seguidos",
};

inline constexpr std::string_view kMsgSinNumeroBasica =
    "Debe introducir el número de columnas que desea generar";
inline constexpr std::string_view kMsgMasQuePosibles =
    "El número de columnas a generar no puede ser mayor que el número de columnas posibles (al "
    "Directo), de acuerdo con la Quiniela Base que se juega";
std::string MsgUltimoBoletoDeUna(std::int32_t columnas);
std::string MsgMaximoMenorQueMinimo(int fila);
std::string PreguntaMenosColumnas(std::int32_t columnas);

// Lo elegido en una fila: el mínimo y el máximo, cada uno o nada. La fila está marcada si tiene
// alguno.
struct LimiteBasica {
    std::optional<int> minimo;
    std::optional<int> maximo;
    bool Marcada() const { return minimo.has_value() || maximo.has_value(); }
};
using LimitesBasica = std::array<LimiteBasica, kFilasBasica>;

// Los valores que ofrece una fila: de la base (mínimo a máximo posibles) o de 0 a 13.
std::pair<int, int> RangoDeFila(const engine::SetCondiciones& condiciones, int fila);

// Al desmarcar una fila: su par de límites en las condiciones vuelve al de la tabla (el de la
// base, o 0 y 14).
void SoltarFilaBasica(engine::SetCondiciones& condiciones, int fila);

// Los pasos 1 a 4 de "&Generar": el número (vacío, más que las posibles, o que deja un último
// boleto de una columna) y cada fila con mínimo por encima del máximo. El número, o nada con el
// mensaje dicho.
std::optional<std::int32_t> ComprobarBasica(std::string_view numero, float columnasBase,
                                            const LimitesBasica& limites, base::Dialogo& dialogo);

// Los pasos 5 a 7: cada fila a las condiciones (lo elegido o, si no, el límite de la base o 0 y
// 14), las marcas de las familias por las filas marcadas, y NumCondiciones, que devuelve.
std::int16_t PonerLimitesBasica(engine::SetCondiciones& condiciones, const LimitesBasica& limites);

}  // namespace quinteva::builders
