#pragma once

#include <QDialog>
#include <functional>

#include "builders/manual.h"
#include "engine/combination.h"

class QComboBox;
class QLabel;
class QScrollBar;
class QTableWidget;

namespace quinteva::ui {

// "Eliminar columnas manualmente": las columnas del conjunto que se juega en páginas ("Col. 1"...),
// eliminadas en rojo; por regla ("&Eliminar"), una a una con el botón derecho ("Jugar columna" /
// "No jugar columna") o todas de vuelta ("Jugar &Todas"). Al cerrarse cuida de que el último
// Boleto no quede con una sola columna; abrirAnadir abre la ventana de añadir.
class VentanaEliminarColumnas : public QDialog {
    Q_OBJECT

  public:
    static constexpr int kColumnasPorPagina = 16;

    VentanaEliminarColumnas(engine::Combinacion& combinacion, builders::EntornoBoletos entorno,
                            std::function<void()> abrirAnadir, QWidget* madre = nullptr);
    void done(int resultado) override;

  signals:
    void cambiado();

  private:
    void Escrol();
    void Eliminar();
    void JugarTodas();
    void MenuColumna(const QPoint& donde);
    void Jugar(std::int32_t registro, bool jugar);
    void Actualizar();
    // Corre una acción del núcleo con el cursor de espera y el camino de error común.
    void Accion(const std::function<void()>& accion);

    engine::Combinacion& comb_;
    builders::EntornoBoletos entorno_;
    std::function<void()> abrirAnadir_;
    builders::VentanaEliminar ventana_;
    QTableWidget* rejilla_;
    QScrollBar* barra_;
    QComboBox* modo_;
    QLabel* deA_;
    QComboBox* numero_;
    QComboBox* signo_;
    QLabel* cuenta_;
    QLabel* precio_;
};

}  // namespace quinteva::ui
