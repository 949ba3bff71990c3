#include <QAction>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QtTest>
#include <fstream>
#include <set>
#include <sstream>

#include "tests/ui/window_fixture.h"
#include "ui/help_window.h"

using namespace quinteva;
using pruebas::Hijo;
namespace fs = std::filesystem;

namespace {

const fs::path kAyuda = fs::path(QUINTEVA_DATOS) / "ayuda";

std::string Texto(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    std::ostringstream s;
    s << f.rdbuf();
    return s.str();
}

// Los temas: el nombre de objeto de cada ventana y de cada página de la principal.
std::set<QString> TemasDeLasVentanas() {
    std::set<QString> temas;
    const QRegularExpression nombre(
        QStringLiteral(R"re(setObjectName\(QStringLiteral\("((Ventana|Pagina)[A-Za-z]*)"\)\))re"));
    for (const auto& e : fs::directory_iterator(fs::path(QUINTEVA_DATOS) / ".." / "ui")) {
        if (e.path().extension() != ".cpp") continue;
        const QString fuente = QString::fromStdString(Texto(e.path()));
        for (auto m = nombre.globalMatch(fuente); m.hasNext();) temas.insert(m.next().captured(1));
    }
    temas.erase(QStringLiteral("VentanaAyuda"));
    return temas;
}

ui::VentanaAyuda* Ayuda(QWidget& desde) {
    auto* ayuda = desde.window()->findChild<ui::VentanaAyuda*>(QStringLiteral("VentanaAyuda"));
    if (!ayuda) qFatal("No se abrió la ayuda");
    return ayuda;
}

}  // namespace

class PruebaAyuda : public QObject {
    Q_OBJECT

  private slots:
    void CadaVentanaYCadaPaginaTienenSuAyuda() {
        const auto temas = TemasDeLasVentanas();
        QVERIFY(temas.size() > 40);
        for (const QString& tema : temas) {
            QVERIFY2(fs::exists(kAyuda / (tema.toStdString() + ".html")), qPrintable(tema));
        }
        QVERIFY(fs::exists(kAyuda / "indice.html"));
        QVERIFY(fs::exists(kAyuda / "guia.html"));
    }

    void LosEnlacesDeCadaPaginaLlevanAUnaQueExiste() {
        const QRegularExpression enlace(QStringLiteral(R"re(href="([^"#]*)(#[^"]*)?")re"));
        int enlaces = 0;
        for (const auto& e : fs::directory_iterator(kAyuda)) {
            const QString html = QString::fromStdString(Texto(e.path()));
            QVERIFY2(html.contains(QStringLiteral("<html lang=\"es\">")),
                     qPrintable(QString::fromStdString(e.path().string())));
            for (auto m = enlace.globalMatch(html); m.hasNext();) {
                const QString destino = m.next().captured(1);
                QVERIFY2(fs::exists(kAyuda / destino.toStdString()),
                         qPrintable(QString::fromStdString(e.path().filename().string()) +
                                    QStringLiteral(" -> ") + destino));
                ++enlaces;
            }
        }
        QVERIFY(enlaces > 100);
    }

    // F1 da la ayuda de la página en la que está el foco; el menú, el índice; la barra, la de la
    // página que se ve; el botón Ayuda de una ventana, la suya, sobre ella.
    void F1ElMenuLaBarraYElBotonDeUnaVentana() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        pruebas::Pagina(*v, ui::kCondicion);
        auto* historico = Hijo<QPushButton>(*v, "BotonHistoricoCondiciones");
        historico->setFocus();
        QTest::keyClick(historico, Qt::Key_F1);
        auto* ayuda = Ayuda(*v);
        QCOMPARE(ayuda->Tema(), QStringLiteral("PaginaCondiciones"));
        QVERIFY(Hijo<QTextBrowser>(*ayuda, "TextoAyuda")
                    ->toPlainText()
                    .contains(QStringLiteral("Cada pestaña es una familia de condiciones")));
        QCOMPARE(ayuda->windowTitle(), QStringLiteral("Ayuda de Quinteva"));

        Hijo<QAction>(*v, "AccionAyuda")->trigger();
        QCOMPARE(Ayuda(*v)->Tema(), QStringLiteral("indice"));
        QTest::mouseClick(Hijo<QPushButton>(*Ayuda(*v), "BotonGuia"), Qt::LeftButton);
        QCOMPARE(Ayuda(*v)->Tema(), QStringLiteral("guia"));
        QTest::mouseClick(Hijo<QPushButton>(*Ayuda(*v), "BotonAtras"), Qt::LeftButton);
        QCOMPARE(Ayuda(*v)->Tema(), QStringLiteral("indice"));

        pruebas::Pagina(*v, ui::kQuinBase);
        Hijo<QAction>(*v, "BarraAyuda")->trigger();
        QCOMPARE(Ayuda(*v)->Tema(), QStringLiteral("PaginaBase"));
        // Con el foco fuera de las páginas, la de la página que se ve.
        pruebas::Pagina(*v, ui::kCondicion);
        auto* botonCondiciones =
            Hijo<QPushButton>(*v, QStringLiteral("BotonPagina%1").arg(ui::kCondicion));
        botonCondiciones->setFocus();
        QTest::keyClick(botonCondiciones, Qt::Key_F1);
        QCOMPARE(Ayuda(*v)->Tema(), QStringLiteral("PaginaCondiciones"));

        Hijo<QAction>(*v, "AccionRefundir")->trigger();
        auto* refundir = Hijo<QDialog>(*v, "VentanaRefundir");
        auto* boton = Hijo<QPushButton>(*refundir, "BotonAyuda");
        QVERIFY(boton->isEnabled());
        QTest::mouseClick(boton, Qt::LeftButton);
        auto* deRefundir = Ayuda(*refundir);
        QCOMPARE(deRefundir->Tema(), QStringLiteral("VentanaRefundir"));
        QCOMPARE(deRefundir->parentWidget(), refundir);
        // F1 con la ventana modal delante: su ayuda.
        deRefundir->close();
        QTest::keyClick(refundir, Qt::Key_F1);
        QTRY_VERIFY(
            refundir->findChild<ui::VentanaAyuda*>(QStringLiteral("VentanaAyuda")) &&
            refundir->findChild<ui::VentanaAyuda*>(QStringLiteral("VentanaAyuda"))->isVisible());
        QCOMPARE(Ayuda(*refundir)->Tema(), QStringLiteral("VentanaRefundir"));
        QVERIFY(inst.dialogo.Registro().empty());
    }
};

QTEST_MAIN(PruebaAyuda)
#include "help_test.moc"
