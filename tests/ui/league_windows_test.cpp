#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/league.h"
#include "seasons/league_results.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/ui/window_fixture.h"
#include "ui/league_fixture_window.h"
#include "ui/league_results_window.h"

using namespace quinteva;
using base::Respuesta;
using pruebas::Hijo;
namespace fs = std::filesystem;

namespace {

std::vector<seasons::RegPartidoLiga> Liga(const fs::path& carpetaTemporada) {
    base::ArchivoDe<seasons::RegPartidoLiga> liga(carpetaTemporada / seasons::kJlig2);
    std::vector<seasons::RegPartidoLiga> partidos;
    for (std::int32_t n = 1; n <= liga.Cuenta(); ++n) partidos.push_back(liga.Leer(n));
    return partidos;
}

QString Celda(QTableWidget* rejilla, int fila, int columna) {
    return rejilla->item(fila, columna)->text();
}

}  // namespace

// "Jornadas de Liga" e "Introducir o Ver Resultados" de la Liga, desde sus menús, como los usa
// quien empieza una temporada.
class PruebaVentanasLiga : public QObject {
    Q_OBJECT

  private slots:
    void UnaJornadaNuevaYSusResultados() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::TemporadaNueva(inst, *v);
        const fs::path carpeta = inst.trabajo / "Temporada2425";

        auto* jornadas =
            pruebas::AbrirDesdeMenu<ui::VentanaJornadasLigaQt>(*v, "AccionJornadasLiga");
        auto* selector = Hijo<QComboBox>(*jornadas, QStringLiteral("ListaJornada"));
        QCOMPARE(selector->count(), 38);
        auto* rejilla = Hijo<QTableWidget>(*jornadas, QStringLiteral("RejillaPartidos"));
        QCOMPARE(rejilla->rowCount(), 10);
        auto* lista = Hijo<QListWidget>(*jornadas, QStringLiteral("ListaEquipos"));
        QCOMPARE(lista->count(), 20);
        auto* fecha = Hijo<QLineEdit>(*jornadas, QStringLiteral("CampoFecha"));
        QCOMPARE(fecha->placeholderText(), QStringLiteral("Fecha"));

        // Sin fecha, "Guardar" lo dice; una letra en la fecha, también.
        pruebas::Pulsar(*jornadas, "BotonGuardar");
        fecha->setFocus();
        QTest::keyClicks(fecha, QStringLiteral("17a/08/24"));
        QCOMPARE(fecha->text(), QStringLiteral("17/08/24"));
        QCOMPARE(inst.dialogo.Textos().back(), std::string(seasons::kMsgTeclaFecha));

        // Todos los equipos desde el menú de la lista, en su orden; uno repetido se rechaza.
        QStringList orden;
        for (int i = 0; i < lista->count(); ++i) {
            orden << lista->item(i)->text();
            pruebas::AgregarDeLaLista(*jornadas, i);
        }
        pruebas::AgregarDeLaLista(*jornadas, 3);
        QCOMPARE(inst.dialogo.Textos().back(), std::string(seasons::kMsgEquipoYaIntroducido));
        QCOMPARE(rejilla->currentRow(), 1);
        QCOMPARE(rejilla->currentColumn(), 1);
        QCOMPARE(Celda(rejilla, 9, 1), orden.at(19));

        // Una celda vaciada desde la rejilla y vuelta a llenar con "Reemplazar".
        const QRect celda = rejilla->visualItemRect(rejilla->item(4, 0));
        pruebas::MenuDeContexto(*jornadas, rejilla, celda.center(), QStringLiteral("MenuCelda"),
                                QStringLiteral("Borrar"));
        QCOMPARE(Celda(rejilla, 4, 0), QString());
        pruebas::Pulsar(*jornadas, "BotonGuardar");
        QCOMPARE(inst.dialogo.Textos().back(), std::string(seasons::kMsgFaltanEquipos));
        pruebas::MenuDeContexto(*jornadas, lista, lista->visualItemRect(lista->item(8)).center(),
                                QStringLiteral("MenuEquipo"), QStringLiteral("Reemplazar"));
        QCOMPARE(Celda(rejilla, 4, 0), orden.at(8));

        pruebas::Pulsar(*jornadas, "BotonGuardar");
        const auto partidos = Liga(carpeta);
        QCOMPARE(partidos.size(), std::size_t{10});
        QCOMPARE(base::Recortar(partidos[9].visitante), orden.at(19).toStdString());
        QCOMPARE(partidos[0].temporada, std::string("24/25"));
        // Guardada, la ventana pasa a la Jornada 2, vacía y con "Fecha" en gris.
        QCOMPARE(selector->currentIndex(), 1);
        QCOMPARE(Celda(rejilla, 0, 0), QString());
        QCOMPARE(fecha->text(), QString());
        pruebas::Pulsar(*jornadas, "BotonCerrar");

        auto* resultados =
            pruebas::AbrirDesdeMenu<ui::VentanaResultadosLigaQt>(*v, "AccionResultadosLiga");
        auto* goles = Hijo<QTableWidget>(*resultados, QStringLiteral("RejillaPartidos"));
        auto* guardar = Hijo<QPushButton>(*resultados, QStringLiteral("BotonGuardar"));
        QCOMPARE(Hijo<QComboBox>(*resultados, QStringLiteral("ListaJornada"))->currentIndex(), 0);
        QCOMPARE(Celda(goles, 0, 0), orden.at(0));
        QCOMPARE(Celda(goles, 0, 2), QStringLiteral("0"));
        QCOMPARE(pruebas::TextoDe(*resultados, "EtiquetaFecha"), QStringLiteral("Fecha: 17/08/24"));
        QVERIFY(!guardar->isEnabled());
        // Al abrir, el foco está en la rejilla: una cifra no cambia la división.
        QCOMPARE(QApplication::focusWidget(), goles);

        // Las cifras pasan de celda en celda; una letra no se toma; Suprimir vacía.
        pruebas::Pulsar(goles, 0, 2);
        QTest::keyClicks(goles, QStringLiteral("21x30"));
        QCOMPARE(Celda(goles, 0, 3), QStringLiteral("1"));
        QCOMPARE(Celda(goles, 1, 2), QStringLiteral("3"));
        QCOMPARE(goles->currentRow(), 2);
        QCOMPARE(goles->currentColumn(), 2);
        QVERIFY(guardar->isEnabled());
        QTest::keyClick(goles, Qt::Key_Delete);
        QCOMPARE(Celda(goles, 2, 2), QString());

        inst.dialogo.Responder(Respuesta::Si);
        pruebas::Pulsar(*resultados, "BotonGuardar");
        QCOMPARE(inst.dialogo.Textos().back(), std::string(seasons::kPreguntaFaltanResultados));
        const auto jugados = Liga(carpeta);
        QCOMPARE(jugados[0].golesLocal, 2);
        QCOMPARE(jugados[1].golesVisitante, 0);
        QCOMPARE(inst.ajustes.Leer(base::kAplicacion, "Valores", "MaxJor1ª", ""), std::string("1"));
        base::ArchivoDe<seasons::RegEquipo> nomeq(carpeta / seasons::kNomeq);
        int conPuntos = 0;
        for (std::int32_t n = 1; n <= nomeq.Cuenta(); ++n) {
            const auto e = nomeq.Leer(n);
            if (e.division == 1 && e.puntos > 0) ++conPuntos;
        }
        // Dos victorias y ocho empates a cero (que cuentan: la Jornada tiene goles).
        QCOMPARE(conPuntos, 18);
    }

    // La ventana de resultados abre en la Jornada de Liga de la fecha de la Quiniela elegida.
    void AbreEnLaJornadaDeLaQuinielaElegida() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 12);
        const QString fecha = pruebas::TextoDe(*v, "FechaJornada");
        auto* resultados =
            pruebas::AbrirDesdeMenu<ui::VentanaResultadosLigaQt>(*v, "AccionResultadosLiga");
        const int jornada =
            Hijo<QComboBox>(*resultados, QStringLiteral("ListaJornada"))->currentIndex() + 1;
        const auto carpeta = seasons::CarpetaTemporadaEnCurso(inst.trabajo.Ruta());
        const double serie = seasons::SerieDeFecha(fecha.toStdString());
        int esperada = 0;
        for (const auto& p : Liga(carpeta)) {
            if (p.division == 1 && p.fecha == serie) {
                esperada = p.jornada;
                break;
            }
        }
        QVERIFY(esperada > 1);
        QCOMPARE(jornada, esperada);
    }
};

QTEST_MAIN(PruebaVentanasLiga)
#include "league_windows_test.moc"
