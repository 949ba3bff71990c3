#pragma once

#include <QDialog>
#include <vector>

#include "outputs/located_columns.h"

namespace quinteva::ui {

// "Localización de Columnas acertadas": una fila por columna de las listas de 15 a 10 aciertos,
// con su Boleto, su lugar en él y sus aciertos. "&Imprimir" llega con la impresión.
class VentanaColumnasAcertadas : public QDialog {
    Q_OBJECT

  public:
    explicit VentanaColumnasAcertadas(const std::vector<outputs::FilaLocalizada>& filas,
                                      QWidget* madre = nullptr);
};

}  // namespace quinteva::ui
