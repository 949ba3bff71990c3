// "Ponderar equipos" desde la página de la Quiniela Base: las marcas, el paso de partido a
// partido y los pesos que quedan.
#include <QCheckBox>
#include <QtTest>

#include "tests/ui/window_fixture.h"
#include "ui/team_weights_window.h"

using namespace quinteva;
using pruebas::Hijo;

class PruebaVentanaPonderar : public QObject {
    Q_OBJECT

  private slots:
    void MarcasPartidoAPartidoConSusEquipos() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 26);
        const QString primero =
            Hijo<QTableWidget>(*v, QStringLiteral("RejillaBase"))->item(0, 1)->text();
        pruebas::Pulsar(*v, "BotonPonderar");
        auto* ventana = Hijo<ui::VentanaPonderar>(*v, "VentanaPonderar");
        QVERIFY(QTest::qWaitForWindowExposed(ventana));
        QCOMPARE(pruebas::TextoDe(*ventana, "NumeroPartido"), QStringLiteral("1"));
        QCOMPARE(pruebas::TextoDe(*ventana, "EquipoLocal"),
                 primero.left(primero.indexOf(QStringLiteral(" -"))).trimmed());
        QVERIFY(!pruebas::TextoDe(*ventana, "EquipoVisitante").isEmpty());
        auto* bajas = Hijo<QCheckBox>(*ventana, QStringLiteral("Marca0"));
        QCOMPARE(bajas->text(), QStringLiteral("Bajas importantes"));
        auto* bajasVisitante = Hijo<QCheckBox>(*ventana, QStringLiteral("Marca6"));
        QTest::mouseClick(bajas, Qt::LeftButton, {}, QPoint(6, bajas->height() / 2));
        QVERIFY(bajas->isChecked());
        QTest::mouseClick(bajasVisitante, Qt::LeftButton, {},
                          QPoint(6, bajasVisitante->height() / 2));
        QVERIFY(!bajas->isChecked());
        QVERIFY(bajasVisitante->isChecked());
        pruebas::Pulsar(*ventana, "BotonSiguiente");
        QCOMPARE(pruebas::TextoDe(*ventana, "NumeroPartido"), QStringLiteral("2"));
        QVERIFY(!bajasVisitante->isChecked());
        pruebas::Pulsar(*ventana, "BotonAnterior");
        QVERIFY(bajasVisitante->isChecked());
        pruebas::Pulsar(*ventana, "BotonAnterior");
        QCOMPARE(pruebas::TextoDe(*ventana, "NumeroPartido"), QStringLiteral("1"));
        pruebas::Pulsar(*ventana, "BotonUltimo");
        QCOMPARE(pruebas::TextoDe(*ventana, "NumeroPartido"), QStringLiteral("14"));
        pruebas::Pulsar(*ventana, "BotonTerminar");
        QVERIFY(pruebas::Dichos(inst.dialogo).empty());
    }
};

QTEST_MAIN(PruebaVentanaPonderar)
#include "team_weights_window_test.moc"
