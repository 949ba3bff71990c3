#pragma once

#include <QWidget>
#include <array>

class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QTableWidget;

namespace quinteva::ui {

// Un rótulo con su valor a la derecha, para las cifras de las páginas.
QLabel* CifraConRotulo(QWidget* madre, QFormLayout* formulario, const QString& rotulo,
                       const QString& nombre);

// La página "Generar" ("Generar Apuestas"). Los botones los maneja la ventana principal.
class PaginaGenerar : public QWidget {
    Q_OBJECT

  public:
    explicit PaginaGenerar(QWidget* madre = nullptr);

    QLabel* posibles;
    QLabel* dobles;
    QLabel* triples;
    QLabel* seleccionadas;
    QLabel* condiciones;
    QPushButton* generar;
    QPushButton* detener;
    QPushButton* info;
    QProgressBar* barra;
};

// La página "Reducir": las cuatro opciones (la cuarta oculta), la rejilla de partidos que entran
// en la reducción y los botones.
class PaginaReducir : public QWidget {
    Q_OBJECT

  public:
    explicit PaginaReducir(QWidget* madre = nullptr);
    // Nivel de la primera opción marcada: 0 "al 13", 1 "al 12", 2 "al 11", 3 "al 10".
    int Nivel() const;

    std::array<QRadioButton*, 4> opciones{};
    QCheckBox* optimizada;
    QLabel* rotuloSeleccion;
    QTableWidget* seleccion;
    QLabel* total;
    QLabel* reducidas;
    QLabel* condiciones;
    QPushButton* reducir;
    QPushButton* detener;
    QPushButton* tabla;
    QPushButton* info;
    QProgressBar* barra;
};

// La página "Boletos" ("Generación de Boletos"): el conjunto que se juega, su cuenta, el ajuste
// a un número de apuestas y los mandatos de salida. Los maneja la ventana principal; los de
// imprimir se ven deshabilitados hasta que llegue la impresión.
class PaginaBoletos : public QWidget {
    Q_OBJECT

  public:
    explicit PaginaBoletos(QWidget* madre = nullptr);

    QRadioButton* condicionada;
    QRadioButton* reducida;
    QLabel* enTotal;
    QLineEdit* campoAjustar;
    QPushButton* ajustar;
    QPushButton* detener;
    QPushButton* imprimirBoletos;
    QPushButton* imprimirPapel;
    QPushButton* oficial;
    QPushButton* txt;
    QPushButton* eliminarManual;
    QPushButton* probabilidades;
    QPushButton* anadirManual;
};

}  // namespace quinteva::ui
