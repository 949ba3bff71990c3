#pragma once

#include <QDialog>
#include <vector>

#include "engine/analysis.h"

class QTableWidget;

namespace quinteva::ui {

// "Informe sobre Fallos": "Condiciones incumplidas" por la columna ganadora, rejilla "Condición"
// y "Filtro". La primera columna toma un quinto del ancho y la segunda tres quintos menos 20.
class VentanaInformeFallos : public QDialog {
    Q_OBJECT

  public:
    explicit VentanaInformeFallos(const std::vector<engine::FilaInforme>& filas,
                                  QWidget* madre = nullptr);

  protected:
    // Los anchos de las columnas siguen al de la rejilla.
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    QTableWidget* rejilla_;
};

}  // namespace quinteva::ui
