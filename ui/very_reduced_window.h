#pragma once

#include <QDialog>
#include <QTimer>
#include <array>
#include <vector>

#include "engine/quiniela_base.h"
#include "ui/reduction_seam.h"

class QPushButton;
class QRadioButton;
class QTableWidget;

namespace quinteva::ui {

// "Quiniela muy reducida": junto a la Quiniela Base, sin modo y por encima, la "Tabla de
// reducciones" con la fila de la forma de la base resaltada; "Generar" solo con una fila. Lo que
// hace "Generar" lo ordena la ventana principal, que recibe el nivel elegido.
class VentanaMuyReducida : public QDialog {
    Q_OBJECT

  public:
    VentanaMuyReducida(const std::vector<FilaTablaReducciones>& filas, QWidget* principal);

    // Fijar: la fila de la base resaltada y a la vista, y "Generar" según haya fila.
    void Fijar(const engine::QuinielaBase& base);

  signals:
    // El índice de la opción elegida (0 al 13, 1 al 12, 2 al 11), -1 si ninguna.
    void generar(int nivel);

  protected:
    void closeEvent(QCloseEvent* evento) override;

  private:
    void Colocar();

    QTableWidget* tabla_ = nullptr;
    std::array<QRadioButton*, 3> niveles_{};
    QPushButton* generar_ = nullptr;
    QTimer junto_;
};

}  // namespace quinteva::ui
