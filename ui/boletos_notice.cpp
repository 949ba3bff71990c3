#include "ui/boletos_notice.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quinteva::ui {

VentanaAvisoBoletos::VentanaAvisoBoletos(base::Ajustes& ajustes, QWidget* madre)
    : QDialog(madre), ajustes_(ajustes) {
    setObjectName(QStringLiteral("VentanaAvisoBoletos"));
    setWindowTitle(QStringLiteral("Quinteva"));
    auto* caja = new QVBoxLayout(this);
    auto* texto = new QLabel(
        QStringLiteral("Las apuestas están listas. En la página \"Boletos\" se elige qué se "
                       "juega, la Condicionada o la Reducida, se ajusta el número de apuestas y "
                       "se imprimen los boletos o se genera el archivo oficial."),
        this);
    texto->setObjectName(QStringLiteral("TextoAvisoBoletos"));
    texto->setWordWrap(true);
    texto->setMinimumWidth(texto->fontMetrics().horizontalAdvance(QLatin1Char('x')) * 60);
    caja->addWidget(texto);
    noMostrar_ = new QCheckBox(QStringLiteral("No volver a mostrar este aviso"), this);
    noMostrar_->setObjectName(QStringLiteral("CasillaAvBoletos"));
    caja->addWidget(noMostrar_);
    auto* botones = new QDialogButtonBox(this);
    auto* aceptar = botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
    aceptar->setObjectName(QStringLiteral("BotonAceptar"));
    aceptar->setDefault(true);
    connect(botones, &QDialogButtonBox::accepted, this, &QDialog::accept);
    caja->addWidget(botones);
}

void VentanaAvisoBoletos::done(int resultado) {
    if (noMostrar_->isChecked()) ajustes_.Guardar(base::kAplicacion, "Valores", "AvBoletos", "NO");
    QDialog::done(resultado);
}

}  // namespace quinteva::ui
