#include <QAction>
#include <QComboBox>
#include <QTableWidget>
#include <QtTest>

#include "seasons/league_table.h"
#include "seasons/season_folder.h"
#include "tests/ui/window_fixture.h"
#include "ui/league_table_window.h"

using namespace quinteva;
using base::Respuesta;
using pruebas::Hijo;

namespace {

QStringList Fila(QTableWidget* tabla, int fila) {
    QStringList celdas;
    for (int c = 0; c < tabla->columnCount(); ++c) celdas << tabla->item(fila, c)->text();
    return celdas;
}

}  // namespace

// "Clasificación" de la temporada de demostración: cada equipo en su fila con sus colores, y
// "Recalcular" con su pregunta.
class PruebaVentanaClasificacion : public QObject {
    Q_OBJECT

  private slots:
    void LasDosDivisionesConSusColores() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        auto* ventana =
            pruebas::AbrirDesdeMenu<ui::VentanaClasificacion>(*v, "AccionClasificaciones");
        auto* tabla = Hijo<QTableWidget>(*ventana, QStringLiteral("TablaClasificacion"));
        QCOMPARE(tabla->rowCount(), 20);
        QCOMPARE(tabla->horizontalHeaderItem(2)->text(), QStringLiteral("Ptos."));
        const auto filas = seasons::FilasClasificacion(
            seasons::CarpetaTemporadaEnCurso(inst.trabajo.Ruta()), 1, inst.ajustes);
        QCOMPARE(Fila(tabla, 0).at(1), QString::fromStdString(filas.at(0)->nombre));
        QCOMPARE(Fila(tabla, 0).at(2), QString::number(filas.at(0)->puntos));
        QCOMPARE(tabla->item(0, 0)->background().color(), QColor(0x80, 0xFF, 0x80));
        QCOMPARE(tabla->item(4, 5)->background().color(), QColor(0xC0, 0xC0, 0xFF));
        QCOMPARE(tabla->item(17, 1)->background().color(), QColor(0xFF, 0x80, 0x80));
        QCOMPARE(tabla->item(10, 1)->background().style(), Qt::NoBrush);
        Hijo<QComboBox>(*ventana, QStringLiteral("ListaDivision"))->setCurrentIndex(1);
        QCOMPARE(tabla->rowCount(), 22);
        QCOMPARE(tabla->item(2, 0)->background().color(), QColor(0xC0, 0xC0, 0xFF));
        QCOMPARE(tabla->item(17, 0)->background().style(), Qt::NoBrush);
        QCOMPARE(tabla->item(18, 0)->background().color(), QColor(0xFF, 0x80, 0x80));
    }

    void RecalcularPreguntaYRehace() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        auto* ventana =
            pruebas::AbrirDesdeMenu<ui::VentanaClasificacion>(*v, "AccionClasificaciones");
        auto* tabla = Hijo<QTableWidget>(*ventana, QStringLiteral("TablaClasificacion"));
        const QStringList antes = Fila(tabla, 0);
        inst.dialogo.Responder(Respuesta::No).Responder(Respuesta::Si);
        pruebas::Pulsar(*ventana, "BotonRecalcular");
        pruebas::Pulsar(*ventana, "BotonRecalcular");
        QCOMPARE(inst.dialogo.Textos(),
                 (std::vector<std::string>(2, std::string(seasons::kPreguntaRecalcular))));
        QCOMPARE(inst.dialogo.PorDefecto(), (std::vector<Respuesta>(2, Respuesta::No)));
        QCOMPARE(Fila(tabla, 0).at(3), antes.at(3));
    }
};

QTEST_MAIN(PruebaVentanaClasificacion)
#include "league_table_window_test.moc"
