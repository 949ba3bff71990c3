#pragma once

#include <QDialog>
#include <QStringList>
#include <array>

#include "builders/team_weights.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace quinteva::ui {

// "Ponderar equipos": partido a partido, las circunstancias que favorecen o perjudican a cada
// equipo; al moverse y al terminar, los pesos del partido quedan en la ventana principal.
class VentanaPonderar : public QDialog {
    Q_OBJECT

  public:
    // partidos: las 14 etiquetas "Local - Visitante" de la rejilla de la Quiniela Base.
    VentanaPonderar(QStringList partidos, builders::PesosEquipos& pesos, QWidget* madre = nullptr);

  protected:
    void closeEvent(QCloseEvent* evento) override;

  private:
    void IrA(int partido);
    void Mostrar();

    QStringList partidos_;
    builders::Ponderacion ponderacion_;
    std::array<QCheckBox*, 2 * builders::kFactores> marcas_{};
    QLabel* numero_ = nullptr;
    QLabel* local_ = nullptr;
    QLabel* visitante_ = nullptr;
};

}  // namespace quinteva::ui
