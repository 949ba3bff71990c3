#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTableWidget>
#include <QtTest>

#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/league_results.h"
#include "seasons/pools.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/ui/window_fixture.h"
#include "ui/league_fixture_window.h"
#include "ui/league_results_window.h"
#include "ui/league_table_window.h"
#include "ui/pools_results_window.h"
#include "ui/pools_slip_window.h"

using namespace quinteva;
using base::Respuesta;
using pruebas::Hijo;
namespace fs = std::filesystem;

namespace {

void Teclear(QObject& ventana, const char* campo, const QString& texto) {
    auto* c = Hijo<QLineEdit>(ventana, QString::fromLatin1(campo));
    c->setFocus();
    QTest::keyClicks(c, texto);
}

// La Jornada 1 de una división en "Jornadas de Liga": los equipos de la lista en su orden.
void PrimeraJornada(pruebas::Instalacion& inst, ui::VentanaPrincipal& v, int division) {
    auto* jornadas = pruebas::AbrirDesdeMenu<ui::VentanaJornadasLigaQt>(v, "AccionJornadasLiga");
    Hijo<QComboBox>(*jornadas, QStringLiteral("ListaDivision"))->setCurrentIndex(division - 1);
    const int equipos = Hijo<QListWidget>(*jornadas, QStringLiteral("ListaEquipos"))->count();
    for (int i = 0; i < equipos; ++i) pruebas::AgregarDeLaLista(*jornadas, i);
    Teclear(*jornadas, "CampoFecha", QStringLiteral("18/08/24"));
    const std::size_t dichos = inst.dialogo.Registro().size();
    pruebas::Pulsar(*jornadas, "BotonGuardar");
    QCOMPARE(inst.dialogo.Registro().size(), dichos);
    pruebas::Pulsar(*jornadas, "BotonCerrar");
}

// Los goles de la Jornada 1 de una división, todos con el teclado: fila f, f % 3 a f % 2.
void Goles(ui::VentanaPrincipal& v, int division) {
    auto* resultados =
        pruebas::AbrirDesdeMenu<ui::VentanaResultadosLigaQt>(v, "AccionResultadosLiga");
    Hijo<QComboBox>(*resultados, QStringLiteral("ListaDivision"))->setCurrentIndex(division - 1);
    auto* rejilla = Hijo<QTableWidget>(*resultados, QStringLiteral("RejillaPartidos"));
    pruebas::Pulsar(rejilla, 0, 2);
    for (int f = 0; f < rejilla->rowCount(); ++f) {
        QTest::keyClick(rejilla, static_cast<char>('0' + f % 3));
        QTest::keyClick(rejilla, static_cast<char>('0' + f % 2));
    }
    pruebas::Pulsar(*resultados, "BotonGuardar");
    pruebas::Pulsar(*resultados, "BotonCerrar");
}

}  // namespace

// Una temporada montada desde una carpeta de trabajo vacía solo con las ventanas: la temporada
// nueva con un equipo cambiado, la Jornada 1 de las dos divisiones, un boleto con sus partidos,
// los goles, y lo que la principal, las Quinielas y la clasificación muestran después.
class PruebaTemporadaNueva : public QObject {
    Q_OBJECT

  private slots:
    void DesdeUnaCarpetaVacia() {
        pruebas::Instalacion inst;
        QVERIFY(fs::is_empty(inst.trabajo.Ruta()));
        auto v = inst.Ventana();
        pruebas::TemporadaNueva(inst, *v);
        const fs::path carpeta = inst.trabajo / "Temporada2425";

        // Un equipo que bajó fuera y uno que subió dentro.
        auto* equipos = pruebas::AbrirDesdeMenu<ui::VentanaEquiposQt>(*v, "AccionEquipos");
        auto* lista1 = Hijo<QListWidget>(*equipos, QStringLiteral("ListaEquipos1"));
        const QString bajado = lista1->item(0)->text();
        inst.dialogo.Responder(Respuesta::Si);
        pruebas::MenuDeContexto(*equipos, lista1, lista1->visualItemRect(lista1->item(0)).center(),
                                QStringLiteral("MenuEquipo"), QStringLiteral("Eliminar"));
        QTRY_COMPARE(lista1->count(), 19);
        Teclear(*equipos, "CampoNombre1", QStringLiteral("Real Oviedo"));
        QTest::keyClick(Hijo<QLineEdit>(*equipos, QStringLiteral("CampoNombre1")), Qt::Key_Return);
        QCOMPARE(lista1->count(), 20);
        pruebas::Pulsar(*equipos, "BotonCerrar");

        PrimeraJornada(inst, *v, 1);
        PrimeraJornada(inst, *v, 2);
        QCOMPARE(
            base::CuentaRegistros(carpeta / seasons::kJlig2, seasons::RegPartidoLiga::kLongitud),
            21);

        // El boleto: los diez partidos de 1ª y los cinco primeros de 2ª, en su orden.
        auto* boleto =
            pruebas::AbrirDesdeMenu<ui::VentanaJornadasQuinielaQt>(*v, "AccionJornadasQuiniela");
        auto* jornada = Hijo<QComboBox>(*boleto, QStringLiteral("ListaJornada"));
        QCOMPARE(jornada->count(), 0);
        jornada->setFocus();
        QTest::keyClicks(jornada->lineEdit(), QStringLiteral("1"));
        QTest::keyClick(jornada->lineEdit(), Qt::Key_Return);
        Teclear(*boleto, "CampoFecha", QStringLiteral("18/08/24"));
        Teclear(*boleto, "CampoJornada1", QStringLiteral("1"));
        Teclear(*boleto, "CampoJornada2", QStringLiteral("1"));
        for (int i = 0; i < 20; ++i) pruebas::AgregarDeLaLista(*boleto, i);
        Hijo<QComboBox>(*boleto, QStringLiteral("ListaDivision"))->setCurrentIndex(1);
        for (int i = 0; i < 10; ++i) pruebas::AgregarDeLaLista(*boleto, i);
        pruebas::Pulsar(*boleto, "BotonGuardar");
        pruebas::Pulsar(*boleto, "BotonCerrar");
        QCOMPARE(seasons::PartidosDeQuiniela(carpeta, 1).size(), std::size_t{15});
        QVERIFY(Hijo<QComboBox>(*v, QStringLiteral("ListaJornadas"))->findData(1) >= 0);

        Goles(*v, 1);
        Goles(*v, 2);

        // Las Quinielas traen los signos de la Liga: la fila f de 1ª, f % 3 a f % 2; la 15 es el
        // quinto partido de 2ª (1 a 0, la letra E, que la ventana muestra "1-0").
        auto* resultados = pruebas::AbrirDesdeMenu<ui::VentanaResultadosQuinielaQt>(
            *v, "AccionResultadosQuiniela");
        Hijo<QComboBox>(*resultados, QStringLiteral("ListaJornada"))->setCurrentIndex(0);
        auto* signos = Hijo<QTableWidget>(*resultados, QStringLiteral("RejillaPartidos"));
        for (int f = 0; f < 10; ++f) {
            QCOMPARE(signos->item(f, 2)->text().toStdString(), seasons::SignoDeGoles(f % 3, f % 2));
        }
        QCOMPARE(signos->item(10, 2)->text(), QStringLiteral("X"));
        QCOMPARE(signos->item(14, 2)->text(), QStringLiteral("1-0"));
        pruebas::Pulsar(*resultados, "BotonCerrar");

        // La principal pone los partidos de la Jornada 1 en la Quiniela Base.
        pruebas::ElegirJornada(*v, 1);
        QCOMPARE(pruebas::TextoDe(*v, "FechaJornada"), QStringLiteral("18/08/24"));
        const auto partidos = seasons::PartidosDeQuiniela(carpeta, 1);
        QCOMPARE(
            Hijo<QTableWidget>(*v, QStringLiteral("RejillaBase"))->item(0, 1)->text().toStdString(),
            std::string(base::Recortar(partidos[0].local)) + " - " +
                std::string(base::Recortar(partidos[0].visitante)));

        // La clasificación de 1ª: veinte filas con el equipo nuevo y sin el que bajó.
        auto* tabla =
            pruebas::AbrirDesdeMenu<ui::VentanaClasificacion>(*v, "AccionClasificaciones");
        auto* filas = Hijo<QTableWidget>(*tabla, QStringLiteral("TablaClasificacion"));
        QStringList nombres;
        for (int f = 0; f < filas->rowCount(); ++f) nombres << filas->item(f, 1)->text();
        QVERIFY(nombres.contains(QStringLiteral("Real Oviedo")));
        QVERIFY(!nombres.contains(bajado));
        QCOMPARE(filas->item(0, 3)->text(), QStringLiteral("1"));
        QVERIFY(inst.dialogo.GuionAgotado());
    }
};

QTEST_MAIN(PruebaTemporadaNueva)
#include "season_setup_test.moc"
