#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>

#include "base/dialog.h"
#include "base/settings.h"
#include "engine/columns.h"
#include "outputs/print_list.h"
#include "outputs/slip_geometry.h"
#include "outputs/slip_marks.h"

namespace quinteva::outputs {

inline constexpr std::string_view kAvisoBoletosApaisada =
    "Por favor introduzca en la impresora boletos de quiniela con su lado ancho al frente, con el "
    "partido uno arriba.";
inline constexpr std::string_view kAvisoBoletosVertical =
    "Por favor introduzca en la impresora boletos de quiniela con su lado estrecho al frente, con "
    "los nombres de los equipos arriba.";
inline constexpr std::string_view kMsgFaltaAjuste =
    "Tiene que introducir un valor en cada uno de los cuatro parámetros de ajuste de la "
    "impresora. Puede restaurar a los valores predeterminados.";

// Los cuatro valores del ajuste de una dirección, en el orden de los campos de la ventana.
using ValoresAjuste = std::array<int, 4>;
// Los cuatro campos tal como están escritos.
using CamposAjuste = std::array<std::string, 4>;

// "Imp", "Apaisada" de fábrica.
Direccion DireccionGuardada(const base::Ajustes& ajustes);
// Los valores guardados de una dirección; de fábrica, los de Apaisada para las dos.
ValoresAjuste ValoresGuardados(const base::Ajustes& ajustes, Direccion direccion);
// Lo que pone "&Restaurar": en Vertical, distinto de lo de fábrica al leer.
ValoresAjuste ValoresDeRestaurar(Direccion direccion);
GeometriaBoleto GeometriaDeBoletos(Direccion direccion, const ValoresAjuste& valores);

// Cómo se imprimen los boletos oficiales: su geometría, sin marco.
DisposicionBoleto DisposicionDeBoletos(Direccion direccion, const ValoresAjuste& valores,
                                       std::string fecha);

// "Imprimir en Boletos oficiales": el ajuste de la impresora con su prueba y la impresión de las
// columnas activas con los avisos, uno por ventana y dirección.
class ImpresionEnBoletos {
  public:
    ImpresionEnBoletos(base::Ajustes& ajustes, base::Dialogo& dialogo);

    Direccion DireccionElegida() const { return direccion_; }
    const GeometriaBoleto& Geometria() const { return geometria_; }

    // El panel de ajuste: los valores guardados de la dirección elegida.
    ValoresAjuste ValoresDe(Direccion direccion) const;
    // Guarda la dirección y los cuatro valores y deriva la geometría; false si falta un valor
    // (con su mensaje). Es lo primero de "&Prueba", "I&mprimir" y "&Aceptar".
    bool Ajustar(Direccion direccion, const CamposAjuste& campos);
    // "&Prueba": lo anterior y las dos "X" de la primera y la última casilla.
    std::optional<Impresion> Prueba(Direccion direccion, const CamposAjuste& campos);
    // "&Aceptar": ajusta y marca "AjusteBoletos". false si falta un valor.
    bool Aceptar(Direccion direccion, const CamposAjuste& campos);

    // "Imprimir &Uno" e ImprimirTodos: nada si el usuario cancela el aviso.
    std::optional<Impresion> ImprimirUno(std::span<const engine::RegistroColumna> activas,
                                         int boleto, const std::string& fecha);
    std::optional<Impresion> ImprimirTodos(std::span<const engine::RegistroColumna> activas,
                                           std::int32_t desde, std::int32_t hasta,
                                           const std::string& fecha);

  private:
    bool Avisar();

    base::Ajustes& ajustes_;
    base::Dialogo& dialogo_;
    Direccion direccion_;
    GeometriaBoleto geometria_;
    std::set<Direccion> avisadas_;
};

// "&Prueba" sin la ventana: las dos "X", "Arial" negrita del 8.
Impresion PaginaDePrueba(Direccion direccion, const ValoresAjuste& valores);

}  // namespace quinteva::outputs
