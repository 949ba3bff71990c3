#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <functional>

#include "base/dialog.h"
#include "base/network.h"
#include "ui/background_work.h"
#include "ui/cross_thread_dialog.h"

class QNetworkAccessManager;

namespace quinteva::ui {

// Un flujo del núcleo que habla con el servidor del editor: corre en un hilo de fondo con un
// RedQt y con sus mensajes en la ventana dada. El gestor de la red solo se crea al empezar el
// primer flujo: sin servidor no se llega a crear.
class FlujoDeRed : public QObject {
    Q_OBJECT

  public:
    FlujoDeRed(base::Dialogo& dialogo, QWidget* ventana);

    bool EnCurso() const { return trabajo_.EnCurso(); }
    void Esperar() { trabajo_.Esperar(); }
    void Empezar(const QString& servidor, std::function<void(base::Red&, base::Dialogo&)> flujo);

  signals:
    // Al acabar, en el hilo de la ventana; un error ya se dijo con "Error: " y su texto.
    void terminado();

  private:
    base::Dialogo& dialogo_;
    QNetworkAccessManager* gestor_ = nullptr;
    DialogoEntreHilos dialogoFondo_;
    TrabajoEnSegundoPlano trabajo_;
};

}  // namespace quinteva::ui
