#pragma once

#include <QWidget>
#include <array>
#include <vector>

#include "engine/quiniela_base.h"

class QComboBox;
class QLabel;
class QTableWidget;
class QPushButton;

namespace quinteva::ui {

class PanelInfo;

// La página "Quin. Base": la lista de Jornadas, la rejilla de la Quiniela Base (15 filas: número,
// "Local - Visitante", las tres celdas de signo; en la 15 los goles del Pleno) y el panel de
// información. No decide nada: avisa a la ventana principal de lo que hace el usuario.
class PaginaBase : public QWidget {
    Q_OBJECT

  public:
    explicit PaginaBase(QWidget* madre = nullptr);

    void PonerJornadas(const std::vector<int>& jornadas);
    // Deja la lista en la Jornada dada (0: ninguna) sin avisar.
    void SeleccionarJornada(int jornada);
    void PonerFecha(const QString& fecha);
    // Las 14 etiquetas "Local - Visitante" de la rejilla.
    QStringList Partidos() const;
    void Mostrar(const engine::QuinielaBase& base);
    QTableWidget* Rejilla() const { return rejilla_; }
    PanelInfo* Info() const { return info_; }
    QComboBox* ListaJornadas() const { return jornadas_; }

  signals:
    void jornadaElegida(int jornada);
    // "Ponderar equipos" y los tres asistentes de "Quinielas rápidas".
    void ponderar();
    void porPorcentajes();
    void muyReducida();
    void rapidaBasica();
    // partido 1 a 14, signo 0, 1, 2.
    void signoPulsado(int partido, int signo);
    // lado 0 local, 1 visitante; texto "" o una tecla.
    void golTecleado(int lado, const QString& tecla);
    void golVisitado(int lado);
    void partidoElegido(int fila);

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void Pulsada(int fila, int columna);
    void CeldaActual(int fila, int columna);

    QComboBox* jornadas_;
    QLabel* fecha_;
    QTableWidget* rejilla_;
    PanelInfo* info_;
};

}  // namespace quinteva::ui
