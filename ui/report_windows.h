#pragma once

#include <QDialog>
#include <vector>

#include "engine/analysis.h"
#include "ui/reduction_seam.h"

class QTableWidget;

namespace quinteva::ui {

// "Rechazadas": "Informe sobre Columnas rechazadas por los filtros", rejilla "Filtro" y "Número";
// la última fila ("Total rechazadas") en negrita.
class VentanaRechazadas : public QDialog {
    Q_OBJECT

  public:
    VentanaRechazadas(const std::vector<engine::FilaInforme>& filas, QWidget* madre = nullptr);
};

// "Tabla de reducciones": los sistemas que se usan cuando no hay condiciones.
// La rejilla de la "Tabla de reducciones": "Combinaciones" y las tres cifras de cada fila, en
// negrita las reducciones óptimas.
QTableWidget* RejillaTablaReducciones(QWidget* madre,
                                      const std::vector<FilaTablaReducciones>& filas);

class VentanaTablaReducciones : public QDialog {
    Q_OBJECT

  public:
    VentanaTablaReducciones(const std::vector<FilaTablaReducciones>& filas,
                            QWidget* madre = nullptr);
};

// "Reducción": el tamaño de la reducción hecha.
class VentanaReduccion : public QDialog {
    Q_OBJECT

  public:
    VentanaReduccion(const InformeReduccion& informe, QWidget* madre = nullptr);
};

}  // namespace quinteva::ui
