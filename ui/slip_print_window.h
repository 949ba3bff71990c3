#pragma once

#include <array>

#include "outputs/print_slips.h"
#include "ui/print_window_base.h"

class QLineEdit;
class QRadioButton;

namespace quinteva::ui {

// "Imprimir en Boletos oficiales": las columnas en la cara de los boletos, con el ajuste de la
// impresora (cuatro valores por dirección), su prueba y la vuelta a los valores de fábrica.
class VentanaImprimirBoletos : public VentanaDeImpresion {
    Q_OBJECT

  public:
    VentanaImprimirBoletos(ColumnasAImprimir columnas, base::Ajustes& ajustes,
                           base::Dialogo& dialogo, Imprimir imprimir, QWidget* madre = nullptr);

  protected:
    std::optional<outputs::Impresion> Uno(int boleto) override;
    std::optional<outputs::Impresion> Todos(std::int32_t desde, std::int32_t hasta) override;
    void LlenarAjuste() override;

  private:
    QGroupBox* PanelDeAjuste();
    outputs::Direccion DireccionDelPanel() const;
    outputs::CamposAjuste Campos() const;
    void PonerCampos(const outputs::ValoresAjuste& valores);

    outputs::ImpresionEnBoletos boletos_;
    QRadioButton* vertical_ = nullptr;
    QRadioButton* apaisada_ = nullptr;
    std::array<QLineEdit*, 4> campos_{};
};

}  // namespace quinteva::ui
