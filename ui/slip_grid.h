#pragma once

#include <QWidget>
#include <cstdint>

#include "outputs/slip_marks.h"

class QLabel;
class QScrollBar;
class QTableWidget;

namespace quinteva::ui {

// El boleto en pantalla: 14 filas de partidos por 8 columnas, el Pleno ("Triple al 15") y el
// número ("BOLETO Nº"), con la barra que pasa de un boleto a otro.
class RejillaBoleto : public QWidget {
    Q_OBJECT

  public:
    explicit RejillaBoleto(QWidget* madre = nullptr);

    // Cuántos boletos recorre la barra; vuelve al primero.
    void PonerBoletos(std::int32_t boletos);
    void Mostrar(const outputs::BoletoEnPantalla& boleto);
    // El boleto que elige la barra, desde 1.
    int Boleto() const;
    std::int32_t Boletos() const;

  signals:
    void boletoElegido(int boleto);

  private:
    QTableWidget* rejilla_ = nullptr;
    QLabel* pleno_ = nullptr;
    QLabel* numero_ = nullptr;
    QScrollBar* barra_ = nullptr;
};

}  // namespace quinteva::ui
