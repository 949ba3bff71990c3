#pragma once

#include <QDialog>

#include "base/settings.h"

class QCheckBox;
class QLineEdit;

namespace quinteva::ui {

// Lo que se ve de un ajuste de sí o no: "True" (el valor por defecto), "-1" y "1" son sí.
bool AjusteActivo(const base::Ajustes& ajustes, std::string_view clave);

// La ventana "Opciones": ver el contador y la barra al generar y al reducir, y el precio de una
// columna. El campo del precio admite solo cifras y la coma; Intro acepta.
class VentanaOpciones : public QDialog {
    Q_OBJECT

  public:
    explicit VentanaOpciones(base::Ajustes& ajustes, QWidget* madre = nullptr);
    void accept() override;

  private:
    base::Ajustes& ajustes_;
    QCheckBox* verAp1_;
    QCheckBox* verBar1_;
    QCheckBox* verR_;
    QCheckBox* verBar2_;
    QLineEdit* precio_;
};

}  // namespace quinteva::ui
