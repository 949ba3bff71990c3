// Las Peñas desde el menú "&Peñas": crear una, sus Apostantes y cuotas, una Jornada cerrada y
// repartida, sus informes y la última Peña en el menú.
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QtTest>

#include "base/text1252.h"
#include "syndicates/ledger.h"
#include "syndicates/participants.h"
#include "tests/ui/window_fixture.h"
#include "ui/pena_accounts_window.h"
#include "ui/pena_data_window.h"
#include "ui/pena_window.h"
#include "ui/report_viewer.h"

using namespace quinteva;
using pruebas::Hijo;
namespace fs = std::filesystem;

namespace {

void Escribir(QWidget& ventana, const QString& caja, const QString& texto) {
    auto* campo = Hijo<QLineEdit>(ventana, caja);
    campo->clear();
    QTest::keyClicks(campo, texto);
}

template <typename Ventana>
Ventana* Abierta(QObject& madre) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Ventana* ventana = nullptr;
    const bool hay =
        QTest::qWaitFor([&] { return (ventana = madre.findChild<Ventana*>()) != nullptr; }, 5000);
    if (!hay || !QTest::qWaitForWindowExposed(ventana)) {
        qFatal("No se abre %s", Ventana::staticMetaObject.className());
    }
    return ventana;
}

QString Celda(QTableWidget* t, int fila, int columna) {
    auto* item = t->item(fila, columna);
    return item == nullptr ? QString() : item->text();
}

}  // namespace

class PruebaPenas : public QObject {
    Q_OBJECT

  private slots:
    void UnaPenaDeLaCreacionAlReparto() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        // Crear nueva Peña.
        Hijo<QAction>(*v, "AccionCrearPena")->trigger();
        auto* datos = Abierta<ui::VentanaDatosPena>(*v);
        pruebas::Pulsar(*datos, "BotonGuardarPena");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(),
                 std::string(syndicates::kMsgCrearFaltanNombres));
        Escribir(*datos, "CampoPena0", QStringLiteral("Los Amigos del Bar"));
        Escribir(*datos, "CampoPena1", QStringLiteral("Los Amigos"));
        pruebas::Pulsar(*datos, "BotonGuardarPena");
        auto* pena = Abierta<ui::VentanaPena>(*v);
        QCOMPARE(pruebas::TextoDe(*pena, "NombrePena"),
                 QStringLiteral("Los Amigos del Bar   (Temporada 23/24)"));
        QCOMPARE(inst.ajustes.Leer(base::kAplicacion, "Valores", "NPeña", ""),
                 std::string("LosAmigos"));
        QVERIFY(Hijo<QAction>(*v, "AccionUltimaPena")->isVisible());
        QCOMPARE(Hijo<QAction>(*v, "AccionUltimaPena")->text(), QStringLiteral("LOSAMIGOS"));

        // Tres Apostantes con 1 euro en las Jornadas 12 a 14.
        auto* rejilla = Hijo<QTableWidget>(*pena, "RejillaApostantes");
        for (const char* nombre : {"Alba Gil", "Benito Sanz", "Carmen Ruiz"}) {
            Escribir(*pena, "CampoApostante0", QString::fromLatin1(nombre));
            pruebas::Pulsar(*pena, "BotonAnadir");
        }
        QCOMPARE(rejilla->rowCount(), 3);
        Escribir(*pena, "CampoApostante0", QStringLiteral("ALBA GIL"));
        pruebas::Pulsar(*pena, "BotonAnadir");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(),
                 syndicates::MsgApostanteYaExiste("ALBA GIL"));
        pruebas::Pulsar(*pena, "BotonIntroducirCuotas");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(),
                 std::string(syndicates::kMsgSeleccioneDeLaLista));
        Escribir(*pena, "CajaImporteCuota", QStringLiteral("1"));
        Escribir(*pena, "CajaDesde", QStringLiteral("12"));
        Escribir(*pena, "CajaHasta", QStringLiteral("14"));
        for (int fila = 0; fila < 3; ++fila) {
            pruebas::Pulsar(rejilla, fila, 0);
            pruebas::Pulsar(*pena, "BotonIntroducirCuotas");
        }
        QCOMPARE(Celda(rejilla, 1, 12), QStringLiteral("1,00"));
        QCOMPARE(rejilla->horizontalHeaderItem(12)->text(), QStringLiteral("Jorn. 12"));
        // Con cuotas no se elimina.
        inst.dialogo.Responder(base::Respuesta::Si);
        pruebas::MenuDeContexto(*pena, rejilla,
                                rejilla->visualItemRect(rejilla->item(2, 0)).center(),
                                QStringLiteral("MenuApostante"), QStringLiteral("Eliminar"));
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(),
                 syndicates::MsgNoSePuedeEliminar("Carmen Ruiz"));

        // La Jornada 12: 4 columnas, un premio de 100 en "De 10", cerrada y repartida.
        pruebas::Pulsar(*pena, "BotonPaginaJornadas");
        auto* selector = Hijo<QComboBox>(*pena, "SelectorJornadaPena");
        selector->setCurrentIndex(11);
        emit selector->activated(11);
        QCOMPARE(pruebas::TextoDe(*pena, "NumApostantesPena"), QStringLiteral("3"));
        QCOMPARE(pruebas::TextoDe(*pena, "TotalJugadoPena"), QStringLiteral("3,00"));
        Escribir(*pena, "CajaColumnasPena", QStringLiteral("3"));
        QCOMPARE(pruebas::TextoDe(*pena, "ImportePena"), QStringLiteral("2,25"));
        Hijo<QRadioButton>(*pena, "OpcionCerrada")->click();
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(),
                 std::string(syndicates::kMsgImporteDistinto));
        QVERIFY(Hijo<QRadioButton>(*pena, "OpcionAbierta")->isChecked());
        Escribir(*pena, "CajaColumnasPena", QStringLiteral("4"));
        Escribir(*pena, "CajaAcertadas5", QStringLiteral("1"));
        Escribir(*pena, "CajaPremio5", QStringLiteral("100"));
        QCOMPARE(pruebas::TextoDe(*pena, "TotalCobradoPena"), QStringLiteral("100,00"));
        QVERIFY(!Hijo<QPushButton>(*pena, "BotonDistribuir")->isEnabled());
        Hijo<QRadioButton>(*pena, "OpcionCerrada")->click();
        QVERIFY(Hijo<QRadioButton>(*pena, "OpcionCerrada")->isChecked());
        QVERIFY(Hijo<QPushButton>(*pena, "BotonDistribuir")->isEnabled());
        pruebas::Pulsar(*pena, "BotonDistribuir");
        auto* jornada = Hijo<QTableWidget>(*pena, "RejillaJornadaPena");
        QCOMPARE(Celda(jornada, 0, 3), QStringLiteral("33,33"));
        QCOMPARE(Celda(jornada, 2, 3), QStringLiteral("33,34"));
        QCOMPARE(pruebas::TextoDe(*pena, "TotalObtenidoPena"), QStringLiteral("100,00"));
        // El menú de la relación ordena por importe (todos 1,00: el orden no cambia).
        pruebas::MenuDeContexto(*pena, jornada,
                                jornada->visualItemRect(jornada->item(0, 0)).center(),
                                QStringLiteral("MenuOrdenJornada"), QStringLiteral("Importe"));
        QCOMPARE(Celda(jornada, 2, 3), QStringLiteral("33,34"));
        pruebas::Pulsar(*pena, "BotonGuardarJornada");
        const syndicates::ArchivosPena archivos(inst.trabajo / "Peñas" / "Temporada 23-24" /
                                                "LosAmigos");
        QCOMPARE(archivos.LeerJornada(12).cerrada, -1);
        QCOMPARE(archivos.LeerApostantes()[2].obtenido[12], 33.34F);

        // Cerrada, las columnas no se cambian.
        Escribir(*pena, "CajaColumnasPena", QStringLiteral("8"));
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(),
                 std::string(syndicates::kMsgJornadaCerradaColumnas));

        // "I&nforme Peña" y su "&Visor", con su PDF.
        pruebas::Pulsar(*pena, "BotonInformePena");
        auto* cuentas = Abierta<ui::VentanaCuentas>(*pena);
        QCOMPARE(pruebas::TextoDe(*cuentas, "Resultado"), QStringLiteral("97,00"));
        QCOMPARE(pruebas::TextoDe(*cuentas, "JornadasJugadas"), QStringLiteral("1"));
        pruebas::Pulsar(*cuentas, "BotonVisor");
        auto* visor = Abierta<ui::VentanaVisor>(*pena);
        QCOMPARE(visor->windowTitle(), QStringLiteral("Detalle de Jornadas jugadas"));
        const fs::path pdf = inst.documentos / "informe.pdf";
        inst.dialogo.Responder(std::optional<fs::path>(pdf));
        pruebas::Pulsar(*visor, "BotonGuardarPdf");
        QVERIFY(fs::file_size(pdf) > 0);
        visor->close();
        cuentas->close();
        pena->close();

        // La última Peña desde el menú.
        Hijo<QAction>(*v, "AccionUltimaPena")->trigger();
        auto* otraVez = Abierta<ui::VentanaPena>(*v);
        QCOMPARE(Hijo<QTableWidget>(*otraVez, "RejillaApostantes")->rowCount(), 3);
        otraVez->close();
    }
};

QTEST_MAIN(PruebaPenas)
#include "pena_windows_test.moc"
