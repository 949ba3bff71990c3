// "Quiniela por Porcentajes" y "Quiniela rápida Básica": sus ventanas desde los botones de la
// Quiniela Base, la rejilla de porcentajes con sus teclas, y "&Generar" de un paso hasta la página
// Boletos con las columnas generadas para jugar.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

#include "builders/boletos.h"
#include "builders/by_percentages.h"
#include "builders/quick_basic.h"
#include "outputs/played_set.h"
#include "tests/ui/window_fixture.h"
#include "ui/percentages_window.h"
#include "ui/quick_basic_window.h"

using namespace quinteva;
using pruebas::Hijo;
namespace fs = std::filesystem;

namespace {

// Partidos 1 a 6 triples, el resto "1": 729 columnas (el 10 % es 72,9).
void SeisTriples(ui::VentanaPrincipal& v) {
    pruebas::PonerBase(v, {}, '1', '0');
    auto* rejilla = Hijo<QTableWidget>(v, QStringLiteral("RejillaBase"));
    for (int p = 1; p <= 14; ++p) pruebas::Pulsar(rejilla, p - 1, 2);
    for (int p = 1; p <= 6; ++p) {
        pruebas::Pulsar(rejilla, p - 1, 3);
        pruebas::Pulsar(rejilla, p - 1, 4);
    }
}

template <typename Ventana>
Ventana* Abrir(ui::VentanaPrincipal& v, const char* boton) {
    // La de la vez anterior, cerrada, se borra antes.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    pruebas::Pulsar(v, boton);
    auto* ventana = v.findChild<Ventana*>();
    if (ventana == nullptr || !QTest::qWaitForWindowExposed(ventana)) qFatal("No se abre");
    return ventana;
}

QString Celda(QTableWidget* rejilla, int partido, int signo) {
    return rejilla->item(partido - 1, signo)->text();
}

// Teclea en la celda (partido 1 a 14, signo 0 a 2) de la rejilla de porcentajes.
void Teclear(QTableWidget* rejilla, int partido, int signo, const char* teclas) {
    rejilla->setFocus();
    rejilla->setCurrentCell(partido - 1, signo);
    QTest::keyClicks(rejilla, QString::fromLatin1(teclas));
}

void EscribirNumero(QWidget& ventana, const char* numero) {
    auto* caja = Hijo<QLineEdit>(ventana, QStringLiteral("CajaNumeroColumnas"));
    caja->clear();
    QTest::keyClicks(caja, QString::fromLatin1(numero));
}

// Elige con el teclado el valor de la lista (como el usuario: la fila se marca).
void Elegir(QWidget& ventana, const QString& lista, const QString& valor) {
    auto* combo = Hijo<QComboBox>(ventana, lista);
    combo->setFocus();
    const int destino = combo->findText(valor);
    if (destino < 0) qFatal("Valor que la lista no ofrece");
    if (combo->currentIndex() < 0) QTest::keyClick(combo, Qt::Key_Home);
    while (combo->currentIndex() < destino) QTest::keyClick(combo, Qt::Key_Down);
    while (combo->currentIndex() > destino) QTest::keyClick(combo, Qt::Key_Up);
}

}  // namespace

class PruebaRapidas : public QObject {
    Q_OBJECT

  private slots:
    void LaRejillaDePorcentajesYSusTeclas() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);  // 1 y 2 dobles 1X, 3 y 4 triples, el resto "1"
        inst.dialogo.Responder(std::optional<fs::path>(inst.documentos / "Porc.uxd"));
        auto* ventana = Abrir<ui::VentanaPorcentajes>(*v, "BotonPorcentajes");
        QVERIFY(ventana->isModal() || ventana->windowModality() != Qt::NonModal);
        auto* rejilla = Hijo<QTableWidget>(*ventana, QStringLiteral("RejillaPorcentajes"));
        QCOMPARE(rejilla->verticalHeaderItem(0)->text(), QStringLiteral("1 "));
        // Un fijo: 100 bajo su signo; el 2 de un doble 1X, gris y vacío.
        QCOMPARE(Celda(rejilla, 5, 0), QStringLiteral("100"));
        QCOMPARE(Celda(rejilla, 5, 1), QString());
        QCOMPARE(Celda(rejilla, 1, 2), QString());
        QVERIFY(rejilla->item(0, 2)->background().color() !=
                rejilla->item(0, 0)->background().color());
        // Un fijo no se toca.
        Teclear(rejilla, 5, 0, "7");
        QCOMPARE(Celda(rejilla, 5, 0), QStringLiteral("100"));
        // En un triple: 5 deja 95 en la X; 50 deja 50 y 50.
        Teclear(rejilla, 3, 0, "5");
        QCOMPARE(Celda(rejilla, 3, 1), QStringLiteral("95"));
        Teclear(rejilla, 3, 0, "0");
        QCOMPARE((QStringList{Celda(rejilla, 3, 0), Celda(rejilla, 3, 1), Celda(rejilla, 3, 2)}),
                 (QStringList{"50", "50", "0"}));
        // En el 2: 20 se quita de su compañera, el 1.
        Teclear(rejilla, 3, 2, "20");
        QCOMPARE((QStringList{Celda(rejilla, 3, 0), Celda(rejilla, 3, 1), Celda(rejilla, 3, 2)}),
                 (QStringList{"30", "50", "20"}));
        // Retroceso quita la última cifra; Supr deja "0".
        rejilla->setCurrentCell(2, 1);
        QTest::keyClick(rejilla, Qt::Key_Backspace);
        QCOMPARE(Celda(rejilla, 3, 1), QStringLiteral("5"));
        QTest::keyClick(rejilla, Qt::Key_Delete);
        QCOMPARE(Celda(rejilla, 3, 1), QStringLiteral("0"));
        // Como mucho dos cifras, salvo el 100.
        Teclear(rejilla, 1, 0, "100");
        QCOMPARE((QStringList{Celda(rejilla, 1, 0), Celda(rejilla, 1, 1)}),
                 (QStringList{"100", "0"}));
        Teclear(rejilla, 1, 1, "456");
        QCOMPARE((QStringList{Celda(rejilla, 1, 0), Celda(rejilla, 1, 1)}),
                 (QStringList{"55", "45"}));
        // Sin número: el mensaje y el foco en la caja.
        pruebas::Pulsar(*ventana, "BotonGenerarPorcentajes");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(),
                 std::string(builders::kMsgSinNumeroPorcentajes));
        QTRY_VERIFY(Hijo<QLineEdit>(*ventana, QStringLiteral("CajaNumeroColumnas"))->hasFocus());
        // El número da el precio y el precio el número.
        EscribirNumero(*ventana, "016");
        QCOMPARE(Hijo<QLineEdit>(*ventana, QStringLiteral("CajaNumeroColumnas"))->text(),
                 QStringLiteral("16"));
        QCOMPARE(Hijo<QLineEdit>(*ventana, QStringLiteral("CajaPrecio"))->text(),
                 QString::fromUtf8("12,00 €"));
        ventana->close();
    }

    void GenerarDeUnPasoYAlVolverLaVentanaRecuerdaLosPorcentajes() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        SeisTriples(*v);
        const fs::path ruta = inst.documentos / "Porcentajes.uxd";
        inst.dialogo.Responder(std::optional<fs::path>(ruta));
        auto* ventana = Abrir<ui::VentanaPorcentajes>(*v, "BotonPorcentajes");
        auto* rejilla = Hijo<QTableWidget>(*ventana, QStringLiteral("RejillaPorcentajes"));
        // Sin porcentajes, el primer partido no suma 100 y no se toca nada.
        EscribirNumero(*ventana, "40");
        pruebas::Pulsar(*ventana, "BotonGenerarPorcentajes");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(), builders::MsgNoSumanCien(1));
        QVERIFY(!fs::exists(ruta.parent_path() / "Porcentajes.cnd"));
        for (int p = 1; p <= 6; ++p) {
            Teclear(rejilla, p, 0, "50");
            Teclear(rejilla, p, 2, "20");
        }
        // 5 y 0 en el 1 llevan la X a 50; 2 y 0 en el 2 se quitan del 1.
        QCOMPARE(Celda(rejilla, 6, 1), QStringLiteral("50"));
        const QPointer<ui::VentanaPorcentajes> abierta(ventana);
        const std::size_t marca = inst.dialogo.Registro().size();
        pruebas::Pulsar(*ventana, "BotonGenerarPorcentajes");
        // Una repetida que la última pasada no puede rehacer deja el reparto corto, y se dice.
        const auto dichos = pruebas::Dichos(inst.dialogo, marca);
        QCOMPARE(dichos.back(), std::string(builders::kMsgProcesoTerminado));
        if (dichos.size() > 1) {
            QCOMPARE(dichos, (std::vector<std::string>{
                                 builders::MsgSoloSePudieron(v->Combinacion().valorPorcentajes),
                                 std::string(builders::kMsgProcesoTerminado)}));
        }
        QTRY_VERIFY(abierta.isNull() || !abierta->isVisible());
        QCOMPARE(v->PaginaActual(), static_cast<int>(ui::kBoletos));
        QCOMPARE(v->Combinacion().jugada, std::string("cnd"));
        QCOMPARE(v->Combinacion().origenPorcentajes, 1);
        QCOMPARE(v->Combinacion().valorPorcentajes, v->Combinacion().activasGeneradas);
        QVERIFY(v->Combinacion().valorPorcentajes >= 38);
        QCOMPARE(outputs::LeerJuegoJugado(ruta).juego, std::string("cnd"));
        QCOMPARE(outputs::LeerColumnas(inst.documentos / "Porcentajes.cnd", true).size(),
                 static_cast<std::size_t>(v->Combinacion().activasGeneradas));
        // Al volver, la tabla y el número de la última vez.
        auto* otra = Abrir<ui::VentanaPorcentajes>(*v, "BotonPorcentajes");
        auto* rejilla2 = Hijo<QTableWidget>(*otra, QStringLiteral("RejillaPorcentajes"));
        QCOMPARE((QStringList{Celda(rejilla2, 6, 0), Celda(rejilla2, 6, 1), Celda(rejilla2, 6, 2)}),
                 (QStringList{"30", "50", "20"}));
        QCOMPARE(Hijo<QLineEdit>(*otra, QStringLiteral("CajaNumeroColumnas"))->text(),
                 QString::number(v->Combinacion().valorPorcentajes));
        // Por encima del 10 %: la pregunta, No por defecto; con No no se toca nada.
        EscribirNumero(*otra, "80");
        inst.dialogo.Responder(base::Respuesta::No);
        pruebas::Pulsar(*otra, "BotonGenerarPorcentajes");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(), std::string(builders::kPreguntaExcesivo));
        QCOMPARE(inst.dialogo.PorDefecto().back(), base::Respuesta::No);
        QCOMPARE(v->Combinacion().valorPorcentajes, v->Combinacion().activasGeneradas);
        // Nueve: el último boleto tendría una sola.
        EscribirNumero(*otra, "9");
        pruebas::Pulsar(*otra, "BotonGenerarPorcentajes");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(), builders::MsgBoletoDeUnaColumna(9));
        otra->close();
    }

    void BasicaConUnaFilaHastaBoletosAjustadaAlNumero() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        SeisTriples(*v);
        const fs::path ruta = inst.documentos / "Basica.uxd";
        inst.dialogo.Responder(std::optional<fs::path>(ruta));
        auto* ventana = Abrir<ui::VentanaRapidaBasica>(*v, "BotonBasica");
        // Las listas de la base van de su mínimo a su máximo; las interrupciones de 0 a 13.
        auto* minEquis = Hijo<QComboBox>(*ventana, QStringLiteral("MinimoBasica0"));
        QCOMPARE(minEquis->count(), 7);
        QCOMPARE(minEquis->currentIndex(), -1);
        QCOMPARE(Hijo<QComboBox>(*ventana, QStringLiteral("MaximoBasica3"))->count(), 14);
        // Marcar sin nada elegido no marca.
        auto* marcaEquis = Hijo<QCheckBox>(*ventana, QStringLiteral("MarcaBasica0"));
        QTest::mouseClick(marcaEquis, Qt::LeftButton);
        QVERIFY(!marcaEquis->isChecked());
        // Elegir un valor marca la fila; desmarcarla la vacía.
        Elegir(*ventana, QStringLiteral("MinimoBasica1"), QStringLiteral("2"));
        auto* marcaDoses = Hijo<QCheckBox>(*ventana, QStringLiteral("MarcaBasica1"));
        QVERIFY(marcaDoses->isChecked());
        marcaDoses->click();
        QVERIFY(!marcaDoses->isChecked());
        QCOMPARE(Hijo<QComboBox>(*ventana, QStringLiteral("MinimoBasica1"))->currentIndex(), -1);
        // Mínimo por encima del máximo.
        Elegir(*ventana, QStringLiteral("MinimoBasica0"), QStringLiteral("4"));
        Elegir(*ventana, QStringLiteral("MaximoBasica0"), QStringLiteral("2"));
        EscribirNumero(*ventana, "40");
        pruebas::Pulsar(*ventana, "BotonGenerarBasica");
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(), builders::MsgMaximoMenorQueMinimo(0));
        QCOMPARE(v->Combinacion().totalGeneradas, 0);
        // Equis de 1 a 3: 592 columnas (más de 40), se guardan y se ajustan a 40.
        Elegir(*ventana, QStringLiteral("MinimoBasica0"), QStringLiteral("1"));
        Elegir(*ventana, QStringLiteral("MaximoBasica0"), QStringLiteral("3"));
        const QPointer<ui::VentanaRapidaBasica> abierta(ventana);
        const std::size_t marca = inst.dialogo.Registro().size();
        inst.dialogo.Responder(base::Respuesta::Si);  // bajar a 40 elimina columnas
        pruebas::Pulsar(*ventana, "BotonGenerarBasica");
        QTRY_VERIFY_WITH_TIMEOUT(abierta.isNull() || !abierta->isVisible(), 60000);
        const auto dichos = pruebas::Dichos(inst.dialogo, marca);
        QCOMPARE(dichos.back(), std::string(builders::kMsgProcesoTerminado));
        QVERIFY(inst.dialogo.GuionAgotado());
        QCOMPARE(v->Combinacion().numCondiciones, 1);
        QVERIFY(v->Combinacion().condiciones.casilla[0]);
        QCOMPARE(v->Combinacion().condiciones.minEquis, 1);
        QCOMPARE(v->Combinacion().condiciones.maxEquis, 3);
        QCOMPARE(v->Combinacion().activasGeneradas, 40);
        QCOMPARE(v->PaginaActual(), static_cast<int>(ui::kBoletos));
        QCOMPARE(outputs::LeerJuegoJugado(ruta).juego, std::string("cnd"));
        QCOMPARE(outputs::LeerColumnas(inst.documentos / "Basica.cnd", true).size(),
                 std::size_t{40});
        QVERIFY(Hijo<QLineEdit>(*v, QStringLiteral("CampoAjustar"))->text().isEmpty());
    }

    void BasicaConMenosColumnasPreguntaYConNoSeQuedanLasGeneradas() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        SeisTriples(*v);
        inst.dialogo.Responder(std::optional<fs::path>(inst.documentos / "Pocas.uxd"));
        auto* ventana = Abrir<ui::VentanaRapidaBasica>(*v, "BotonBasica");
        // Seis equis exactas: una sola columna.
        Elegir(*ventana, QStringLiteral("MinimoBasica0"), QStringLiteral("6"));
        EscribirNumero(*ventana, "16");
        inst.dialogo.Responder(base::Respuesta::No);
        pruebas::Pulsar(*ventana, "BotonGenerarBasica");
        QTRY_VERIFY_WITH_TIMEOUT(
            pruebas::Dichos(inst.dialogo).back() == builders::PreguntaMenosColumnas(16), 60000);
        pruebas::EsperarTrabajo(*v);
        QVERIFY(ventana->isVisible());
        QCOMPARE(v->Combinacion().activasGeneradas, 1);
        QVERIFY(!fs::exists(inst.documentos / "Pocas.cnd") ||
                outputs::LeerColumnas(inst.documentos / "Pocas.cnd", true).empty());
        QVERIFY(Hijo<QLineEdit>(*ventana, QStringLiteral("CajaNumeroColumnas"))->hasFocus());
        // Con Sí, sin guardar antes, el ajuste añade de la base más de las que hay.
        inst.dialogo.Responder(base::Respuesta::Si);
        const QPointer<ui::VentanaRapidaBasica> abierta(ventana);
        pruebas::Pulsar(*ventana, "BotonGenerarBasica");
        QTRY_VERIFY_WITH_TIMEOUT(abierta.isNull() || !abierta->isVisible(), 60000);
        QCOMPARE(v->Combinacion().activasGeneradas, 16);
        QCOMPARE(outputs::LeerColumnas(inst.documentos / "Pocas.cnd", true).size(),
                 std::size_t{16});
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(), std::string(builders::kMsgProcesoTerminado));
    }
};

QTEST_MAIN(PruebaRapidas)
#include "quick_builders_test.moc"
