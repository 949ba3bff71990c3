#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QtTest>

#include "base/record_files.h"
#include "base/text1252.h"
#include "outputs/played_set.h"
#include "seasons/league.h"
#include "seasons/pools.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/ui/window_fixture.h"
#include "ui/pools_results_window.h"
#include "ui/pools_slip_window.h"
#include "ui/pools_view_window.h"

using namespace quinteva;
using pruebas::Hijo;
namespace fs = std::filesystem;

namespace {

void Teclear(QObject& ventana, const char* campo, const QString& texto) {
    auto* c = Hijo<QLineEdit>(ventana, QString::fromLatin1(campo));
    c->setFocus();
    QTest::keyClicks(c, texto);
}

QString Celda(QTableWidget* rejilla, int fila, int columna) {
    return rejilla->item(fila, columna)->text();
}

std::vector<seasons::RegPartidoQuin> Quiniela(const fs::path& carpeta, int jornada) {
    return seasons::PartidosDeQuiniela(carpeta, jornada);
}

}  // namespace

// "Jornadas de Quinielas" y sus resultados desde los menús, sobre la temporada de demostración.
class PruebaVentanasQuinielas : public QObject {
    Q_OBJECT

  private slots:
    void UnBoletoNuevoLlegaALaPrincipal() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        const auto carpeta = seasons::CarpetaTemporadaEnCurso(inst.trabajo.Ruta());
        auto* boleto =
            pruebas::AbrirDesdeMenu<ui::VentanaJornadasQuinielaQt>(*v, "AccionJornadasQuiniela");
        QCOMPARE(pruebas::TextoDe(*boleto, "EtiquetaCabecera"), QStringLiteral("Temporada 23/24"));
        auto* jornada = Hijo<QComboBox>(*boleto, QStringLiteral("ListaJornada"));
        QVERIFY(jornada->count() > 10);
        auto* rejilla = Hijo<QTableWidget>(*boleto, QStringLiteral("RejillaPartidos"));
        QCOMPARE(rejilla->rowCount(), 15);

        // Una Jornada que no existe: sin fecha la lista no agrega.
        jornada->setFocus();
        jornada->lineEdit()->selectAll();
        QTest::keyClicks(jornada->lineEdit(), QStringLiteral("60"));
        QTest::keyClick(jornada->lineEdit(), Qt::Key_Return);
        pruebas::AgregarDeLaLista(*boleto, 0);
        QCOMPARE(inst.dialogo.Textos().back(), std::string(seasons::kMsgAntesDeEquipos));
        Teclear(*boleto, "CampoFecha", QStringLiteral("04/05/24"));
        pruebas::AgregarDeLaLista(*boleto, 0);
        QCOMPARE(inst.dialogo.Textos().back(), std::string(seasons::kMsgFaltaJornadaLiga1));
        Teclear(*boleto, "CampoJornada1", QStringLiteral("3x4"));
        QCOMPARE(inst.dialogo.Textos().back(), std::string(seasons::kMsgSoloNumeroJornadaLiga));
        QCOMPARE(Hijo<QLineEdit>(*boleto, QStringLiteral("CampoJornada1"))->text(),
                 QStringLiteral("34"));
        for (int i = 0; i < 20; ++i) pruebas::AgregarDeLaLista(*boleto, i);
        Hijo<QComboBox>(*boleto, QStringLiteral("ListaDivision"))->setCurrentIndex(1);
        Teclear(*boleto, "CampoJornada2", QStringLiteral("38"));
        for (int i = 0; i < 8; ++i) pruebas::AgregarDeLaLista(*boleto, i);
        // Dos de fuera de las divisiones, escritos.
        Hijo<QComboBox>(*boleto, QStringLiteral("ListaDivision"))->setCurrentIndex(2);
        for (const char* otro : {"Real Union", "Ourense"}) {
            Teclear(*boleto, "CampoOtroEquipo", QString::fromLatin1(otro));
            QTest::keyClick(Hijo<QLineEdit>(*boleto, QStringLiteral("CampoOtroEquipo")),
                            Qt::Key_Return);
        }
        QCOMPARE(Celda(rejilla, 14, 1), QStringLiteral("Ourense"));
        QCOMPARE(Celda(rejilla, 13, 2), QStringLiteral("2"));
        QCOMPARE(Celda(rejilla, 14, 2), QString());

        pruebas::Pulsar(*boleto, "BotonGuardar");
        const auto partidos = Quiniela(carpeta, 60);
        QCOMPARE(partidos.size(), std::size_t{15});
        QCOMPARE(partidos[0].jornadaDiv1, 34);
        QCOMPARE(partidos[12].jornadaDiv2, 38);
        QCOMPARE(base::Recortar(partidos[14].local), std::string("Real Union"));
        QCOMPARE(Celda(rejilla, 0, 0), QString());
        QVERIFY(jornada->findText(QStringLiteral("60")) >= 0);
        // La principal la ofrece y, elegida, pone sus partidos en la Quiniela Base.
        auto* lista = Hijo<QComboBox>(*v, QStringLiteral("ListaJornadas"));
        QVERIFY(lista->findData(60) >= 0);
        pruebas::Pulsar(*boleto, "BotonCerrar");
        pruebas::ElegirJornada(*v, 60);
        QCOMPARE(pruebas::TextoDe(*v, "FechaJornada"), QStringLiteral("04/05/24"));
        auto* base = Hijo<QTableWidget>(*v, QStringLiteral("RejillaBase"));
        QCOMPARE(base->item(14, 1)->text(), QStringLiteral("Real Union - Ourense"));
    }

    void LaColumnaGanadoraConSuPleno() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        const auto carpeta = seasons::CarpetaTemporadaEnCurso(inst.trabajo.Ruta());
        auto* resultados = pruebas::AbrirDesdeMenu<ui::VentanaResultadosQuinielaQt>(
            *v, "AccionResultadosQuiniela");
        auto* jornada = Hijo<QComboBox>(*resultados, QStringLiteral("ListaJornada"));
        auto* rejilla = Hijo<QTableWidget>(*resultados, QStringLiteral("RejillaPartidos"));
        pruebas::Pulsar(*resultados, "BotonGuardar");
        QCOMPARE(inst.dialogo.Textos().back(),
                 std::string(seasons::kMsgSeleccionarJornadaQuiniela));
        jornada->setCurrentIndex(jornada->findText(QStringLiteral("12")));
        QCOMPARE(pruebas::TextoDe(*resultados, "EtiquetaFecha"), QStringLiteral("Fecha: 29/10/23"));
        const auto antes = Quiniela(carpeta, 12);
        QCOMPARE(Celda(rejilla, 0, 0).toStdString(), std::string(base::Recortar(antes[0].local)));
        QVERIFY(Celda(rejilla, 14, 2).contains(QLatin1Char('-')));

        // Con el teclado: una x vale X; un 3 no se toma; el Pleno con su guion.
        rejilla->setFocus();
        rejilla->setCurrentCell(0, 2);
        QTest::keyClick(rejilla, 'x');
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(Celda(rejilla, 0, 2), QStringLiteral("X"));
        const QString segundo = Celda(rejilla, 1, 2);
        rejilla->setCurrentCell(1, 2);
        QTest::keyClick(rejilla, '3');
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTRY_VERIFY(QApplication::focusWidget() == rejilla);
        QCOMPARE(Celda(rejilla, 1, 2), segundo);
        rejilla->setCurrentCell(14, 2);
        QTest::keyClick(rejilla, 'm');
        // La primera tecla abre el editor de la celda; las demás van a él.
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("-1"));
        // Intro guarda la celda en diferido, como hace el delegado de Qt.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(Celda(rejilla, 14, 2), QStringLiteral("M-1"));
        pruebas::Pulsar(*resultados, "BotonGuardar");
        const auto despues = Quiniela(carpeta, 12);
        QCOMPARE(despues[0].signo, std::string("X"));
        QCOMPARE(despues[14].signo, std::string("N"));
    }

    // "Quinielas" del menú Ver: la reducida guardada, columna a columna.
    void VerLasQuinielasDeLaReducida() {
        pruebas::Instalacion inst;
        auto v = pruebas::Reducida(inst);
        pruebas::Pagina(*v, ui::kBoletos);
        const fs::path ruta = inst.documentos / "Reducida.uxd";
        inst.dialogo.Responder(std::optional<fs::path>(ruta));
        pruebas::Marcar(*v, "OpcionReducida");
        auto* ver = pruebas::AbrirDesdeMenu<ui::VentanaVerQuinielas>(*v, "AccionQuinielas");
        QCOMPARE(pruebas::TextoDe(*ver, "EtiquetaCabecera"),
                 QStringLiteral("JORNADA 25,  Fecha ") + pruebas::TextoDe(*v, "FechaJornada"));
        QCOMPARE(pruebas::TextoDe(*ver, "EtiquetaTitulo"), QStringLiteral("Quiniela Nº1"));
        const auto columnas = outputs::LeerColumnas(outputs::LeerJuegoJugado(ruta).columnas, true);
        QCOMPARE(static_cast<std::int32_t>(columnas.size()), v->Combinacion().activasReducidas);
        auto* boleto = Hijo<QTableWidget>(*ver, QStringLiteral("BoletoQuiniela"));
        const auto marcada = [&](int partido) {
            for (int s = 0; s < 3; ++s) {
                if (boleto->item(partido, s)->background().style() != Qt::NoBrush)
                    return boleto->item(partido, s)->text().at(0).toLatin1();
            }
            return ' ';
        };
        auto* barra = Hijo<QScrollBar>(*ver, QStringLiteral("BarraQuinielas"));
        QCOMPARE(barra->maximum(), static_cast<int>(columnas.size()) - 1);
        barra->setValue(2);
        QCOMPARE(pruebas::TextoDe(*ver, "EtiquetaTitulo"), QStringLiteral("Quiniela Nº3"));
        for (int p = 0; p < 14; ++p)
            QCOMPARE(marcada(p), columnas[2].columna[static_cast<std::size_t>(p)]);
        QCOMPARE(boleto->item(14, 0)->text(), QString(QChar::fromLatin1(columnas[2].pleno[0])));
        pruebas::Pulsar(*ver, "BotonImprimirUna");
        QCOMPARE(inst.impresas.size(), 1U);
        QCOMPARE(inst.impresas[0].Textos()[2].texto, std::string("Quiniela Nº3"));
        QCOMPARE(inst.impresas[0].Textos()[3].texto, std::string("1   ") + columnas[2].columna[0]);
        pruebas::Pulsar(*ver, "BotonVerTodas");
        auto* todas = Hijo<QListWidget>(*ver, QStringLiteral("ListaTodas"));
        QCOMPARE(todas->count(), static_cast<int>(columnas.size()));
        QVERIFY(todas->item(0)->text().startsWith(QStringLiteral("Quiniela Nº1  ")));
    }
};

QTEST_MAIN(PruebaVentanasQuinielas)
#include "pools_windows_test.moc"
