#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableWidget>
#include <QtTest>

#include "seasons/season_folder.h"
#include "seasons/statistics.h"
#include "tests/ui/window_fixture.h"
#include "ui/history_window.h"
#include "ui/statistics_window.h"
#include "ui/winning_columns_window.h"

using namespace quinteva;
using pruebas::Hijo;

namespace {

QBarSet* Barras(QObject& ventana) {
    auto* vista = Hijo<QChartView>(ventana, QStringLiteral("Grafico"));
    auto* serie = qobject_cast<QBarSeries*>(vista->chart()->series().at(0));
    return serie->barSets().at(0);
}

}  // namespace

// "Estadísticas" y "Columnas Ganadoras" sobre la temporada de demostración.
class PruebaVentanasEstadisticas : public QObject {
    Q_OBJECT

  private slots:
    void ElGraficoDeLosSignosYDeUnaPareja() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        const auto carpeta = seasons::CarpetaTemporadaEnCurso(inst.trabajo.Ruta());
        auto* ventana = pruebas::AbrirDesdeMenu<ui::VentanaEstadisticas>(*v, "AccionEstadisticas");
        auto* temporada = Hijo<QComboBox>(*ventana, QStringLiteral("ListaTemporada"));
        const auto selector = seasons::TemporadasDeJornadas(carpeta);
        QCOMPARE(temporada->count(), static_cast<int>(selector.entradas.size()));
        QCOMPARE(temporada->itemText(temporada->count() - 1), QStringLiteral("Todas"));
        temporada->setCurrentIndex(temporada->findText(QStringLiteral("23/24")));
        const auto columnas = seasons::ColumnasDeTemporada(carpeta, "23/24");
        const auto unos = seasons::SignosPorPosicion(columnas, '1');
        QBarSet* barras = Barras(*ventana);
        QCOMPARE(barras->count(), 15);
        for (int p = 0; p < 15; ++p) QCOMPARE(barras->at(p), unos[static_cast<std::size_t>(p)]);

        auto* tipo = Hijo<QComboBox>(*ventana, QStringLiteral("ListaTipo"));
        tipo->setCurrentIndex(tipo->findText(QStringLiteral("Parejas")));
        Hijo<QComboBox>(*ventana, QStringLiteral("Posicion2"))->setCurrentIndex(13);
        QCOMPARE(pruebas::TextoDe(*ventana, "EtiquetaCombinacion"), QStringLiteral("Pareja 1-14"));
        const auto parejas = seasons::CombinacionesEnPosiciones(columnas, {1, 14});
        barras = Barras(*ventana);
        QCOMPARE(barras->count(), 9);
        QCOMPARE(barras->at(4), static_cast<double>(parejas[4].veces));
        QVERIFY(!Hijo<QComboBox>(*ventana, QStringLiteral("Posicion3"))->isVisible());
    }

    void LasColumnasGanadorasConSuPleno() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        const auto carpeta = seasons::CarpetaTemporadaEnCurso(inst.trabajo.Ruta());
        auto* ventana =
            pruebas::AbrirDesdeMenu<ui::VentanaColumnasGanadoras>(*v, "AccionColumnasGanadoras");
        auto* tabla = Hijo<QTableWidget>(*ventana, QStringLiteral("TablaColumnas"));
        const auto filas = seasons::ColumnasGanadoras(carpeta, "23/24");
        QCOMPARE(tabla->rowCount(), static_cast<int>(filas.size()));
        QCOMPARE(tabla->item(0, 0)->text(), QString::number(filas[0].jornada));
        QCOMPARE(tabla->item(0, 1)->text().toStdString(), filas[0].columna);
        QVERIFY(tabla->item(0, 1)->text().contains(QLatin1Char('/')));
        // "&Imprimir": el título y una línea por Jornada, en "Courier New".
        pruebas::Pulsar(*ventana, "BotonImprimir");
        QCOMPARE(inst.impresas.size(), 1U);
        const auto& textos = inst.impresas[0].Textos();
        QCOMPARE(textos[0].texto, std::string("Col. Ganadoras Temporada 23/24"));
        QCOMPARE(textos[0].fuente, std::string("Courier New"));
        QCOMPARE(textos.size(), filas.size() + 2);
        QVERIFY(textos[2].texto.ends_with(filas[0].columna));
    }

    void ElHistoricoDeUnEquipoYUnCambioDeNombre() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        auto* ventana = pruebas::AbrirDesdeMenu<ui::VentanaHistorico>(*v, "AccionHistorico");
        auto* tabla = Hijo<QTableWidget>(*ventana, QStringLiteral("TablaHistorico"));
        pruebas::Pulsar(*ventana, "BotonBuscar");
        QCOMPARE(inst.dialogo.Textos().back(), std::string(seasons::kMsgEligeEquipo));
        auto* equipo = Hijo<QComboBox>(*ventana, QStringLiteral("ListaEquipo1"));
        QCOMPARE(equipo->count(), 68);
        equipo->setCurrentIndex(equipo->findText(QStringLiteral("Betis")));
        pruebas::Pulsar(*ventana, "BotonBuscar");
        const auto esperadas = seasons::BuscarEnHistorico(
            inst.trabajo.Ruta(), seasons::BusquedaHistorico::DeEquipo("Betis"), "23/24",
            inst.ajustes);
        QVERIFY(!esperadas.empty());
        QCOMPARE(tabla->rowCount(), static_cast<int>(esperadas.size()));
        QCOMPARE(tabla->item(0, 5)->text().toStdString(), esperadas[0].signo);

        // "Cambiar nombre Eq": el Betis pasa a llamarse Real Betis en cada partido del histórico.
        Hijo<QLineEdit>(*ventana, QStringLiteral("CampoNombreExistente"))
            ->setText(QStringLiteral("Betis"));
        Hijo<QLineEdit>(*ventana, QStringLiteral("CampoNombreNuevo"))
            ->setText(QStringLiteral("Real Betis"));
        pruebas::Pulsar(*ventana, "BotonCambiarNombre");
        QCOMPARE(inst.dialogo.Textos().back(), std::string("Proceso terminado."));
        pruebas::Pulsar(*ventana, "BotonBuscar");
        QCOMPARE(tabla->rowCount(), 0);

        // "Partidos" pide los dos equipos.
        QTest::mouseClick(Hijo<QRadioButton>(*ventana, QStringLiteral("ModoPartidos")),
                          Qt::LeftButton, {}, QPoint(8, 8));
        Hijo<QComboBox>(*ventana, QStringLiteral("ListaEquipo2"))->setCurrentIndex(-1);
        pruebas::Pulsar(*ventana, "BotonBuscar");
        QCOMPARE(inst.dialogo.Textos().back(), std::string(seasons::kMsgEligeDosEquipos));
    }
};

QTEST_MAIN(PruebaVentanasEstadisticas)
#include "statistics_windows_test.moc"
