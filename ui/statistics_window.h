#pragma once

#include <QDialog>
#include <array>
#include <filesystem>

#include "base/dialog.h"

class QChart;
class QChartView;
class QComboBox;
class QLabel;
class QSpinBox;

namespace quinteva::ui {

// "Estadísticas": lo que cuentan las columnas ganadoras de "Jornadas.rar" de una temporada (o de
// todas), en un gráfico de barras: los signos por posición, las rachas de un signo y las
// combinaciones de signos en las posiciones elegidas. Las cifras salen de seasons/statistics.
class VentanaEstadisticas : public QDialog {
    Q_OBJECT

  public:
    VentanaEstadisticas(std::filesystem::path carpetaTemporada, base::Dialogo& dialogo,
                        QWidget* madre = nullptr);

  private:
    // Cuántas posiciones pide lo elegido: 0 para signos y rachas.
    int PosicionesPedidas() const;
    void Dibujar();

    std::filesystem::path carpetaTemporada_;
    base::Dialogo& dialogo_;
    QComboBox* temporada_ = nullptr;
    QComboBox* tipo_ = nullptr;
    QSpinBox* grupo_ = nullptr;
    std::array<QComboBox*, 6> posiciones_{};
    QLabel* etiqueta_ = nullptr;
    QChartView* vista_ = nullptr;
};

}  // namespace quinteva::ui
