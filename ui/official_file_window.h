#pragma once

#include <QDialog>

#include "base/dialog.h"
#include "base/settings.h"
#include "outputs/official_generation.h"

class QLineEdit;

namespace quinteva::ui {

// "Generar fichero oficial" desde la ventana principal: el Receptor, el nombre del archivo y
// "&Generar". La petición trae ya las columnas, el archivo del que salen y el año; el Receptor
// empieza con el último usado.
class VentanaArchivoOficial : public QDialog {
    Q_OBJECT

  public:
    VentanaArchivoOficial(outputs::PeticionPrincipal peticion, base::Dialogo& dialogo,
                          base::Ajustes& ajustes, QWidget* madre = nullptr);

  private:
    void Generar();

    outputs::PeticionPrincipal peticion_;
    base::Dialogo& dialogo_;
    base::Ajustes& ajustes_;
    QLineEdit* receptor_;
    QLineEdit* nombre_;
};

}  // namespace quinteva::ui
