#include "ui/main_window.h"
#include "ui/conditions_history_window.h"
#include "ui/help_window.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QDialog>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTableWidget>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "base/error.h"
#include "builders/automatic_percent.h"
#include "builders/conditions_history.h"
#include "builders/match_info.h"
#include "engine/analysis.h"
#include "engine/combination_files.h"
#include "engine/conditions.h"
#include "engine/editing_rules.h"
#include "engine/pricing.h"
#include "engine/prize_odds.h"
#include "seasons/demo_season.h"
#include "seasons/version_update.h"
#include "ui/base_page.h"
#include "ui/boletos_notice.h"
#include "ui/conditions_page.h"
#include "ui/info_panel.h"
#include "ui/options_window.h"
#include "ui/qt_text.h"
#include "ui/report_windows.h"
#include "ui/status_panel.h"
#include "ui/team_weights_window.h"
#include "ui/work_pages.h"

namespace quinteva::ui {
namespace {

namespace fs = std::filesystem;

constexpr int kRefresco = 50;  // ms entre dos lecturas del avance de un trabajo
constexpr std::string_view kValores = "Valores";

const QString kEstiloActiva =
    QStringLiteral("QPushButton { background: #3fae49; color: white; font-weight: bold; }");
const QString kEstiloInactiva = QStringLiteral("QPushButton:enabled { background: #d4d4d4; }");

constexpr std::string_view kAvisoPleno =
    "Desde la Temporada 2014/2015 el Pleno al 15 se juega a goles. Tiene que introducir mediante "
    "el teclado los goles que marcará cada equipo con los siguientes valores: 0, 1, 2 o M (si son "
    "más de dos goles)";
constexpr std::string_view kPreguntaCopiar =
    "Se copiarán las condiciones siguientes de la combinación que usted seleccione: "
    "Interrupciones, Interrupciones consecutivas, Parejas, Tríos y Repeticiones. Desea continuar?";
constexpr std::string_view kBienvenida =
    "Bienvenido a Quinteva.\n\nElija una Jornada en la página \"Quin. Base\", marque los signos de "
    "cada partido y los goles del Pleno al 15, ponga las condiciones que quiera y genere las "
    "apuestas. Después puede reducirlas y jugarlas en boletos.\n\nLa temporada que trae el "
    "programa "
    "es de demostración: sus resultados son inventados.\n\nDesea volver a ver esta ventana al "
    "empezar?";

}  // namespace

VentanaPrincipal::VentanaPrincipal(Servicios servicios, QWidget* madre)
    : QMainWindow(madre), s_(servicios) {
    if (!s_.imprimir) s_.imprimir = ImpresoraDelSistema(s_.ajustes, s_.dialogo);
    setWindowTitle(QStringLiteral("Quinteva"));
    setObjectName(QStringLiteral("VentanaPrincipal"));
    comb_.condiciones = engine::CondicionesIniciales(comb_.base);
    CrearPaginas();
    CrearMenus();
    CrearBarra();
    FijarCarpetaAyuda(s_.carpetaDatos / "ayuda");
    // F1 fuera de las páginas (en los botones de la izquierda, en el panel) da la de la página.
    const auto temaDeLaPagina = [this] {
        setProperty(kPropiedadTema, paginas_->currentWidget()->objectName());
    };
    temaDeLaPagina();
    connect(paginas_, &QStackedWidget::currentChanged, this, temaDeLaPagina);
    qApp->installEventFilter(new TeclaDeAyuda(this));
    temporadaEtiqueta_ = new QLabel(this);
    temporadaEtiqueta_->setObjectName(QStringLiteral("EtiquetaTemporada"));
    statusBar()->addPermanentWidget(temporadaEtiqueta_);
    refresco_.setInterval(kRefresco);
    connect(&refresco_, &QTimer::timeout, this, &VentanaPrincipal::RefrescarProgreso);
    temporizadorVersion_.setObjectName(QStringLiteral("TemporizadorVersion"));
    temporizadorVersion_.setSingleShot(true);
    temporizadorVersion_.setInterval(3000);
    connect(&temporizadorVersion_, &QTimer::timeout, this, &VentanaPrincipal::ComprobarVersion);
    connect(&trabajo_, &TrabajoEnSegundoPlano::fallo, this, [this](const QString& error) {
        SeguirAsistente(false);
        refresco_.stop();
        ajustando_ = false;
        Ocupado(false);
        s_.dialogo.Mensaje("Error: " + error.toStdString(), base::Icono::Error);
        Refrescar();
    });
    Refrescar();
    // Lo que piden las páginas sin desplazarse: cabe en una pantalla de 1366x768.
    resize(1260, 690);
}

VentanaPrincipal::~VentanaPrincipal() {
    trabajo_.Detener();
    trabajo_.Esperar();
}

void VentanaPrincipal::CrearPaginas() {
    auto* central = new QWidget(this);
    auto* caja = new QHBoxLayout(central);
    auto* izquierda = new QVBoxLayout;
    const std::array<QString, 5> titulos = {QStringLiteral("Quin. Base"),
                                            QStringLiteral("Condicion."), QStringLiteral("Generar"),
                                            QStringLiteral("Reducir"), QStringLiteral("Boletos")};
    for (std::size_t i = 0; i < titulos.size(); ++i) {
        auto* b = new QPushButton(titulos[i], central);
        b->setObjectName(QStringLiteral("BotonPagina%1").arg(i));
        b->setMinimumHeight(b->sizeHint().height() + 10);
        connect(b, &QPushButton::clicked, this, [this, i] { IrAPagina(static_cast<int>(i)); });
        izquierda->addWidget(b);
        botonesPagina_[i] = b;
    }
    panel_ = new PanelEstadoQt(central);
    izquierda->addSpacing(8);
    izquierda->addWidget(panel_);
    izquierda->addStretch();
    caja->addLayout(izquierda);

    paginas_ = new QStackedWidget(central);
    base_ = new PaginaBase(paginas_);
    condiciones_ = new PaginaCondiciones(comb_, s_.dialogo, paginas_);
    generar_ = new PaginaGenerar(paginas_);
    reducir_ = new PaginaReducir(paginas_);
    boletos_ = new PaginaBoletos(paginas_);
    for (QWidget* p :
         std::initializer_list<QWidget*>{base_, condiciones_, generar_, reducir_, boletos_}) {
        paginas_->addWidget(p);
    }
    caja->addWidget(paginas_, 1);
    // En una pantalla pequeña, o con la escala al 150 %, las páginas se desplazan en vez de
    // quedar cortadas: nada queda fuera de alcance.
    auto* desplazable = new QScrollArea(this);
    desplazable->setObjectName(QStringLiteral("AreaCentral"));
    desplazable->setWidgetResizable(true);
    desplazable->setFrameShape(QFrame::NoFrame);
    desplazable->setWidget(central);
    setCentralWidget(desplazable);

    connect(base_, &PaginaBase::jornadaElegida, this, &VentanaPrincipal::ElegirJornada);
    connect(base_, &PaginaBase::muyReducida, this, &VentanaPrincipal::AbrirMuyReducida);
    connect(base_, &PaginaBase::porPorcentajes, this, &VentanaPrincipal::AbrirPorcentajes);
    connect(base_, &PaginaBase::rapidaBasica, this, &VentanaPrincipal::AbrirRapidaBasica);
    connect(base_, &PaginaBase::ponderar, this,
            [this] { AbrirVentana(new VentanaPonderar(base_->Partidos(), pesos_, this)); });
    connect(base_, &PaginaBase::signoPulsado, this, &VentanaPrincipal::SignoPulsado);
    connect(base_, &PaginaBase::golTecleado, this, &VentanaPrincipal::GolTecleado);
    connect(base_, &PaginaBase::golVisitado, this, &VentanaPrincipal::GolVisitado);
    connect(base_, &PaginaBase::partidoElegido, this, &VentanaPrincipal::PartidoElegido);
    connect(condiciones_, &PaginaCondiciones::cambiado, this, &VentanaPrincipal::CambioCondiciones);
    connect(condiciones_, &PaginaCondiciones::historico, this,
            &VentanaPrincipal::HistoricoCondiciones);
    connect(condiciones_, &PaginaCondiciones::automatico, this,
            &VentanaPrincipal::PorcentajesAutomaticos);
    connect(generar_->generar, &QPushButton::clicked, this, &VentanaPrincipal::Generar);
    connect(generar_->detener, &QPushButton::clicked, this, &VentanaPrincipal::Detener);
    connect(generar_->info, &QPushButton::clicked, this, &VentanaPrincipal::Rechazadas);
    connect(reducir_->reducir, &QPushButton::clicked, this, &VentanaPrincipal::Reducir);
    connect(reducir_->detener, &QPushButton::clicked, this, &VentanaPrincipal::Detener);
    connect(reducir_->tabla, &QPushButton::clicked, this, &VentanaPrincipal::TablaReducciones);
    connect(reducir_->info, &QPushButton::clicked, this, &VentanaPrincipal::InfoReduccion);
    connect(reducir_->seleccion, &QTableWidget::cellClicked, this,
            [this](int fila, int) { SeleccionPulsada(fila); });
    ConectarBoletos();
    connect(&trabajo_, &TrabajoEnSegundoPlano::terminado, this, [this] {
        if (ajustando_) {
            FinAjuste();
        } else if (reduciendo_) {
            FinReduccion();
        } else {
            FinGeneracion();
        }
    });
}

QAction* VentanaPrincipal::Accion(QMenu* menu, const QString& texto, const QString& nombre,
                                  bool habilitada) {
    QAction* a = menu->addAction(texto);
    a->setObjectName(nombre);
    a->setEnabled(habilitada);
    return a;
}

void VentanaPrincipal::AbrirVentana(QDialog* ventana) {
    const auto twips = [this](int t) { return t * logicalDpiX() / 1440; };
    ventana->setAttribute(Qt::WA_DeleteOnClose);
    ventana->setWindowModality(Qt::WindowModal);
    // Sin salirse de la pantalla: una ventana alta sube lo que haga falta.
    const QRect pantalla = screen()->availableGeometry();
    const QSize tamano = ventana->sizeHint().expandedTo(ventana->size());
    ventana->move(std::min(frameGeometry().left() + twips(4800),
                           std::max(pantalla.left(), pantalla.right() - tamano.width())),
                  std::min(geometry().top() + menuBar()->height() + twips(600),
                           std::max(pantalla.top(), pantalla.bottom() - tamano.height() - 40)));
    ventana->open();
}

void VentanaPrincipal::CrearMenus() {
    QMenu* archivo = menuBar()->addMenu(QStringLiteral("&Archivo"));
    archivo->setObjectName(QStringLiteral("MenuArchivo"));
    QAction* nueva =
        Accion(archivo, QStringLiteral("&Nueva Quiniela"), QStringLiteral("AccionNueva"));
    nueva->setShortcut(Qt::CTRL | Qt::Key_N);
    connect(nueva, &QAction::triggered, this, &VentanaPrincipal::Nueva);
    QAction* abrir = Accion(archivo, QStringLiteral("&Abrir..."), QStringLiteral("AccionAbrir"));
    abrir->setShortcut(Qt::CTRL | Qt::Key_O);
    connect(abrir, &QAction::triggered, this, &VentanaPrincipal::AbrirArchivo);
    guardar_ = Accion(archivo, QStringLiteral("&Guardar..."), QStringLiteral("AccionGuardar"));
    guardar_->setShortcut(Qt::CTRL | Qt::Key_S);
    connect(guardar_, &QAction::triggered, this, &VentanaPrincipal::Guardar);
    guardarComo_ =
        Accion(archivo, QStringLiteral("G&uardar como"), QStringLiteral("AccionGuardarComo"));
    guardarComo_->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    connect(guardarComo_, &QAction::triggered, this, &VentanaPrincipal::GuardarComo);
    copiar_ = Accion(archivo, QStringLiteral("C&opiar condiciones"),
                     QStringLiteral("AccionCopiarCondiciones"));
    connect(copiar_, &QAction::triggered, this, &VentanaPrincipal::CopiarCondiciones);
    archivo->addSeparator();
    connect(Accion(archivo, QStringLiteral("&Seleccionar Impresora"),
                   QStringLiteral("AccionImpresora")),
            &QAction::triggered, this, &VentanaPrincipal::SeleccionarImpresora);
    connect(Accion(archivo, QStringLiteral("&Equipos"), QStringLiteral("AccionEquipos")),
            &QAction::triggered, this, &VentanaPrincipal::Equipos);
    connect(Accion(archivo, QStringLiteral("Jornadas &Liga"), QStringLiteral("AccionJornadasLiga")),
            &QAction::triggered, this, &VentanaPrincipal::JornadasLiga);
    connect(Accion(archivo, QStringLiteral("Jornadas &Quiniela"),
                   QStringLiteral("AccionJornadasQuiniela")),
            &QAction::triggered, this, &VentanaPrincipal::JornadasQuiniela);
    archivo->addSeparator();
    for (std::size_t i = 0; i < recientes_.size(); ++i) {
        recientes_[i] = Accion(archivo, {}, QStringLiteral("AccionReciente%1").arg(i + 1));
        connect(recientes_[i], &QAction::triggered, this,
                [this, i] { AbrirReciente(static_cast<int>(i) + 1); });
    }
    archivo->addSeparator();
    QAction* salir = Accion(archivo, QStringLiteral("&Salir"), QStringLiteral("AccionSalir"));
    salir->setShortcut(Qt::CTRL | Qt::Key_Q);
    connect(salir, &QAction::triggered, this, &QWidget::close);

    QMenu* ver = menuBar()->addMenu(QStringLiteral("&Ver"));
    ver->setObjectName(QStringLiteral("MenuVer"));
    connect(Accion(ver, QStringLiteral("&Resumen de Condiciones"), QStringLiteral("AccionResumen")),
            &QAction::triggered, this, &VentanaPrincipal::ResumenDeCondiciones);
    QMenu* listados = ver->addMenu(QStringLiteral("&Listados"));
    listadoCondicionadas_ = Accion(listados, QStringLiteral("De Apuestas &Condicionadas"),
                                   QStringLiteral("AccionListadoCondicionadas"), false);
    connect(listadoCondicionadas_, &QAction::triggered, this, [this] { Listado(true); });
    listadoReducidas_ = Accion(listados, QStringLiteral("De Apuestas &Reducidas"),
                               QStringLiteral("AccionListadoReducidas"), false);
    connect(listadoReducidas_, &QAction::triggered, this, [this] { Listado(false); });
    visorQuinielas_ = Accion(listados, QStringLiteral("&Visor de Quinielas"),
                             QStringLiteral("AccionVisorQuinielas"), false);
    connect(visorQuinielas_, &QAction::triggered, this, &VentanaPrincipal::VisorDeQuinielas);
    connect(Accion(ver, QStringLiteral("&Quinielas"), QStringLiteral("AccionQuinielas")),
            &QAction::triggered, this, &VentanaPrincipal::VerQuinielas);
    connect(Accion(ver, QStringLiteral("&Estadísticas"), QStringLiteral("AccionEstadisticas")),
            &QAction::triggered, this, &VentanaPrincipal::Estadisticas);
    connect(Accion(ver, QStringLiteral("&Columnas Ganadoras"),
                   QStringLiteral("AccionColumnasGanadoras")),
            &QAction::triggered, this, &VentanaPrincipal::ColumnasGanadoras);
    connect(
        Accion(ver, QStringLiteral("&Histórico de Resultados"), QStringLiteral("AccionHistorico")),
        &QAction::triggered, this, &VentanaPrincipal::HistoricoDeResultados);
    QMenu* resultados = ver->addMenu(QStringLiteral("&Resultados"));
    connect(Accion(resultados, QStringLiteral("De Jornadas de &Liga"),
                   QStringLiteral("AccionResultadosLiga")),
            &QAction::triggered, this, &VentanaPrincipal::ResultadosLiga);
    connect(Accion(resultados, QStringLiteral("De Jornadas de &Quinielas"),
                   QStringLiteral("AccionResultadosQuiniela")),
            &QAction::triggered, this, &VentanaPrincipal::ResultadosQuiniela);
    connect(Accion(resultados, QStringLiteral("Actualización por Internet"),
                   QStringLiteral("AccionActualizacionInternet")),
            &QAction::triggered, this, &VentanaPrincipal::ActualizacionPorInternet);
    connect(
        Accion(ver, QStringLiteral("&Clasificaciones"), QStringLiteral("AccionClasificaciones")),
        &QAction::triggered, this, &VentanaPrincipal::Clasificaciones);
    comprobarAciertos_ =
        Accion(ver, QStringLiteral("Comprobación de &Aciertos"), QStringLiteral("AccionAciertos"));
    connect(comprobarAciertos_, &QAction::triggered, this, &VentanaPrincipal::ComprobarAciertos);
    connect(Accion(ver, QStringLiteral("Análisis de Datos"), QStringLiteral("AccionAnalisisDatos")),
            &QAction::triggered, this, &VentanaPrincipal::AnalisisDeDatos);

    QMenu* herramientas = menuBar()->addMenu(QStringLiteral("&Herramientas"));
    herramientas->setObjectName(QStringLiteral("MenuHerramientas"));
    connect(Accion(herramientas, QStringLiteral("&Refundir Combinaciones"),
                   QStringLiteral("AccionRefundir")),
            &QAction::triggered, this, &VentanaPrincipal::RefundirCombinaciones);
    connect(
        Accion(herramientas, QStringLiteral("Importar &archivo"), QStringLiteral("AccionImportar")),
        &QAction::triggered, this, &VentanaPrincipal::ImportarArchivo);
    connect(Accion(herramientas, QStringLiteral("&Leer o modificar archivo JSON"),
                   QStringLiteral("AccionJson")),
            &QAction::triggered, this, &VentanaPrincipal::ArchivoJson);
    connect(Accion(herramientas, QStringLiteral("&Actualización del programa"),
                   QStringLiteral("AccionActualizacion")),
            &QAction::triggered, this, &VentanaPrincipal::ActualizacionDelPrograma);
    connect(Accion(herramientas, QStringLiteral("&Opciones"), QStringLiteral("AccionOpciones")),
            &QAction::triggered, this, &VentanaPrincipal::Opciones);

    QMenu* penas = menuBar()->addMenu(QStringLiteral("&Peñas"));
    penas->setObjectName(QStringLiteral("MenuPenas"));
    connect(
        Accion(penas, QStringLiteral("&Crear nueva Peña..."), QStringLiteral("AccionCrearPena")),
        &QAction::triggered, this, &VentanaPrincipal::CrearPena);
    connect(Accion(penas, QStringLiteral("&Abrir Peña..."), QStringLiteral("AccionAbrirPena")),
            &QAction::triggered, this, &VentanaPrincipal::AbrirPenaDeArchivo);
    ultimaPena_ = Accion(penas, {}, QStringLiteral("AccionUltimaPena"));
    ultimaPena_->setVisible(false);
    connect(ultimaPena_, &QAction::triggered, this, &VentanaPrincipal::AbrirUltimaPena);

    QMenu* ayuda = menuBar()->addMenu(QStringLiteral("Ay&uda"));
    ayuda->setObjectName(QStringLiteral("MenuAyuda"));
    connect(Accion(ayuda, QStringLiteral("&Ayuda de Quinteva"), QStringLiteral("AccionAyuda")),
            &QAction::triggered, this, [this] { AbrirAyuda(QStringLiteral("indice"), this); });
    connect(Accion(ayuda, QStringLiteral("A&cerca de..."), QStringLiteral("AccionAcercaDe")),
            &QAction::triggered, this, &VentanaPrincipal::AcercaDe);
}

void VentanaPrincipal::CrearBarra() {
    barra_ = addToolBar(QStringLiteral("Barra"));
    barra_->setObjectName(QStringLiteral("BarraHerramientas"));
    barra_->setMovable(false);
    const auto boton = [this](QStyle::StandardPixmap icono, const QString& texto,
                              const QString& nombre, QAction* igual) {
        QAction* a = barra_->addAction(style()->standardIcon(icono), texto);
        a->setObjectName(nombre);
        if (igual) {
            connect(a, &QAction::triggered, igual, &QAction::trigger);
            a->setEnabled(igual->isEnabled());
            connect(igual, &QAction::changed, a, [a, igual] { a->setEnabled(igual->isEnabled()); });
        } else {
            a->setEnabled(false);
        }
    };
    boton(QStyle::SP_FileIcon, QStringLiteral("Nueva"), QStringLiteral("BarraNueva"),
          findChild<QAction*>(QStringLiteral("AccionNueva")));
    boton(QStyle::SP_DialogOpenButton, QStringLiteral("Abrir"), QStringLiteral("BarraAbrir"),
          findChild<QAction*>(QStringLiteral("AccionAbrir")));
    boton(QStyle::SP_DialogSaveButton, QStringLiteral("Guardar"), QStringLiteral("BarraGuardar"),
          guardar_);
    barra_->addSeparator();
    boton(QStyle::SP_ArrowDown, QStringLiteral("Importar"), QStringLiteral("BarraImportar"),
          findChild<QAction*>(QStringLiteral("AccionImportar")));
    boton(QStyle::SP_FileDialogDetailedView, QStringLiteral("Imprimir"),
          QStringLiteral("BarraImprimir"), visorQuinielas_);
    boton(QStyle::SP_FileDialogListView, QStringLiteral("Listado de lo jugado"),
          QStringLiteral("BarraListado"), nullptr);
    listadoJugado_ = findChild<QAction*>(QStringLiteral("BarraListado"));
    connect(listadoJugado_, &QAction::triggered, this, [this] { Listado(comb_.jugada == "cnd"); });
    barra_->addSeparator();
    boton(QStyle::SP_DialogHelpButton, QStringLiteral("Ayuda"), QStringLiteral("BarraAyuda"),
          nullptr);
    // La de la página que se ve.
    auto* ayuda = findChild<QAction*>(QStringLiteral("BarraAyuda"));
    ayuda->setEnabled(true);
    connect(ayuda, &QAction::triggered, this,
            [this] { AbrirAyuda(TemaDeAyuda(paginas_->currentWidget()), this); });
}

// ---------------------------------------------------------------------------------------------
// Arranque y cierre

void VentanaPrincipal::Arrancar(const std::optional<fs::path>& argumento) {
    try {
        QDir::setCurrent(QString::fromStdString(s_.carpetaPrograma.string()));
        seasons::GuardarVersionDelPrograma(s_.ajustes);
        seasons::InstalarTemporadaDemo(s_.carpetaDatos, s_.carpetaTrabajo);
        temporada_ = seasons::PrepararTemporada(s_.carpetaPrograma, s_.carpetaTrabajo, s_.ajustes);
        temporadaEtiqueta_->setText(Q(temporada_.temporadaActual));
        const std::string pena = s_.ajustes.Leer(base::kAplicacion, kValores, "NPeña", "");
        ultimaPena_->setText(Q(pena).toUpper());
        ultimaPena_->setVisible(!pena.empty());
        base_->PonerJornadas(temporada_.jornadas);
        LimpiarCombinacion(true);
        RefrescarRecientes();
        if (argumento) Abrir(*argumento, 0);
        if (s_.ajustes.Leer(base::kAplicacion, "Opciones", "Actualizar", "SI") == "SI") {
            temporizadorVersion_.start();
        }
    } catch (const std::exception& e) {
        Fallo(e);
    }
    Refrescar();
}

void VentanaPrincipal::Bienvenida() {
    if (s_.ajustes.Leer(base::kAplicacion, "Inic05", "VerBien", "SI") != "SI") return;
    if (s_.dialogo.PreguntaSiNo(kBienvenida, base::Respuesta::Si) == base::Respuesta::No) {
        s_.ajustes.Guardar(base::kAplicacion, "Inic05", "VerBien", "NO");
    }
}

void VentanaPrincipal::closeEvent(QCloseEvent* evento) {
    // Un ajuste puede estar esperando una respuesta en este hilo: mientras dure no se cierra.
    if (trabajo_.EnCurso() && ajustando_) {
        evento->ignore();
        return;
    }
    if (trabajo_.EnCurso()) {
        trabajo_.Detener();
        trabajo_.Esperar();
    }
    if (!PreguntarGuardar()) {
        evento->ignore();
        return;
    }
    // También la de "Quiniela muy reducida", que no es modal.
    for (QDialog* d : findChildren<QDialog*>()) d->close();
    std::error_code error;
    fs::remove(s_.carpetaTrabajo / engine::kCmbTmp, error);
    evento->accept();
}

void VentanaPrincipal::Fallo(const std::exception& e) {
    s_.dialogo.Mensaje(std::string("Error: ") + e.what(), base::Icono::Error);
}

// ---------------------------------------------------------------------------------------------
// Archivo

bool VentanaPrincipal::PreguntarGuardar() {
    if (!habilitada_[kCondicion] || comb_.panel.guardada) return true;
    switch (s_.dialogo.PreguntaSiNoCancelar(engine::kMsgGuardarActual)) {
        case base::Respuesta::Si:
            return Guardar();
        case base::Respuesta::No:
            return true;
        default:
            return false;
    }
}

void VentanaPrincipal::LimpiarCombinacion(bool vaciarRuta) {
    const fs::path ruta = comb_.ruta;
    comb_ = engine::Combinacion{};
    if (!vaciarRuta) comb_.ruta = ruta;
    comb_.condiciones = engine::CondicionesIniciales(comb_.base);
    habilitada_ = {true, false, false, false, false};
    divisiones_ = {};
    seleccionReduccion_ = {};
    resultado_ = {};
    generar_->info->setEnabled(false);
    reducir_->info->setEnabled(false);
    fechaJornada_.clear();
    base_->PonerFecha({});
    condiciones_->Mostrar();
}

void VentanaPrincipal::PonerPartidos(int jornada) {
    const seasons::JornadaQuiniela j =
        seasons::LeerJornadaQuiniela(temporada_.carpetaTemporada, jornada);
    for (std::size_t i = 0; i < j.partidos.size(); ++i) {
        comb_.base.PonerEquipos(static_cast<int>(i) + 1, j.partidos[i].equipos);
        divisiones_[i] = j.partidos[i].division;
    }
    fechaJornada_ = Q(j.fecha);
    base_->PonerFecha(fechaJornada_);
    base_->SeleccionarJornada(jornada);
}

void VentanaPrincipal::ElegirJornada(int jornada) {
    if (!PreguntarGuardar()) {
        base_->SeleccionarJornada(comb_.jornada);
        return;
    }
    try {
        LimpiarCombinacion(false);
        comb_.jornada = static_cast<std::uint8_t>(jornada);
        PonerPartidos(jornada);
    } catch (const std::exception& e) {
        Fallo(e);
    }
    IrAPagina(kQuinBase);
    Refrescar();
}

void VentanaPrincipal::Nueva() {
    if (!PreguntarGuardar()) return;
    LimpiarCombinacion(true);
    std::error_code error;
    fs::remove(s_.carpetaTrabajo / engine::kCmbTmp, error);
    base_->SeleccionarJornada(0);
    IrAPagina(kQuinBase);
    Refrescar();
}

void VentanaPrincipal::AbrirArchivo() {
    if (!PreguntarGuardar()) return;
    const auto ruta =
        s_.dialogo.ArchivoParaAbrir("Abrir", engine::kFiltroUxd, comb_.ruta.parent_path());
    if (ruta) Abrir(*ruta, 0);
}

void VentanaPrincipal::AbrirReciente(int n) {
    const std::string ruta = engine::Recientes(s_.ajustes)[static_cast<std::size_t>(n - 1)];
    if (ruta.empty() || !PreguntarGuardar()) return;
    Abrir(ruta, n);
}

// reciente: 0 desde el diálogo o el argumento (la ruta pasa a la lista); 1 a 3 desde el menú (las
// entradas 2 y 3 suben arriba).
void VentanaPrincipal::Abrir(const fs::path& ruta, int reciente) {
    try {
        if (reciente == 0) {
            engine::AbrirCombinacion(comb_, ruta, s_.carpetaTrabajo, s_.ajustes);
        } else {
            engine::Combinacion nueva;
            nueva.ruta = ruta;
            engine::Abrir(nueva, s_.carpetaTrabajo, s_.ajustes);
            comb_ = std::move(nueva);
            engine::SubirReciente(s_.ajustes, reciente);
        }
    } catch (const std::exception& e) {
        Fallo(e);
        RefrescarRecientes();
        return;
    }
    const bool generada = comb_.panel.condicionada.value_or(0) > 0;
    habilitada_ = {true, true, true, generada, generada};
    divisiones_ = {};
    resultado_ = {};
    seleccionReduccion_ = {};
    generar_->info->setEnabled(false);
    reducir_->info->setEnabled(false);
    fechaJornada_.clear();
    base_->PonerFecha({});
    base_->SeleccionarJornada(0);
    if (std::find(temporada_.jornadas.begin(), temporada_.jornadas.end(), comb_.jornada) !=
        temporada_.jornadas.end()) {
        try {
            PonerPartidos(comb_.jornada);
        } catch (const std::exception& e) {
            Fallo(e);
        }
    }
    condiciones_->Mostrar();
    RefrescarRecientes();
    IrAPagina(kQuinBase);
    Refrescar();
}

bool VentanaPrincipal::Guardar() { return GuardarCon(&engine::GuardarMenu); }

bool VentanaPrincipal::GuardarComo() { return GuardarCon(&engine::GuardarComo); }

bool VentanaPrincipal::GuardarCon(FlujoDeGuardar flujo) {
    try {
        const bool hecho =
            flujo(comb_, s_.carpetaTrabajo, s_.carpetaPrograma, s_.ajustes, s_.dialogo);
        // Como al abrir el archivo guardado: con columnas generadas, la página Boletos.
        if (hecho && comb_.totalGeneradas > 0) Habilitar(kBoletos, true);
        RefrescarRecientes();
        Refrescar();
        return hecho;
    } catch (const std::exception& e) {
        Fallo(e);
        return false;
    }
}

void VentanaPrincipal::CopiarCondiciones() {
    if (s_.dialogo.PreguntaSiNo(kPreguntaCopiar) != base::Respuesta::Si) return;
    const auto ruta = s_.dialogo.ArchivoParaAbrir("Copiar condiciones", engine::kFiltroUxd,
                                                  comb_.ruta.parent_path());
    if (!ruta) return;
    try {
        const bool vacio = fs::exists(*ruta) && fs::file_size(*ruta) == 0;
        const engine::SetCondiciones otras =
            vacio ? engine::SetCondiciones{} : engine::LeerCabecera(*ruta).condiciones;
        auto& c = comb_.condiciones;
        for (const engine::Casilla f :
             {engine::kCasillaInterrupciones, engine::kCasillaInterConsecutivas,
              engine::kCasillaParejas, engine::kCasillaTrios, engine::kCasillaRepeticiones}) {
            engine::ReiniciarFamilia(c, f, comb_.base);
            c.casilla[static_cast<std::size_t>(f)] = otras.casilla[static_cast<std::size_t>(f)];
        }
        c.minInter = otras.minInter;
        c.maxInter = otras.maxInter;
        c.minInterCons = otras.minInterCons;
        c.maxInterCons = otras.maxInterCons;
        c.minPareja = otras.minPareja;
        c.maxPareja = otras.maxPareja;
        c.minTrio = otras.minTrio;
        c.maxTrio = otras.maxTrio;
        c.longRep = otras.longRep;
        c.limiteRep = otras.limiteRep;
    } catch (const std::exception& e) {
        Fallo(e);
        return;
    }
    condiciones_->Mostrar();
    CambioCondiciones();
    s_.dialogo.Mensaje("Proceso terminado.");
}

void VentanaPrincipal::Opciones() { AbrirVentana(new VentanaOpciones(s_.ajustes, this)); }

void VentanaPrincipal::AcercaDe() {
    s_.dialogo.Mensaje("Quinteva " QUINTEVA_VERSION
                       "\nQuinielas y Pleno al 15: condiciones, reducciones, boletos y aciertos.");
}

void VentanaPrincipal::AvisoBoletos() {
    if (s_.ajustes.Leer(base::kAplicacion, kValores, "AvBoletos", "SI") != "SI") return;
    AbrirVentana(new VentanaAvisoBoletos(s_.ajustes, this));
}

// ---------------------------------------------------------------------------------------------
// La Quiniela Base

void VentanaPrincipal::SignoPulsado(int partido, int signo) {
    if (trabajo_.EnCurso()) return;
    const engine::QuinielaBase anterior = comb_.base;
    comb_.base.Alternar(partido, signo);
    AnularResultados();
    Habilitar(kReducir, false);
    Habilitar(kBoletos, false);
    QuinComp(anterior);
    Refrescar();
}

void VentanaPrincipal::GolVisitado(int lado) {
    const std::string clave = lado == 0 ? "Goles1" : "Goles2";
    if (s_.ajustes.Leer(base::kAplicacion, "Pleno15", clave, "0") == "1") return;
    s_.dialogo.Mensaje(kAvisoPleno);
    s_.ajustes.Guardar(base::kAplicacion, "Pleno15", clave, "1");
}

void VentanaPrincipal::GolTecleado(int lado, const QString& tecla) {
    if (trabajo_.EnCurso()) return;
    const QString gol = tecla.toUpper();
    const bool valido = gol == QStringLiteral("0") || gol == QStringLiteral("1") ||
                        gol == QStringLiteral("2") || gol == QStringLiteral("M");
    const std::string texto = valido ? gol.toStdString() : std::string();
    const engine::QuinielaBase anterior = comb_.base;
    comb_.base.PonerGoles(lado == 0 ? texto : comb_.base.GolesLocal(),
                          lado == 1 ? texto : comb_.base.GolesVisitante());
    AnularResultados();
    Habilitar(kReducir, false);
    Habilitar(kBoletos, false);
    QuinComp(anterior);
    Refrescar();
}

void VentanaPrincipal::PartidoElegido(int fila) {
    if (paginas_->currentIndex() != kQuinBase) return;
    try {
        base_->Info()->Mostrar(builders::Info(temporada_.carpetaTemporada, comb_.base.Equipos(fila),
                                              divisiones_[static_cast<std::size_t>(fila - 1)],
                                              s_.ajustes));
    } catch (const std::exception& e) {
        Fallo(e);
    }
}

void VentanaPrincipal::AnularResultados() {
    resultado_ = {};
    engine::AnularResultados(comb_);
}

// Lo que sigue de la base (con sus avisos): si está completa, las páginas que se pueden usar y
// las condiciones ajustadas a ella.
void VentanaPrincipal::QuinComp(const engine::QuinielaBase& anterior) {
    const bool completa = engine::QuinComp(comb_, anterior, s_.dialogo);
    if (!completa) {
        for (int p : {kCondicion, kGenerar, kReducir, kBoletos}) Habilitar(p, false);
        return;
    }
    Habilitar(kCondicion, true);
    Habilitar(kGenerar, true);
    condiciones_->Pintar();
}

void VentanaPrincipal::PorcentajesAutomaticos() {
    std::array<std::string, engine::kPartidos> partidos;
    std::array<int, engine::kPartidos> divisiones{};
    for (std::size_t p = 0; p < partidos.size(); ++p) {
        partidos[p] = comb_.base.Equipos(static_cast<int>(p) + 1);
        divisiones[p] = divisiones_[p];
    }
    try {
        condiciones_->PonerPorcentajes(builders::PorcentajesAutomaticos(
            temporada_.carpetaTemporada, partidos, divisiones, s_.ajustes));
    } catch (const std::exception& e) {
        Fallo(e);
    }
}

void VentanaPrincipal::CambioCondiciones() {
    AnularResultados();
    comb_.numCondiciones = engine::NumeroDeCondiciones(comb_.condiciones);
    Habilitar(kReducir, false);
    Habilitar(kBoletos, false);
    Refrescar();
}

// ---------------------------------------------------------------------------------------------
// Generar y reducir en el hilo de trabajo

void VentanaPrincipal::Ocupado(bool ocupado) {
    menuBar()->setEnabled(!ocupado);
    barra_->setEnabled(!ocupado);
    for (auto* b : botonesPagina_) b->setEnabled(!ocupado);
    base_->setEnabled(!ocupado);
    condiciones_->setEnabled(!ocupado);
    generar_->generar->setEnabled(!ocupado);
    generar_->info->setEnabled(false);
    generar_->detener->setEnabled(ocupado && !reduciendo_ && !ajustando_);
    reducir_->reducir->setEnabled(!ocupado);
    reducir_->tabla->setEnabled(!ocupado);
    reducir_->info->setEnabled(false);
    reducir_->detener->setEnabled(ocupado && reduciendo_);
    for (auto* o : reducir_->opciones) o->setEnabled(!ocupado);
    reducir_->optimizada->setEnabled(!ocupado);
    boletos_->detener->setEnabled(ocupado && ajustando_);
    if (ocupado) {
        for (QWidget* w : std::initializer_list<QWidget*>{
                 boletos_->condicionada, boletos_->reducida, boletos_->campoAjustar,
                 boletos_->ajustar, boletos_->oficial, boletos_->txt, boletos_->imprimirBoletos,
                 boletos_->imprimirPapel, boletos_->eliminarManual, boletos_->anadirManual}) {
            w->setEnabled(false);
        }
    }
    if (ocupado) {
        setCursor(Qt::BusyCursor);
    } else {
        unsetCursor();
        Refrescar();
    }
}

void VentanaPrincipal::Generar() {
    if (trabajo_.EnCurso() || comb_.base.Columnas() <= 0.0F) return;
    Habilitar(kReducir, false);
    Habilitar(kBoletos, false);
    verContador_ = AjusteActivo(s_.ajustes, "VerAp1");
    verBarra_ = AjusteActivo(s_.ajustes, "VerBar1");
    comb_.apuestasPosibles = comb_.base.Columnas();
    generar_->barra->setRange(0, static_cast<int>(comb_.apuestasPosibles));
    generar_->barra->setValue(0);
    generar_->seleccionadas->clear();
    comb_.numCondiciones = engine::NumeroDeCondiciones(comb_.condiciones);
    AnularResultados();
    panel_->Mostrar(comb_.panel);
    reduciendo_ = false;
    Ocupado(true);
    // Desde aquí y hasta "terminado" la Combinación es del hilo de trabajo: la ventana solo lee
    // los atómicos del progreso.
    trabajo_.Empezar([this](base::Progreso& progreso) {
        resultado_ = engine::Generar(comb_, s_.carpetaTrabajo, progreso, s_.ajustes);
    });
    refresco_.start();
}

void VentanaPrincipal::FinGeneracion() {
    refresco_.stop();
    RefrescarProgreso();
    if (!resultado_.detenida) {
        generar_->barra->setValue(generar_->barra->maximum());
        engine::PrecioComb(comb_, s_.ajustes);
    }
    Habilitar(kReducir, resultado_.reducirHabilitado);
    Habilitar(kBoletos, false);
    Ocupado(false);
    generar_->info->setEnabled(resultado_.infoHabilitado);
    if (resultado_.avisoBoletos) AvisoBoletos();
    SeguirAsistente(!resultado_.detenida);
}

void VentanaPrincipal::Reducir() {
    if (trabajo_.EnCurso() || s_.reductor == nullptr) return;
    const int nivel = reducir_->Nivel();
    // " Reducir al 10" no lleva a ninguna reducción.
    if (nivel > 2) return;
    PeticionReduccion peticion;
    peticion.nivel = nivel;
    peticion.seleccion = seleccionReduccion_;
    peticion.haySeleccion = comb_.numCondiciones == 0 &&
                            std::any_of(seleccionReduccion_.begin(), seleccionReduccion_.end(),
                                        [](bool b) { return b; });
    peticion.optimizada = reducir_->optimizada->isChecked();
    verContador_ = AjusteActivo(s_.ajustes, "VerR");
    verBarra_ = AjusteActivo(s_.ajustes, "VerBar2");
    reducir_->barra->setRange(0, std::max(1, comb_.totalGeneradas));
    reducir_->barra->setValue(0);
    reducir_->reducidas->clear();
    comb_.panel.reducidas = {};
    comb_.panel.precio.reset();
    comb_.panel.guardada = false;
    panel_->Mostrar(comb_.panel);
    reduciendo_ = true;
    Ocupado(true);
    Reductor* reductor = s_.reductor;
    avisoReduccion_.clear();
    trabajo_.Empezar([this, reductor, peticion](base::Progreso& progreso) {
        avisoReduccion_ =
            reductor->Reducir(comb_, peticion, s_.carpetaTrabajo, progreso, s_.ajustes);
    });
    refresco_.start();
}

void VentanaPrincipal::FinReduccion() {
    refresco_.stop();
    RefrescarProgreso();
    reducir_->barra->setValue(reducir_->barra->maximum());
    reduciendo_ = false;
    // Con columnas reducidas, la página Boletos ya puede elegir lo que se juega.
    Habilitar(kBoletos, comb_.activasReducidas > 0);
    Ocupado(false);
    reducir_->info->setEnabled(comb_.activasReducidas > 0);
    if (!avisoReduccion_.empty()) s_.dialogo.Mensaje(avisoReduccion_);
    AvisoBoletos();
    SeguirAsistente(comb_.activasReducidas > 0);
}

void VentanaPrincipal::Detener() { trabajo_.Detener(); }

void VentanaPrincipal::RefrescarProgreso() {
    // La cuenta en marcha: las columnas que la generación lleva escritas, al último aviso.
    if (!reduciendo_ && verContador_ && trabajo_.EnCurso()) {
        generar_->seleccionadas->setText(
            Cifra(static_cast<double>(trabajo_.Progreso().Escritas())));
    }
    if (!verBarra_) return;
    QProgressBar* barra = reduciendo_ ? reducir_->barra : generar_->barra;
    const auto& p = trabajo_.Progreso();
    if (reduciendo_ && p.Total() > 0) barra->setRange(0, static_cast<int>(p.Total()));
    barra->setValue(static_cast<int>(std::min<std::int64_t>(p.Hecho(), barra->maximum())));
}

void VentanaPrincipal::HistoricoCondiciones() {
    try {
        AbrirVentana(new VentanaHistoricoCondiciones(
            builders::HistoricoDeCondiciones(comb_,
                                             builders::GanadorasGuardadas(s_.carpetaTrabajo)),
            this));
    } catch (const base::Error& e) {
        Fallo(e);
    }
}

void VentanaPrincipal::Rechazadas() {
    const auto& c = comb_.condiciones;
    AbrirVentana(new VentanaRechazadas(
        engine::FilasRechazadas(comb_.rechazos, c.toleranciaGrupos, c.toleranciaGruposAc), this));
}

void VentanaPrincipal::TablaReducciones() {
    if (s_.reductor == nullptr) return;
    AbrirVentana(new VentanaTablaReducciones(s_.reductor->TablaReducciones(), this));
}

void VentanaPrincipal::InfoReduccion() {
    if (s_.reductor == nullptr) return;
    auto informe =
        s_.reductor->Informe(comb_.activasReducidas, static_cast<double>(comb_.activasGeneradas));
    informe.premios = engine::FilasProbabilidades(
        engine::ProbabilidadesDeArchivo(comb_, s_.carpetaTrabajo / engine::kRedTmp));
    AbrirVentana(new VentanaReduccion(informe, this));
}

void VentanaPrincipal::SeleccionPulsada(int fila) {
    if (comb_.numCondiciones > 0 || comb_.base.SignosElegidos(fila + 1) < 2) return;
    auto& marca = seleccionReduccion_[static_cast<std::size_t>(fila)];
    marca = !marca;
    RefrescarPaginaReducir();
}

// ---------------------------------------------------------------------------------------------
// Páginas y pantalla

void VentanaPrincipal::Habilitar(int pagina, bool habilitada) {
    habilitada_[static_cast<std::size_t>(pagina)] = habilitada;
}

void VentanaPrincipal::IrAPagina(int pagina) {
    if (!PaginaHabilitada(pagina) || trabajo_.EnCurso()) return;
    if (pagina == kGenerar) {
        comb_.apuestasPosibles = comb_.base.Columnas();
        comb_.numCondiciones = engine::NumeroDeCondiciones(comb_.condiciones);
    }
    if (pagina == kCondicion) condiciones_->AlEntrar();
    paginas_->setCurrentIndex(pagina);
    Refrescar();
}

int VentanaPrincipal::PaginaActual() const { return paginas_->currentIndex(); }

void VentanaPrincipal::Refrescar() {
    if (trabajo_.EnCurso()) return;
    if (muyReducida_) muyReducida_->Fijar(comb_.base);
    if (!habilitada_[static_cast<std::size_t>(paginas_->currentIndex())])
        paginas_->setCurrentIndex(kQuinBase);
    for (std::size_t i = 0; i < botonesPagina_.size(); ++i) {
        botonesPagina_[i]->setEnabled(habilitada_[i]);
        botonesPagina_[i]->setStyleSheet(
            static_cast<int>(i) == paginas_->currentIndex() ? kEstiloActiva : kEstiloInactiva);
    }
    const bool completa = comb_.base.Completa();
    guardar_->setEnabled(completa);
    guardarComo_->setEnabled(completa);
    copiar_->setEnabled(habilitada_[kCondicion]);
    // La comprobación es de la Jornada que se muestra.
    comprobarAciertos_->setEnabled(!fechaJornada_.isEmpty());
    panel_->Mostrar(comb_.panel);
    base_->Mostrar(comb_.base);
    RefrescarPaginaGenerar();
    RefrescarPaginaReducir();
    RefrescarPaginaBoletos();
}

void VentanaPrincipal::RefrescarPaginaGenerar() {
    const auto& b = comb_.base;
    generar_->posibles->setText(Cifra(static_cast<double>(b.Columnas())));
    generar_->dobles->setText(Cifra(b.Dobles()));
    generar_->triples->setText(Cifra(b.Triples()));
    generar_->condiciones->setText(Cifra(engine::NumeroDeCondiciones(comb_.condiciones)));
    generar_->generar->setEnabled(b.Columnas() > 0.0F);
    // Tras una generación, lo que llegó a "Cmb.tmp" aunque se detuviera.
    generar_->seleccionadas->setText(resultado_.examinadas > 0 ? Cifra(resultado_.totalGeneradas)
                                                               : QString());
}

void VentanaPrincipal::RefrescarPaginaReducir() {
    const bool sinCondiciones = engine::NumeroDeCondiciones(comb_.condiciones) == 0;
    reducir_->condiciones->setText(Cifra(engine::NumeroDeCondiciones(comb_.condiciones)));
    reducir_->total->setText(Cifra(comb_.activasGeneradas));
    reducir_->reducidas->setText(comb_.totalReducidas > 0 ? Cifra(comb_.activasReducidas)
                                                          : QString());
    reducir_->reducir->setEnabled(s_.reductor != nullptr);
    reducir_->tabla->setEnabled(s_.reductor != nullptr);
    reducir_->rotuloSeleccion->setEnabled(sinCondiciones);
    reducir_->seleccion->setEnabled(sinCondiciones);
    for (int f = 0; f < engine::kPartidos; ++f) {
        reducir_->seleccion->item(f, 0)->setText(Q(comb_.base.Equipos(f + 1)));
        reducir_->seleccion->item(f, 1)->setText(
            seleccionReduccion_[static_cast<std::size_t>(f)] ? QStringLiteral("X") : QString());
    }
}

void VentanaPrincipal::RefrescarRecientes() {
    const auto rutas = engine::Recientes(s_.ajustes);
    for (std::size_t i = 0; i < recientes_.size(); ++i) {
        const std::string titulo = engine::TituloReciente(rutas[i]);
        recientes_[i]->setText(Q(titulo));
        recientes_[i]->setVisible(!titulo.empty());
    }
}

}  // namespace quinteva::ui
