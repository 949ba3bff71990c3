#include <QApplication>
#include <QMessageBox>

#include "base/error.h"
#include "base/working_folder.h"
#include "ui/dialog_qt.h"
#include "ui/main_window.h"
#include "ui/settings_qt.h"
#include "ui/working_folder_qt.h"

int main(int argc, char** argv) {
    QApplication aplicacion(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quinteva"));

    quinteva::ui::DialogoQt dialogo;
    const auto carpeta = quinteva::ui::CarpetaTrabajoDelPrograma();
    try {
        quinteva::base::AsegurarCarpeta(carpeta);
    } catch (const quinteva::base::Error& e) {
        dialogo.Mensaje(e.what(), quinteva::base::Icono::Error);
        return 1;
    }
    quinteva::ui::AjustesQt ajustes(carpeta);
    quinteva::ui::VentanaPrincipal ventana({carpeta, ajustes, dialogo});
    dialogo.FijarMadre(&ventana);
    ventana.show();
    return QApplication::exec();
}
