#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QTabWidget>
#include <QtTest>
#include <fstream>

#include "engine/combination_files.h"
#include "tests/support/file_bytes.h"
#include "tests/ui/window_fixture.h"
#include "ui/options_window.h"
#include "ui/report_windows.h"

using namespace quinteva;
using pruebas::Hijo;
namespace fs = std::filesystem;

namespace {

// Las columnas de la base de ejemplo (1 y 2 dobles 1X, 3 y 4 triples, el resto "1") con como
// mucho una "X" y, si se pide, como mucho 12 parejas "11": contadas a mano.
int ColumnasConComoMuchoUnaEquis(bool parejas = false) {
    const char signos[] = {'1', 'X', '2'};
    int n = 0;
    for (int a = 0; a < 2; ++a)
        for (int b = 0; b < 2; ++b)
            for (int c = 0; c < 3; ++c)
                for (int d = 0; d < 3; ++d) {
                    const std::string col =
                        std::string{signos[a], signos[b], signos[c], signos[d]} +
                        std::string(10, '1');
                    int unos = 0;
                    for (std::size_t i = 0; i + 1 < col.size(); ++i)
                        unos += col[i] == '1' && col[i + 1] == '1' ? 1 : 0;
                    const auto equis = std::count(col.begin(), col.end(), 'X');
                    n += equis <= 1 && (!parejas || unos <= 12) ? 1 : 0;
                }
    return n;
}

}  // namespace

class PruebaVentanaPrincipal : public QObject {
    Q_OBJECT

  private slots:
    void ElPrimerArranqueInstalaLaDemoYListaSusJornadas() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        QVERIFY(fs::exists(inst.trabajo / "Tempor.rar"));
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaTemporada"), QStringLiteral("Temporada2324"));
        auto* lista = Hijo<QComboBox>(*v, QStringLiteral("ListaJornadas"));
        QCOMPARE(lista->count(), 26);
        QCOMPARE(lista->itemText(0), QStringLiteral("1"));
        QCOMPARE(inst.ajustes.Leer(base::kAplicacion, "Valores", "NEq1", ""), std::string("20"));
        QCOMPARE(inst.ajustes.Leer(base::kAplicacion, "Valores", "NEq2", ""), std::string("22"));
        QVERIFY(inst.dialogo.Registro().empty());
        // Solo la página de la base.
        QVERIFY(v->PaginaHabilitada(ui::kQuinBase));
        for (int p = 1; p < 5; ++p) QVERIFY(!v->PaginaHabilitada(p));
    }

    void LosMenusConTodasSusEntradasLasDeMasAdelanteDeshabilitadas() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        QStringList menus;
        for (QAction* a : v->menuBar()->actions()) menus << a->text();
        QCOMPARE(menus, (QStringList{"&Archivo", "&Ver", "&Herramientas", "&Peñas", "Ay&uda"}));
        QVERIFY(Hijo<QAction>(*v, "AccionNueva")->isEnabled());
        QVERIFY(Hijo<QAction>(*v, "AccionOpciones")->isEnabled());
        QVERIFY(Hijo<QAction>(*v, "AccionEstadisticas")->isEnabled());
        QVERIFY(Hijo<QAction>(*v, "AccionActualizacionInternet")->isEnabled());
        QVERIFY(Hijo<QAction>(*v, "AccionActualizacion")->isEnabled());
        QVERIFY(Hijo<QAction>(*v, "AccionRefundir")->isEnabled());
        QVERIFY(Hijo<QAction>(*v, "AccionResumen")->isEnabled());
        QVERIFY(Hijo<QAction>(*v, "AccionCrearPena")->isEnabled());
        QVERIFY(Hijo<QAction>(*v, "AccionAyuda")->isEnabled());
        QVERIFY(Hijo<QAction>(*v, "BarraAyuda")->isEnabled());
        QVERIFY(!Hijo<QAction>(*v, "AccionGuardar")->isEnabled());
        QCOMPARE(Hijo<QAction>(*v, "AccionGuardarComo")->text(), QStringLiteral("G&uardar como"));
        QVERIFY(!Hijo<QAction>(*v, "AccionReciente1")->isVisible());
    }

    void ElegirUnaJornadaPoneSusPartidosYSuFecha() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 26);
        auto* rejilla = Hijo<QTableWidget>(*v, "RejillaBase");
        QVERIFY(rejilla->item(0, 1)->text().contains(QStringLiteral(" - ")));
        QCOMPARE(rejilla->item(14, 0)->text(), QStringLiteral("15"));
        QCOMPARE(rejilla->item(0, 3)->text(), QStringLiteral("x"));
        QCOMPARE(pruebas::TextoDe(*v, "FechaJornada"), QStringLiteral("04/02/24"));
        QCOMPARE(v->Combinacion().jornada, 26);
        // Un clic en el partido llena el panel de información.
        pruebas::Pulsar(rejilla, 0, 1);
        const auto equipos = rejilla->item(0, 1)->text().split(QStringLiteral(" - "));
        QCOMPARE(pruebas::TextoDe(*v, "InfoLocal"), equipos[0]);
        QCOMPARE(pruebas::TextoDe(*v, "InfoVisitante"), equipos[1]);
        QVERIFY(
            pruebas::TextoDe(*v, "InfoDatosLocal").contains(QStringLiteral(" ptos., Valoración ")));
        QVERIFY(Hijo<QTableWidget>(*v, "RecientesLocal")->rowCount() > 0);
        QCOMPARE(Hijo<QTableWidget>(*v, "Clasificacion")->rowCount(), 20);
    }

    void LaBaseCompletaAbreLasPaginasYMuestraSusCifras() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        auto* rejilla = Hijo<QTableWidget>(*v, "RejillaBase");
        QCOMPARE(rejilla->item(0, 3)->text(), QStringLiteral("X"));
        QVERIFY(rejilla->item(0, 3)->font().bold());
        QCOMPARE(rejilla->item(14, 2)->text(), QStringLiteral("1"));
        QCOMPARE(rejilla->item(14, 4)->text(), QStringLiteral("M"));
        QVERIFY(v->PaginaHabilitada(ui::kCondicion));
        QVERIFY(v->PaginaHabilitada(ui::kGenerar));
        QVERIFY(!v->PaginaHabilitada(ui::kReducir));
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaAlDirecto"), QStringLiteral(" 36"));
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaDobles"), QStringLiteral(" 2"));
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaTriples"), QStringLiteral(" 2"));
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaGuardada"), QStringLiteral("NO"));
        // Quitar un signo de un partido que no tiene otro deja la base incompleta.
        pruebas::Pulsar(rejilla, 5, 2);
        QCOMPARE(rejilla->item(5, 2)->text(), QStringLiteral("1"));
        QVERIFY(!v->PaginaHabilitada(ui::kCondicion));
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaAlDirecto"), QString());
    }

    void ElAvisoDelPlenoSaleUnaSolaVezYLaTeclaEquivocadaVaciaLaCelda() {
        pruebas::Instalacion inst;
        inst.ajustes.Guardar(base::kAplicacion, "Pleno15", "Goles1", "0");
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        auto* rejilla = Hijo<QTableWidget>(*v, "RejillaBase");
        rejilla->setFocus();
        rejilla->setCurrentCell(14, 2);
        QCOMPARE(inst.dialogo.Registro().size(), std::size_t{1});
        QVERIFY(inst.dialogo.Registro()[0].texto.starts_with(
            "Desde la Temporada 2014/2015 el Pleno al 15"));
        QCOMPARE(inst.ajustes.Leer(base::kAplicacion, "Pleno15", "Goles1", ""), std::string("1"));
        QTest::keyClick(rejilla, '2');
        QCOMPARE(rejilla->item(14, 2)->text(), QStringLiteral("2"));
        QTest::keyClick(rejilla, 'z');
        QCOMPARE(rejilla->item(14, 2)->text(), QString());
        rejilla->setCurrentCell(0, 0);
        rejilla->setCurrentCell(14, 2);
        QCOMPARE(inst.dialogo.Registro().size(), std::size_t{1});
    }

    void ElFlujoEnteroSeGuardaYSeRecuperaAlArrancarConElArchivo() {
        pruebas::Instalacion inst;
        const fs::path ruta = inst.documentos / "Ejemplo.uxd";
        std::int32_t condicionada = 0;
        std::int32_t reducida = 0;
        engine::Combinacion antes;
        {
            auto v = inst.Ventana();
            pruebas::ElegirJornada(*v, 25);
            pruebas::BaseDeEjemplo(*v);
            pruebas::Pagina(*v, ui::kCondicion);
            QCOMPARE(v->PaginaActual(), int{ui::kCondicion});
            // Generales: como mucho una "X" (la fila 1 es el extremo alto que se pulsa hasta él).
            auto* generales = Hijo<QTableWidget>(*v, "RejillaGenerales");
            pruebas::Pulsar(generales, 4, 2);
            pruebas::Pulsar(generales, 3, 2);
            pruebas::Pulsar(generales, 2, 2);
            QCOMPARE(int{v->Combinacion().condiciones.maxEquis}, 1);
            QVERIFY(Hijo<QCheckBox>(*v, "Casilla0")->isChecked());
            // Parejas: "11" como mucho 12 (no quita nada en esta base, pero cuenta).
            auto* max11 = Hijo<QComboBox>(*v, "MaxPareja0");
            emit max11->activated(max11->findData(12));
            QVERIFY(Hijo<QCheckBox>(*v, "Casilla3")->isChecked());
            QCOMPARE(pruebas::TextoDe(*v, "EtiquetaGuardada"), QStringLiteral("NO"));

            pruebas::Pagina(*v, ui::kGenerar);
            QCOMPARE(Hijo<QLabel>(*v, "ApuestasPosibles")->text(), QStringLiteral(" 36"));
            QCOMPARE(Hijo<QLabel>(*v, "GenerarCondiciones")->text(), QStringLiteral(" 2"));
            QTest::mouseClick(Hijo<QPushButton>(*v, "BotonGenerar"), Qt::LeftButton);
            pruebas::EsperarTrabajo(*v);
            condicionada = v->Combinacion().activasGeneradas;
            QCOMPARE(condicionada, ColumnasConComoMuchoUnaEquis(true));
            QCOMPARE(pruebas::TextoDe(*v, "ApuestasSeleccionadas"),
                     QStringLiteral(" %1").arg(condicionada));
            QCOMPARE(pruebas::TextoDe(*v, "EtiquetaCondicionada"),
                     QStringLiteral(" %1").arg(condicionada));
            QVERIFY(Hijo<QPushButton>(*v, "BotonInfoGenerar")->isEnabled());
            QVERIFY(v->PaginaHabilitada(ui::kReducir));

            pruebas::Pagina(*v, ui::kReducir);
            auto* al12 = Hijo<QRadioButton>(*v, "OpcionAl12");
            QTest::mouseClick(al12, Qt::LeftButton, {}, QPoint(8, al12->height() / 2));
            QVERIFY(al12->isChecked());
            QTest::mouseClick(Hijo<QPushButton>(*v, "BotonReducir"), Qt::LeftButton);
            pruebas::EsperarTrabajo(*v);
            QCOMPARE(inst.reductor.reducciones, 1);
            reducida = v->Combinacion().activasReducidas;
            QVERIFY(reducida > 0 && reducida < condicionada);
            QCOMPARE(pruebas::TextoDe(*v, "EtiquetaAl12"), QStringLiteral(" %1").arg(reducida));
            QCOMPARE(pruebas::TextoDe(*v, "EtiquetaAl13"), QString());
            QCOMPARE(fs::file_size(inst.trabajo / "Red.tmp"),
                     static_cast<std::uintmax_t>(17 * reducida));

            inst.dialogo.Responder(std::optional<fs::path>(ruta));
            Hijo<QAction>(*v, "AccionGuardarComo")->trigger();
            QCOMPARE(fs::file_size(ruta), std::uintmax_t{5189});
            QCOMPARE(pruebas::TextoDe(*v, "EtiquetaGuardada"), QStringLiteral("SI"));
            QCOMPARE(pruebas::TextoDe(*v, "EtiquetaNombre"), QStringLiteral("Ejemplo"));
            QVERIFY(Hijo<QAction>(*v, "AccionReciente1")->isVisible());
            QCOMPARE(Hijo<QAction>(*v, "AccionReciente1")->text().toStdString(),
                     engine::TituloReciente(ruta.string()));
            antes = v->Combinacion();
            QVERIFY(v->close());
            QVERIFY(!fs::exists(inst.trabajo / "Cmb.tmp"));
        }
        QVERIFY(inst.dialogo.GuionAgotado());
        auto v = inst.Ventana(ruta);
        const auto& despues = v->Combinacion();
        QCOMPARE(despues.activasGeneradas, condicionada);
        QCOMPARE(despues.activasReducidas, reducida);
        QVERIFY(despues.base == antes.base);
        QVERIFY(despues.condiciones == antes.condiciones);
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaCondicionada"),
                 QStringLiteral(" %1").arg(condicionada));
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaAl12"), QStringLiteral(" %1").arg(reducida));
        QCOMPARE(Hijo<QComboBox>(*v, "ListaJornadas")->currentText(), QStringLiteral("25"));
        QVERIFY(v->PaginaHabilitada(ui::kReducir));
    }

    void AlSalirCancelarNoTocaNada() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        v->show();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        pruebas::Pagina(*v, ui::kGenerar);
        QTest::mouseClick(Hijo<QPushButton>(*v, "BotonGenerar"), Qt::LeftButton);
        pruebas::EsperarTrabajo(*v);
        const std::string cmb = pruebas::BytesDeArchivo(inst.trabajo / "Cmb.tmp");
        QVERIFY(!cmb.empty());
        inst.dialogo.Responder(base::Respuesta::Cancelar);
        QVERIFY(!v->close());
        QVERIFY(v->isVisible());
        QCOMPARE(pruebas::BytesDeArchivo(inst.trabajo / "Cmb.tmp"), cmb);
        QCOMPARE(inst.dialogo.Textos(),
                 std::vector<std::string>{"Desea guardar la Quiniela actual?"});
        QVERIFY(fs::is_empty(inst.documentos.Ruta()));
    }

    void AlSalirNoCierraSinGuardarYBorraCmbTmp() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        inst.dialogo.Responder(base::Respuesta::No);
        QVERIFY(v->close());
        QCOMPARE(inst.dialogo.Textos(),
                 std::vector<std::string>{"Desea guardar la Quiniela actual?"});
        QVERIFY(fs::is_empty(inst.documentos.Ruta()));
        QVERIFY(!fs::exists(inst.trabajo / "Cmb.tmp"));
    }

    void AlSalirSiGuardaComoSiNoTieneNombre() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        inst.dialogo.Responder(base::Respuesta::Si)
            .Responder(std::optional<fs::path>(inst.documentos / "Salida.uxd"));
        QVERIFY(v->close());
        QCOMPARE(fs::file_size(inst.documentos / "Salida.uxd"), std::uintmax_t{5189});
        QCOMPARE(inst.dialogo.Registro()[1].tipo, std::string("ArchivoParaGuardar"));
    }

    void LaBaseIncompletaNoPreguntaAlSalir() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        QVERIFY(v->close());
        QVERIFY(inst.dialogo.Registro().empty());
    }

    void CambiarDeJornadaConCancelarSeQuedaEnLaMisma() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        inst.dialogo.Responder(base::Respuesta::Cancelar);
        pruebas::ElegirJornada(*v, 24);
        QCOMPARE(v->Combinacion().jornada, 25);
        QCOMPARE(Hijo<QComboBox>(*v, "ListaJornadas")->currentText(), QStringLiteral("25"));
        QVERIFY(v->Combinacion().base.Completa());
        inst.dialogo.Responder(base::Respuesta::No);
        pruebas::ElegirJornada(*v, 24);
        QCOMPARE(v->Combinacion().jornada, 24);
        QVERIFY(!v->Combinacion().base.Completa());
    }

    void UnMinimoPorEncimaDelMaximoSeRechazaConSuMensaje() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        pruebas::Pagina(*v, ui::kCondicion);
        auto* max = Hijo<QComboBox>(*v, "MaxPareja1");
        emit max->activated(max->findData(3));
        auto* min = Hijo<QComboBox>(*v, "MinPareja1");
        emit min->activated(min->findData(4));
        QCOMPARE(inst.dialogo.Textos(),
                 std::vector<std::string>{"El Mínimo no puede ser mayor que el Máximo."});
        QCOMPARE(int{v->Combinacion().condiciones.minPareja[1]}, 0);
        QCOMPARE(min->currentText(), QStringLiteral("0"));
        emit min->activated(min->findData(3));
        emit max->activated(max->findData(2));
        QCOMPARE(inst.dialogo.Textos().back(),
                 std::string("El Máximo no puede ser menor que el Mínimo."));
        QCOMPARE(int{v->Combinacion().condiciones.maxPareja[1]}, 3);
        QCOMPARE(inst.dialogo.Textos().size(), std::size_t{2});
    }

    void DetenerParaLaGeneracionDeCatorceTriples() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        auto* rejilla = Hijo<QTableWidget>(*v, "RejillaBase");
        for (int p = 0; p < 14; ++p)
            for (int s = 2; s <= 4; ++s) pruebas::Pulsar(rejilla, p, s);
        pruebas::PonerBase(*v, {}, '0', '0');
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaAlDirecto"), QStringLiteral(" 4.782.969"));
        pruebas::Pagina(*v, ui::kGenerar);
        QTest::mouseClick(Hijo<QPushButton>(*v, "BotonGenerar"), Qt::LeftButton);
        QVERIFY(v->Trabajo().EnCurso());
        // Mientras trabaja, los mandatos de la ventana no responden y "&Detener" sí.
        QVERIFY(!v->menuBar()->isEnabled());
        QVERIFY(!Hijo<QPushButton>(*v, "BotonPagina0")->isEnabled());
        auto* detener = Hijo<QPushButton>(*v, "BotonDetenerGenerar");
        QVERIFY(detener->isEnabled());
        QTest::mouseClick(detener, Qt::LeftButton);
        pruebas::EsperarTrabajo(*v);
        const auto total = v->Combinacion().totalGeneradas;
        QVERIFY(total < 4782969);
        QCOMPARE(fs::file_size(inst.trabajo / "Cmb.tmp"),
                 static_cast<std::uintmax_t>(17) * static_cast<std::uintmax_t>(total));
        QCOMPARE(pruebas::TextoDe(*v, "ApuestasSeleccionadas")
                     .remove(QLatin1Char('.'))
                     .trimmed()
                     .toInt(),
                 total);
        QCOMPARE(pruebas::TextoDe(*v, "EtiquetaCondicionada"), QString());
        QVERIFY(!v->PaginaHabilitada(ui::kReducir));
        QVERIFY(v->menuBar()->isEnabled());
        QVERIFY(!detener->isEnabled());
    }

    void RechazadasCuentaLasColumnasQueQuitoCadaFiltro() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        pruebas::Pagina(*v, ui::kCondicion);
        auto* generales = Hijo<QTableWidget>(*v, "RejillaGenerales");
        for (int fila : {4, 3, 2}) pruebas::Pulsar(generales, fila, 2);
        pruebas::Pagina(*v, ui::kGenerar);
        QTest::mouseClick(Hijo<QPushButton>(*v, "BotonGenerar"), Qt::LeftButton);
        pruebas::EsperarTrabajo(*v);
        QTest::mouseClick(Hijo<QPushButton>(*v, "BotonInfoGenerar"), Qt::LeftButton);
        auto* ventana = Hijo<ui::VentanaRechazadas>(*v, "VentanaRechazadas");
        auto* rejilla = Hijo<QTableWidget>(*ventana, "RejillaRechazadas");
        QCOMPARE(rejilla->rowCount(), 2);
        QCOMPARE(rejilla->item(0, 0)->text(), QStringLiteral("Condiciones Generales"));
        QCOMPARE(rejilla->item(0, 1)->text(), QString::number(36 - ColumnasConComoMuchoUnaEquis()));
        QCOMPARE(rejilla->item(1, 0)->text(), QStringLiteral("Total rechazadas"));
        QVERIFY(rejilla->item(1, 0)->font().bold());
        ventana->close();
    }

    void OpcionesGuardaLasCasillasYElPrecio() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        Hijo<QAction>(*v, "AccionOpciones")->trigger();
        auto* opciones = Hijo<ui::VentanaOpciones>(*v, "VentanaOpciones");
        QVERIFY(Hijo<QCheckBox>(*opciones, "CasillaVerAp1")->isChecked());
        Hijo<QCheckBox>(*opciones, "CasillaVerBar2")->setChecked(false);
        auto* precio = Hijo<QLineEdit>(*opciones, "CampoPrecio");
        QCOMPARE(precio->text(), QStringLiteral("0,75"));
        precio->clear();
        QTest::keyClicks(precio, QStringLiteral("1a,5."));
        QCOMPARE(precio->text(), QStringLiteral("1,5"));
        QTest::keyClick(precio, Qt::Key_Return);
        QCOMPARE(inst.ajustes.Leer(base::kAplicacion, "Opciones", "VerAp1", ""), std::string("1"));
        QCOMPARE(inst.ajustes.Leer(base::kAplicacion, "Opciones", "VerBar2", ""), std::string("0"));
        QCOMPARE(inst.ajustes.Leer(base::kAplicacion, "Opciones", "PrecioApu15", ""),
                 std::string("1,5"));
        QCOMPARE(inst.ajustes.Leer(base::kAplicacion, "Opciones", "Moneda", ""),
                 std::string("Euros"));
        QVERIFY(!ui::AjusteActivo(inst.ajustes, "VerBar2"));
    }

    void LaBienvenidaSaleHastaQueSeApaga() {
        pruebas::Instalacion inst;
        inst.ajustes.Guardar(base::kAplicacion, "Inic05", "VerBien", "SI");
        auto v = inst.Ventana();
        inst.dialogo.Responder(base::Respuesta::No);
        v->Bienvenida();
        QCOMPARE(inst.ajustes.Leer(base::kAplicacion, "Inic05", "VerBien", ""), std::string("NO"));
        v->Bienvenida();
        QCOMPARE(inst.dialogo.Registro().size(), std::size_t{1});
    }

    void UnArchivoDanadoComoArgumentoDaSuErrorYLaVentanaSigue() {
        pruebas::Instalacion inst;
        const fs::path ruta = inst.documentos / "Roto.uxd";
        std::ofstream(ruta) << "corto";
        auto v = inst.Ventana(ruta);
        QCOMPARE(inst.dialogo.Registro().size(), std::size_t{1});
        QVERIFY(inst.dialogo.Registro()[0].texto.starts_with("Error: "));
        QCOMPARE(Hijo<QComboBox>(*v, "ListaJornadas")->count(), 26);
    }
};

QTEST_MAIN(PruebaVentanaPrincipal)
#include "main_window_test.moc"
