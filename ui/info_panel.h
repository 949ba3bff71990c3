#pragma once

#include <QWidget>
#include <vector>

#include "builders/match_info.h"

class QLabel;
class QTableWidget;

namespace quinteva::ui {

// La gráfica "Puesto en la Liga por Jornadas" de los dos equipos: el puesto 1 arriba; un punto
// de valor 0 no tiene línea.
class GraficoPuestos : public QWidget {
    Q_OBJECT

  public:
    explicit GraficoPuestos(QWidget* madre = nullptr);
    void Mostrar(const builders::InfoPartido& info);
    QSize sizeHint() const override { return {360, 190}; }

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    builders::InfoPartido info_;
};

// El panel de información de la página "Quin. Base" (Info).
class PanelInfo : public QWidget {
    Q_OBJECT

  public:
    explicit PanelInfo(QWidget* madre = nullptr);
    void Mostrar(const builders::InfoPartido& info);

  private:
    QLabel* local_;
    QLabel* visitante_;
    QLabel* datosLocal_;
    QLabel* datosVisitante_;
    GraficoPuestos* grafico_;
    QTableWidget* recientesLocal_;
    QTableWidget* recientesVisitante_;
    QTableWidget* clasificacion_;
};

}  // namespace quinteva::ui
