#include "ui/blinking_greeting.h"

namespace quinteva::ui {

SaludoParpadeante::SaludoParpadeante(QWidget* madre) : QLabel(madre) {
    setObjectName(QStringLiteral("Saludo"));
    setAlignment(Qt::AlignCenter);
    setStyleSheet(QStringLiteral("color: #c00000; font-size: 16pt; font-weight: bold"));
    QSizePolicy politica = sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    setSizePolicy(politica);
    turno_.setObjectName(QStringLiteral("TemporizadorSaludo"));
    turno_.setParent(this);
    turno_.setInterval(kIntervalo);
    connect(&turno_, &QTimer::timeout, this, &SaludoParpadeante::Turno);
    Encender(false);
}

void SaludoParpadeante::Parpadear(const QString& texto) {
    setText(texto);
    veces_ = 1;
    Encender(true);
    turno_.start();
}

void SaludoParpadeante::Detener() {
    if (!turno_.isActive()) return;
    turno_.stop();
    Encender(true);
}

void SaludoParpadeante::Ocultar() {
    turno_.stop();
    Encender(false);
}

void SaludoParpadeante::Turno() {
    Encender(!encendido_);
    if (!encendido_) return;
    if (++veces_ >= kVecesParpadeo) turno_.stop();
}

void SaludoParpadeante::Encender(bool encendido) {
    encendido_ = encendido;
    setVisible(encendido);
}

}  // namespace quinteva::ui
