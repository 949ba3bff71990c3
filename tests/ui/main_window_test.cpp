#include <QAction>
#include <QMenuBar>
#include <QtTest>

#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"
#include "ui/main_window.h"

using namespace quinteva;

class PruebaVentanaPrincipal : public QObject {
    Q_OBJECT

  private slots:
    void SeTitulaQuintevaConSusMenus() {
        pruebas::CarpetaTemporal carpeta;
        pruebas::AjustesEnMemoria ajustes;
        pruebas::DialogoGuionado dialogo;
        ui::VentanaPrincipal ventana({carpeta.Ruta(), ajustes, dialogo});
        QCOMPARE(ventana.windowTitle(), QStringLiteral("Quinteva"));
        QStringList menus;
        for (QAction* a : ventana.menuBar()->actions()) menus << a->text();
        QCOMPARE(menus, (QStringList{QStringLiteral("&Archivo"), QStringLiteral("Ay&uda")}));
    }

    void AcercaDeHablaPorElDialogo() {
        pruebas::CarpetaTemporal carpeta;
        pruebas::AjustesEnMemoria ajustes;
        pruebas::DialogoGuionado dialogo;
        ui::VentanaPrincipal ventana({carpeta.Ruta(), ajustes, dialogo});
        auto* acerca = ventana.findChild<QAction*>(QStringLiteral("AccionAcercaDe"));
        QVERIFY(acerca != nullptr);
        QCOMPARE(acerca->text(), QStringLiteral("A&cerca de..."));
        acerca->trigger();
        QCOMPARE(dialogo.Registro().size(), std::size_t{1});
        QVERIFY(QString::fromStdString(dialogo.Registro()[0].texto).startsWith("Quinteva "));
    }

    void SalirCierraLaVentana() {
        pruebas::CarpetaTemporal carpeta;
        pruebas::AjustesEnMemoria ajustes;
        pruebas::DialogoGuionado dialogo;
        ui::VentanaPrincipal ventana({carpeta.Ruta(), ajustes, dialogo});
        ventana.show();
        QVERIFY(ventana.isVisible());
        ventana.findChild<QAction*>(QStringLiteral("AccionSalir"))->trigger();
        QVERIFY(!ventana.isVisible());
    }
};

QTEST_MAIN(PruebaVentanaPrincipal)
#include "main_window_test.moc"
