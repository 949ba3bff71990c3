#include "ui/text_type_window.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quinteva::ui {

VentanaTipoArchivo::VentanaTipoArchivo(QWidget* madre) : QDialog(madre) {
    setObjectName(QStringLiteral("VentanaTipoArchivo"));
    setWindowTitle(QStringLiteral("Quinteva [Tipo de archivo]"));
    auto* caja = new QVBoxLayout(this);
    caja->addWidget(new QLabel(
        QStringLiteral("Seleccione la configuración del archivo de texto que desee generar"),
        this));
    const std::array<QString, 3> textos = {QStringLiteral("Texto con separadores"),
                                           QStringLiteral("Texto en columna"),
                                           QStringLiteral("Texto continuo")};
    for (std::size_t i = 0; i < textos.size(); ++i) {
        opciones_[i] = new QRadioButton(textos[i], this);
        opciones_[i]->setObjectName(QStringLiteral("OpcionTipo%1").arg(i + 1));
        caja->addWidget(opciones_[i]);
    }
    opciones_[0]->setChecked(true);
    auto* botones = new QDialogButtonBox(this);
    auto* aceptar = botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
    aceptar->setObjectName(QStringLiteral("BotonAceptar"));
    aceptar->setDefault(true);
    auto* cancelar = botones->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    cancelar->setObjectName(QStringLiteral("BotonCancelar"));
    connect(botones, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
    caja->addWidget(botones);
}

void VentanaTipoArchivo::accept() {
    int codigo = 0;
    for (std::size_t i = 0; i < opciones_.size(); ++i) {
        if (opciones_[i]->isChecked()) codigo = static_cast<int>(i) + 1;
    }
    QDialog::accept();
    emit elegido(codigo);
}

}  // namespace quinteva::ui
