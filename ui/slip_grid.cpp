#include "ui/slip_grid.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include "ui/qt_text.h"

namespace quinteva::ui {

namespace {

constexpr int kAnchoColumna = 34;

}  // namespace

RejillaBoleto::RejillaBoleto(QWidget* madre) : QWidget(madre) {
    auto* caja = new QVBoxLayout(this);
    caja->setContentsMargins(0, 0, 0, 0);
    auto* datos = new QFormLayout;
    numero_ = new QLabel(this);
    numero_->setObjectName(QStringLiteral("NumeroBoleto"));
    datos->addRow(QStringLiteral("BOLETO Nº"), numero_);
    pleno_ = new QLabel(this);
    pleno_->setObjectName(QStringLiteral("PlenoBoleto"));
    datos->addRow(QStringLiteral("Triple al 15"), pleno_);
    caja->addLayout(datos);

    rejilla_ = new QTableWidget(engine::kPartidos, outputs::kColumnasPorBoleto, this);
    rejilla_->setObjectName(QStringLiteral("RejillaBoleto"));
    QStringList filas;
    for (int p = 1; p <= engine::kPartidos; ++p) filas << QString::number(p);
    rejilla_->setVerticalHeaderLabels(filas);
    QStringList columnas;
    for (int c = 1; c <= outputs::kColumnasPorBoleto; ++c) columnas << QString::number(c);
    rejilla_->setHorizontalHeaderLabels(columnas);
    rejilla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla_->setSelectionMode(QAbstractItemView::NoSelection);
    rejilla_->setFocusPolicy(Qt::NoFocus);
    rejilla_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    rejilla_->horizontalHeader()->setDefaultSectionSize(kAnchoColumna);
    rejilla_->setFixedWidth(rejilla_->verticalHeader()->sizeHint().width() +
                            outputs::kColumnasPorBoleto * kAnchoColumna + 4);
    rejilla_->setFixedHeight(rejilla_->horizontalHeader()->sizeHint().height() +
                             engine::kPartidos * rejilla_->verticalHeader()->defaultSectionSize() +
                             4);
    caja->addWidget(rejilla_);
    barra_ = new QScrollBar(Qt::Horizontal, this);
    barra_->setObjectName(QStringLiteral("BarraBoletos"));
    barra_->setPageStep(1);
    caja->addWidget(barra_);
    connect(barra_, &QScrollBar::valueChanged, this,
            [this](int valor) { emit boletoElegido(valor + 1); });
}

void RejillaBoleto::PonerBoletos(std::int32_t boletos) {
    barra_->setRange(0, std::max(0, boletos - 1));
    barra_->setValue(0);
}

void RejillaBoleto::Mostrar(const outputs::BoletoEnPantalla& boleto) {
    rejilla_->clearContents();
    for (int c = 0; c < static_cast<int>(boleto.columnas.size()); ++c) {
        const std::string& signos = boleto.columnas[static_cast<std::size_t>(c)];
        for (int p = 0; p < engine::kPartidos; ++p) {
            auto* celda = new QTableWidgetItem(QString(QChar(signos[static_cast<std::size_t>(p)])));
            celda->setTextAlignment(Qt::AlignCenter);
            rejilla_->setItem(p, c, celda);
        }
    }
    pleno_->setText(Q(boleto.pleno));
    numero_->setText(QStringLiteral(" ") + Q(boleto.numero));
}

int RejillaBoleto::Boleto() const { return barra_->value() + 1; }

std::int32_t RejillaBoleto::Boletos() const { return barra_->maximum() + 1; }

}  // namespace quinteva::ui
