#include <QAction>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <functional>

#include "engine/combination_files.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"
#include "tests/ui/window_fixture.h"
#include "ui/dialog_folder.h"
#include "ui/dialog_qt.h"
#include "ui/spanish_texts.h"

using namespace quinteva;
using pruebas::Hijo;
namespace fs = std::filesystem;

namespace {

// Hace `paso` con la caja modal que el programa abra a continuación, en cuanto se muestre.
void ConLaCajaQueSeAbra(std::function<void(QWidget&)> paso) {
    QTimer::singleShot(0, [paso = std::move(paso)] {
        QWidget* caja = nullptr;
        QTRY_VERIFY((caja = QApplication::activeModalWidget()) != nullptr);
        paso(*caja);
    });
}

QString SinAtajo(QString texto) { return texto.remove(QLatin1Char('&')); }

QString Texto(QWidget& caja, const char* nombre) {
    return Hijo<QLabel>(caja, QString::fromLatin1(nombre))->text();
}

}  // namespace

// El programa como lo ve un usuario de habla española en su escritorio: los textos de Qt en
// español, los diálogos de archivos en sus documentos o en la última carpeta que eligió, y los
// atajos de teclado de siempre.
class PruebaPlataforma : public QObject {
    Q_OBJECT

    pruebas::CarpetaTemporal casa_;

  private slots:
    void initTestCase() {
        // Una carpeta personal con documentos, como la de un usuario.
        qputenv("HOME", QByteArray::fromStdString(casa_.Ruta().string()));
        qunsetenv("XDG_CONFIG_HOME");
        fs::create_directories(casa_ / "Documents");
        QVERIFY(ui::TextosDeQtEnEspanol(*qApp));
    }

    void UnaPreguntaTieneLosBotonesSiYNo() {
        ui::DialogoQt dialogo;
        QStringList botones;
        ConLaCajaQueSeAbra([&](QWidget& caja) {
            auto& pregunta = dynamic_cast<QMessageBox&>(caja);
            for (QAbstractButton* b : pregunta.buttons()) botones << SinAtajo(b->text());
            pregunta.button(QMessageBox::No)->click();
        });
        QCOMPARE(dialogo.PreguntaSiNo("Desea guardar la Quiniela actual?", base::Respuesta::Si),
                 base::Respuesta::No);
        botones.sort();
        QCOMPARE(botones, (QStringList{QStringLiteral("No"), QStringLiteral("Sí")}));
    }

    void UnaPreguntaConCancelarDiceCancelar() {
        ui::DialogoQt dialogo;
        QString cancelar;
        ConLaCajaQueSeAbra([&](QWidget& caja) {
            auto& pregunta = dynamic_cast<QMessageBox&>(caja);
            cancelar = SinAtajo(pregunta.button(QMessageBox::Cancel)->text());
            pregunta.button(QMessageBox::Cancel)->click();
        });
        QCOMPARE(
            dialogo.PreguntaSiNoCancelar("Desea guardar la Quiniela actual?", base::Respuesta::Si),
            base::Respuesta::Cancelar);
        QCOMPARE(cancelar, QStringLiteral("Cancelar"));
    }

    // "G&uardar como" de una Combinación nueva: el diálogo, en español, se abre en los documentos
    // (no en la carpeta del programa, que es la actual); lo siguiente, en la carpeta elegida,
    // también en otra sesión, porque queda en los ajustes.
    void ElDialogoDeArchivosEmpiezaEnLosDocumentosYLuegoEnLaUltimaCarpeta() {
        pruebas::AjustesEnMemoria ajustes;
        ui::DialogoQt dialogo;
        dialogo.FijarAjustes(ajustes);
        fs::create_directories(casa_ / "Quinielas");
        QString carpeta, buscarEn, nombre, guardar;
        ConLaCajaQueSeAbra([&](QWidget& caja) {
            auto& archivos = dynamic_cast<QFileDialog&>(caja);
            carpeta = archivos.directory().absolutePath();
            buscarEn = Texto(caja, "lookInLabel");
            nombre = Texto(caja, "fileNameLabel");
            auto* botones = Hijo<QDialogButtonBox>(caja, QStringLiteral("buttonBox"));
            guardar = SinAtajo(botones->button(QDialogButtonBox::Save)->text());
            Hijo<QLineEdit>(caja, QStringLiteral("fileNameEdit"))
                ->setText(QString::fromStdString((casa_ / "Quinielas" / "Jornada.uxd").string()));
            botones->button(QDialogButtonBox::Save)->click();
        });
        const auto elegida = dialogo.ArchivoParaGuardar("Guardar como", engine::kFiltroUxd, {});
        QCOMPARE(carpeta, QString::fromStdString((casa_ / "Documents").string()));
        QCOMPARE(buscarEn, QStringLiteral("Ver en:"));
        QCOMPARE(SinAtajo(nombre), QStringLiteral("Nombre de fichero:"));
        QCOMPARE(guardar, QStringLiteral("Guardar"));
        QVERIFY(elegida.has_value());
        QCOMPARE(elegida->filename().string(), std::string("Jornada.uxd"));

        ui::DialogoQt otraSesion;
        otraSesion.FijarAjustes(ajustes);
        QString cancelar;
        ConLaCajaQueSeAbra([&](QWidget& caja) {
            carpeta = dynamic_cast<QFileDialog&>(caja).directory().absolutePath();
            auto* botones = Hijo<QDialogButtonBox>(caja, QStringLiteral("buttonBox"));
            cancelar = SinAtajo(botones->button(QDialogButtonBox::Cancel)->text());
            dynamic_cast<QFileDialog&>(caja).reject();
        });
        QVERIFY(!otraSesion.ArchivoParaAbrir("Abrir", engine::kFiltroUxd, {}).has_value());
        QCOMPARE(carpeta, QString::fromStdString((casa_ / "Quinielas").string()));
        QCOMPARE(cancelar, QStringLiteral("Cancelar"));
    }

    void LaCarpetaDelDialogo() {
        const fs::path docs = casa_ / "Documents", ultima = casa_ / "Quinielas";
        fs::create_directories(ultima);
        const fs::path conCarpeta = ultima / "Jornada.uxd";
        // La ruta dada manda si su carpeta existe; la carpeta sola, también.
        QCOMPARE(ui::CarpetaDelDialogo(conCarpeta, {}, docs), conCarpeta);
        QCOMPARE(ui::CarpetaDelDialogo(ultima, {}, docs), ultima);
        // Sin ruta: la última elegida, si existe; si no, los documentos.
        QCOMPARE(ui::CarpetaDelDialogo({}, ultima, docs), ultima);
        QCOMPARE(ui::CarpetaDelDialogo({}, casa_ / "borrada", docs), docs);
        QCOMPARE(ui::CarpetaDelDialogo({}, {}, docs), docs);
        // Un nombre sin carpeta, o con una que ya no existe, conserva el nombre.
        QCOMPARE(ui::CarpetaDelDialogo("Jornada.uxd", ultima, docs), ultima / "Jornada.uxd");
        QCOMPARE(ui::CarpetaDelDialogo(casa_ / "borrada" / "J.uxd", {}, docs), docs / "J.uxd");
        QCOMPARE(ui::DocumentosDelUsuario(), docs);
    }

    void LosAtajosDeSiempre() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        const auto atajo = [&](const char* accion) {
            return Hijo<QAction>(*v, QString::fromLatin1(accion))
                ->shortcut()
                .toString(QKeySequence::NativeText);
        };
        QCOMPARE(atajo("AccionNueva"), QStringLiteral("Control+N"));
        QCOMPARE(atajo("AccionAbrir"), QStringLiteral("Control+O"));
        QCOMPARE(atajo("AccionGuardar"), QStringLiteral("Control+S"));
        QCOMPARE(atajo("AccionGuardarComo"), QStringLiteral("Control+Mayúsculas+S"));
        QCOMPARE(atajo("AccionSalir"), QStringLiteral("Control+Q"));
        // Ctrl+Q cierra el programa (sin nada que guardar, sin preguntar).
        QTest::keyClick(v.get(), Qt::Key_Q, Qt::ControlModifier);
        QTRY_VERIFY(!v->isVisible());
        QVERIFY(inst.dialogo.Registro().empty());
    }
};

QTEST_MAIN(PruebaPlataforma)
#include "platform_test.moc"
