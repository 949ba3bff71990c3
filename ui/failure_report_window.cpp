#include "ui/failure_report_window.h"

#include <QHeaderView>
#include <QLabel>
#include <QResizeEvent>
#include <QTableWidget>
#include <QVBoxLayout>

#include "outputs/failure_report.h"
#include "ui/qt_text.h"
#include "ui/report_grid.h"

namespace quinteva::ui {
namespace {

constexpr int kMenosSegunda = 20;

}  // namespace

VentanaInformeFallos::VentanaInformeFallos(const std::vector<engine::FilaInforme>& filas,
                                           QWidget* madre)
    : QDialog(madre) {
    setObjectName(QStringLiteral("VentanaInformeFallos"));
    setWindowTitle(QStringLiteral("Informe sobre Fallos"));
    auto* caja = new QVBoxLayout(this);
    auto* titulo = new QLabel(Q(outputs::kTituloFallos), this);
    titulo->setObjectName(QStringLiteral("TituloFallos"));
    titulo->setStyleSheet(QStringLiteral("font-weight: bold"));
    caja->addWidget(titulo);
    rejilla_ = RejillaInforme(this, QStringLiteral("RejillaFallos"), static_cast<int>(filas.size()),
                              {Q(outputs::kCabecerasFallos[0]), Q(outputs::kCabecerasFallos[1])});
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const int f = static_cast<int>(i);
        rejilla_->setItem(f, 0, CeldaInforme(Q(filas[i].primera), false, false));
        rejilla_->setItem(f, 1, CeldaInforme(Q(filas[i].segunda), false, false));
    }
    rejilla_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    rejilla_->setMinimumSize(
        rejilla_->fontMetrics().horizontalAdvance(QStringLiteral("Condiciones Generales")) * 5,
        rejilla_->verticalHeader()->defaultSectionSize() * 12);
    rejilla_->installEventFilter(this);
    caja->addWidget(rejilla_);
    BotonAceptar(this, caja);
}

bool VentanaInformeFallos::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == rejilla_ && evento->type() == QEvent::Resize) {
        const int ancho = static_cast<QResizeEvent*>(evento)->size().width();
        rejilla_->setColumnWidth(0, ancho / 5);
        rejilla_->setColumnWidth(1, ancho * 3 / 5 - kMenosSegunda);
    }
    return QDialog::eventFilter(objeto, evento);
}

}  // namespace quinteva::ui
