#include "ui/main_window.h"

#include <QAction>
#include <QLabel>
#include <QMenuBar>

namespace quinteva::ui {

VentanaPrincipal::VentanaPrincipal(Servicios servicios, QWidget* madre)
    : QMainWindow(madre), servicios_(servicios) {
    setWindowTitle(QStringLiteral("Quinteva"));
    setObjectName(QStringLiteral("VentanaPrincipal"));
    CrearMenus();
    auto* carpeta = new QLabel(QStringLiteral("Carpeta de trabajo: ") +
                                   QString::fromStdString(servicios_.carpetaTrabajo.string()),
                               this);
    carpeta->setAlignment(Qt::AlignCenter);
    setCentralWidget(carpeta);
    resize(900, 640);
}

void VentanaPrincipal::CrearMenus() {
    QMenu* archivo = menuBar()->addMenu(QStringLiteral("&Archivo"));
    archivo->setObjectName(QStringLiteral("MenuArchivo"));
    QAction* salir = archivo->addAction(QStringLiteral("&Salir"), this, &QWidget::close);
    salir->setObjectName(QStringLiteral("AccionSalir"));

    QMenu* ayuda = menuBar()->addMenu(QStringLiteral("Ay&uda"));
    ayuda->setObjectName(QStringLiteral("MenuAyuda"));
    QAction* acerca =
        ayuda->addAction(QStringLiteral("A&cerca de..."), this, &VentanaPrincipal::AcercaDe);
    acerca->setObjectName(QStringLiteral("AccionAcercaDe"));
}

void VentanaPrincipal::AcercaDe() {
    servicios_.dialogo.Mensaje(
        "Quinteva " QUINTEVA_VERSION
        "\nQuinielas y Pleno al 15: condiciones, reducciones, boletos y aciertos.");
}

}  // namespace quinteva::ui
