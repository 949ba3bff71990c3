#pragma once

#include <QWidget>
#include <array>

#include "syndicates/ledger.h"
#include "ui/pena_context.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTableWidget;

namespace quinteva::ui {

// La página Jornadas de la ventana de la Peña: lo jugado, lo obtenido, el estado, "Distri&buir",
// la relación de Apostantes, "Guardar" y la vista de la Jornada para imprimir.
class PaginaJornadasPena : public QWidget {
    Q_OBJECT

  public:
    PaginaJornadasPena(const syndicates::ArchivosPena& pena, const EntornoPena& entorno,
                       QWidget* madre);

    // LlenarFlex1 de la Jornada elegida (la de antes, tras cambiar las cuotas).
    void Refrescar();
    const syndicates::PaginaJornada& Pagina() const { return pagina_; }

  private:
    void ElegirJornada(int jornada);
    void Mostrar();
    void LeerCasillas();
    void Estado(bool cerrada);

    const syndicates::ArchivosPena& pena_;
    EntornoPena entorno_;
    syndicates::PaginaJornada pagina_;
    QComboBox* jornada_ = nullptr;
    QLabel* fecha_ = nullptr;
    QLineEdit* columnas_ = nullptr;
    QLabel* importe_ = nullptr;
    QLabel* apostantes_ = nullptr;
    std::array<QLineEdit*, 6> acertadas_{};
    std::array<QLineEdit*, 6> premios_{};
    QLabel* cobrado_ = nullptr;
    QLineEdit* gastos_ = nullptr;
    QLabel* repartir_ = nullptr;
    QRadioButton* abierta_ = nullptr;
    QRadioButton* cerrada_ = nullptr;
    QPushButton* distribuir_ = nullptr;
    QTableWidget* rejilla_ = nullptr;
    QLabel* totalJugado_ = nullptr;
    QLabel* totalObtenido_ = nullptr;
};

}  // namespace quinteva::ui
