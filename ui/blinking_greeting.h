#pragma once

#include <QLabel>
#include <QTimer>

namespace quinteva::ui {

// El saludo de "Comprobación de Aciertos" ("Muy bien!", "Enhorabuena!!!"): se enciende y se apaga
// por turnos; cada vez que se enciende cuenta una, y a la décima se queda encendido. Al apagarse
// conserva su sitio en la ventana.
class SaludoParpadeante : public QLabel {
    Q_OBJECT

  public:
    static constexpr int kVecesParpadeo = 10;
    static constexpr int kIntervalo = 500;  // ms de cada turno

    explicit SaludoParpadeante(QWidget* madre = nullptr);

    // Empieza a parpadear con el texto dado; encendido, con la cuenta en 1.
    void Parpadear(const QString& texto);
    // Cualquier acción de la ventana: se para encendido.
    void Detener();
    // "&Aciertos" y "&Guardar": se para apagado.
    void Ocultar();

    bool Parpadeando() const { return turno_.isActive(); }
    bool Encendido() const { return encendido_; }
    int Veces() const { return veces_; }

  private:
    void Turno();
    void Encender(bool encendido);

    QTimer turno_;
    bool encendido_ = false;
    int veces_ = 0;
};

}  // namespace quinteva::ui
