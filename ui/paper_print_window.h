#pragma once

#include "outputs/print_paper.h"
#include "ui/print_window_base.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;

namespace quinteva::ui {

// "Imprimir en papel blanco": las mismas columnas con el marco del boleto para recortarlo, o en
// el dorso de boletos oficiales; su ajuste es el tamaño del boleto y los márgenes.
class VentanaImprimirPapel : public VentanaDeImpresion {
    Q_OBJECT

  public:
    VentanaImprimirPapel(ColumnasAImprimir columnas, base::Ajustes& ajustes, base::Dialogo& dialogo,
                         Imprimir imprimir, QWidget* madre = nullptr);

  protected:
    std::optional<outputs::Impresion> Uno(int boleto) override;
    std::optional<outputs::Impresion> Todos(std::int32_t desde, std::int32_t hasta) override;
    void LlenarAjuste() override;

  private:
    QGroupBox* PanelDeAjuste();
    outputs::AjustePapel AjusteDelPanel() const;
    void PonerAjuste(const outputs::AjustePapel& ajuste);

    outputs::ImpresionEnPapel papel_;
    QRadioButton* vertical_ = nullptr;
    QLineEdit* ancho_ = nullptr;
    QLineEdit* alto_ = nullptr;
    QLineEdit* izquierdo_ = nullptr;
    QLineEdit* superior_ = nullptr;
    QCheckBox* dorso_ = nullptr;
};

}  // namespace quinteva::ui
