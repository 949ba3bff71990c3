#pragma once

#include <QDialog>

#include "base/settings.h"

class QLabel;
class QListWidget;

namespace quinteva::ui {

// La selección de impresora: las del sistema y "Predeterminada del sistema"; la que se elige se
// guarda en el acto en "Impresora" y se muestra.
class VentanaSeleccionImpresora : public QDialog {
    Q_OBJECT

  public:
    explicit VentanaSeleccionImpresora(base::Ajustes& ajustes, QWidget* madre = nullptr);

  private:
    base::Ajustes& ajustes_;
    QListWidget* lista_ = nullptr;
    QLabel* actual_ = nullptr;
};

}  // namespace quinteva::ui
