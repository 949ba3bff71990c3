#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/progress.h"
#include "base/settings.h"
#include "engine/combination.h"
#include "engine/reduction.h"

namespace quinteva::builders {

// Un sistema reducido: un código de recubrimiento de palabras de W caracteres; los "triples"
// primeros son ternarios (1, X, 2) y los "dobles" siguientes binarios (1, X).
struct SistemaReducido {
    int nivel = 0;  // 13, 12 u 11
    int triples = 0;
    int dobles = 0;
    std::vector<std::string> filas;
};

// Los 73 sistemas del programa, en el orden de las tablas de selección.
const std::vector<SistemaReducido>& SistemasReducidos();

// Lee los sistemas de su texto: bloques "sistema NIVEL TRIPLES DOBLES FILAS" seguidos de sus
// filas; las líneas que empiezan por "#" son comentarios. Lanza base::Error si el texto no vale.
std::vector<SistemaReducido> LeerSistemas(std::string_view texto);

// Un tramo de las tablas de selección: con "triples" triples y de dMin a dMax dobles en la base,
// el sistema de nivel, tw triples y du dobles, que muestra "filas" filas (0: no hay sistema).
struct Tramo {
    int nivel, triples, dMin, dMax, filas, tw, du;
};
std::span<const Tramo> TramosSeleccion();

// El sistema que usa la reducción por tablas para un nivel y los triples T y dobles D de la base;
// nada si no hay sistema para esa forma.
const SistemaReducido* ElegirSistema(int nivel, int triples, int dobles);

// ClaseBase: la clase de cada partido de la Quiniela Base en la última reducción por tablas (0
// fijo, 1 doble "1X", 2 doble "12", 3 doble "X2", 4 triple). Sobrevive de una reducción a otra y
// nunca se borra: con la selección de partidos, uno no elegido conserva su clase anterior.
using ClaseBase = std::array<int, engine::kPartidos>;

// Los partidos que entran en la reducción cuando el usuario eligió alguno (SeleccionReduccion).
using SeleccionPartidos = std::optional<std::array<bool, engine::kPartidos>>;

// Clasifica los partidos que entran y devuelve los triples y dobles contados.
struct FormaBase {
    int triples = 0;
    int dobles = 0;
};
FormaBase Clasificar(const engine::QuinielaBase& base, const SeleccionPartidos& seleccion,
                     ClaseBase& clases);

// PatronesReducidos: las filas del sistema llevadas a los 14 partidos (blanco: partido libre).
std::vector<std::string> PatronesReducidos(const SistemaReducido& sistema, const ClaseBase& clases);

// Las columnas que casan con algún patrón: los patrones fijan cada uno los mismos partidos, así que
// una columna casa si su proyección en ellos es la de algún patrón.
class CasaConPatrones {
  public:
    explicit CasaConPatrones(const std::vector<std::string>& patrones);
    // Los signos de una columna (los 14 primeros bytes de un registro).
    bool operator()(std::span<const base::Byte> signos) const;

  private:
    std::vector<std::size_t> fijos_;
    std::vector<bool> permitidos_;
};

// El sistema de las tablas para la forma de la base (sus catorce partidos) al nivel 13, 12 u 11,
// como sus patrones; nada si no hay sistema. Clasifica sobre una copia de la ClaseBase.
std::optional<std::vector<std::string>> PatronesDeLaBase(const engine::QuinielaBase& base,
                                                         int nivel, ClaseBase clases);

// FiltrarPorPatrones: copia a "Red.tmp", en su orden y con estado "0", cada registro de "Cmb.tmp"
// que casa con algún patrón. Devuelve cuántos. Todos los patrones fijan los mismos partidos, así
// que cada registro se busca por su proyección en un conjunto en lugar de probar los patrones uno
// a uno.
std::int32_t FiltrarPorPatrones(const std::vector<std::string>& patrones,
                                const engine::Combinacion& combinacion,
                                const std::filesystem::path& carpetaTrabajo,
                                base::Progreso& progreso);

// ReducirPorTablas al nivel 13, 12 u 11. Sin sistema para la base acaba sin más: "Red.tmp"
// queda borrado y las cuentas en blanco (sinSistema).
struct ResultadoTablas {
    engine::ResultadoReduccion reduccion;
    bool sinSistema = false;
};
ResultadoTablas ReducirPorTablas(engine::Combinacion& combinacion,
                                 const std::filesystem::path& carpetaTrabajo, int nivel,
                                 const SeleccionPartidos& seleccion, ClaseBase& clases,
                                 base::Progreso& progreso, const base::Ajustes& ajustes);

}  // namespace quinteva::builders
