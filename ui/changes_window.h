#pragma once

#include <QDialog>

#include "seasons/version_update.h"

namespace quinteva::ui {

// Las modificaciones que trae la versión nueva ("CambiosQVPr.txt"), con sus dos elecciones:
// seguir con la actualización o no volver a ofrecer esta versión.
class VentanaCambios : public QDialog {
    Q_OBJECT

  public:
    VentanaCambios(const QString& cambios, QWidget* madre = nullptr);
    seasons::EleccionCambios Eleccion() const { return eleccion_; }

  private:
    seasons::EleccionCambios eleccion_ = seasons::EleccionCambios::Seguir;
};

// La elección del usuario en la ventana, mostrada sobre la madre.
seasons::EleccionCambios PreguntarCambios(const QString& cambios, QWidget* madre);

}  // namespace quinteva::ui
