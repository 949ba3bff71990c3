#pragma once

#include <QDialog>
#include <vector>

#include "outputs/located_columns.h"
#include "ui/printing.h"

namespace quinteva::ui {

// "Localización de Columnas acertadas": una fila por columna de las listas de 15 a 10 aciertos,
// con su Boleto, su lugar en él y sus aciertos, y "&Imprimir".
class VentanaColumnasAcertadas : public QDialog {
    Q_OBJECT

  public:
    // jornada: la línea "Jornada " & número & ", " & fecha de lo impreso.
    VentanaColumnasAcertadas(std::vector<outputs::FilaLocalizada> filas, std::string jornada,
                             Imprimir imprimir, QWidget* madre = nullptr);
};

}  // namespace quinteva::ui
