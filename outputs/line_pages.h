#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "outputs/print_list.h"

namespace quinteva::outputs {

// Una columna de una tabla: su alineación y su ancho en twips.
enum class Alineacion { Izquierda, Centro, Derecha };
struct ColumnaTabla {
    Alineacion alineacion = Alineacion::Izquierda;
    float ancho = 0;
};

// Texto que baja línea a línea por hojas A4 desde el margen, y pasa a la hoja siguiente antes
// del margen de abajo; cada hoja puede llevar su pie.
class HojaDeLineas {
  public:
    using Pie = std::function<void(Impresion& hoja, int pagina)>;
    explicit HojaDeLineas(Pie pie = {}, float izquierda = kMargen, float arriba = kMargen);

    void Linea(std::string_view texto, std::string_view fuente, int tamano, bool negrita);
    // Dos textos en la misma línea: el segundo donde empieza la columna dada (twips desde el
    // margen).
    void Par(std::string_view primero, std::string_view segundo, float columna,
             std::string_view fuente, int tamano);
    // Una fila de una tabla: cada celda en su columna, una tras otra desde el margen.
    void Fila(std::span<const std::string> celdas, std::span<const ColumnaTabla> columnas,
              std::string_view fuente, int tamano, bool negrita);
    void Blanco(int tamano) { y_ += Impresion::AltoDeLinea(tamano); }
    // Pasa a la hoja siguiente si no caben n líneas de ese tamaño.
    void Reservar(int lineas, int tamano);
    Impresion Terminar();

    static constexpr float kMargen = 1440.0F;

  private:
    void Sitio(float alto);

    Pie pie_;
    float izquierda_;
    float arriba_;
    Impresion hoja_;
    int pagina_ = 1;
    float y_;
};

}  // namespace quinteva::outputs
