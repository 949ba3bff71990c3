#pragma once

#include <QDialog>
#include <cstdint>
#include <functional>

#include "base/dialog.h"
#include "outputs/print_range.h"

class QLineEdit;
class QRadioButton;

namespace quinteva::ui {

// "Selección de Impresión": todos los boletos o desde uno hasta otro. Al aceptar con límites
// buenos da las columnas que se imprimen y se cierra.
class VentanaSeleccionImpresion : public QDialog {
    Q_OBJECT

  public:
    VentanaSeleccionImpresion(std::int32_t ultimoBoleto, base::Dialogo& dialogo,
                              QWidget* madre = nullptr);
    // La abre sobre la madre y, con límites buenos, llama a imprimir con sus columnas.
    static void Abrir(QWidget* madre, std::int32_t ultimoBoleto, base::Dialogo& dialogo,
                      std::function<void(outputs::RangoDeColumnas)> imprimir);

  signals:
    void elegido(outputs::RangoDeColumnas rango);

  private:
    void Aceptar();

    std::int32_t ultimoBoleto_;
    base::Dialogo& dialogo_;
    QRadioButton* todos_ = nullptr;
    QLineEdit* desde_ = nullptr;
    QLineEdit* hasta_ = nullptr;
};

}  // namespace quinteva::ui
