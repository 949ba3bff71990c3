#include "ui/printing.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QPrinter>
#include <QPrinterInfo>

#include "ui/qt_text.h"

namespace quinteva::ui {

namespace {

constexpr double kTwipsPorPulgada = 1440.0;
constexpr std::string_view kPredeterminada = "Predeterminada del sistema";
constexpr std::string_view kSinImpresoras = "No hay ninguna impresora instalada en el sistema.";

QFont Fuente(const outputs::TextoImpreso& t, QPaintDevice* dispositivo) {
    QFont fuente(Q(t.fuente), -1, t.negrita ? QFont::Bold : QFont::Normal);
    fuente.setPointSizeF(t.tamano);
    // Donde no estén "Arial" o "Courier New", una de su familia: de paso fijo o de palo seco.
    fuente.setStyleHint(t.fuente.starts_with("Courier") ? QFont::TypeWriter : QFont::Helvetica);
    return QFont(fuente, dispositivo);
}

}  // namespace

void PintarPagina(QPainter& pintor, const outputs::Impresion& impresion, int pagina,
                  double resolucion) {
    const double escala = resolucion / kTwipsPorPulgada;
    pintor.save();
    QPen pluma(Qt::black);
    pluma.setWidthF(resolucion / 96.0);
    for (const auto& t : impresion.TrazosDePagina(pagina)) {
        pluma.setStyle(t.punteado ? Qt::DotLine : Qt::SolidLine);
        pintor.setPen(pluma);
        pintor.drawLine(QPointF(t.x1 * escala, t.y1 * escala),
                        QPointF(t.x2 * escala, t.y2 * escala));
    }
    pintor.setPen(Qt::black);
    for (const auto& t : impresion.TextosDePagina(pagina)) {
        const QFont fuente = Fuente(t, pintor.device());
        pintor.setFont(fuente);
        const double base = t.y * escala + QFontMetricsF(fuente, pintor.device()).ascent();
        pintor.drawText(QPointF(t.x * escala, base), Q(t.texto));
    }
    pintor.restore();
}

void ImprimirEn(QPrinter& impresora, const outputs::Impresion& impresion) {
    impresora.setFullPage(true);
    QPainter pintor(&impresora);
    const int paginas = std::max(impresion.Paginas(), 1);
    for (int p = 1; p <= paginas; ++p) {
        if (p > 1) impresora.newPage();
        PintarPagina(pintor, impresion, p, impresora.resolution());
    }
}

void ElegirImpresora(QPrinter& impresora, const base::Ajustes& ajustes) {
    const QString nombre = Q(ajustes.Leer(base::kAplicacion, "Valores", "Impresora", ""));
    if (nombre.isEmpty() || nombre == Q(kPredeterminada)) return;
    for (const QPrinterInfo& info : QPrinterInfo::availablePrinters()) {
        if (info.printerName() == nombre) {
            impresora.setPrinterName(nombre);
            return;
        }
    }
}

Imprimir ImpresoraDelSistema(const base::Ajustes& ajustes, base::Dialogo& dialogo) {
    return [&ajustes, &dialogo](const outputs::Impresion& impresion) {
        if (QPrinterInfo::availablePrinters().isEmpty()) {
            dialogo.Mensaje(kSinImpresoras, base::Icono::Aviso);
            return;
        }
        QPrinter impresora(QPrinter::HighResolution);
        ElegirImpresora(impresora, ajustes);
        ImprimirEn(impresora, impresion);
    };
}

}  // namespace quinteva::ui
