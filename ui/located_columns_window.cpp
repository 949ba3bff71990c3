#include "ui/located_columns_window.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "outputs/printed_reports.h"
#include "ui/qt_text.h"
#include "ui/report_grid.h"

namespace quinteva::ui {
VentanaColumnasAcertadas::VentanaColumnasAcertadas(std::vector<outputs::FilaLocalizada> filas,
                                                   std::string jornada, Imprimir imprimir,
                                                   QWidget* madre)
    : QDialog(madre) {
    setObjectName(QStringLiteral("VentanaColumnasAcertadas"));
    setWindowTitle(Q(outputs::kTituloLocalizadas));
    auto* caja = new QVBoxLayout(this);
    auto* titulo = new QLabel(Q(outputs::kTituloLocalizadas), this);
    titulo->setStyleSheet(QStringLiteral("font-weight: bold"));
    caja->addWidget(titulo);
    QStringList cabeceras;
    for (const auto c : outputs::kCabecerasLocalizadas) cabeceras << Q(c);
    auto* r = RejillaInforme(this, QStringLiteral("RejillaLocalizadas"),
                             static_cast<int>(filas.size()), cabeceras);
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const int f = static_cast<int>(i);
        r->setItem(f, 0, CeldaInforme(Q(filas[i].boleto), false, true));
        r->setItem(f, 1, CeldaInforme(Q(filas[i].columna), false, true));
        r->setItem(f, 2, CeldaInforme(Q(filas[i].aciertos), false, true));
    }
    const int ancho = r->fontMetrics().horizontalAdvance(QStringLiteral("Aciertos")) + 40;
    for (int c = 0; c < 3; ++c) r->setColumnWidth(c, ancho);
    r->horizontalHeader()->setStretchLastSection(true);
    r->setMinimumSize(3 * ancho + 30, r->verticalHeader()->defaultSectionSize() * 14);
    caja->addWidget(r);
    connect(
        BotonesListado(this, caja), &QPushButton::clicked, this,
        [filas = std::move(filas), jornada = std::move(jornada), imprimir = std::move(imprimir)] {
            imprimir(outputs::ImpresionColumnasLocalizadas(jornada, filas));
        });
}

}  // namespace quinteva::ui
