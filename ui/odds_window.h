#pragma once

#include <QDialog>
#include <string>
#include <utility>
#include <vector>

class QFormLayout;

namespace quinteva::ui {

using FilasDeProbabilidad = std::vector<std::pair<std::string, std::string>>;

// Las filas "14 aciertos" ... "Pleno al 15" en un formulario, cada valor en negrita con el nombre
// "Probabilidad" y su número de fila (0 a 6).
void AnadirProbabilidades(QFormLayout* formulario, const FilasDeProbabilidad& filas,
                          QWidget* madre);

// "Probabilidades de premio": las del conjunto que se juega, con de dónde sale la ganadora.
class VentanaProbabilidades : public QDialog {
    Q_OBJECT

  public:
    VentanaProbabilidades(const std::string& conjunto, const std::string& origen,
                          const FilasDeProbabilidad& filas, QWidget* madre = nullptr);
};

}  // namespace quinteva::ui
