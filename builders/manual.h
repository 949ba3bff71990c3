#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "builders/boletos.h"
#include "engine/columns.h"

namespace quinteva::builders {

// Las dos ventanas de columnas manuales trabajan en el conjunto que se juega y escriben a la vez
// el almacén y el archivo guardado, para que sigan iguales. Excluir nunca quita un registro.

// Cumple: false si la regla elimina la columna. El modo es el índice del primer combo.
enum class ModoRegla { Mas = 0, Menos = 1, Igual = 2 };
enum class SignoRegla { Unos, Equis, Doses, Variantes };
bool Cumple(const engine::Columna& columna, ModoRegla modo, int numero, SignoRegla signo);

// "Añadir columnas manualmente".
inline constexpr std::string_view kMsgFaltanSignos =
    "tiene que introducir todos los signos de la columna.";
inline constexpr std::string_view kPreguntaOtraAMano =
    "Es preciso agregar una columna para completar el último boleto. Desea añadirla "
    "manualmente?.";
// "Esta columna ya está incluida en la combinación, columna " + número (+ la coletilla si está
// excluida).
std::string MsgYaIncluida(std::int32_t numero, bool excluida);

// La ventana de añadir recuerda si cambió algo: quien la abrió añade al azar si vuelve sin.
struct VentanaAnadir {
    bool cambiada = false;
};

enum class Inclusion {
    Rechazada,         // falta un signo o la columna ya estaba
    Incluida,          // añadida y guardada
    OtraAMano,         // añadida; el último Boleto pide otra y el usuario la añadirá a mano
    CompletadaAlAzar,  // añadida, y otra al azar para completar el último Boleto
};

// "&Incluir": las 14 celdas de la rejilla de entrada ("1", "X" o "2"; vacía si falta). Lanza
// base::Error si una celda tiene otra cosa.
Inclusion Incluir(engine::Combinacion& combinacion, const std::array<std::string, 14>& celdas,
                  VentanaAnadir& ventana, const EntornoBoletos& entorno);

// "Eliminar columnas manualmente".
inline constexpr std::string_view kMsgFaltanParametros =
    "Tiene que seleccionar los tres parámetros.";
inline constexpr std::string_view kMsgAcumulativa =
    "Esta eliminación de apuestas es acumulativa a la realizada anteriormente. Para que no sea "
    "acumulativa utilice antes el botón 'Jugar todas'.";
inline constexpr std::string_view kPreguntaMantenerEliminada =
    "El último boleto tiene una sola columna. Desea mantener una de las columnas eliminadas?";
inline constexpr std::string_view kMsgRehabilite =
    "Rehabilite una de las columnas eliminadas pinchando sobre ella con el botón derecho del "
    "ratón.";

// La ventana de eliminar cuenta las eliminaciones por regla desde que se abrió.
struct VentanaEliminar {
    int eliminacionesPorRegla = 0;
};

// Los tres combos; vacío si no se eligió.
struct Regla {
    std::optional<ModoRegla> modo;
    std::optional<int> numero;
    std::optional<SignoRegla> signo;
};

// "&Eliminar": marca "1" en los dos archivos cada columna que no Cumple y recuenta las activas;
// una regla nunca devuelve una columna al juego. Devuelve false si no se aplicó.
bool EliminarPorRegla(engine::Combinacion& combinacion, const Regla& regla,
                      VentanaEliminar& ventana, const EntornoBoletos& entorno);
// "Jugar &Todas": todo registro a "0" en los dos archivos; la cuenta vuelve al total.
void JugarTodas(engine::Combinacion& combinacion, VentanaEliminar& ventana,
                const EntornoBoletos& entorno);
// "Jugar columna" / "No jugar columna" del registro dado, en los dos archivos.
void JugarColumna(engine::Combinacion& combinacion, std::int32_t numero, bool jugar,
                  const EntornoBoletos& entorno);
// El registro de una columna de la rejilla (desde 1): inicio de página + columna - 1, con inicio
// de página = columnas por página x valor del scroll - columnas por página + 1.
std::int32_t RegistroDeRejilla(int columnasPorPagina, int valorScroll, int columnaRejilla);
// Escrol: los registros del almacén de "desde" en adelante, "cuantos" como mucho.
std::vector<engine::RegistroColumna> PaginaDeColumnas(engine::Combinacion& combinacion,
                                                      std::int32_t desde, std::int32_t cuantos,
                                                      const EntornoBoletos& entorno);
// Cerrar la ventana de eliminar: si el último Boleto queda con una sola columna pregunta si se
// rehabilita una (y entonces la ventana sigue abierta) o si se añade otra, a mano (abrirAnadir,
// la ventana de añadir) o al azar; luego Guardar y la cuenta con su precio. Devuelve si se cierra.
bool CerrarEliminar(engine::Combinacion& combinacion, const EntornoBoletos& entorno,
                    const std::function<void()>& abrirAnadir);

}  // namespace quinteva::builders
