#pragma once

#include <QDialog>

#include "builders/by_percentages.h"
#include "engine/combination.h"

class QPushButton;
class QTableWidget;

namespace quinteva::ui {

class CajasColumnasPrecio;
class EtiquetaTrabajo;

// "Quiniela por Porcentajes": los porcentajes de 1, X y 2 de cada partido (gris lo que la base no
// permite; un fijo lleva 100 y no se toca) y el número de columnas. Lo que hace "&Generar" lo
// ordena la ventana principal con la tabla y el número de la ventana.
class VentanaPorcentajes : public QDialog {
    Q_OBJECT

  public:
    VentanaPorcentajes(const engine::Combinacion& combinacion, float precioColumna, QWidget* madre);

    const builders::Porcentajes& Tabla() const { return tabla_; }
    QString Numero() const;
    void EnfocarNumero();
    // La etiqueta de trabajo y el cursor de espera mientras se reparte.
    void Trabajando(bool trabajando);

  signals:
    void generar();
    void estadisticas();

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void MostrarFila(int partido);
    // Una tecla en la celda actual, si se edita.
    void Tecla(char tecla);

    engine::QuinielaBase base_;
    builders::Porcentajes tabla_;
    QTableWidget* rejilla_ = nullptr;
    CajasColumnasPrecio* cajas_ = nullptr;
    EtiquetaTrabajo* trabajando_ = nullptr;
};

}  // namespace quinteva::ui
