#include "ui/network_flow.h"

#include <QNetworkAccessManager>

#include "ui/network_qt.h"
#include "ui/qt_text.h"

namespace quinteva::ui {

FlujoDeRed::FlujoDeRed(base::Dialogo& dialogo, QWidget* ventana)
    : QObject(ventana), dialogo_(dialogo), dialogoFondo_(dialogo, ventana) {
    connect(&trabajo_, &TrabajoEnSegundoPlano::terminado, this, &FlujoDeRed::terminado);
    connect(&trabajo_, &TrabajoEnSegundoPlano::fallo, this, [this](const QString& error) {
        dialogo_.Mensaje("Error: " + S(error), base::Icono::Error);
        emit terminado();
    });
}

void FlujoDeRed::Empezar(const QString& servidor,
                         std::function<void(base::Red&, base::Dialogo&)> flujo) {
    if (trabajo_.EnCurso()) return;
    if (gestor_ == nullptr) gestor_ = new QNetworkAccessManager(this);
    trabajo_.Empezar([this, servidor, flujo = std::move(flujo)](base::Progreso& parada) {
        RedQt red(*gestor_, servidor, parada);
        flujo(red, dialogoFondo_);
    });
}

}  // namespace quinteva::ui
