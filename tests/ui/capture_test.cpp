#include <QDir>
#include <QImage>
#include <QtTest>

#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"
#include "ui/main_window.h"

using namespace quinteva;

// Dibuja cada ventana en un PNG de la carpeta QUINTEVA_CAPTURAS, para mirarlas.
class PruebaCapturas : public QObject {
    Q_OBJECT

    static QString Carpeta() {
        const QString carpeta = qEnvironmentVariable("QUINTEVA_CAPTURAS", QDir::tempPath());
        QDir().mkpath(carpeta);
        return carpeta;
    }

    static void Capturar(QWidget& ventana, const QString& nombre) {
        ventana.show();
        QVERIFY(QTest::qWaitForWindowExposed(&ventana));
        const QImage imagen = ventana.grab().toImage();
        QVERIFY(!imagen.isNull());
        const QString ruta = Carpeta() + QLatin1Char('/') + nombre + QStringLiteral(".png");
        QVERIFY(imagen.save(ruta));
        QVERIFY(QFileInfo(ruta).size() > 0);
    }

  private slots:
    void VentanaPrincipal() {
        pruebas::CarpetaTemporal carpeta;
        pruebas::AjustesEnMemoria ajustes;
        pruebas::DialogoGuionado dialogo;
        ui::VentanaPrincipal ventana({carpeta.Ruta(), ajustes, dialogo});
        Capturar(ventana, QStringLiteral("ventana_principal"));
    }
};

QTEST_MAIN(PruebaCapturas)
#include "capture_test.moc"
