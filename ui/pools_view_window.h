#pragma once

#include <QDialog>

#include "outputs/slip_view.h"

class QLabel;
class QListWidget;
class QScrollBar;
class QTableWidget;

namespace quinteva::ui {

// "Ver Quinielas": las columnas que se juegan de la Combinación, una a una sobre el dibujo del
// boleto (los 14 signos marcados y los goles del Pleno al 15), con una barra para pasar de una a
// otra y "Ver Todas" para la lista entera. "Imprimir Una" llega con la impresión.
class VentanaVerQuinielas : public QDialog {
    Q_OBJECT

  public:
    VentanaVerQuinielas(outputs::VistaQuinielas vista, QWidget* madre = nullptr);

  private:
    void Mostrar(int indice);
    void VerTodas();

    outputs::VistaQuinielas vista_;
    QLabel* titulo_ = nullptr;
    QTableWidget* boleto_ = nullptr;
    QScrollBar* barra_ = nullptr;
    QListWidget* todas_ = nullptr;
};

}  // namespace quinteva::ui
