#pragma once

#include <QDialog>
#include <variant>

#include "base/dialog.h"
#include "base/settings.h"
#include "outputs/official_generation.h"

class QLineEdit;

namespace quinteva::ui {

// "Generar fichero oficial" desde la ventana principal o desde la de importación: el Receptor, el
// nombre del archivo y "&Generar". La petición trae ya las columnas y de dónde salen; el
// Receptor empieza con el último usado.
class VentanaArchivoOficial : public QDialog {
    Q_OBJECT

  public:
    using Peticion = std::variant<outputs::PeticionPrincipal, outputs::PeticionImportacion>;
    VentanaArchivoOficial(Peticion peticion, base::Dialogo& dialogo, base::Ajustes& ajustes,
                          QWidget* madre = nullptr);

  private:
    void Generar();

    Peticion peticion_;
    base::Dialogo& dialogo_;
    base::Ajustes& ajustes_;
    QLineEdit* receptor_;
    QLineEdit* nombre_;
};

}  // namespace quinteva::ui
