#pragma once

#include <QDialog>
#include <array>

#include "builders/quick_basic.h"
#include "engine/conditions.h"

class QCheckBox;
class QComboBox;

namespace quinteva::ui {

class CajasColumnasPrecio;
class EtiquetaTrabajo;

// "Quiniela rápida Básica": el número de columnas (o el precio) y las ocho filas de límites
// opcionales, "Condiciones (opcionales)". Lo que hace "&Generar" lo ordena la ventana principal
// con lo elegido aquí.
class VentanaRapidaBasica : public QDialog {
    Q_OBJECT

  public:
    VentanaRapidaBasica(const engine::SetCondiciones& condiciones, float precioColumna,
                        QWidget* madre);

    builders::LimitesBasica Limites() const;
    QString Numero() const;
    void EnfocarNumero();
    void Trabajando(bool trabajando);

  signals:
    void generar();
    // Una fila desmarcada: sus límites vuelven a los de la tabla en la ventana principal.
    void desmarcada(int fila);

  private:
    void Marcada(int fila, bool marcada);

    std::array<QCheckBox*, builders::kFilasBasica> marcas_{};
    std::array<std::array<QComboBox*, 2>, builders::kFilasBasica> listas_{};
    CajasColumnasPrecio* cajas_ = nullptr;
    EtiquetaTrabajo* trabajando_ = nullptr;
};

}  // namespace quinteva::ui
