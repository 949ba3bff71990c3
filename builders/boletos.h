#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>

#include "base/chance.h"
#include "base/dialog.h"
#include "base/settings.h"
#include "engine/combination.h"

namespace quinteva::builders {

// Lo que piden los procesos de la página Boletos además de la Combinación abierta.
struct EntornoBoletos {
    std::filesystem::path carpetaTrabajo;
    const base::Ajustes& ajustes;
    base::Dialogo& dialogo;
    base::Azar& azar;
};

// El conjunto que se juega: la Condicionada (".cnd" y "Cmb.tmp") o la Reducida (".red" y
// "Red.tmp").
enum class Jugada { Condicionada, Reducida };

// "cnd" o "red": el campo de la cabecera.
std::string_view CampoJugada(Jugada jugada);
// La jugada elegida en la página; lanza base::Error si aún no se eligió.
Jugada JugadaElegida(const engine::Combinacion& combinacion);

// Un Boleto lleva 8 columnas y el último no puede llevar una sola: un total con resto 1 no vale.
inline constexpr std::int64_t kColumnasPorBoleto = 8;
constexpr bool UnaSolaEnElUltimoBoleto(std::int64_t total) {
    return total % kColumnasPorBoleto == 1;
}

// Los dos archivos de un conjunto y sus contadores, que se tocan siempre a la vez.
struct Conjunto {
    std::filesystem::path almacen;   // "Cmb.tmp" o "Red.tmp" en la carpeta de trabajo
    std::filesystem::path guardado;  // ".cnd" o ".red" junto a RutaCombinacion
    std::int32_t& total;
    std::int32_t& activas;
};
// Lanza base::Error si la Combinación no tiene archivo.
Conjunto ConjuntoDe(engine::Combinacion& combinacion, Jugada jugada,
                    const std::filesystem::path& carpetaTrabajo);

// Lanza base::Error si el conjunto no tiene columnas o falta su archivo guardado.
void ExigirColumnasGuardadas(const Conjunto& conjunto, Jugada jugada);

// "Apuestas que se juegan en total ": las activas del conjunto.
std::int32_t ApuestasJugadas(const engine::Combinacion& combinacion, Jugada jugada);

// La Reducida: ActivasReducidas en la fila NivelReducida y su precio.
void PrecioRed(engine::Combinacion& combinacion, const base::Ajustes& ajustes);
// engine::PrecioComb o PrecioRed según el conjunto que se juega.
void MostrarPrecio(engine::Combinacion& combinacion, Jugada jugada, const base::Ajustes& ajustes);

inline constexpr std::string_view kMsgAleatoria = "Se ha añadido una columna aleatóriamente.";
inline constexpr std::string_view kPreguntaAnadirManual =
    "Es preciso agregar una columna para completar el último boleto. Desea añadirla "
    "manualmente?";

// El final de los asistentes de un paso, que dejan la Combinación en la página Boletos.
inline constexpr std::string_view kMsgProcesoTerminado =
    "Proceso terminado. Ya puede imprimir sus boletos";

// Una columna al azar, sin mirar la base: cada signo Int(Rnd x 3) en el orden 1, X, 2.
engine::Columna ColumnaAlAzar(base::Azar& azar);

// AleatoriaCon y AleatoriaRed: una columna al azar, sin mirar la base. En el archivo guardado va
// con el Pleno de su último registro y estado "0"; en el almacén, con tres blancos detrás de los
// signos (sin Pleno ni estado), diferencia que es parte del comportamiento. Lanza base::Error,
// sin tocar nada, si el archivo guardado no tiene columnas.
void AleatoriaCon(engine::Combinacion& combinacion, const EntornoBoletos& entorno);
void AleatoriaRed(engine::Combinacion& combinacion, const EntornoBoletos& entorno);
void Aleatoria(engine::Combinacion& combinacion, Jugada jugada, const EntornoBoletos& entorno);

// La opción del conjunto jugado tal como la ponen los asistentes: el campo de la cabecera del
// ".uxd" (que ya existe) y el de la Combinación, sin las comprobaciones de ElegirJugada.
void MarcarJugada(engine::Combinacion& combinacion, Jugada jugada);

// Elegir "Condicionada" o "Reducida": escribe "cnd" o "red" en la cabecera del ".uxd" y, si las
// activas dejarían una sola columna en el último Boleto, pregunta si se añade a mano; con No, o
// si anadirManual (la ventana de columnas manuales) vuelve sin añadir, añade una al azar. Al
// final muestra la cuenta y el precio del conjunto. Lanza base::Error, sin tocar nada, si el
// conjunto no tiene columnas guardadas.
void ElegirJugada(engine::Combinacion& combinacion, Jugada jugada, const EntornoBoletos& entorno,
                  const std::function<bool()>& anadirManual);

}  // namespace quinteva::builders
