#pragma once

#include <QDialog>
#include <filesystem>

#include "base/dialog.h"
#include "base/settings.h"

class QComboBox;
class QTableWidget;

namespace quinteva::ui {

// La ventana "Clasificación": la tabla de la división elegida ("1ª" primero), cada equipo en la
// fila de su puesto y las filas coloreadas por bandas de puestos, y "Recalcular".
class VentanaClasificacion : public QDialog {
    Q_OBJECT

  public:
    VentanaClasificacion(std::filesystem::path carpetaTemporada, base::Ajustes& ajustes,
                         base::Dialogo& dialogo, QWidget* madre = nullptr);

  private:
    int Division() const;
    // FFlex: la tabla de la división elegida.
    void Llenar();
    void Recalcular();

    std::filesystem::path carpetaTemporada_;
    base::Ajustes& ajustes_;
    base::Dialogo& dialogo_;
    QComboBox* division_;
    QTableWidget* tabla_;
};

}  // namespace quinteva::ui
