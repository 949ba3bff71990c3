#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QtTest>
#include <fstream>

#include "engine/analysis.h"
#include "engine/prize_odds.h"
#include "seasons/update.h"
#include "syndicates/ledger.h"
#include "syndicates/participants.h"
#include "tests/support/publisher_process.h"
#include "tests/ui/hits_fixture.h"
#include "tests/ui/publisher_fixture.h"
#include "tests/ui/window_fixture.h"
#include "ui/add_columns_window.h"
#include "ui/analysis_window.h"
#include "ui/bets_list_window.h"
#include "ui/blinking_greeting.h"
#include "ui/boletos_notice.h"
#include "ui/changes_window.h"
#include "ui/conditions_history_window.h"
#include "ui/failure_report_window.h"
#include "ui/help_window.h"
#include "ui/history_window.h"
#include "ui/import_window.h"
#include "ui/json_file_window.h"
#include "ui/league_fixture_window.h"
#include "ui/league_results_window.h"
#include "ui/league_table_window.h"
#include "ui/located_columns_window.h"
#include "ui/merge_window.h"
#include "ui/odds_window.h"
#include "ui/official_file_window.h"
#include "ui/options_window.h"
#include "ui/paper_print_window.h"
#include "ui/pena_accounts_window.h"
#include "ui/pena_data_window.h"
#include "ui/pena_window.h"
#include "ui/percentages_window.h"
#include "ui/pools_results_window.h"
#include "ui/pools_slip_window.h"
#include "ui/pools_view_window.h"
#include "ui/print_range_dialog.h"
#include "ui/printer_select_window.h"
#include "ui/printing.h"
#include "ui/program_update_window.h"
#include "ui/quick_basic_window.h"
#include "ui/remove_columns_window.h"
#include "ui/report_viewer.h"
#include "ui/report_windows.h"
#include "ui/season_update_window.h"
#include "ui/slip_print_window.h"
#include "ui/spanish_texts.h"
#include "ui/statistics_window.h"
#include "ui/team_weights_window.h"
#include "ui/teams_window.h"
#include "ui/text_type_window.h"
#include "ui/very_reduced_window.h"
#include "ui/winning_columns_window.h"

using namespace quinteva;
using pruebas::Hijo;

// Dibuja la ventana principal en cada página y pestaña, y cada ventana, en un PNG de la carpeta
// QUINTEVA_CAPTURAS, para mirarlas.
class PruebaCapturas : public QObject {
    Q_OBJECT

    static QString Carpeta() {
        const QString carpeta = qEnvironmentVariable("QUINTEVA_CAPTURAS", QDir::tempPath());
        QDir().mkpath(carpeta);
        return carpeta;
    }

    static void Capturar(QWidget& ventana, const QString& nombre) {
        ventana.show();
        QVERIFY(QTest::qWaitForWindowExposed(&ventana));
        // Que los cambios de tamaño pendientes se apliquen antes de dibujar.
        QTest::qWait(30);
        const QImage imagen = ventana.grab().toImage();
        QVERIFY(!imagen.isNull());
        const QString ruta = Carpeta() + QLatin1Char('/') + nombre + QStringLiteral(".png");
        QVERIFY(imagen.save(ruta));
        QVERIFY(QFileInfo(ruta).size() > 0);
    }

  private slots:
    // Como las ve el usuario: con los textos de Qt en español.
    void initTestCase() { QVERIFY(ui::TextosDeQtEnEspanol(*qApp)); }

    void VentanaPrincipalEnCadaPaginaYPestana() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        Capturar(*v, QStringLiteral("ventana_principal_inicio"));
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        pruebas::Pulsar(Hijo<QTableWidget>(*v, "RejillaBase"), 0, 1);
        Capturar(*v, QStringLiteral("pagina_0_quin_base"));
        pruebas::Pagina(*v, ui::kCondicion);
        auto* pestanas = Hijo<QTabWidget>(*v, "PestanasCondiciones");
        for (int i = 0; i < pestanas->count(); ++i) {
            pestanas->setCurrentIndex(i);
            Capturar(*v,
                     QStringLiteral("pagina_1_condicion_%1_%2").arg(i).arg(pestanas->tabText(i)));
        }
        pruebas::Pagina(*v, ui::kGenerar);
        QTest::mouseClick(Hijo<QPushButton>(*v, "BotonGenerar"), Qt::LeftButton);
        pruebas::EsperarTrabajo(*v);
        Capturar(*v, QStringLiteral("pagina_2_generar"));
        pruebas::Pagina(*v, ui::kReducir);
        QTest::mouseClick(Hijo<QPushButton>(*v, "BotonReducir"), Qt::LeftButton);
        pruebas::EsperarTrabajo(*v);
        Capturar(*v, QStringLiteral("pagina_3_reducir"));
        inst.dialogo.Responder(
            std::optional<std::filesystem::path>(inst.documentos / "Captura.uxd"));
        Hijo<QAction>(*v, "AccionGuardarComo")->trigger();
        auto w = inst.Ventana(inst.documentos / "Captura.uxd");
        pruebas::Pagina(*w, ui::kBoletos);
        auto* reducida = Hijo<QRadioButton>(*w, "OpcionReducida");
        QTest::mouseClick(reducida, Qt::LeftButton, {}, QPoint(8, reducida->height() / 2));
        Capturar(*w, QStringLiteral("pagina_4_boletos"));
        CapturarVentanasDeBoletos(inst, *w);
        CapturarVentanasDeAciertos(inst, *w);
    }

    // La ventana principal a la medida de la pantalla de un portátil, 1366x768 al 100 %, y de
    // una de 1920x1080 al 150 % (en prueba_ui_capturas_150), menos la barra del escritorio y el
    // título: cabe, y el panel de información de los partidos se alcanza desplazando.
    void VentanaPrincipalEnPantallasPequenas() {
        const qreal escala = qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble();
        const QSize pantalla = escala > 1 ? QSize(1920, 1080) : QSize(1366, 768);
        const QSize disponible = (pantalla - QSize(0, 72)) / escala;
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        v->resize(disponible);
        QTRY_COMPARE(v->size(), disponible);
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        pruebas::Pulsar(Hijo<QTableWidget>(*v, "RejillaBase"), 0, 1);
        const QString nombre =
            QStringLiteral("ventana_principal_%1x%2").arg(pantalla.width()).arg(pantalla.height());
        Capturar(*v, nombre);
        auto* area = Hijo<QScrollArea>(*v, "AreaCentral");
        auto* panel = Hijo<QWidget>(*v, "PanelInfo");
        area->ensureWidgetVisible(panel, 0, 0);
        const QRect visible = area->viewport()->rect();
        const QRect enElArea(panel->mapTo(area->viewport(), QPoint(0, 0)), panel->size());
        QVERIFY2(visible.contains(enElArea.topLeft()) &&
                     enElArea.left() + enElArea.width() / 2 <= visible.right(),
                 "El panel de información queda fuera de la vista");
        Capturar(*v, nombre + QStringLiteral("_panel"));
        pruebas::Pagina(*v, ui::kCondicion);
        Capturar(*v, nombre + QStringLiteral("_condiciones"));
    }

    // "Equipos" sobre la temporada de demostración, con las valoraciones a la vista.
    void VentanaEquipos() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        Hijo<QAction>(*v, "AccionEquipos")->trigger();
        auto* equipos = v->findChild<ui::VentanaEquiposQt*>();
        QVERIFY(equipos != nullptr);
        auto* nombre = Hijo<QLineEdit>(*equipos, "CampoNombre1");
        QTest::keyClick(nombre, Qt::Key_V, Qt::ShiftModifier);
        Capturar(*equipos, QStringLiteral("ventana_equipos"));
    }

    void VentanaClasificacion() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        Hijo<QAction>(*v, "AccionClasificaciones")->trigger();
        auto* ventana = v->findChild<ui::VentanaClasificacion*>();
        QVERIFY(ventana != nullptr);
        Capturar(*ventana, QStringLiteral("ventana_clasificacion"));
    }

    // "Jornadas de Liga" y los resultados de la Liga en la Jornada de la Quiniela elegida.
    void VentanasDeLiga() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 12);
        Hijo<QAction>(*v, "AccionJornadasLiga")->trigger();
        auto* jornadas = v->findChild<ui::VentanaJornadasLigaQt*>();
        QVERIFY(jornadas != nullptr);
        Hijo<QComboBox>(*jornadas, "ListaJornada")->setCurrentIndex(11);
        Capturar(*jornadas, QStringLiteral("ventana_jornadas_liga"));
        jornadas->close();
        Hijo<QAction>(*v, "AccionResultadosLiga")->trigger();
        auto* resultados = v->findChild<ui::VentanaResultadosLigaQt*>();
        QVERIFY(resultados != nullptr);
        Capturar(*resultados, QStringLiteral("ventana_resultados_liga"));
    }

    // "Jornadas de Quinielas" y sus resultados en la Jornada 12 de la demostración.
    void VentanasDeQuinielas() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        Hijo<QAction>(*v, "AccionJornadasQuiniela")->trigger();
        auto* boleto = v->findChild<ui::VentanaJornadasQuinielaQt*>();
        QVERIFY(boleto != nullptr);
        auto* jornada = Hijo<QComboBox>(*boleto, "ListaJornada");
        jornada->setCurrentIndex(jornada->findText(QStringLiteral("12")));
        emit jornada->activated(jornada->currentIndex());
        Capturar(*boleto, QStringLiteral("ventana_jornadas_quiniela"));
        boleto->close();
        Hijo<QAction>(*v, "AccionResultadosQuiniela")->trigger();
        auto* resultados = v->findChild<ui::VentanaResultadosQuinielaQt*>();
        QVERIFY(resultados != nullptr);
        auto* jornadaResultados = Hijo<QComboBox>(*resultados, "ListaJornada");
        jornadaResultados->setCurrentIndex(jornadaResultados->findText(QStringLiteral("12")));
        Capturar(*resultados, QStringLiteral("ventana_resultados_quiniela"));
    }

    // "Ver Quinielas" sobre la reducida guardada, en su tercera columna.
    void VentanaVerQuinielas() {
        pruebas::Instalacion inst;
        auto v = pruebas::Reducida(inst);
        pruebas::Pagina(*v, ui::kBoletos);
        inst.dialogo.Responder(std::optional<std::filesystem::path>(inst.documentos / "R.uxd"));
        pruebas::Marcar(*v, "OpcionReducida");
        Hijo<QAction>(*v, "AccionQuinielas")->trigger();
        auto* ver = v->findChild<ui::VentanaVerQuinielas*>();
        QVERIFY(ver != nullptr);
        Hijo<QScrollBar>(*ver, "BarraQuinielas")->setValue(2);
        Capturar(*ver, QStringLiteral("ventana_ver_quinielas"));
    }

    // "Estadísticas" (los unos por posición de la 23/24) y "Columnas Ganadoras".
    void VentanasDeEstadisticas() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        Hijo<QAction>(*v, "AccionEstadisticas")->trigger();
        auto* estadisticas = v->findChild<ui::VentanaEstadisticas*>();
        QVERIFY(estadisticas != nullptr);
        auto* temporada = Hijo<QComboBox>(*estadisticas, "ListaTemporada");
        temporada->setCurrentIndex(temporada->findText(QStringLiteral("23/24")));
        Capturar(*estadisticas, QStringLiteral("ventana_estadisticas"));
        estadisticas->close();
        Hijo<QAction>(*v, "AccionColumnasGanadoras")->trigger();
        auto* columnas = v->findChild<ui::VentanaColumnasGanadoras*>();
        QVERIFY(columnas != nullptr);
        Capturar(*columnas, QStringLiteral("ventana_columnas_ganadoras"));
        columnas->close();
        Hijo<QAction>(*v, "AccionHistorico")->trigger();
        auto* historico = v->findChild<ui::VentanaHistorico*>();
        QVERIFY(historico != nullptr);
        auto* equipo = Hijo<QComboBox>(*historico, "ListaEquipo1");
        equipo->setCurrentIndex(equipo->findText(QStringLiteral("Betis")));
        pruebas::Pulsar(*historico, "BotonBuscar");
        Capturar(*historico, QStringLiteral("ventana_historico"));
    }

    // Una impresión dibujada en una hoja A4 a 100 puntos por pulgada, como la vería el papel.
    static void CapturarImpresion(const outputs::Impresion& hoja, const QString& nombre) {
        QImage papel(827, 1169, QImage::Format_RGB32);
        papel.fill(Qt::white);
        papel.setDotsPerMeterX(3937);
        papel.setDotsPerMeterY(3937);
        {
            QPainter pintor(&papel);
            ui::PintarPagina(pintor, hoja, 1, 100);
        }
        QVERIFY(papel.save(Carpeta() + QLatin1Char('/') + nombre + QStringLiteral(".png")));
    }

    // Las ventanas de impresión con su ajuste, la selección de impresión y la de impresora, y
    // la primera página de lo que imprimen.
    void VentanasDeImpresion() {
        pruebas::Instalacion inst;
        auto v = pruebas::Guardada(inst, inst.documentos / "Captura.uxd", true);
        pruebas::Marcar(*v, "OpcionReducida");
        pruebas::Pulsar(*v, "BotonImprimirBoletos");
        auto* boletos = Hijo<ui::VentanaImprimirBoletos>(*v, "VentanaImprimirBoletos");
        Capturar(*boletos, QStringLiteral("ventana_imprimir_boletos"));
        inst.dialogo.Responder(base::Respuesta::Aceptar).Responder(base::Respuesta::Aceptar);
        pruebas::Pulsar(*boletos, "BotonImprimirUno");
        pruebas::Pulsar(*boletos, "BotonAjustarImpresora");
        Capturar(*boletos, QStringLiteral("ventana_imprimir_boletos_ajuste"));
        pruebas::Pulsar(*boletos, "BotonImprimirTodos");
        auto* rango = boletos->findChild<ui::VentanaSeleccionImpresion*>();
        QVERIFY(rango != nullptr);
        Capturar(*rango, QStringLiteral("ventana_seleccion_impresion"));
        rango->close();
        boletos->close();
        pruebas::Pulsar(*v, "BotonImprimirPapel");
        auto* papel = Hijo<ui::VentanaImprimirPapel>(*v, "VentanaImprimirPapel");
        pruebas::Pulsar(*papel, "BotonImprimirUno");
        pruebas::Pulsar(*papel, "BotonAjustarImpresora");
        Capturar(*papel, QStringLiteral("ventana_imprimir_papel_ajuste"));
        papel->close();
        auto* visor = pruebas::AbrirDesdeMenu<ui::VentanaVisor>(*v, "AccionVisorQuinielas");
        Capturar(*visor, QStringLiteral("ventana_visor_quinielas"));
        pruebas::Pulsar(*visor, "BotonImprimir");
        visor->close();
        QCOMPARE(inst.impresas.size(), 3U);
        CapturarImpresion(inst.impresas[0], QStringLiteral("impresion_boletos"));
        CapturarImpresion(inst.impresas[1], QStringLiteral("impresion_papel_blanco"));
        CapturarImpresion(inst.impresas[2], QStringLiteral("impresion_visor_quinielas"));
        auto* impresora =
            pruebas::AbrirDesdeMenu<ui::VentanaSeleccionImpresora>(*v, "AccionImpresora");
        Capturar(*impresora, QStringLiteral("ventana_seleccion_impresora"));
        impresora->close();
        const auto lista = inst.documentos / "lista.txt";
        std::ofstream(lista) << "1X21X21X21X21X 1-M\n22222222222222 0-0\nXXXXXXXXXXXXXX 2-1\n";
        auto* importar = pruebas::AbrirDesdeMenu<ui::VentanaImportar>(*v, "AccionImportar");
        inst.dialogo.Responder(std::optional<std::filesystem::path>(lista));
        pruebas::Pulsar(*importar, "BotonImportarConPleno");
        Capturar(*importar, QStringLiteral("ventana_importar"));
    }

    void VentanaMuyReducida() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        inst.dialogo.Responder(std::optional<std::filesystem::path>(inst.documentos / "M.uxd"));
        pruebas::Pulsar(*v, "BotonMuyReducida");
        auto* ventana = v->findChild<ui::VentanaMuyReducida*>();
        QVERIFY(ventana != nullptr);
        Capturar(*ventana, QStringLiteral("ventana_muy_reducida"));
        Capturar(*v, QStringLiteral("ventana_principal_con_muy_reducida"));
    }

    void VentanasDePorcentajesYRapidaBasica() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 25);
        pruebas::BaseDeEjemplo(*v);
        inst.dialogo.Responder(std::optional<std::filesystem::path>(inst.documentos / "R.uxd"));
        pruebas::Pulsar(*v, "BotonPorcentajes");
        auto* porcentajes = Hijo<ui::VentanaPorcentajes>(*v, "VentanaPorcentajes");
        auto* rejilla = Hijo<QTableWidget>(*porcentajes, "RejillaPorcentajes");
        rejilla->setFocus();
        rejilla->setCurrentCell(2, 0);
        QTest::keyClicks(rejilla, QStringLiteral("45"));
        QTest::keyClicks(Hijo<QLineEdit>(*porcentajes, "CajaNumeroColumnas"), QStringLiteral("24"));
        Capturar(*porcentajes, QStringLiteral("ventana_quiniela_por_porcentajes"));
        porcentajes->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        pruebas::Pulsar(*v, "BotonBasica");
        auto* basica = Hijo<ui::VentanaRapidaBasica>(*v, "VentanaRapidaBasica");
        Hijo<QComboBox>(*basica, "MinimoBasica0")->setCurrentIndex(1);
        Hijo<QCheckBox>(*basica, "MarcaBasica0")->setChecked(true);
        QTest::keyClicks(Hijo<QLineEdit>(*basica, "CajaNumeroColumnas"), QStringLiteral("16"));
        Capturar(*basica, QStringLiteral("ventana_quiniela_rapida_basica"));
        basica->close();
    }

    void VentanaRefundir() {
        pruebas::Instalacion inst;
        auto v = pruebas::Guardada(inst, inst.documentos / "Refundir.uxd");
        pruebas::Marcar(*v, "OpcionReducida");
        auto* ventana = pruebas::AbrirDesdeMenu<ui::VentanaRefundir>(*v, "AccionRefundir");
        inst.dialogo.Responder(std::optional<std::filesystem::path>(inst.documentos / "Todas.txt"));
        pruebas::Pulsar(*ventana, "BotonArchivoRefundido");
        inst.dialogo.Responder(
            std::optional<std::filesystem::path>(inst.documentos / "Refundir.uxd"));
        pruebas::Pulsar(*ventana, "BotonAnadirRefundir");
        Capturar(*ventana, QStringLiteral("ventana_refundir_combinaciones"));
        ventana->close();
    }

    // Una Peña con tres Apostantes y la Jornada 12 cerrada y repartida.
    void VentanasDePenas() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        syndicates::RegPena datos;
        datos.nombre = "Peña Los Amigos del Bar";
        datos.nombreReducido = "LosAmigos";
        datos.temporada = "23/24";
        pruebas::DialogoGuionado guion;
        const syndicates::ArchivosPena pena(
            *syndicates::CrearDatosPena(inst.trabajo.Ruta(), datos, guion));
        for (const char* n : {"García López, Ana", "Sanz Ruiz, Benito", "Núñez Ortiz, Carmen"}) {
            syndicates::RegApostante a;
            a.nombre = n;
            a.nif = "12345678Z";
            syndicates::AnadirApostante(pena, a, guion);
        }
        for (std::size_t a = 0; a < 3; ++a)
            syndicates::IntroducirCuotas(pena, a, "1", "10", "14", guion);
        auto pagina = syndicates::LlenarFlex1(pena, 12, "10/12/23");
        syndicates::TeclearColumnas(pagina, "4", 0.75F, guion);
        pagina.acertadas[5] = "1";
        pagina.premios[5] = "100,00";
        syndicates::CerrarJornada(pena, pagina, guion);
        syndicates::Distribuir(pagina);
        syndicates::GuardarPagina(pena, pagina);
        v->AbrirPena(pena.Ruta());
        auto* ventana = Hijo<ui::VentanaPena>(*v, "VentanaPena");
        Capturar(*ventana, QStringLiteral("ventana_pena_apostantes"));
        pruebas::Pulsar(*ventana, "BotonPaginaJornadas");
        auto* selector = Hijo<QComboBox>(*ventana, "SelectorJornadaPena");
        selector->setCurrentIndex(11);
        emit selector->activated(11);
        Capturar(*ventana, QStringLiteral("ventana_pena_jornadas"));
        pruebas::Pulsar(*ventana, "BotonInformePena");
        auto* cuentas = Hijo<ui::VentanaCuentas>(*ventana, "VentanaCuentas");
        Capturar(*cuentas, QStringLiteral("ventana_informe_pena"));
        cuentas->close();
        pruebas::Pulsar(*ventana, "BotonVerJornada");
        auto* visor = Hijo<ui::VentanaVisor>(*ventana, "VentanaVisor");
        pruebas::Pulsar(*visor, "BotonImprimir");
        CapturarImpresion(inst.impresas.back(), QStringLiteral("impresion_jornada_pena"));
        visor->close();
        ventana->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Hijo<QAction>(*v, "AccionCrearPena")->trigger();
        Capturar(*Hijo<ui::VentanaDatosPena>(*v, "VentanaDatosPena"),
                 QStringLiteral("ventana_crear_pena"));
    }

    void ResumenDeCondiciones() {
        pruebas::Instalacion inst;
        auto v = pruebas::Reducida(inst);
        pruebas::Marcar(*v, "OpcionReducida");
        auto* visor = pruebas::AbrirDesdeMenu<ui::VentanaVisor>(*v, "AccionResumen");
        Capturar(*visor, QStringLiteral("ventana_resumen_condiciones"));
        pruebas::Pulsar(*visor, "BotonImprimir");
        CapturarImpresion(inst.impresas.back(), QStringLiteral("impresion_resumen_condiciones"));
        visor->close();
    }

    void VentanaPonderar() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::ElegirJornada(*v, 26);
        pruebas::Pulsar(*v, "BotonPonderar");
        auto* ventana = Hijo<ui::VentanaPonderar>(*v, "VentanaPonderar");
        Hijo<QCheckBox>(*ventana, "Marca1")->click();
        Hijo<QCheckBox>(*ventana, "Marca11")->click();
        Capturar(*ventana, QStringLiteral("ventana_ponderar_equipos"));
    }

    // La actualización por Internet contra quinteva-servidor: al abrir y al acabar; la del
    // programa con la versión del servidor, y sus modificaciones.
    void VentanasDeActualizacion() {
        pruebas::Instalacion inst;
        auto v = inst.Ventana();
        pruebas::Editor editor;
        editor.Temporada(v->Temporada().carpetaTemporada);
        editor.Version({});
        pruebas::ServidorPublicando servidor(QUINTEVA_SERVIDOR, editor.carpeta.Ruta());
        auto* temporada = pruebas::AbrirDesdeMenu<ui::VentanaActualizacionTemporada>(
            *v, "AccionActualizacionInternet");
        Capturar(*temporada, QStringLiteral("ventana_actualizacion_temporada_al_abrir"));
        Hijo<QLineEdit>(*temporada, "Servidor")
            ->setText(QString::fromStdString(servidor.Direccion()));
        pruebas::Pulsar(*temporada, "BotonActualizar");
        QTRY_COMPARE(pruebas::TextoDe(*temporada, "PasoFinal"),
                     QStringLiteral("Actualización completa !!"));
        Capturar(*temporada, QStringLiteral("ventana_actualizacion_temporada"));
        temporada->close();
        inst.dialogo.Responder(base::Respuesta::No);
        auto* programa =
            pruebas::AbrirDesdeMenu<ui::VentanaActualizacionPrograma>(*v, "AccionActualizacion");
        QTRY_VERIFY(
            !pruebas::TextoDe(*programa, "VersionServidor").startsWith(QStringLiteral("Comp")));
        Capturar(*programa, QStringLiteral("ventana_actualizacion_programa"));
        programa->close();
        ui::VentanaCambios cambios(
            QStringLiteral("Versión 215000\n\n- Las estadísticas por temporada.\n- La "
                           "actualización por Internet."),
            v.get());
        Capturar(cambios, QStringLiteral("ventana_cambios_version"));
    }

    // Cada ventana que se abre desde la página Boletos y los menús, sobre la Combinación dada.
    void CapturarVentanasDeBoletos(pruebas::Instalacion& inst, ui::VentanaPrincipal& v) {
        QTest::mouseClick(Hijo<QPushButton>(v, "BotonEliminarManual"), Qt::LeftButton);
        auto* eliminar = Hijo<ui::VentanaEliminarColumnas>(v, "VentanaEliminarColumnas");
        Hijo<QComboBox>(*eliminar, "ComboModo")->setCurrentIndex(0);
        Hijo<QComboBox>(*eliminar, "ComboNumero")->setCurrentIndex(2);
        Hijo<QComboBox>(*eliminar, "ComboSigno")->setCurrentIndex(3);
        QTest::mouseClick(Hijo<QPushButton>(*eliminar, "BotonEliminar"), Qt::LeftButton);
        Capturar(*eliminar, QStringLiteral("ventana_eliminar_columnas"));
        eliminar->hide();
        QTest::mouseClick(Hijo<QPushButton>(v, "BotonAnadirManual"), Qt::LeftButton);
        auto* anadir = Hijo<ui::VentanaAnadirColumnas>(v, "VentanaAnadirColumnas");
        auto* entrada = Hijo<QTableWidget>(*anadir, "RejillaEntrada");
        entrada->setFocus();
        QTest::keyClicks(entrada, QStringLiteral("1x2"));
        Capturar(*anadir, QStringLiteral("ventana_anadir_columnas"));
        anadir->hide();
        QTest::mouseClick(Hijo<QPushButton>(v, "BotonProbabilidades"), Qt::LeftButton);
        Capturar(*Hijo<ui::VentanaProbabilidades>(v, "VentanaProbabilidades"),
                 QStringLiteral("ventana_probabilidades"));
        QTest::mouseClick(Hijo<QPushButton>(v, "BotonArchivoTxt"), Qt::LeftButton);
        Capturar(*Hijo<ui::VentanaTipoArchivo>(v, "VentanaTipoArchivo"),
                 QStringLiteral("ventana_tipo_archivo"));
        QTest::mouseClick(Hijo<QPushButton>(v, "BotonArchivoOficial"), Qt::LeftButton);
        auto* oficial = Hijo<ui::VentanaArchivoOficial>(v, "VentanaArchivoOficial");
        Hijo<QLineEdit>(*oficial, "CampoNombre")->setText(QStringLiteral("Jornada25"));
        Capturar(*oficial, QStringLiteral("ventana_archivo_oficial"));
        inst.dialogo.Responder(base::Respuesta::Aceptar)
            .Responder(std::optional<std::filesystem::path>(inst.documentos.Ruta()))
            .Responder(base::Respuesta::Si)
            .Responder(std::optional<std::string>("25"));
        Hijo<QLineEdit>(*oficial, "CampoReceptor")->setText(QStringLiteral("01234"));
        QTest::mouseClick(Hijo<QPushButton>(*oficial, "BotonGenerarOficial"), Qt::LeftButton);
        inst.dialogo.Responder(
            std::optional<std::filesystem::path>(inst.documentos / "Jornada25.json"));
        Hijo<QAction>(v, "AccionJson")->trigger();
        Capturar(*Hijo<ui::VentanaArchivoJson>(v, "VentanaArchivoJson"),
                 QStringLiteral("ventana_archivo_json"));
        Hijo<QAction>(v, "AccionListadoCondicionadas")->trigger();
        Capturar(*Hijo<ui::VentanaListado>(v, "VentanaListado"),
                 QStringLiteral("ventana_listado_apuestas"));
        QVERIFY(inst.dialogo.GuionAgotado());
    }

    // La comprobación de aciertos con sus ventanas: primero con quince aciertos, luego con un
    // resultado que nadie juega para el informe de fallos y los datos del análisis.
    void CapturarVentanasDeAciertos(pruebas::Instalacion& inst, ui::VentanaPrincipal& v) {
        Hijo<QAction>(v, "AccionAciertos")->trigger();
        auto* aciertos = Hijo<ui::VentanaAciertos>(v, "VentanaAciertos");
        Capturar(*aciertos, QStringLiteral("ventana_comprobacion_aciertos_al_abrir"));
        pruebas::PonerGanadora(*aciertos, QStringLiteral("11111111111111"), QStringLiteral("1m"));
        pruebas::Pulsar(*aciertos, "BotonGuardar");
        pruebas::Comprobar(*aciertos, "BotonAciertos");
        Capturar(*aciertos, QStringLiteral("ventana_comprobacion_aciertos"));
        pruebas::Pulsar(*aciertos, "BotonColumnas");
        auto* columnas = Hijo<ui::VentanaColumnasAcertadas>(*aciertos, "VentanaColumnasAcertadas");
        Capturar(*columnas, QStringLiteral("ventana_columnas_acertadas"));
        columnas->close();
        pruebas::Teclear(*aciertos, 4, QStringLiteral("2"));
        pruebas::Pulsar(*aciertos, "BotonGuardar");
        pruebas::Comprobar(*aciertos, "BotonAciertos");
        pruebas::Pulsar(*aciertos, "BotonFallos");
        Capturar(*Hijo<ui::VentanaInformeFallos>(*aciertos, "VentanaInformeFallos"),
                 QStringLiteral("ventana_informe_fallos"));
        pruebas::Pulsar(*aciertos, "BotonDatos");
        aciertos->close();
        Hijo<QAction>(v, "AccionAnalisisDatos")->trigger();
        Capturar(*Hijo<ui::VentanaAnalisisDatos>(v, "VentanaAnalisisDatos"),
                 QStringLiteral("ventana_analisis_datos"));
        QCOMPARE(pruebas::Dichos(inst.dialogo).back(), std::string("Se han guardados los datos."));
    }

    void Ventanas() {
        pruebas::Instalacion inst;
        ui::VentanaOpciones opciones(inst.ajustes);
        Capturar(opciones, QStringLiteral("ventana_opciones"));
        engine::Rechazos rechazos;
        rechazos.porCondicion[0] = 1234;
        rechazos.porCondicion[4] = 56;
        rechazos.grupo[2] = 7;
        rechazos.tolGruposAciertos = 89;
        ui::VentanaRechazadas rechazadas(engine::FilasRechazadas(rechazos, 0, 2));
        Capturar(rechazadas, QStringLiteral("ventana_rechazadas"));
        ui::VentanaTablaReducciones tabla(inst.reductor.TablaReducciones());
        Capturar(tabla, QStringLiteral("ventana_tabla_reducciones"));
        auto informe = inst.reductor.Informe(24, 324);
        engine::ProbabilidadesPremios premios;
        premios.aciertos = {24.0 / 324, 1 - 24.0 / 324, 0, 0, 0, 0};
        premios.pleno = premios.aciertos[0] / 16;
        informe.premios = engine::FilasProbabilidades(premios);
        ui::VentanaReduccion reduccion(informe);
        Capturar(reduccion, QStringLiteral("ventana_reduccion"));
        builders::HistoricoCondiciones historico;
        historico.ganadoras = 6;
        historico.enLaBase = 2;
        historico.pasan = 3;
        historico.familias = {{"Condiciones Generales", 5}, {"Grupos", 4}};
        historico.jornadas = {{"23/24", 1, "1X21X21X21X21X", true, ""},
                              {"23/24", 2, "XXXXX111112222", false, "Condiciones Generales"},
                              {"23/24", 3, "1111XX22XX2211", true, ""},
                              {"23/24", 4, "2X2X2X2X11X1X1", false, "Grupo nº 1"},
                              {"22/23", 1, "12X12X12X12X12", false, ""},
                              {"22/23", 2, "XXX111222XXX11", false, "Condiciones Generales"}};
        ui::VentanaHistoricoCondiciones ventanaHistorico(historico);
        Capturar(ventanaHistorico, QStringLiteral("ventana_historico_condiciones"));
        ui::VentanaAyuda ayuda(std::filesystem::path(QUINTEVA_DATOS) / "ayuda", nullptr);
        ayuda.Mostrar(QStringLiteral("guia"));
        Capturar(ayuda, QStringLiteral("ventana_ayuda_guia"));
        ayuda.Mostrar(QStringLiteral("PaginaReducir"));
        Capturar(ayuda, QStringLiteral("ventana_ayuda_reducir"));
        ui::VentanaAvisoBoletos aviso(inst.ajustes);
        Capturar(aviso, QStringLiteral("ventana_aviso_boletos"));
    }
};

QTEST_MAIN(PruebaCapturas)
#include "capture_test.moc"
