#include <QApplication>
#include <QDir>
#include <QLockFile>
#include <QPainter>
#include <QScreen>
#include <QSplashScreen>
#include <QTimer>

#include "base/error.h"
#include "base/program_data.h"
#include "base/working_folder.h"
#include "ui/dialog_qt.h"
#include "ui/main_window.h"
#include "ui/program_reducer.h"
#include "ui/settings_qt.h"
#include "ui/spanish_texts.h"
#include "ui/working_folder_qt.h"

namespace {

// La ventana de presentación: el nombre del programa sobre un fondo verde.
QPixmap Presentacion() {
    QPixmap imagen(420, 220);
    imagen.fill(QColor(40, 120, 60));
    QPainter p(&imagen);
    p.setPen(Qt::white);
    QFont letra = p.font();
    letra.setPointSize(36);
    letra.setBold(true);
    p.setFont(letra);
    p.drawText(imagen.rect().adjusted(0, -30, 0, -30), Qt::AlignCenter, QStringLiteral("Quinteva"));
    letra.setPointSize(11);
    letra.setBold(false);
    p.setFont(letra);
    p.drawText(imagen.rect().adjusted(0, 70, 0, 0), Qt::AlignCenter,
               QStringLiteral("Quiniela y Pleno al 15"));
    return imagen;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication aplicacion(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quinteva"));
    QApplication::setDesktopFileName(QStringLiteral("quinteva"));
    quinteva::ui::TextosDeQtEnEspanol(aplicacion);
    quinteva::ui::DialogoQt dialogo;

    QLockFile unaSolaCopia(QDir::temp().filePath(
        QStringLiteral("Quinteva-%1.lock").arg(qEnvironmentVariable("USER"))));
    if (!unaSolaCopia.tryLock(100)) {
        dialogo.Mensaje("Ya está cargado el programa.", quinteva::base::Icono::Aviso);
        return 0;
    }

    QSplashScreen presentacion(Presentacion());
    presentacion.show();
    const auto carpeta = quinteva::ui::CarpetaTrabajoDelPrograma();
    try {
        quinteva::base::AsegurarCarpeta(carpeta);
    } catch (const quinteva::base::Error& e) {
        dialogo.Mensaje(e.what(), quinteva::base::Icono::Error);
        return 1;
    }
    quinteva::ui::AjustesQt ajustes(carpeta);
    dialogo.FijarAjustes(ajustes);
    const std::filesystem::path programa = QApplication::applicationDirPath().toStdString();
    quinteva::ui::ReductorDelPrograma reductor;
    quinteva::ui::VentanaPrincipal ventana({carpeta,
                                            programa,
                                            quinteva::base::CarpetaDatosPrograma(programa),
                                            ajustes,
                                            dialogo,
                                            &reductor,
                                            {}});
    dialogo.FijarMadre(&ventana);
    const QStringList argumentos = QApplication::arguments();
    std::optional<std::filesystem::path> archivo;
    if (argumentos.size() > 1) archivo = argumentos.at(1).toStdString();
    ventana.Arrancar(archivo);

    // Centrada si cabe con su marco y su título; si no, ocupa la pantalla entera (también sin
    // gestor de ventanas que la maximice), y las páginas se desplazan.
    const QRect pantalla = ventana.screen()->availableGeometry();
    const QSize marco(16, 48);
    if ((ventana.size() + marco).boundedTo(pantalla.size()) == ventana.size() + marco) {
        ventana.move(pantalla.center() - ventana.rect().center());
        ventana.show();
    } else {
        ventana.setGeometry(QRect(pantalla.topLeft(), pantalla.size() - marco));
        ventana.showMaximized();
    }
    QTimer::singleShot(800, &presentacion, &QWidget::close);
    QTimer::singleShot(0, &ventana, &quinteva::ui::VentanaPrincipal::Bienvenida);
    return QApplication::exec();
}
