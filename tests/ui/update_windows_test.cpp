// Las ventanas de la actualización por Internet contra quinteva-servidor en 127.0.0.1, y la prueba
// de que sin servidor el programa no pide nada a la red.
#include <JlCompress.h>
#include <quazip.h>
#include <quazipfile.h>

#include <QLabel>
#include <QLineEdit>
#include <QNetworkAccessManager>
#include <QSignalSpy>
#include <QtTest>
#include <fstream>

#include "base/record_files.h"
#include "seasons/season_folder.h"
#include "seasons/server_reply.h"
#include "seasons/update.h"
#include "seasons/version_update.h"
#include "tests/support/publisher_process.h"
#include "tests/ui/publisher_fixture.h"
#include "tests/ui/window_fixture.h"
#include "ui/net_window.h"
#include "ui/program_update_window.h"
#include "ui/season_update_window.h"

using namespace quinteva;
using pruebas::Editor;
using pruebas::Hijo;
using pruebas::Leer;
namespace fs = std::filesystem;

namespace {

bool SinRed(QObject& ventana) { return ventana.findChildren<QNetworkAccessManager*>().isEmpty(); }

}  // namespace

class PruebaVentanasActualizacion : public QObject {
    Q_OBJECT

  private slots:
    void SinServidorNoSePideNadaALaRed() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        // La comprobación del arranque llega y, sin servidor, no hace nada.
        QTest::qWait(3500);
        QVERIFY(inst.dialogo.Registro().empty());
        auto* temporada = pruebas::AbrirDesdeMenu<ui::VentanaActualizacionTemporada>(
            *v, "AccionActualizacionInternet");
        pruebas::Pulsar(*temporada, "BotonActualizar");
        temporada->close();
        auto* programa =
            pruebas::AbrirDesdeMenu<ui::VentanaActualizacionPrograma>(*v, "AccionActualizacion");
        pruebas::Pulsar(*programa, "BotonComprobar");
        QCOMPARE(inst.dialogo.Textos(),
                 (std::vector<std::string>(2, std::string(ui::kMsgSinServidor))));
        QVERIFY(SinRed(*v));
        programa->close();
    }

    void LaTemporadaDelServidorYLaRecarga() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        const fs::path temporada = v->Temporada().carpetaTemporada;
        Editor editor;
        editor.Temporada(temporada);
        pruebas::ServidorPublicando servidor(QUINTEVA_SERVIDOR, editor.carpeta.Ruta());
        auto* ventana = pruebas::AbrirDesdeMenu<ui::VentanaActualizacionTemporada>(
            *v, "AccionActualizacionInternet");
        Hijo<QLineEdit>(*ventana, QStringLiteral("Servidor"))
            ->setText(QString::fromStdString(servidor.Direccion()));
        QSignalSpy recargar(ventana, &ui::VentanaActualizacionTemporada::recargar);
        pruebas::Pulsar(*ventana, "BotonActualizar");
        QTRY_COMPARE(pruebas::TextoDe(*ventana, "PasoFinal"),
                     QStringLiteral("Actualización completa !!"));
        QCOMPARE(pruebas::TextoDe(*ventana, "PasoDescarga"), QStringLiteral("✔ Descargando..."));
        QCOMPARE(pruebas::TextoDe(*ventana, "PasoActualizacion"),
                 QStringLiteral("✔ Actualizando..."));
        QCOMPARE(Leer(temporada / seasons::kJornadas),
                 Leer(editor.publicados / seasons::kJornadas));
        QCOMPARE(Leer(inst.trabajo / seasons::kHist), std::string("historico"));
        QCOMPARE(seasons::ServidorDeActualizaciones(inst.ajustes), servidor.Direccion());
        QVERIFY(inst.dialogo.Registro().empty());
        ventana->close();
        QCOMPARE(recargar.count(), 1);
    }

    void ConElServidorCaidoElErrorDeConexion() {
        pruebas::Instalacion inst;
        seasons::GuardarServidorDeActualizaciones(inst.ajustes, pruebas::kServidorCaido);
        auto v = inst.Ventana();
        const std::string antes = Leer(v->Temporada().carpetaTemporada / seasons::kJornadas);
        auto* ventana = pruebas::AbrirDesdeMenu<ui::VentanaActualizacionTemporada>(
            *v, "AccionActualizacionInternet");
        pruebas::Pulsar(*ventana, "BotonActualizar");
        QTRY_COMPARE(pruebas::TextoDe(*ventana, "PasoDescarga"),
                     QStringLiteral("Error: No se ha podido realizar la actualización"));
        QCOMPARE(inst.dialogo.Textos().size(), 1U);
        QVERIFY(inst.dialogo.Textos().front().starts_with("Error: 1:"));
        QCOMPARE(Leer(v->Temporada().carpetaTemporada / seasons::kJornadas), antes);
        ventana->close();
    }

    void LaVersionNuevaSeOfreceAlArrancar() {
        pruebas::Instalacion inst;
        Editor editor;
        editor.Version({});
        pruebas::ServidorPublicando servidor(QUINTEVA_SERVIDOR, editor.carpeta.Ruta());
        seasons::GuardarServidorDeActualizaciones(inst.ajustes, servidor.Direccion());
        inst.dialogo.Responder(base::Respuesta::No);
        auto v = inst.Ventana();
        QTRY_VERIFY_WITH_TIMEOUT(!inst.dialogo.Registro().empty(), 10000);
        QCOMPARE(inst.dialogo.Textos(),
                 std::vector<std::string>{std::string(seasons::kPreguntaVersionAlArrancar)});
        QCOMPARE(inst.ajustes.Leer("Quinteva", "Program", "NVers", ""), std::string("210000"));
    }

    void NoActualizarCallaAlArrancarPeroLaVentanaLaEncuentra() {
        pruebas::Instalacion inst;
        Editor editor;
        editor.Version({});
        pruebas::ServidorPublicando servidor(QUINTEVA_SERVIDOR, editor.carpeta.Ruta());
        seasons::GuardarServidorDeActualizaciones(inst.ajustes, servidor.Direccion());
        inst.ajustes.Guardar(base::kAplicacion, "Opciones", "NoActualizar", "215000");
        auto v = inst.Ventana();
        QTest::qWait(4500);
        QVERIFY(inst.dialogo.Registro().empty());
        // La ventana comprueba al abrirse; en esta plataforma remite al gestor de paquetes.
        inst.dialogo.Responder(base::Respuesta::No);
        auto* ventana =
            pruebas::AbrirDesdeMenu<ui::VentanaActualizacionPrograma>(*v, "AccionActualizacion");
        QTRY_COMPARE(pruebas::TextoDe(*ventana, "VersionServidor"),
                     QStringLiteral("Versión en el servidor: 215000"));
        QCOMPARE(inst.dialogo.Textos(),
                 (std::vector<std::string>{std::string(seasons::kPreguntaVerCambios),
                                           std::string(seasons::kMsgGestorDePaquetes)}));
        ventana->close();
    }

    void UnZipMaloSeDiceYLosDemasSeExpanden() {
        pruebas::Instalacion inst;
        Editor editor;
        // Uno que no es un zip, uno con una entrada que saldría de la carpeta y uno bueno.
        std::ofstream(editor.publicados / "Malo.zip") << "esto no es un zip";
        {
            QuaZip zip(QString::fromStdString((editor.publicados / "Fuera.zip").string()));
            QVERIFY(zip.open(QuaZip::mdCreate));
            QuaZipFile entrada(&zip);
            QVERIFY(
                entrada.open(QIODevice::WriteOnly, QuaZipNewInfo(QStringLiteral("../fuera.txt"))));
            entrada.write("fuera");
            entrada.close();
            zip.close();
        }
        std::ofstream(inst.documentos / "Leeme.txt") << "nueva";
        QVERIFY(JlCompress::compressFile(
            QString::fromStdString((editor.publicados / "Bueno.zip").string()),
            QString::fromStdString((inst.documentos / "Leeme.txt").string())));
        editor.Version({{"Malo.zip", "", "", 215000},
                        {"Fuera.zip", "", "", 215000},
                        {"Bueno.zip", "", "", 215000}});
        pruebas::ServidorPublicando servidor(QUINTEVA_SERVIDOR, editor.carpeta.Ruta());
        seasons::GuardarServidorDeActualizaciones(inst.ajustes, servidor.Direccion());

        std::string cambios;
        inst.dialogo.Responder(base::Respuesta::Si).Responder(base::Respuesta::Aceptar);
        ui::VentanaActualizacionPrograma ventana(
            {inst.trabajo.Ruta(), seasons::Instalacion::ConActualizador,
             [&](std::string_view texto) {
                 cambios = texto;
                 return seasons::EleccionCambios::Seguir;
             }},
            inst.ajustes, inst.dialogo);
        QSignalSpy traspasar(&ventana, &ui::VentanaActualizacionPrograma::traspasar);
        QTRY_COMPARE_WITH_TIMEOUT(traspasar.count(), 1, 10000);
        QCOMPARE(cambios, std::string("Más rápida."));
        const auto textos = inst.dialogo.Textos();
        QCOMPARE(textos.size(), 4U);
        QCOMPARE(textos[1], std::string(seasons::kAvisoInstalacion));
        QVERIFY(textos[2].starts_with("El archivo comprimido Malo.zip no se puede abrir"));
        QCOMPARE(textos[3],
                 std::string(
                     "El archivo comprimido Fuera.zip tiene una entrada no válida: ../fuera.txt."));
        QCOMPARE(Leer(inst.trabajo / "Leeme.txt"), std::string("nueva"));
        QVERIFY(!fs::exists(inst.trabajo.Ruta().parent_path() / "fuera.txt"));
    }
};

QTEST_MAIN(PruebaVentanasActualizacion)
#include "update_windows_test.moc"
