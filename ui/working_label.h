#pragma once

#include <QLabel>

namespace quinteva::ui {

// La etiqueta de trabajo de los asistentes: a la vista, con el cursor de espera, mientras trabajan.
class EtiquetaTrabajo : public QLabel {
    Q_OBJECT

  public:
    explicit EtiquetaTrabajo(QWidget* madre);
    ~EtiquetaTrabajo() override;

    void Trabajando(bool trabajando);

  private:
    bool esperando_ = false;
};

}  // namespace quinteva::ui
