#pragma once

#include <QDialog>
#include <filesystem>

#include "base/dialog.h"
#include "ui/printing.h"

class QComboBox;
class QTableWidget;

namespace quinteva::ui {

// "Columnas Ganadoras": las de una temporada de "Jornadas.rar", por Jornada, con los goles del
// Pleno desde la temporada 13, y "&Imprimir" de la temporada elegida.
class VentanaColumnasGanadoras : public QDialog {
    Q_OBJECT

  public:
    VentanaColumnasGanadoras(std::filesystem::path carpetaTemporada, base::Dialogo& dialogo,
                             Imprimir imprimir, QWidget* madre = nullptr);

  private:
    void Llenar();
    void ImprimirColumnas();

    std::filesystem::path carpetaTemporada_;
    base::Dialogo& dialogo_;
    Imprimir imprimir_;
    QComboBox* temporada_ = nullptr;
    QTableWidget* tabla_ = nullptr;
};

}  // namespace quinteva::ui
