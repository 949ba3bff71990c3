#pragma once

#include <QDialog>
#include <array>

class QRadioButton;

namespace quinteva::ui {

// "Quinteva [Tipo de archivo]": la forma del archivo de texto de las columnas jugadas. Al cerrarse
// da el código elegido: 1 "Texto con separadores", 2 "Texto en columna", 3 "Texto continuo", o 0
// con "&Cancelar".
class VentanaTipoArchivo : public QDialog {
    Q_OBJECT

  public:
    explicit VentanaTipoArchivo(QWidget* madre = nullptr);
    void accept() override;

  signals:
    void elegido(int codigo);

  private:
    std::array<QRadioButton*, 3> opciones_{};
};

}  // namespace quinteva::ui
