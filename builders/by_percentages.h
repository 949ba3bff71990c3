#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/chance.h"
#include "base/dialog.h"
#include "engine/combination.h"

namespace quinteva::builders {

inline constexpr std::string_view kTextoPorcentajes =
    "Introduzca los porcentajes de 1, X y 2 para cada partido";
inline constexpr std::string_view kMsgSinNumeroPorcentajes =
    "Tiene que indicar el número de columnas que debe tener la combinación";
inline constexpr std::string_view kMsgMuyElevado =
    "El número de columnas solicitado es muy elevado para que con los porcentajes fijados se "
    "puedan encontrar en la combinación.";
inline constexpr std::string_view kPreguntaExcesivo =
    "El número de columnas solicitado puede ser excesivo para que con los porcentajes fijados se "
    "puedan encontrar en la combinación. Desea no obstante continuar?";
std::string MsgBoletoDeUnaColumna(std::int32_t columnas);
std::string MsgNoSumanCien(int partido);
std::string MsgSoloSePudieron(std::int32_t columnas);

// Los porcentajes de 1, X y 2 de cada partido, como TablaPorcentajes: [signo][partido].
using Porcentajes = std::array<std::array<std::uint8_t, engine::kPartidos>, 3>;
// Cuántas columnas llevan cada signo en un partido, en el orden 1, X, 2.
using Cupos = std::array<std::int32_t, 3>;

// El código de los signos de la base en un partido (1 a 14): "1", "X" o "2" con uno; "3" para
// "1X", "4" para "12", "5" para "X2"; "6" el triple; "" sin ninguno.
std::string Signos(const engine::QuinielaBase& base, int partido);

// Los cupos de un partido para n columnas: la parte entera de n por cada porcentaje entre 100, y
// lo que falta hasta n al 2 si su cupo es positivo, si no a la X si el suyo lo es, si no al 1.
Cupos CuposDePartido(std::int32_t columnas, const std::array<std::uint8_t, 3>& porcentajes);

// GeneraPorc: escribe el signo del partido (1 a 14) en los registros desde primera (contando
// desde 1) hasta el último, sorteando bajo los cupos; los contadores parten de los signos que ya
// tienen todos los registros en esa posición.
void GeneraPorc(std::vector<engine::RegistroColumna>& registros, int partido,
                std::string_view codigo, std::int32_t primera, const Cupos& cupos,
                base::Azar& azar);

// Marca "1" cada registro activo igual (los 17 caracteres) a otro activo anterior.
void MarcarRepetidas(std::vector<engine::RegistroColumna>& registros);

// QuitarRepes: deja los activos en su orden y, si son menos de n, los completa con registros en
// blanco hasta n; si son n o más, toma los n primeros. Devuelve cuántos activos quedan (como
// mucho n): TotalGeneradas.
std::int32_t QuitarRepes(std::vector<engine::RegistroColumna>& registros, std::int32_t columnas,
                         const engine::PlenoBase& pleno);

// Las pasadas de "Generar" sobre n registros en blanco (como mucho 15, mientras falten
// columnas): los registros que quedan y TotalGeneradas.
struct Reparto {
    std::vector<engine::RegistroColumna> registros;
    std::int32_t generadas = 0;
    int pasadas = 0;
};
Reparto RepartirPorPorcentajes(const engine::QuinielaBase& base, const engine::PlenoBase& pleno,
                               std::int32_t columnas, const Porcentajes& porcentajes,
                               base::Azar& azar);

// Los pasos de "Generar" hasta dejar "Cmb.tmp" en carpetaTrabajo: el número (vacío, último boleto
// de una columna, muy elevado o la pregunta de excesivo), los porcentajes de cada partido, el
// reparto y el aviso si quedaron menos. Pone en la Combinación OrigenPorcentajes, la tabla, las
// cuentas y ValorPorcentajes, y vacía los rechazos. Las columnas entregadas, o nada si se paró.
// "Cmb.tmp" solo se toca cuando todos los partidos suman 100.
std::optional<std::int32_t> GenerarPorPorcentajes(engine::Combinacion& combinacion,
                                                  const std::filesystem::path& carpetaTrabajo,
                                                  std::string_view numero,
                                                  const Porcentajes& porcentajes, base::Azar& azar,
                                                  base::Dialogo& dialogo);

// SumaCien: tras editar la celda (partido 1 a 14, signo 0 a 2), devuelve la fila a 100 tocando
// la celda compañera (la siguiente con signo en la base, dando la vuelta).
void SumaCien(Porcentajes& porcentajes, const engine::QuinielaBase& base, int partido, int signo);

// Una tecla sobre el texto de una celda: Supr ('\x7f') la deja en "0", Retroceso ('\b') quita la
// última cifra ("0" si se vacía) y una cifra se añade (sustituye a un "0" solo); dos cifras como
// mucho, salvo "10" que puede pasar a "100". Otra tecla no cambia nada.
std::string TeclaEnCelda(std::string_view texto, char tecla);

// Si la celda se edita: el partido tiene más de un signo y el de la celda está en la base.
bool CeldaEditable(const engine::QuinielaBase& base, int partido, int signo);

// Lo que muestra la rejilla al abrirse: 100 bajo el signo de un partido fijo y, si la Combinación
// viene de un reparto (OrigenPorcentajes 1), los porcentajes guardados en los signos de la base.
Porcentajes PorcentajesAlAbrir(const engine::Combinacion& combinacion);

}  // namespace quinteva::builders
