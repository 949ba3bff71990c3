#include "ui/program_update_window.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMetaObject>
#include <QPushButton>
#include <QTimer>

#include "seasons/update.h"
#include "ui/changes_window.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"
#include "ui/zip_expander_qt.h"

namespace quinteva::ui {

VentanaActualizacionPrograma::VentanaActualizacionPrograma(Entorno entorno, base::Ajustes& ajustes,
                                                           base::Dialogo& dialogo, QWidget* madre)
    : VentanaDeRed(ajustes, dialogo, madre), e_(std::move(entorno)) {
    setObjectName(QStringLiteral("VentanaActualizacionPrograma"));
    setWindowTitle(QStringLiteral("Actualización del programa"));
    if (!e_.verCambios) {
        e_.verCambios = [this](std::string_view cambios) {
            seasons::EleccionCambios eleccion = seasons::EleccionCambios::Seguir;
            QMetaObject::invokeMethod(
                this, [&] { eleccion = PreguntarCambios(Q(cambios), this); },
                Qt::BlockingQueuedConnection);
            return eleccion;
        };
    }
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(
        new QLabel(QStringLiteral("Versión instalada: %1").arg(seasons::kVersionPrograma), this));
    enServidor_ = new QLabel(this);
    enServidor_->setObjectName(QStringLiteral("VersionServidor"));
    columna->addWidget(enServidor_);
    FilaServidor(columna);
    columna->addStretch(1);
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    comprobar_ =
        BotonVentana(this, botones, QStringLiteral("C&omprobar"), QStringLiteral("BotonComprobar"));
    connect(comprobar_, &QPushButton::clicked, this, &VentanaActualizacionPrograma::Comprobar);
    connect(BotonVentana(this, botones, QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar")),
            &QPushButton::clicked, this, &QDialog::close);
    columna->addLayout(botones);
    resize(480, 180);
    if (seasons::ServidorDeActualizaciones(ajustes_)) {
        QTimer::singleShot(0, this, &VentanaActualizacionPrograma::Comprobar);
    }
}

seasons::Instalacion VentanaActualizacionPrograma::InstalacionDelPrograma() {
#ifdef Q_OS_WIN
    return seasons::Instalacion::ConActualizador;
#else
    return seasons::Instalacion::GestorDePaquetes;
#endif
}

void VentanaActualizacionPrograma::Comprobar() {
    comprobar_->setEnabled(false);
    enServidor_->setText(QStringLiteral("Comprobando..."));
    Empezar([this](base::Red& red, base::Dialogo& dialogo) {
        ExpansorQuaZip expansor;
        resultado_ = seasons::ActualizarVersion(
            red, dialogo, ajustes_, expansor,
            {e_.carpetaTrabajo, seasons::kVersionPrograma, e_.instalacion}, e_.verCambios);
    });
    if (!Trabajando()) Terminado();
}

void VentanaActualizacionPrograma::Terminado() {
    comprobar_->setEnabled(true);
    enServidor_->setText(
        resultado_.enServidor == 0
            ? QString()
            : QStringLiteral("Versión en el servidor: %1").arg(resultado_.enServidor));
    if (resultado_.traspasar) emit traspasar();
}

}  // namespace quinteva::ui
