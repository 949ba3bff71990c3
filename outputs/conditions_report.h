#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/settings.h"
#include "engine/combination.h"
#include "outputs/print_list.h"

namespace quinteva::outputs {

inline constexpr std::string_view kTituloCondiciones = "Quinteva - Condiciones de la Combinación";

// DatosPrevios: el almacén que se juega ("red" en la cabecera, las reducidas; si no, las
// generadas), su total y sus activas, el precio de una columna y, por partido, cuántos registros
// del almacén (activos o no) llevan cada signo.
struct DatosPrevios {
    // "Reducida al 13" ... "Reducida al 10", o "Sin reducir".
    std::string reduccion;
    std::int32_t total = 0;
    std::int32_t activas = 0;
    float precioColumna = 0.75F;
    std::array<std::array<std::int32_t, 3>, engine::kPartidos> signos{};
};
DatosPrevios LeerDatosPrevios(const engine::Combinacion& combinacion,
                              const std::filesystem::path& carpetaTrabajo,
                              const base::Ajustes& ajustes);

// La línea del resumen: la reducción, las eliminadas a mano y las jugadas con su importe.
std::string LineaResumen(const DatosPrevios& datos);

// "Quinteva [Condiciones]": el título, la Jornada, el resumen, la Quiniela Base con los
// porcentajes de cada signo, y cada familia activa en su orden; en cada página la cabecera de la
// Jornada a la derecha, el pie "Página n" y la línea del producto.
struct CabeceraCondiciones {
    int jornada = 0;
    std::string fecha;
    std::string nombre;
};
Impresion InformeCondiciones(const engine::Combinacion& combinacion,
                             const CabeceraCondiciones& cabecera, const DatosPrevios& datos);

}  // namespace quinteva::outputs
