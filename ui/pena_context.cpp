#include "ui/pena_context.h"

#include "ui/report_viewer.h"

namespace quinteva::ui {

void AbrirEnVisor(QWidget* madre, const EntornoPena& entorno, const QString& titulo,
                  outputs::Impresion paginas, const std::filesystem::path& pdf) {
    auto* visor = new VentanaVisor({titulo, std::move(paginas), pdf}, entorno.dialogo,
                                   entorno.imprimir, madre);
    visor->setAttribute(Qt::WA_DeleteOnClose);
    visor->setWindowModality(Qt::WindowModal);
    visor->open();
}

}  // namespace quinteva::ui
