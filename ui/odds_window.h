#pragma once

#include <QDialog>
#include <string>
#include <utility>
#include <vector>

#include "engine/prize_odds.h"

class QFormLayout;

namespace quinteva::ui {

using FilasDeProbabilidad = std::vector<std::pair<std::string, std::string>>;

// Las filas "14 aciertos" ... "Pleno al 15" en un formulario, cada valor en negrita con el nombre
// "Probabilidad" y su número de fila (0 a 6).
void AnadirProbabilidades(QFormLayout* formulario, const FilasDeProbabilidad& filas,
                          QWidget* madre);

// "Probabilidades de premio": las del conjunto que se juega, con de dónde sale la ganadora, y la
// probabilidad del resultado jugado del Pleno al 15, que el usuario puede cambiar (uno de 16).
class VentanaProbabilidades : public QDialog {
    Q_OBJECT

  public:
    VentanaProbabilidades(const std::string& conjunto, const std::string& origen,
                          const engine::ProbabilidadesPremios& premios, QWidget* madre = nullptr);

  private:
    engine::ProbabilidadesPremios premios_;
};

}  // namespace quinteva::ui
