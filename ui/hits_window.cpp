#include "ui/hits_window.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "engine/columns.h"
#include "outputs/analysis_data.h"
#include "outputs/failure_report.h"
#include "outputs/hit_files.h"
#include "outputs/located_columns.h"
#include "outputs/winning_record.h"
#include "syndicates/pena_hits.h"
#include "ui/blinking_greeting.h"
#include "ui/failure_report_window.h"
#include "ui/help_window.h"
#include "ui/located_columns_window.h"
#include "ui/qt_text.h"

namespace quinteva::ui {
namespace {

namespace fs = std::filesystem;

constexpr int kFilas = engine::kPartidos + 1;
constexpr int kFilaPleno = kFilas - 1;
constexpr int kCeldaEntrada = 1;
constexpr int kRefresco = 50;  // ms entre dos lecturas del avance
constexpr std::string_view kFiltroOtras =
    "Archivo oficial JSON (*.json)|*.json|Archivo AD243 (*.*)|*.*|";

QPushButton* Boton(QWidget* madre, QVBoxLayout* caja, const QString& texto, const QString& nombre) {
    auto* b = new QPushButton(texto, madre);
    b->setObjectName(nombre);
    caja->addWidget(b);
    return b;
}

// La celda del Pleno al 15 tras una tecla admitida: el primer gol, luego "local visitante"; llena,
// vuelve a empezar.
QString CeldaPleno(const QString& celda, char gol) {
    return celda.size() == 1 ? celda + QLatin1Char(' ') + QLatin1Char(gol) : QString(QChar(gol));
}

}  // namespace

VentanaAciertos::VentanaAciertos(JornadaAciertos jornada, QWidget* madre)
    : QDialog(madre), j_(std::move(jornada)) {
    setObjectName(QStringLiteral("VentanaAciertos"));
    setWindowTitle(QStringLiteral("Comprobación de Aciertos"));
    auto* caja = new QVBoxLayout(this);
    contenido_ = new QWidget(this);
    caja->addWidget(contenido_);
    auto* fila = new QHBoxLayout(contenido_);
    fila->setContentsMargins(0, 0, 0, 0);
    CrearRejilla();
    fila->addWidget(rejilla_);
    auto* centro = new QVBoxLayout;
    fila->addLayout(centro, 1);
    posibilidad_ = new QLabel(QStringLiteral("Posibilidad de:"), contenido_);
    posibilidad_->setObjectName(QStringLiteral("Posibilidad"));
    posibilidad_->setStyleSheet(QStringLiteral("font-weight: bold"));
    QSizePolicy politica = posibilidad_->sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    posibilidad_->setSizePolicy(politica);
    centro->addWidget(posibilidad_);
    CrearCuentas();
    auto* formulario = new QFormLayout;
    for (int i = 0; i < outputs::kLugaresAciertos; ++i) {
        formulario->addRow(Q(outputs::kTitulosAciertos[static_cast<std::size_t>(i)]),
                           cuentas_[static_cast<std::size_t>(i)]);
    }
    centro->addLayout(formulario);
    saludo_ = new SaludoParpadeante(contenido_);
    centro->addWidget(saludo_);
    centro->addStretch();
    barra_ = new QProgressBar(contenido_);
    barra_->setObjectName(QStringLiteral("BarraAciertos"));
    barra_->setTextVisible(false);
    centro->addWidget(barra_);
    fila->addLayout(CrearBotones());
    refresco_.setInterval(kRefresco);
    connect(&refresco_, &QTimer::timeout, this, [this] {
        const auto& p = trabajo_.Progreso();
        if (p.Total() > 0) barra_->setRange(0, static_cast<int>(p.Total()));
        barra_->setValue(static_cast<int>(std::min(p.Hecho(), std::int64_t{barra_->maximum()})));
    });
    connect(&trabajo_, &TrabajoEnSegundoPlano::terminado, this, &VentanaAciertos::FinComprobacion);
    connect(&trabajo_, &TrabajoEnSegundoPlano::fallo, this, [this](const QString& error) {
        resultado_ = {};
        j_.dialogo.Mensaje("Error: " + error.toStdString() + ".", base::Icono::Error);
        FinComprobacion();
    });
    Abrir();
}

void VentanaAciertos::CrearRejilla() {
    rejilla_ = new QTableWidget(kFilas, 2, contenido_);
    rejilla_->setObjectName(QStringLiteral("RejillaGanadora"));
    rejilla_->setHorizontalHeaderLabels({QStringLiteral("Nº"), QStringLiteral("Resultado")});
    rejilla_->verticalHeader()->hide();
    rejilla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla_->setSelectionMode(QAbstractItemView::SingleSelection);
    rejilla_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rejilla_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rejilla_->setContextMenuPolicy(Qt::CustomContextMenu);
    const int alto = rejilla_->fontMetrics().height() + 8;
    rejilla_->verticalHeader()->setDefaultSectionSize(alto);
    rejilla_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    rejilla_->setColumnWidth(0,
                             rejilla_->fontMetrics().horizontalAdvance(QStringLiteral("15 ")) + 20);
    rejilla_->setColumnWidth(
        1, rejilla_->fontMetrics().horizontalAdvance(QStringLiteral("Resultado")) + 24);
    for (int f = 0; f < kFilas; ++f) {
        auto* numero = new QTableWidgetItem(QStringLiteral("%1 ").arg(f + 1));
        numero->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        numero->setFlags(Qt::ItemIsEnabled);
        rejilla_->setItem(f, 0, numero);
        auto* entrada = new QTableWidgetItem;
        entrada->setTextAlignment(Qt::AlignCenter);
        QFont negrita = entrada->font();
        negrita.setBold(true);
        entrada->setFont(negrita);
        rejilla_->setItem(f, kCeldaEntrada, entrada);
    }
    rejilla_->setFixedSize(rejilla_->columnWidth(0) + rejilla_->columnWidth(1) + 4,
                           alto * kFilas + rejilla_->horizontalHeader()->sizeHint().height() + 4);
    rejilla_->installEventFilter(this);
    connect(rejilla_, &QWidget::customContextMenuRequested, this, &VentanaAciertos::MenuResultado);
}

void VentanaAciertos::CrearCuentas() {
    for (std::size_t i = 0; i < cuentas_.size(); ++i) {
        auto* cuenta = new QLabel(QStringLiteral("0 "), contenido_);
        cuenta->setObjectName(QStringLiteral("CuentaAciertos%1").arg(i));
        cuenta->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        cuenta->setFrameShape(QFrame::StyledPanel);
        cuenta->setMinimumWidth(
            cuenta->fontMetrics().horizontalAdvance(QStringLiteral("0.000.000 ")) + 16);
        cuentas_[i] = cuenta;
    }
}

QVBoxLayout* VentanaAciertos::CrearBotones() {
    auto* caja = new QVBoxLayout;
    aciertos_ =
        Boton(contenido_, caja, QStringLiteral("&Aciertos"), QStringLiteral("BotonAciertos"));
    avanceBoton_ =
        Boton(contenido_, caja, QStringLiteral("A&vance"), QStringLiteral("BotonAvance"));
    fallos_ = Boton(contenido_, caja, QStringLiteral("&Fallos"), QStringLiteral("BotonFallos"));
    columnas_ =
        Boton(contenido_, caja, QStringLiteral("Colu&mnas"), QStringLiteral("BotonColumnas"));
    otras_ = Boton(contenido_, caja, QStringLiteral("&Otras"), QStringLiteral("BotonOtras"));
    guardar_ = Boton(contenido_, caja, QStringLiteral("&Guardar"), QStringLiteral("BotonGuardar"));
    datos_ = Boton(contenido_, caja, QStringLiteral("&Datos"), QStringLiteral("BotonDatos"));
    pena_ = Boton(contenido_, caja, QStringLiteral("A &Peña"), QStringLiteral("BotonPena"));
    caja->addStretch();
    ConectarAyuda(Boton(contenido_, caja, QStringLiteral("Ay&uda"), QStringLiteral("BotonAyuda")));
    auto* salir = Boton(contenido_, caja, QStringLiteral("&Salir"), QStringLiteral("BotonSalir"));
    // Cualquier acción para el parpadeo del saludo.
    for (QPushButton* b :
         {aciertos_, avanceBoton_, fallos_, columnas_, otras_, guardar_, datos_, pena_, salir}) {
        connect(b, &QPushButton::clicked, saludo_, &SaludoParpadeante::Detener);
    }
    connect(aciertos_, &QPushButton::clicked, this, &VentanaAciertos::Aciertos);
    connect(avanceBoton_, &QPushButton::clicked, this, &VentanaAciertos::Avance);
    connect(fallos_, &QPushButton::clicked, this, &VentanaAciertos::Fallos);
    connect(columnas_, &QPushButton::clicked, this, &VentanaAciertos::Columnas);
    connect(otras_, &QPushButton::clicked, this, &VentanaAciertos::Otras);
    connect(guardar_, &QPushButton::clicked, this, &VentanaAciertos::Guardar);
    connect(datos_, &QPushButton::clicked, this, &VentanaAciertos::Datos);
    connect(pena_, &QPushButton::clicked, this, &VentanaAciertos::Pena);
    connect(salir, &QPushButton::clicked, this, &QDialog::accept);
    return caja;
}

// Al abrirse: el resultado guardado de la Jornada, y los botones que valen con él.
void VentanaAciertos::Abrir() {
    const outputs::AperturaAciertos a =
        outputs::AbrirAciertos(j_.carpetaTemporada, j_.temporada, j_.jornada, j_.combinacion.ruta);
    for (int f = 0; f < kFilas; ++f) PonerCelda(f, Q(a.rejilla[static_cast<std::size_t>(f)]));
    ganadora_ = a.ganadora;
    aciertos_->setEnabled(a.aciertos);
    otras_->setEnabled(a.otras);
    avanceBoton_->setEnabled(a.avance);
    posibilidad_->setVisible(a.posibilidad);
    for (QPushButton* b : {fallos_, columnas_, datos_, pena_}) b->setEnabled(false);
}

// ---------------------------------------------------------------------------------------------
// Las comprobaciones, en el hilo de trabajo

void VentanaAciertos::Aciertos() {
    saludo_->Ocultar();
    posibilidad_->hide();
    Empezar(
        [ruta = j_.combinacion.ruta, ganadora = ganadora_](base::Dialogo& d, base::Progreso& p) {
            return outputs::Aciertos(ruta, ganadora, d, p);
        },
        false);
}

void VentanaAciertos::Avance() {
    posibilidad_->show();
    const std::string celda = Rejilla()[static_cast<std::size_t>(kFilaPleno)];
    Empezar([ruta = j_.combinacion.ruta, ganadora = ganadora_, celda](
                base::Dialogo& d,
                base::Progreso& p) { return outputs::Avance(ruta, ganadora, celda, d, p); },
            true);
}

// "&Otras": un archivo oficial JSON o un AD243, que se distinguen por su contenido.
void VentanaAciertos::Otras() {
    const fs::path carpeta =
        j_.combinacion.ruta.empty() ? j_.carpetaTrabajo : j_.combinacion.ruta.parent_path();
    const auto ruta = j_.dialogo.ArchivoParaAbrir("Otras", kFiltroOtras, carpeta);
    if (!ruta || ruta->empty()) return;
    const bool json = outputs::OrigenDeArchivo(*ruta) == outputs::OrigenAciertos::Json;
    Empezar(
        [ruta = *ruta, json, jornada = j_.jornada, anio = j_.anio, ganadora = ganadora_](
            base::Dialogo& d, base::Progreso&) {
            return json ? outputs::AciertosJSON(ruta, ganadora, jornada, anio, d)
                        : outputs::AciertosAD243(ruta, ganadora, jornada, d);
        },
        false);
}

void VentanaAciertos::Empezar(Comprobar comprobar, bool avance) {
    if (trabajo_.EnCurso()) return;
    avance_ = avance;
    contenido_->setEnabled(false);
    setCursor(Qt::BusyCursor);
    barra_->setRange(0, 1);
    barra_->setValue(0);
    trabajo_.Empezar([this, comprobar = std::move(comprobar)](base::Progreso& progreso) {
        resultado_ = comprobar(dialogoDelHilo_, progreso);
    });
    refresco_.start();
}

void VentanaAciertos::FinComprobacion() {
    refresco_.stop();
    barra_->setValue(barra_->maximum());
    unsetCursor();
    contenido_->setEnabled(true);
    const outputs::Comprobacion& c = resultado_;
    if (!c.hecha) return;
    tabla_ = c.tabla;
    MostrarCuentas(tabla_);
    if (avance_) return;
    if (c.saludo) saludo_->setText(Q(*c.saludo));
    if (c.parpadea) saludo_->Parpadear(saludo_->text());
    if (c.fallos) fallos_->setEnabled(true);
    if (c.columnas) columnas_->setEnabled(true);
    if (c.pena) pena_->setEnabled(true);
    if (c.datos) datos_->setEnabled(true);
}

void VentanaAciertos::MostrarCuentas(const outputs::TablaAciertos& tabla) {
    const auto textos = outputs::TextosCuentas(tabla);
    for (std::size_t i = 0; i < cuentas_.size(); ++i) cuentas_[i]->setText(Q(textos[i]));
}

// Mientras se comprueba la ventana no se cierra: el hilo puede estar esperando una respuesta.
void VentanaAciertos::reject() {
    if (!trabajo_.EnCurso()) QDialog::reject();
}

// ---------------------------------------------------------------------------------------------
// Las demás acciones

void VentanaAciertos::Guardar() {
    saludo_->Ocultar();
    posibilidad_->hide();
    const auto guardada = outputs::GuardarGanadora(j_.carpetaTemporada, j_.temporada, j_.jornada,
                                                   Rejilla(), j_.dialogo);
    if (!guardada) return;
    ganadora_ = guardada->ganadora;
    for (QPushButton* b : {fallos_, columnas_, pena_}) b->setEnabled(false);
    const bool completa = !guardada->incompleta;
    aciertos_->setEnabled(completa && !j_.combinacion.ruta.empty());
    avanceBoton_->setEnabled(!completa);
    if (completa) otras_->setEnabled(true);
}

void VentanaAciertos::Datos() {
    try {
        const auto registro =
            outputs::RegistroDatos(j_.jornada, outputs::DatosDe(j_.combinacion), tabla_,
                                   outputs::InformeFallos(j_.combinacion, ganadora_));
        if (outputs::GuardarDatos(j_.carpetaTemporada, registro, j_.dialogo))
            datos_->setEnabled(false);
    } catch (const std::exception& e) {
        outputs::MostrarError(j_.dialogo, e);
    }
}

void VentanaAciertos::Fallos() {
    setCursor(Qt::BusyCursor);
    try {
        const auto filas = outputs::InformeFallos(j_.combinacion, ganadora_);
        unsetCursor();
        AbrirHija(new VentanaInformeFallos(filas, this));
    } catch (const std::exception& e) {
        unsetCursor();
        outputs::MostrarError(j_.dialogo, e);
    }
}

void VentanaAciertos::Columnas() {
    AbrirHija(new VentanaColumnasAcertadas(outputs::FilasLocalizadas(tabla_), j_.lineaJornada,
                                           j_.imprimir, this));
}

void VentanaAciertos::Pena() {
    syndicates::CopiarAPena(j_.carpetaTrabajo, j_.jornada, tabla_, j_.dialogo);
}

void VentanaAciertos::AbrirHija(QDialog* hija) {
    hija->setAttribute(Qt::WA_DeleteOnClose);
    hija->setWindowModality(Qt::WindowModal);
    hija->open();
}

// ---------------------------------------------------------------------------------------------
// La rejilla

outputs::RejillaGanadora VentanaAciertos::Rejilla() const {
    outputs::RejillaGanadora rejilla;
    for (int f = 0; f < kFilas; ++f) {
        rejilla[static_cast<std::size_t>(f)] =
            rejilla_->item(f, kCeldaEntrada)->text().toStdString();
    }
    return rejilla;
}

void VentanaAciertos::PonerCelda(int fila, const QString& texto) {
    rejilla_->item(fila, kCeldaEntrada)->setText(texto);
}

// Un cambio de la rejilla deja sin "&Aciertos", "&Fallos", "Colu&mnas" y "&Otras" hasta
// "&Guardar".
void VentanaAciertos::CambioRejilla() {
    saludo_->Detener();
    for (QPushButton* b : {aciertos_, fallos_, columnas_, otras_}) b->setEnabled(false);
}

void VentanaAciertos::Teclear(int fila, char tecla) {
    const auto admitida = outputs::TeclaAdmitida(fila + 1, tecla);
    if (!admitida) return;
    const QString celda = rejilla_->item(fila, kCeldaEntrada)->text();
    PonerCelda(fila, fila == kFilaPleno ? CeldaPleno(celda, *admitida) : QString(QChar(*admitida)));
    CambioRejilla();
}

void VentanaAciertos::MenuResultado(const QPoint& donde) {
    const int fila = rejilla_->rowAt(donde.y());
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("MenuResultado"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto borrar = [this](int desde, int hasta) {
        for (int f = desde; f <= hasta; ++f) PonerCelda(f, {});
        CambioRejilla();
    };
    QAction* uno = menu->addAction(QStringLiteral("Eliminar resultado"));
    uno->setEnabled(fila >= 0);
    connect(uno, &QAction::triggered, this, [borrar, fila] { borrar(fila, fila); });
    connect(menu->addAction(QStringLiteral("Eliminar todos")), &QAction::triggered, this,
            [borrar] { borrar(0, kFilas - 1); });
    menu->popup(rejilla_->viewport()->mapToGlobal(donde));
}

bool VentanaAciertos::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto != rejilla_ || evento->type() != QEvent::KeyPress)
        return QDialog::eventFilter(objeto, evento);
    const QString texto = static_cast<QKeyEvent*>(evento)->text();
    const int fila = rejilla_->currentRow();
    if (texto.size() != 1 || fila < 0 || !texto.at(0).isPrint() || texto.at(0).unicode() > 0x7F)
        return QDialog::eventFilter(objeto, evento);
    Teclear(fila, static_cast<char>(texto.at(0).unicode()));
    return true;
}

}  // namespace quinteva::ui
