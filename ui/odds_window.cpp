#include "ui/odds_window.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/qt_text.h"
#include "ui/report_grid.h"

namespace quinteva::ui {

void AnadirProbabilidades(QFormLayout* formulario, const FilasDeProbabilidad& filas,
                          QWidget* madre) {
    for (std::size_t i = 0; i < filas.size(); ++i) {
        auto* valor = new QLabel(Q(filas[i].second), madre);
        valor->setObjectName(QStringLiteral("Probabilidad%1").arg(i));
        valor->setStyleSheet(QStringLiteral("font-weight: bold"));
        valor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        formulario->addRow(Q(filas[i].first), valor);
    }
}

VentanaProbabilidades::VentanaProbabilidades(const std::string& conjunto, const std::string& origen,
                                             const FilasDeProbabilidad& filas, QWidget* madre)
    : QDialog(madre) {
    setObjectName(QStringLiteral("VentanaProbabilidades"));
    setWindowTitle(QStringLiteral("Probabilidades de premio"));
    auto* caja = new QVBoxLayout(this);
    auto* explicacion = new QLabel(Q("Probabilidad de que la mejor columna " + conjunto +
                                     " tenga cada número de aciertos. " + origen),
                                   this);
    explicacion->setObjectName(QStringLiteral("OrigenProbabilidades"));
    explicacion->setWordWrap(true);
    caja->addWidget(explicacion);
    auto* formulario = new QFormLayout;
    AnadirProbabilidades(formulario, filas, this);
    caja->addLayout(formulario);
    BotonAceptar(this, caja);
}

}  // namespace quinteva::ui
