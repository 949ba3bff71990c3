#include "ui/pena_context.h"

#include "ui/report_viewer.h"

namespace quinteva::ui {

void AbrirSobre(QDialog* ventana) {
    ventana->setAttribute(Qt::WA_DeleteOnClose);
    ventana->setWindowModality(Qt::WindowModal);
    ventana->open();
}

void AbrirEnVisor(QWidget* madre, const EntornoPena& entorno, const QString& titulo,
                  outputs::Impresion paginas, const std::filesystem::path& pdf) {
    AbrirSobre(new VentanaVisor({titulo, std::move(paginas), pdf}, entorno.dialogo,
                                entorno.imprimir, madre));
}

}  // namespace quinteva::ui
