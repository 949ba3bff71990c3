// Los mandatos de la ventana principal que hablan con el servidor del editor: la actualización de
// la temporada, la del programa y la comprobación de versión del arranque.
#include <QDir>
#include <QProcess>

#include "seasons/startup.h"
#include "seasons/update.h"
#include "seasons/version_update.h"
#include "ui/main_window.h"
#include "ui/program_update_window.h"
#include "ui/qt_text.h"
#include "ui/season_update_window.h"

namespace quinteva::ui {

void VentanaPrincipal::ActualizacionPorInternet() {
    auto* ventana = new VentanaActualizacionTemporada(
        {s_.carpetaTrabajo, temporada_.carpetaTemporada}, s_.ajustes, s_.dialogo, this);
    connect(ventana, &VentanaActualizacionTemporada::recargar, this,
            &VentanaPrincipal::RecargarTemporada);
    AbrirVentana(ventana);
}

void VentanaPrincipal::ActualizacionDelPrograma() {
    auto* ventana = new VentanaActualizacionPrograma(
        {s_.carpetaTrabajo, VentanaActualizacionPrograma::InstalacionDelPrograma(), {}}, s_.ajustes,
        s_.dialogo, this);
    // El actualizador reemplaza los archivos: se le deja la carpeta de trabajo y se cierra.
    connect(ventana, &VentanaActualizacionPrograma::traspasar, this, [this] {
        QTimer::singleShot(0, this, [this] {
            const QString actualizador =
                QDir(Q(s_.carpetaPrograma.string())).filePath(QStringLiteral("UpdatePr.exe"));
            QProcess::startDetached(actualizador, {Q(s_.carpetaTrabajo.string())});
            close();
        });
    });
    AbrirVentana(ventana);
}

void VentanaPrincipal::ComprobarVersion() {
    const auto servidor = seasons::ServidorDeActualizaciones(s_.ajustes);
    if (!servidor) return;
    if (comprobacionVersion_ == nullptr) {
        comprobacionVersion_ = new FlujoDeRed(s_.dialogo, this);
    }
    auto abrir = std::make_shared<bool>(false);
    connect(
        comprobacionVersion_, &FlujoDeRed::terminado, this,
        [this, abrir] {
            if (*abrir) ActualizacionDelPrograma();
        },
        Qt::SingleShotConnection);
    comprobacionVersion_->Empezar(Q(*servidor), [this, abrir](base::Red& red, base::Dialogo& d) {
        *abrir = seasons::ComprobarVersionAlArrancar(red, d, s_.ajustes, seasons::kVersionPrograma);
    });
}

void VentanaPrincipal::RecargarTemporada() {
    try {
        seasons::ContarEquipos(temporada_.carpetaTemporada, s_.ajustes);
    } catch (const std::exception& e) {
        Fallo(e);
    }
    SeguirArchivosDeTemporada();
}

}  // namespace quinteva::ui
