#include "ui/season_update_window.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QMetaObject>
#include <QPushButton>

#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

namespace {

constexpr auto kExplicacion =
    "Se traen del servidor del editor los archivos de la temporada (resultados y Jornadas de Liga "
    "y de Quinielas, equipos) y el histórico de resultados, y sustituyen a los que tiene el "
    "programa. Lo introducido a mano que no esté en el servidor se pierde.";
const QString kHecho = QStringLiteral("✔ ");

}  // namespace

VentanaActualizacionTemporada::VentanaActualizacionTemporada(Carpetas carpetas,
                                                             base::Ajustes& ajustes,
                                                             base::Dialogo& dialogo, QWidget* madre)
    : VentanaDeRed(ajustes, dialogo, madre), carpetas_(std::move(carpetas)) {
    setObjectName(QStringLiteral("VentanaActualizacionTemporada"));
    setWindowTitle(QStringLiteral("Actualización de Resultados, Jornadas de Liga y de Quinielas"));
    auto* columna = new QVBoxLayout(this);
    auto* explicacion = new QLabel(QString::fromUtf8(kExplicacion), this);
    explicacion->setWordWrap(true);
    columna->addWidget(explicacion);
    FilaServidor(columna);
    for (auto& paso : pasos_) {
        paso = new QLabel(this);
        paso->setVisible(false);
        columna->addWidget(paso);
    }
    pasos_[0]->setObjectName(QStringLiteral("PasoDescarga"));
    pasos_[1]->setObjectName(QStringLiteral("PasoActualizacion"));
    pasos_[2]->setObjectName(QStringLiteral("PasoFinal"));
    columna->addStretch(1);
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    actualizar_ = BotonVentana(this, botones, QStringLiteral("&Actualizar"),
                               QStringLiteral("BotonActualizar"));
    connect(actualizar_, &QPushButton::clicked, this, &VentanaActualizacionTemporada::Actualizar);
    connect(BotonVentana(this, botones, QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar")),
            &QPushButton::clicked, this, &QDialog::close);
    columna->addLayout(botones);
    resize(560, 260);
}

void VentanaActualizacionTemporada::Actualizar() {
    for (auto* paso : pasos_) paso->setVisible(false);
    actualizar_->setEnabled(false);
    Empezar([this](base::Red& red, base::Dialogo& dialogo) {
        const bool completa = seasons::ActualizarTemporada(
            red, dialogo, carpetas_.trabajo, carpetas_.temporada,
            [this](seasons::PasoActualizacion paso) {
                QMetaObject::invokeMethod(
                    this, [this, paso] { MostrarPaso(paso); }, Qt::QueuedConnection);
            });
        completa_ = completa_ || completa;
    });
    if (!Trabajando()) actualizar_->setEnabled(true);
}

void VentanaActualizacionTemporada::MostrarPaso(seasons::PasoActualizacion paso) {
    using seasons::PasoActualizacion;
    const auto mostrar = [this](std::size_t n, PasoActualizacion p) {
        pasos_[n]->setText(Q(seasons::TextoDelPaso(p)));
        pasos_[n]->setVisible(true);
    };
    switch (paso) {
        case PasoActualizacion::Descargando:
        case PasoActualizacion::SinConexion:
            mostrar(0, paso);
            break;
        case PasoActualizacion::Actualizando:
            pasos_[0]->setText(kHecho + pasos_[0]->text());
            mostrar(1, paso);
            break;
        case PasoActualizacion::Completa:
            pasos_[1]->setText(kHecho + pasos_[1]->text());
            mostrar(2, paso);
            break;
    }
}

void VentanaActualizacionTemporada::Terminado() { actualizar_->setEnabled(true); }

void VentanaActualizacionTemporada::closeEvent(QCloseEvent* evento) {
    VentanaDeRed::closeEvent(evento);
    if (evento->isAccepted() && completa_) {
        completa_ = false;
        emit recargar();
    }
}

}  // namespace quinteva::ui
