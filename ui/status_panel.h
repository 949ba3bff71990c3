#pragma once

#include <QGroupBox>
#include <array>

#include "engine/combination.h"

class QLabel;

namespace quinteva::ui {

// El panel "Estado de la Combinación": muestra los valores de PanelEstado; un valor sin calcular
// es una etiqueta en blanco.
class PanelEstadoQt : public QGroupBox {
    Q_OBJECT

  public:
    explicit PanelEstadoQt(QWidget* madre = nullptr);
    void Mostrar(const engine::PanelEstado& panel);

  private:
    QLabel* Valor(const QString& nombre, const QString& rotulo, int fila);

    QLabel* nombre_;
    QLabel* guardada_;
    QLabel* alDirecto_;
    QLabel* dobles_;
    QLabel* triples_;
    QLabel* condicionada_;
    std::array<QLabel*, 4> reducidas_{};
    QLabel* precio_;
};

// Un número del panel: "#,##0" con un blanco delante; "" si no está calculado.
QString Cifra(const std::optional<double>& valor);

}  // namespace quinteva::ui
