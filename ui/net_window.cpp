#include "ui/net_window.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>

#include "seasons/update.h"
#include "ui/qt_text.h"

namespace quinteva::ui {

VentanaDeRed::VentanaDeRed(base::Ajustes& ajustes, base::Dialogo& dialogo, QWidget* madre)
    : QDialog(madre), ajustes_(ajustes), dialogo_(dialogo), flujo_(new FlujoDeRed(dialogo, this)) {
    connect(flujo_, &FlujoDeRed::terminado, this, [this] { Terminado(); });
}

void VentanaDeRed::FilaServidor(QBoxLayout* columna) {
    auto* fila = new QHBoxLayout;
    fila->addWidget(new QLabel(QStringLiteral("Servidor:"), this));
    servidor_ = new QLineEdit(Q(seasons::ServidorDeActualizaciones(ajustes_).value_or("")), this);
    servidor_->setObjectName(QStringLiteral("Servidor"));
    servidor_->setPlaceholderText(QStringLiteral("https://servidor.es"));
    fila->addWidget(servidor_, 1);
    columna->addLayout(fila);
}

void VentanaDeRed::Empezar(std::function<void(base::Red&, base::Dialogo&)> flujo) {
    if (flujo_->EnCurso()) return;
    seasons::GuardarServidorDeActualizaciones(ajustes_, S(servidor_->text()));
    const auto servidor = seasons::ServidorDeActualizaciones(ajustes_);
    if (!servidor) {
        dialogo_.Mensaje(kMsgSinServidor, base::Icono::Aviso);
        return;
    }
    servidor_->setText(Q(*servidor));
    flujo_->Empezar(Q(*servidor), std::move(flujo));
}

void VentanaDeRed::closeEvent(QCloseEvent* evento) {
    if (flujo_->EnCurso()) {
        evento->ignore();
        return;
    }
    QDialog::closeEvent(evento);
}

}  // namespace quinteva::ui
