#include <QAction>
#include <QDir>
#include <QImage>
#include <QTabWidget>
#include <QtTest>

#include "engine/analysis.h"
#include "tests/ui/window_fixture.h"
#include "ui/options_window.h"
#include "ui/report_windows.h"

using namespace quinteva;
using pruebas::Hijo;

// Dibuja la ventana principal en cada página y pestaña, y cada ventana, en un PNG de la carpeta
// QUINTEVA_CAPTURAS, para mirarlas.
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
        // Que los cambios de tamaño pendientes se apliquen antes de dibujar.
        QTest::qWait(30);
        const QImage imagen = ventana.grab().toImage();
        QVERIFY(!imagen.isNull());
        const QString ruta = Carpeta() + QLatin1Char('/') + nombre + QStringLiteral(".png");
        QVERIFY(imagen.save(ruta));
        QVERIFY(QFileInfo(ruta).size() > 0);
    }

  private slots:
    void VentanaPrincipalEnCadaPaginaYPestana() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        Capturar(*v, QStringLiteral("ventana_principal_inicio"));
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        pruebas::Pulsar(Hijo<QTableWidget>(*v, "RejillaBase"), 0, 1);
        Capturar(*v, QStringLiteral("pagina_0_quin_base"));
        pruebas::Pagina(*v, ui::kCondicion);
        auto* pestanas = Hijo<QTabWidget>(*v, "PestanasCondiciones");
        for (int i = 0; i < pestanas->count(); ++i) {
            pestanas->setCurrentIndex(i);
            Capturar(*v,
                     QStringLiteral("pagina_1_condicion_%1_%2").arg(i).arg(pestanas->tabText(i)));
        }
        pruebas::Pagina(*v, ui::kGenerar);
        QTest::mouseClick(Hijo<QPushButton>(*v, "BotonGenerar"), Qt::LeftButton);
        pruebas::EsperarTrabajo(*v);
        Capturar(*v, QStringLiteral("pagina_2_generar"));
        pruebas::Pagina(*v, ui::kReducir);
        QTest::mouseClick(Hijo<QPushButton>(*v, "BotonReducir"), Qt::LeftButton);
        pruebas::EsperarTrabajo(*v);
        Capturar(*v, QStringLiteral("pagina_3_reducir"));
        inst.dialogo.Responder(
            std::optional<std::filesystem::path>(inst.documentos / "Captura.uxd"));
        Hijo<QAction>(*v, "AccionGuardarComo")->trigger();
        auto w = inst.Ventana(inst.documentos / "Captura.uxd");
        pruebas::Pagina(*w, ui::kBoletos);
        Capturar(*w, QStringLiteral("pagina_4_boletos"));
    }

    void Ventanas() {
        pruebas::Instalacion inst;
        ui::VentanaOpciones opciones(inst.ajustes);
        Capturar(opciones, QStringLiteral("ventana_opciones"));
        engine::Rechazos rechazos;
        rechazos.porCondicion[0] = 1234;
        rechazos.porCondicion[4] = 56;
        rechazos.grupo[2] = 7;
        rechazos.tolGruposAciertos = 89;
        ui::VentanaRechazadas rechazadas(engine::FilasRechazadas(rechazos, 0, 2));
        Capturar(rechazadas, QStringLiteral("ventana_rechazadas"));
        ui::VentanaTablaReducciones tabla(inst.reductor.TablaReducciones());
        Capturar(tabla, QStringLiteral("ventana_tabla_reducciones"));
        ui::VentanaReduccion reduccion(inst.reductor.Informe(24, 324));
        Capturar(reduccion, QStringLiteral("ventana_reduccion"));
    }
};

QTEST_MAIN(PruebaCapturas)
#include "capture_test.moc"
