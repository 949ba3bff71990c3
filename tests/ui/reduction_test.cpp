#include <QCheckBox>
#include <QDialog>
#include <QRadioButton>
#include <QtTest>

#include "base/record_files.h"
#include "engine/columns.h"
#include "tests/ui/window_fixture.h"
#include "ui/program_reducer.h"

using namespace quinteva;
namespace fs = std::filesystem;

namespace {

// El programa con su propio reductor: la reducción por tablas de los sistemas reducidos.
struct ProgramaReal {
    pruebas::Instalacion inst;
    ui::ReductorDelPrograma reductor;

    std::unique_ptr<ui::VentanaPrincipal> Ventana() {
        auto v = std::make_unique<ui::VentanaPrincipal>(
            ui::Servicios{inst.trabajo.Ruta(), inst.programa.Ruta(), inst.programa.Ruta(),
                          inst.ajustes, inst.dialogo, &reductor, inst.Impresora()});
        v->Arrancar(std::nullopt);
        v->show();
        if (!QTest::qWaitForWindowExposed(v.get())) qFatal("La ventana no se muestra");
        return v;
    }
};

std::vector<engine::Columna> Columnas(const fs::path& archivo) {
    std::vector<engine::Columna> columnas;
    const base::ArchivoDe<engine::RegistroColumna> a(archivo);
    for (std::int32_t n = 1; n <= a.Cuenta(); ++n) columnas.push_back(a.Leer(n).columna);
    return columnas;
}

// Cada columna desarrollada difiere de alguna reducida en "distancia" partidos como mucho.
bool Cubre(const std::vector<engine::Columna>& reducidas,
           const std::vector<engine::Columna>& desarrollo, int distancia) {
    return std::all_of(desarrollo.begin(), desarrollo.end(), [&](const engine::Columna& c) {
        return std::any_of(reducidas.begin(), reducidas.end(), [&](const engine::Columna& r) {
            int distintos = 0;
            for (std::size_t i = 0; i < c.size(); ++i) distintos += c[i] != r[i] ? 1 : 0;
            return distintos <= distancia;
        });
    });
}

// Lo que guarda al 13 el recubrimiento voraz columna a columna.
int VorazAlTrece(const std::vector<engine::Columna>& desarrollo) {
    std::vector<engine::Columna> guardadas;
    for (const auto& c : desarrollo) {
        if (!Cubre(guardadas, {c}, 1)) guardadas.push_back(c);
    }
    return static_cast<int>(guardadas.size());
}

void Elegir(ui::VentanaPrincipal& v, const char* opcion) {
    auto* boton = pruebas::Hijo<QRadioButton>(v, QString::fromUtf8(opcion));
    QTest::mouseClick(boton, Qt::LeftButton, {}, QPoint(8, boton->height() / 2));
}

void Reducir(ui::VentanaPrincipal& v) {
    QTest::mouseClick(pruebas::Hijo<QPushButton>(v, QStringLiteral("BotonReducir")),
                      Qt::LeftButton);
    pruebas::EsperarTrabajo(v);
}

}  // namespace

class PruebaReduccion : public QObject {
    Q_OBJECT

  private slots:
    // Dos dobles y dos triples sin condiciones: 36 columnas; por tablas, el sistema 2+2 da 6 al
    // 13 y 3 al 12; al 11 no hay sistema y la reducción acaba sin más.
    void SinCondicionesReducePorTablas() {
        ProgramaReal p;
        auto v = p.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        pruebas::Pagina(*v, ui::kGenerar);
        QTest::mouseClick(pruebas::Hijo<QPushButton>(*v, QStringLiteral("BotonGenerar")),
                          Qt::LeftButton);
        pruebas::EsperarTrabajo(*v);
        QCOMPARE(v->Combinacion().activasGeneradas, 36);
        const auto desarrollo = Columnas(p.inst.trabajo / engine::kCmbTmp);

        pruebas::Pagina(*v, ui::kReducir);
        for (const auto& [opcion, etiqueta, filas, distancia] :
             {std::tuple{"OpcionAl13", "EtiquetaAl13", 6, 1},
              std::tuple{"OpcionAl12", "EtiquetaAl12", 3, 2}}) {
            Elegir(*v, opcion);
            Reducir(*v);
            QCOMPARE(v->Combinacion().activasReducidas, filas);
            QCOMPARE(pruebas::TextoDe(*v, etiqueta), QStringLiteral(" %1").arg(filas));
            const auto reducidas = Columnas(p.inst.trabajo / engine::kRedTmp);
            QCOMPARE(static_cast<int>(reducidas.size()), filas);
            QVERIFY(Cubre(reducidas, desarrollo, distancia));
        }
        QVERIFY(v->PaginaHabilitada(ui::kBoletos));

        Elegir(*v, "OpcionAl11");
        Reducir(*v);
        QVERIFY(!fs::exists(p.inst.trabajo / engine::kRedTmp));
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaAl12"), QString());
        QVERIFY(p.inst.dialogo.Registro().empty());
    }

    // La "Reducción optimizada" sobre las 36 columnas: cubre igual al 13 y avisa de lo que ahorra
    // frente a la voraz columna a columna.
    void LaReduccionOptimizadaCubreYDiceCuantasAhorra() {
        ProgramaReal p;
        auto v = p.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        pruebas::Pagina(*v, ui::kGenerar);
        QTest::mouseClick(pruebas::Hijo<QPushButton>(*v, QStringLiteral("BotonGenerar")),
                          Qt::LeftButton);
        pruebas::EsperarTrabajo(*v);
        const auto desarrollo = Columnas(p.inst.trabajo / engine::kCmbTmp);
        pruebas::Pagina(*v, ui::kReducir);
        auto* optimizada = pruebas::Hijo<QCheckBox>(*v, QStringLiteral("ReduccionOptimizada"));
        QVERIFY(!optimizada->isChecked());
        optimizada->click();
        Elegir(*v, "OpcionAl13");
        Reducir(*v);
        const auto reducidas = Columnas(p.inst.trabajo / engine::kRedTmp);
        const int cuantas = v->Combinacion().activasReducidas;
        QCOMPARE(static_cast<int>(reducidas.size()), cuantas);
        QVERIFY(Cubre(reducidas, desarrollo, 1));
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaAl13"), QStringLiteral(" %1").arg(cuantas));
        const auto textos = p.inst.dialogo.Textos();
        QCOMPARE(textos.size(), std::size_t{1});
        const QString aviso = QString::fromStdString(textos[0]);
        QVERIFY2(
            aviso.startsWith(QStringLiteral("Reducción optimizada: %1 columnas, ").arg(cuantas)),
            qPrintable(aviso));
        QVERIFY2(aviso.endsWith(QStringLiteral(" menos que la reducción sin optimizar (%1).")
                                    .arg(VorazAlTrece(desarrollo))),
                 qPrintable(aviso));
    }

    void LaTablaDeReduccionesMuestraSusSetentaYTresFilas() {
        ProgramaReal p;
        auto v = p.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        pruebas::Pagina(*v, ui::kGenerar);
        QTest::mouseClick(pruebas::Hijo<QPushButton>(*v, QStringLiteral("BotonGenerar")),
                          Qt::LeftButton);
        pruebas::EsperarTrabajo(*v);
        pruebas::Pagina(*v, ui::kReducir);
        QTest::mouseClick(pruebas::Hijo<QPushButton>(*v, QStringLiteral("BotonTabla")),
                          Qt::LeftButton);
        auto* ventana = pruebas::Hijo<QDialog>(*v, QStringLiteral("VentanaTablaReducciones"));
        auto* rejilla =
            pruebas::Hijo<QTableWidget>(*ventana, QStringLiteral("RejillaTablaReducciones"));
        QCOMPARE(rejilla->rowCount(), 73);
        QCOMPARE(rejilla->item(0, 0)->text(), QStringLiteral("3 Dobles"));
        QVERIFY(rejilla->item(0, 1)->font().bold());
        QCOMPARE(rejilla->item(0, 2)->text(), QStringLiteral("-"));
        const auto fila =
            rejilla->findItems(QStringLiteral("5 Triples y 6 dobles"), Qt::MatchExactly);
        QCOMPARE(fila.size(), 1);

        Elegir(*v, "OpcionAl13");
        Reducir(*v);
        QTest::mouseClick(pruebas::Hijo<QPushButton>(*v, QStringLiteral("BotonInfoReducir")),
                          Qt::LeftButton);
        auto* informe = pruebas::Hijo<QDialog>(*v, QStringLiteral("VentanaReduccion"));
        // 6 de 36: el 83,33 % menos y un 16,67 % de probabilidad de los 14.
        QCOMPARE(pruebas::TextoDe(*informe, "ValorReduccion"), QStringLiteral("83,33%"));
        QCOMPARE(pruebas::TextoDe(*informe, "ValorProbabilidad"), QStringLiteral("16,67%"));
        // Con la ganadora entre las 36 columnas de la base: 6 de 36 con 14, las demás con 13.
        QCOMPARE(pruebas::TextoDe(*informe, "Probabilidad0"), QStringLiteral("16,666667 %"));
        QCOMPARE(pruebas::TextoDe(*informe, "Probabilidad1"), QStringLiteral("83,333333 %"));
        QCOMPARE(pruebas::TextoDe(*informe, "Probabilidad2"), QStringLiteral("0,000000 %"));
    }
};

QTEST_MAIN(PruebaReduccion)
#include "reduction_test.moc"
