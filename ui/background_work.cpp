#include "ui/background_work.h"

#include <QMetaObject>
#include <QPointer>

namespace quinteva::ui {

TrabajoEnSegundoPlano::~TrabajoEnSegundoPlano() {
    progreso_.Detener();
    Esperar();
}

void TrabajoEnSegundoPlano::Empezar(std::function<void(base::Progreso&)> trabajo) {
    Esperar();
    progreso_.Reiniciar();
    enCurso_ = true;
    QPointer<TrabajoEnSegundoPlano> yo(this);
    hilo_ = std::jthread([this, yo, trabajo = std::move(trabajo)] {
        QString error;
        try {
            trabajo(progreso_);
        } catch (const std::exception& e) {
            error = QString::fromUtf8(e.what());
        }
        // Vuelve al hilo de la ventana; si el objeto ya no existe, la llamada se descarta.
        QMetaObject::invokeMethod(
            yo,
            [yo, error] {
                if (yo) yo->Acabar(error);
            },
            Qt::QueuedConnection);
    });
}

void TrabajoEnSegundoPlano::Esperar() {
    if (hilo_.joinable()) hilo_.join();
}

void TrabajoEnSegundoPlano::Acabar(const QString& error) {
    Esperar();
    enCurso_ = false;
    if (error.isEmpty()) {
        emit terminado();
    } else {
        emit fallo(error);
    }
}

}  // namespace quinteva::ui
