#include "ui/printer_select_window.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPrinterInfo>
#include <QPushButton>

#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

namespace {

const QString kPredeterminada = QStringLiteral("Predeterminada del sistema");

}  // namespace

VentanaSeleccionImpresora::VentanaSeleccionImpresora(base::Ajustes& ajustes, QWidget* madre)
    : QDialog(madre), ajustes_(ajustes) {
    setObjectName(QStringLiteral("VentanaSeleccionImpresora"));
    setWindowTitle(QStringLiteral("Seleccionar Impresora"));
    auto* caja = new QVBoxLayout(this);
    caja->addWidget(
        new QLabel(QStringLiteral("Seleccione la impresora que va a utilizar con Quinteva"), this));
    lista_ = new QListWidget(this);
    lista_->setObjectName(QStringLiteral("ListaImpresoras"));
    lista_->addItems(QPrinterInfo::availablePrinterNames());
    lista_->addItem(kPredeterminada);
    caja->addWidget(lista_, 1);
    caja->addWidget(new QLabel(QStringLiteral("Impresora seleccionada actualmente:"), this));
    actual_ = new QLabel(Q(ajustes_.Leer(base::kAplicacion, "Valores", "Impresora", "")), this);
    actual_->setObjectName(QStringLiteral("ImpresoraActual"));
    QFont negrita = actual_->font();
    negrita.setBold(true);
    actual_->setFont(negrita);
    caja->addWidget(actual_);
    connect(lista_, &QListWidget::itemClicked, this, [this](QListWidgetItem* elegida) {
        ajustes_.Guardar(base::kAplicacion, "Valores", "Impresora", S(elegida->text()));
        actual_->setText(elegida->text());
    });
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar")),
            &QPushButton::clicked, this, &QDialog::accept);
    caja->addLayout(botones);
    resize(420, 320);
}

}  // namespace quinteva::ui
