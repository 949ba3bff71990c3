#include "ui/odds_window.h"

#include <QDoubleSpinBox>
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
                                             const engine::ProbabilidadesPremios& premios,
                                             QWidget* madre)
    : QDialog(madre), premios_(premios) {
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
    const auto filas = engine::FilasProbabilidades(premios_);
    AnadirProbabilidades(formulario, filas, this);
    auto* pleno = new QDoubleSpinBox(this);
    pleno->setObjectName(QStringLiteral("CampoPleno"));
    pleno->setRange(0, 100);
    pleno->setDecimals(2);
    pleno->setSuffix(QStringLiteral(" %"));
    pleno->setValue(100 * engine::kPlenoUniforme);
    formulario->addRow(QStringLiteral("Probabilidad del Pleno jugado"), pleno);
    caja->addLayout(formulario);
    auto* filaPleno = findChild<QLabel*>(QStringLiteral("Probabilidad%1").arg(filas.size() - 1));
    connect(pleno, &QDoubleSpinBox::valueChanged, this, [this, filaPleno](double porcentaje) {
        engine::PonerPleno(premios_, porcentaje / 100);
        filaPleno->setText(Q(engine::FilasProbabilidades(premios_).back().second));
    });
    BotonAceptar(this, caja);
}

}  // namespace quinteva::ui
