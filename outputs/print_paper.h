#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "base/dialog.h"
#include "base/settings.h"
#include "engine/columns.h"
#include "outputs/print_list.h"
#include "outputs/slip_geometry.h"
#include "outputs/slip_marks.h"

namespace quinteva::outputs {

inline constexpr std::string_view kAvisoDorsoVertical =
    "Por favor introduzca en la impresora boletos en vertical, para imprimir por el dorso. "
    "Compruebe que las marcas del lateral izquierdo e inferiores queden dentro del boleto y más o "
    "menos en la posición original, en caso contrario varíe los márgenes en el Ajuste de "
    "impresión.";
inline constexpr std::string_view kAvisoDorsoApaisada =
    "Por favor introduzca en la impresora boletos apaisados, para imprimir por el dorso. "
    "Compruebe que las marcas del lateral izquierdo e inferiores queden dentro del boleto y más o "
    "menos en la posición original, en caso contrario varíe los márgenes en el Ajuste de "
    "impresión.";
inline constexpr std::string_view kAvisoPapelBlanco =
    "Por favor introduzca en la impresora papel blanco. Compruebe que las marcas del lateral "
    "izquierdo e inferiores queden dentro del boleto y más o menos en la posición original, en "
    "caso contrario varíe los márgenes en el Ajuste de impresión.";
inline constexpr std::string_view kNotaRecortar =
    "Si no imprime en el dorso de los boletos debe recortar por las líneas de puntos";

// El ajuste del papel blanco: el boleto en twips, los márgenes en milímetros y si se imprime en
// el dorso de boletos oficiales.
struct AjustePapel {
    int ancho = 8335;  // "DH"
    int alto = 4139;   // "DV"
    float margenIzquierdo = 30;
    float margenSuperior = 40;
    bool dorso = false;  // "DB" = "1" e "ImpDorsoBoleto" = "V"

    friend bool operator==(const AjustePapel&, const AjustePapel&) = default;
};

AjustePapel AjustePapelGuardado(const base::Ajustes& ajustes);
// Un milímetro son 56,7 twips; el resultado, redondeado.
int MilimetrosATwips(float milimetros);
GeometriaBoleto GeometriaDePapel(Direccion direccion, const AjustePapel& ajuste);

// ImpBaseQ: el marco del boleto, desplazado hacia abajo lo dado (el segundo de una hoja con dos):
// una marca bajo cada casilla, para comprobar el ajuste, y, si no es el dorso de un boleto, el
// borde de puntos por donde se recorta y la nota de recortar.
void ImpBaseQ(Impresion& hoja, Direccion direccion, const AjustePapel& ajuste, float abajo = 0);

// Cómo se imprimen los boletos en papel blanco: su geometría y, antes de cada uno, ImpBaseQ; con
// dos por hoja (folios o A4), el segundo en la mitad de abajo con los mismos desplazamientos.
DisposicionBoleto DisposicionDePapel(Direccion direccion, const AjustePapel& ajuste,
                                     std::string fecha, int boletosPorHoja = 1);

// "Imprimir en papel blanco": las mismas columnas que en los boletos, con el marco de cada uno
// salvo en el dorso, y su aviso una vez por ventana.
class ImpresionEnPapel {
  public:
    ImpresionEnPapel(base::Ajustes& ajustes, base::Dialogo& dialogo, Direccion direccion);

    const AjustePapel& Ajuste() const { return ajuste_; }
    Direccion DireccionElegida() const { return direccion_; }
    void ElegirDireccion(Direccion direccion);
    // Guarda los seis valores y deriva la geometría ("&Prueba" e "I&mprimir" del ajuste).
    void Ajustar(const AjustePapel& ajuste);
    // "&Aceptar" del ajuste: lo anterior y "AjustePapel" a "SI".
    void Aceptar(const AjustePapel& ajuste);
    // "&Prueba": el marco de un boleto sin columnas, para comparar sus marcas con el papel.
    Impresion Prueba() const;

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
    AjustePapel ajuste_;
    bool avisado_ = false;
};

}  // namespace quinteva::outputs
