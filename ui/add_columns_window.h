#pragma once

#include <QDialog>

#include "builders/manual.h"
#include "engine/combination.h"

class QLabel;
class QTableWidget;

namespace quinteva::ui {

// "Añadir columnas manualmente": una columna tecleada en la rejilla de entrada ("1", "X" o "2"
// por partido) entra en el conjunto que se juega con "&Incluir".
class VentanaAnadirColumnas : public QDialog {
    Q_OBJECT

  public:
    VentanaAnadirColumnas(engine::Combinacion& combinacion, builders::EntornoBoletos entorno,
                          QWidget* madre = nullptr);
    // Si se añadió alguna columna que siga en pie (la ventana de añadir de quien la abrió).
    bool Cambiada() const { return ventana_.cambiada; }

  signals:
    // La Combinación cambió: la ventana principal se refresca.
    void cambiado();

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void Incluir();
    void MostrarCuenta();

    engine::Combinacion& comb_;
    builders::EntornoBoletos entorno_;
    builders::VentanaAnadir ventana_;
    QTableWidget* entrada_;
    QLabel* cuenta_;
};

}  // namespace quinteva::ui
