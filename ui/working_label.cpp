#include "ui/working_label.h"

#include <QApplication>

namespace quinteva::ui {

EtiquetaTrabajo::EtiquetaTrabajo(QWidget* madre)
    : QLabel(QStringLiteral("Generando columnas..."), madre) {
    setObjectName(QStringLiteral("EtiquetaTrabajando"));
    hide();
}

EtiquetaTrabajo::~EtiquetaTrabajo() { Trabajando(false); }

void EtiquetaTrabajo::Trabajando(bool trabajando) {
    setVisible(trabajando);
    if (trabajando == esperando_) return;
    esperando_ = trabajando;
    if (trabajando) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

}  // namespace quinteva::ui
