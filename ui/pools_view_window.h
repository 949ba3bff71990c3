#pragma once

#include <QDialog>

#include "outputs/slip_view.h"
#include "ui/printing.h"

class QLabel;
class QListWidget;
class QScrollBar;
class QTableWidget;

namespace quinteva::ui {

// "Ver Quinielas": las columnas que se juegan de la Combinación, una a una sobre el dibujo del
// boleto (los 14 signos marcados y los goles del Pleno al 15), con una barra para pasar de una a
// otra, "Imprimir Una" para la que se ve y "Ver Todas" para la lista entera.
class VentanaVerQuinielas : public QDialog {
    Q_OBJECT

  public:
    VentanaVerQuinielas(outputs::VistaQuinielas vista, Imprimir imprimir, QWidget* madre = nullptr);

  private:
    void Mostrar(int indice);
    void VerTodas();

    outputs::VistaQuinielas vista_;
    Imprimir imprimir_;
    QLabel* titulo_ = nullptr;
    QTableWidget* boleto_ = nullptr;
    QScrollBar* barra_ = nullptr;
    QListWidget* todas_ = nullptr;
};

}  // namespace quinteva::ui
