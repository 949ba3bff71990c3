// Los asistentes de un paso de la ventana principal: ordenan sus propios mandatos (generar,
// reducir, guardar) como los pulsaría el usuario.
#include <QRadioButton>

#include "builders/boletos.h"
#include "builders/very_reduced.h"
#include "ui/main_window.h"
#include "ui/qt_text.h"
#include "ui/work_pages.h"

namespace quinteva::ui {

void VentanaPrincipal::SeguirAsistente(bool seguir) {
    auto siguiente = std::exchange(alAcabar_, {});
    if (seguir && siguiente) siguiente();
}

void VentanaPrincipal::AbrirMuyReducida() {
    // Como los otros asistentes de la página: antes, la Combinación con su archivo.
    if (s_.reductor == nullptr || trabajo_.EnCurso() || !ExigirNombre()) return;
    if (!muyReducida_) {
        muyReducida_ = new VentanaMuyReducida(s_.reductor->TablaReducciones(), this);
        muyReducida_->setAttribute(Qt::WA_DeleteOnClose);
        connect(muyReducida_, &VentanaMuyReducida::generar, this, &VentanaPrincipal::MuyReducida);
    }
    muyReducida_->Fijar(comb_.base);
    muyReducida_->show();
    muyReducida_->raise();
}

void VentanaPrincipal::MuyReducida(int nivel) {
    if (trabajo_.EnCurso()) return;
    try {
        if (!builders::EmpezarMuyReducida(comb_, s_.dialogo)) return;
    } catch (const std::exception& e) {
        s_.dialogo.Mensaje(e.what(), base::Icono::Error);
        return;
    }
    IrAPagina(kGenerar);
    alAcabar_ = [this, nivel] {
        IrAPagina(kReducir);
        // Sin opción elegida en la ventana, vale la de la página.
        if (nivel >= 0) reducir_->opciones[static_cast<std::size_t>(nivel)]->setChecked(true);
        alAcabar_ = [this] {
            if (!Guardar()) return;
            IrAPagina(kBoletos);
            ElegirJuego(builders::Jugada::Reducida);
            IrAPagina(kBoletos);
            s_.dialogo.Mensaje(builders::kMsgMuyReducidaTerminada);
            if (muyReducida_) muyReducida_->close();
        };
        Reducir();
        if (!trabajo_.EnCurso()) alAcabar_ = {};
    };
    Generar();
    // Si la generación no llegó a empezar, el asistente no sigue.
    if (!trabajo_.EnCurso()) alAcabar_ = {};
}

}  // namespace quinteva::ui
