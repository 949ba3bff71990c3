// Los asistentes de un paso de la ventana principal: ordenan sus propios mandatos (generar,
// reducir, ajustar, guardar) como los pulsaría el usuario.
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>

#include "builders/boletos.h"
#include "builders/by_percentages.h"
#include "builders/quick_basic.h"
#include "builders/very_reduced.h"
#include "engine/pricing.h"
#include "ui/conditions_page.h"
#include "ui/main_window.h"
#include "ui/merge_window.h"
#include "ui/percentages_window.h"
#include "ui/qt_text.h"
#include "ui/quick_basic_window.h"
#include "ui/work_pages.h"

namespace quinteva::ui {

void VentanaPrincipal::SeguirAsistente(bool seguir) {
    auto siguiente = std::exchange(alAcabar_, {});
    if (siguiente) siguiente(seguir);
}

void VentanaPrincipal::PasoDeAsistente(void (VentanaPrincipal::*paso)(),
                                       std::function<void(bool)> despues) {
    alAcabar_ = std::move(despues);
    (this->*paso)();
    // Si el paso no llegó a empezar, el asistente no sigue.
    if (!trabajo_.EnCurso()) SeguirAsistente(false);
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
    PasoDeAsistente(&VentanaPrincipal::Generar, [this, nivel](bool seguir) {
        if (!seguir || comb_.totalGeneradas == 0) return;
        IrAPagina(kReducir);
        // Sin opción elegida en la ventana, vale la de la página.
        if (nivel >= 0) reducir_->opciones[static_cast<std::size_t>(nivel)]->setChecked(true);
        PasoDeAsistente(&VentanaPrincipal::Reducir, [this](bool reducida) {
            if (!reducida || !Guardar()) return;
            IrAPagina(kBoletos);
            ElegirJuego(builders::Jugada::Reducida);
            IrAPagina(kBoletos);
            s_.dialogo.Mensaje(builders::kMsgProcesoTerminado);
            if (muyReducida_) muyReducida_->close();
        });
    });
}

void VentanaPrincipal::RefundirCombinaciones() {
    const auto carpeta = comb_.ruta.empty() ? s_.carpetaTrabajo : comb_.ruta.parent_path();
    AbrirVentana(new VentanaRefundir(s_.dialogo, azar_, carpeta, this));
}

void VentanaPrincipal::AbrirPorcentajes() {
    if (trabajo_.EnCurso() || !ExigirNombre()) return;
    auto* ventana = new VentanaPorcentajes(comb_, engine::PrecioColumna(s_.ajustes), this);
    connect(ventana, &VentanaPorcentajes::generar, this,
            [this, ventana] { PorPorcentajes(ventana); });
    connect(ventana, &VentanaPorcentajes::estadisticas, this, &VentanaPrincipal::Estadisticas);
    AbrirVentana(ventana);
}

void VentanaPrincipal::PorPorcentajes(VentanaPorcentajes* ventana) {
    if (trabajo_.EnCurso()) return;
    ventana->Trabajando(true);
    try {
        const auto entregadas = builders::GenerarPorPorcentajes(
            comb_, s_.carpetaTrabajo, S(ventana->Numero()), ventana->Tabla(), azar_, s_.dialogo);
        if (!entregadas) {
            ventana->Trabajando(false);
            Refrescar();
            if (ventana->Numero().isEmpty()) ventana->EnfocarNumero();
            return;
        }
        engine::PrecioComb(comb_, s_.ajustes);
        Habilitar(kReducir, *entregadas > 0);
        // Las columnas generadas para jugar; ElegirJugada las lee ya guardadas.
        if (Guardar()) {
            IrAPagina(kBoletos);
            ElegirJuego(builders::Jugada::Condicionada);
        }
    } catch (const std::exception& e) {
        ventana->Trabajando(false);
        Fallo(e);
        return;
    }
    ventana->Trabajando(false);
    s_.dialogo.Mensaje(builders::kMsgProcesoTerminado);
    ventana->close();
}

void VentanaPrincipal::AbrirRapidaBasica() {
    if (trabajo_.EnCurso() || !ExigirNombre()) return;
    auto* ventana =
        new VentanaRapidaBasica(comb_.condiciones, engine::PrecioColumna(s_.ajustes), this);
    connect(ventana, &VentanaRapidaBasica::generar, this,
            [this, ventana] { RapidaBasica(ventana); });
    connect(ventana, &VentanaRapidaBasica::desmarcada, this, [this](int fila) {
        builders::SoltarFilaBasica(comb_.condiciones, fila);
        condiciones_->Mostrar();
        CambioCondiciones();
    });
    AbrirVentana(ventana);
}

void VentanaPrincipal::RapidaBasica(VentanaRapidaBasica* ventana) {
    if (trabajo_.EnCurso()) return;
    const builders::LimitesBasica limites = ventana->Limites();
    const auto pedidas =
        builders::ComprobarBasica(S(ventana->Numero()), comb_.base.Columnas(), limites, s_.dialogo);
    if (!pedidas) {
        ventana->EnfocarNumero();
        return;
    }
    ventana->Trabajando(true);
    builders::PonerLimitesBasica(comb_.condiciones, limites);
    condiciones_->Mostrar();
    CambioCondiciones();
    IrAPagina(kGenerar);
    QPointer<VentanaRapidaBasica> viva(ventana);
    PasoDeAsistente(&VentanaPrincipal::Generar, [this, viva, n = *pedidas](bool seguir) {
        if (seguir) seguir = BasicaGenerada(viva, n);
        if (!seguir && viva) viva->Trabajando(false);
    });
}

bool VentanaPrincipal::BasicaGenerada(const QPointer<VentanaRapidaBasica>& ventana,
                                      std::int32_t pedidas) {
    if (comb_.activasGeneradas < pedidas) {
        // Con Sí se ajusta sin guardar antes (el ajuste guarda al acabar).
        if (s_.dialogo.PreguntaSiNo(builders::PreguntaMenosColumnas(pedidas)) !=
            base::Respuesta::Si) {
            if (ventana) ventana->EnfocarNumero();
            return false;
        }
    } else if (!Guardar()) {
        return false;
    }
    Habilitar(kBoletos, true);
    IrAPagina(kBoletos);
    try {
        builders::MarcarJugada(comb_, builders::Jugada::Condicionada);
    } catch (const std::exception& e) {
        Fallo(e);
        return false;
    }
    Refrescar();
    boletos_->campoAjustar->setText(QString::number(pedidas));
    PasoDeAsistente(&VentanaPrincipal::Ajustar, [this, ventana](bool) {
        boletos_->campoAjustar->clear();
        if (ventana) ventana->Trabajando(false);
        s_.dialogo.Mensaje(builders::kMsgProcesoTerminado);
        if (ventana) ventana->close();
    });
    return true;
}

}  // namespace quinteva::ui
