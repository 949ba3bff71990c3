// "Quiniela muy reducida": la ventana junto a la base, su fila de la tabla y "Generar" de un paso
// hasta la página Boletos con las reducidas guardadas.
#include <QCheckBox>
#include <QRadioButton>
#include <QtTest>

#include "builders/boletos.h"
#include "builders/very_reduced.h"
#include "outputs/played_set.h"
#include "tests/ui/window_fixture.h"
#include "ui/very_reduced_window.h"

using namespace quinteva;
using pruebas::Hijo;
namespace fs = std::filesystem;

class PruebaMuyReducida : public QObject {
    Q_OBJECT

    static ui::VentanaMuyReducida* Abrir(ui::VentanaPrincipal& v) {
        pruebas::Pulsar(v, "BotonMuyReducida");
        auto* ventana = v.findChild<ui::VentanaMuyReducida*>();
        if (ventana == nullptr || !QTest::qWaitForWindowExposed(ventana)) qFatal("No se abre");
        return ventana;
    }

  private slots:
    void GenerarSoloConUnaFilaYDeUnPasoHastaBoletos() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);  // 2 triples y 2 dobles: una fila de la tabla
        // Sin archivo, antes se guarda.
        const fs::path ruta = inst.documentos / "MuyReducida.uxd";
        inst.dialogo.Responder(std::optional<fs::path>(ruta));
        auto* ventana = Abrir(*v);
        QCOMPARE(v->Combinacion().ruta, ruta);
        auto* generar = Hijo<QPushButton>(*ventana, QStringLiteral("BotonGenerarMuyReducida"));
        QVERIFY(generar->isEnabled());
        QVERIFY(ventana->isVisible() && !ventana->isModal());
        // Sin la X del partido 1 la base es de 2 triples y 1 doble, que no está en la tabla.
        auto* rejilla = Hijo<QTableWidget>(*v, QStringLiteral("RejillaBase"));
        pruebas::Pulsar(rejilla, 0, 3);
        QVERIFY(!generar->isEnabled());
        pruebas::Pulsar(rejilla, 0, 3);
        QVERIFY(generar->isEnabled());

        Hijo<QRadioButton>(*ventana, QStringLiteral("OpcionMuy13"))->setChecked(true);
        const QPointer<ui::VentanaMuyReducida> abierta(ventana);
        QTest::mouseClick(generar, Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(pruebas::Dichos(inst.dialogo).size() == 2, 60000);
        QCOMPARE(pruebas::Dichos(inst.dialogo),
                 (std::vector<std::string>{"Por favor guarde antes la combinación",
                                           std::string(builders::kMsgProcesoTerminado)}));
        QCOMPARE(v->PaginaActual(), static_cast<int>(ui::kBoletos));
        QCOMPARE(v->Combinacion().jugada, std::string("red"));
        QCOMPARE(v->Combinacion().nivelReducida, 0);
        QVERIFY(v->Combinacion().activasReducidas > 0);
        QCOMPARE(outputs::LeerJuegoJugado(ruta).juego, std::string("red"));
        QVERIFY(fs::exists(inst.documentos / "MuyReducida.red"));
        QTRY_VERIFY(abierta.isNull() || !abierta->isVisible());
    }

    void UnaCondicionPuestaConLaVentanaAbiertaSeRehusaAlPulsar() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        inst.dialogo.Responder(std::optional<fs::path>(inst.documentos / "Cond.uxd"));
        auto* ventana = Abrir(*v);
        // La casilla de Generales con la ventana abierta: "Generar" sigue habilitado.
        pruebas::Pagina(*v, ui::kCondicion);
        Hijo<QCheckBox>(*v, QStringLiteral("Casilla0"))->click();
        auto* generar = Hijo<QPushButton>(*ventana, QStringLiteral("BotonGenerarMuyReducida"));
        QVERIFY(generar->isEnabled());
        QTest::mouseClick(generar, Qt::LeftButton);
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(), std::string(builders::kMsgHayCondiciones));
        QVERIFY(!v->Trabajo().EnCurso());
        QCOMPARE(v->Combinacion().totalGeneradas, 0);
        ventana->close();
    }

    void ConUnaBaseLargaNoALaPreguntaNoSeTocaNada() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        // Once triples: 177.147 columnas, por encima de 100.000.
        std::vector<std::pair<int, int>> signos;
        for (int p = 1; p <= 11; ++p) signos.insert(signos.end(), {{p, 1}, {p, 2}});
        pruebas::PonerBase(*v, {}, '1', '0');
        auto* rejilla = Hijo<QTableWidget>(*v, QStringLiteral("RejillaBase"));
        for (int p = 1; p <= 14; ++p) pruebas::Pulsar(rejilla, p - 1, 2);
        for (auto [p, s] : signos) pruebas::Pulsar(rejilla, p - 1, s + 2);
        inst.dialogo.Responder(std::optional<fs::path>(inst.documentos / "Larga.uxd"));
        auto* ventana = Abrir(*v);
        auto* generar = Hijo<QPushButton>(*ventana, QStringLiteral("BotonGenerarMuyReducida"));
        QVERIFY(generar->isEnabled());
        inst.dialogo.Responder(base::Respuesta::No);
        QTest::mouseClick(generar, Qt::LeftButton);
        QCOMPARE(pruebas::Dichos(inst.dialogo),
                 (std::vector<std::string>{"Por favor guarde antes la combinación",
                                           std::string(builders::kPreguntaProcesoLargo)}));
        QVERIFY(!v->Trabajo().EnCurso());
        QCOMPARE(v->Combinacion().totalGeneradas, 0);
        QVERIFY(!fs::exists(inst.trabajo / "Cmb.tmp"));
        QCOMPARE(v->PaginaActual(), static_cast<int>(ui::kQuinBase));
        ventana->close();
    }
};

QTEST_MAIN(PruebaMuyReducida)
#include "very_reduced_window_test.moc"
