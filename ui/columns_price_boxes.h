#pragma once

#include <QWidget>

class QLineEdit;
class QPushButton;

namespace quinteva::ui {

// "Nº de columnas" y "Precio" de los asistentes: cada caja recalcula la otra con el precio de una
// columna, y Intro en la del número lleva al botón dado.
class CajasColumnasPrecio : public QWidget {
    Q_OBJECT

  public:
    CajasColumnasPrecio(float precioColumna, QWidget* madre);

    void IntroLlevaA(QPushButton* boton);
    QString Numero() const;
    void PonerNumero(const QString& numero);
    void EnfocarNumero();

  private:
    float precioColumna_;
    QLineEdit* numero_ = nullptr;
    QLineEdit* precio_ = nullptr;
};

}  // namespace quinteva::ui
