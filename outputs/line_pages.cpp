#include "outputs/line_pages.h"

#include "outputs/pdf_writer.h"
#include "outputs/text_width.h"

namespace quinteva::outputs {

HojaDeLineas::HojaDeLineas(Pie pie, float izquierda, float arriba)
    : pie_(std::move(pie)), izquierda_(izquierda), arriba_(arriba), y_(arriba) {}

void HojaDeLineas::Sitio(float alto) {
    if (y_ + alto <= kAltoA4 - kMargen) return;
    if (pie_) pie_(hoja_, pagina_);
    hoja_.NuevaPagina();
    ++pagina_;
    y_ = arriba_;
}

void HojaDeLineas::Reservar(int lineas, int tamano) {
    Sitio(static_cast<float>(lineas) * Impresion::AltoDeLinea(tamano));
}

void HojaDeLineas::Linea(std::string_view texto, std::string_view fuente, int tamano,
                         bool negrita) {
    Sitio(Impresion::AltoDeLinea(tamano));
    hoja_.Fuente(fuente, tamano, negrita);
    hoja_.Texto(izquierda_, y_, texto);
    y_ = hoja_.YActual();
}

void HojaDeLineas::Par(std::string_view primero, std::string_view segundo, float columna,
                       std::string_view fuente, int tamano) {
    Sitio(Impresion::AltoDeLinea(tamano));
    hoja_.Fuente(fuente, tamano, false);
    hoja_.Texto(izquierda_, y_, primero);
    hoja_.Negrita(true);
    hoja_.Texto(izquierda_ + columna, y_, segundo);
    y_ = hoja_.YActual();
}

void HojaDeLineas::Fila(std::span<const std::string> celdas, std::span<const ColumnaTabla> columnas,
                        std::string_view fuente, int tamano, bool negrita) {
    Sitio(Impresion::AltoDeLinea(tamano));
    hoja_.Fuente(fuente, tamano, negrita);
    float x = izquierda_;
    for (std::size_t i = 0; i < celdas.size() && i < columnas.size(); ++i) {
        const float libre = columnas[i].ancho - AnchoDeTexto(celdas[i], fuente, tamano, negrita);
        const float desde = columnas[i].alineacion == Alineacion::Izquierda ? 0.0F
                            : columnas[i].alineacion == Alineacion::Centro  ? libre / 2.0F
                                                                            : libre;
        if (!celdas[i].empty()) hoja_.Texto(x + desde, y_, celdas[i]);
        x += columnas[i].ancho;
    }
    y_ += Impresion::AltoDeLinea(tamano);
}

Impresion HojaDeLineas::Terminar() {
    if (pie_) pie_(hoja_, pagina_);
    return std::move(hoja_);
}

}  // namespace quinteva::outputs
