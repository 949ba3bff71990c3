#pragma once

#include <QDialog>

#include "base/settings.h"

class QCheckBox;

namespace quinteva::ui {

// El aviso sobre los Boletos que sale tras generar o reducir mientras "AvBoletos" sea "SI": al
// cerrarse con su casilla marcada guarda "NO".
class VentanaAvisoBoletos : public QDialog {
    Q_OBJECT

  public:
    explicit VentanaAvisoBoletos(base::Ajustes& ajustes, QWidget* madre = nullptr);
    void done(int resultado) override;

  private:
    base::Ajustes& ajustes_;
    QCheckBox* noMostrar_;
};

}  // namespace quinteva::ui
