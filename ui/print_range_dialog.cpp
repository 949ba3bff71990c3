#include "ui/print_range_dialog.h"

#include <QBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

VentanaSeleccionImpresion::VentanaSeleccionImpresion(std::int32_t ultimoBoleto,
                                                     base::Dialogo& dialogo, QWidget* madre)
    : QDialog(madre), ultimoBoleto_(ultimoBoleto), dialogo_(dialogo) {
    setObjectName(QStringLiteral("VentanaSeleccionImpresion"));
    setWindowTitle(QStringLiteral("Selección de Impresión"));
    auto* caja = new QVBoxLayout(this);
    todos_ = new QRadioButton(QStringLiteral("Todos los boletos"), this);
    todos_->setObjectName(QStringLiteral("OpcionTodos"));
    todos_->setChecked(true);
    caja->addWidget(todos_);
    auto* fila = new QHBoxLayout;
    auto* desdeBoleto = new QRadioButton(QStringLiteral("Desde boleto"), this);
    desdeBoleto->setObjectName(QStringLiteral("OpcionDesde"));
    fila->addWidget(desdeBoleto);
    const auto campo = [this, fila](const char* nombre) {
        auto* c = new QLineEdit(this);
        c->setObjectName(QString::fromLatin1(nombre));
        c->setValidator(new QIntValidator(1, ultimoBoleto_, c));
        c->setMaximumWidth(80);
        c->setEnabled(false);
        fila->addWidget(c);
        return c;
    };
    desde_ = campo("CampoDesde");
    fila->addWidget(new QLabel(QStringLiteral("hasta"), this));
    hasta_ = campo("CampoHasta");
    fila->addStretch();
    caja->addLayout(fila);
    connect(desdeBoleto, &QRadioButton::toggled, this, [this](bool marcado) {
        desde_->setEnabled(marcado);
        hasta_->setEnabled(marcado);
    });
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Aceptar"), QStringLiteral("BotonAceptar")),
            &QPushButton::clicked, this, &VentanaSeleccionImpresion::Aceptar);
    connect(
        BotonVentana(this, botones, QStringLiteral("&Cancelar"), QStringLiteral("BotonCancelar")),
        &QPushButton::clicked, this, &QDialog::reject);
    caja->addLayout(botones);
}

void VentanaSeleccionImpresion::Abrir(QWidget* madre, std::int32_t ultimoBoleto,
                                      base::Dialogo& dialogo,
                                      std::function<void(outputs::RangoDeColumnas)> imprimir) {
    auto* rango = new VentanaSeleccionImpresion(ultimoBoleto, dialogo, madre);
    rango->setAttribute(Qt::WA_DeleteOnClose);
    connect(rango, &VentanaSeleccionImpresion::elegido, madre, std::move(imprimir));
    rango->open();
}

void VentanaSeleccionImpresion::Aceptar() {
    const auto rango = outputs::RangoDeImpresion(dialogo_, todos_->isChecked(), S(desde_->text()),
                                                 S(hasta_->text()), ultimoBoleto_);
    if (!rango) return;
    accept();
    emit elegido(*rango);
}

}  // namespace quinteva::ui
