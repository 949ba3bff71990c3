#pragma once

#include <QDialog>
#include <filesystem>

#include "base/dialog.h"

class QComboBox;
class QTableWidget;

namespace quinteva::ui {

// "Columnas Ganadoras": las de una temporada de "Jornadas.rar", por Jornada, con los goles del
// Pleno desde la temporada 13. "Imprimir" espera al visor de informes y lo dice en su ayuda.
class VentanaColumnasGanadoras : public QDialog {
    Q_OBJECT

  public:
    VentanaColumnasGanadoras(std::filesystem::path carpetaTemporada, base::Dialogo& dialogo,
                             QWidget* madre = nullptr);

  private:
    void Llenar();

    std::filesystem::path carpetaTemporada_;
    base::Dialogo& dialogo_;
    QComboBox* temporada_ = nullptr;
    QTableWidget* tabla_ = nullptr;
};

}  // namespace quinteva::ui
