#pragma once

#include <QDialog>
#include <functional>

#include "base/dialog.h"
#include "base/network.h"
#include "base/settings.h"
#include "ui/network_flow.h"

class QBoxLayout;
class QLineEdit;

namespace quinteva::ui {

inline constexpr std::string_view kMsgSinServidor =
    "Escriba la dirección del servidor de actualizaciones (por ejemplo, https://servidor.es).";

// Lo común de las ventanas que hablan con el servidor del editor: la dirección del servidor (un
// ajuste que se guarda al usarla) y el flujo en su hilo de fondo. Mientras el flujo trabaja, la
// ventana responde pero no se cierra.
class VentanaDeRed : public QDialog {
    Q_OBJECT

  public:
    VentanaDeRed(base::Ajustes& ajustes, base::Dialogo& dialogo, QWidget* madre);
    bool Trabajando() const { return flujo_->EnCurso(); }
    // Espera a que acabe el flujo (pruebas).
    void Esperar() { flujo_->Esperar(); }

  protected:
    // La fila "Servidor:" con la dirección guardada.
    void FilaServidor(QBoxLayout* columna);
    // Empieza el flujo con la dirección escrita; sin ella lo dice y no pide nada a la red.
    void Empezar(std::function<void(base::Red&, base::Dialogo&)> flujo);
    // En el hilo de la ventana, al acabar el flujo (bien o con su error ya dicho).
    virtual void Terminado() = 0;
    void closeEvent(QCloseEvent* evento) override;

    base::Ajustes& ajustes_;
    base::Dialogo& dialogo_;

  private:
    QLineEdit* servidor_ = nullptr;
    FlujoDeRed* flujo_ = nullptr;
};

}  // namespace quinteva::ui
