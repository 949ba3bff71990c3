#include "ui/remove_columns_window.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include "base/formats.h"

namespace quinteva::ui {
namespace {

QComboBox* Combo(QWidget* madre, const QString& nombre, const QStringList& textos) {
    auto* c = new QComboBox(madre);
    c->setObjectName(nombre);
    c->addItems(textos);
    c->setCurrentIndex(-1);
    return c;
}

QPushButton* Boton(QWidget* madre, QHBoxLayout* fila, const QString& texto, const QString& nombre) {
    auto* b = new QPushButton(texto, madre);
    b->setObjectName(nombre);
    fila->addWidget(b);
    return b;
}

template <typename T>
std::optional<T> Elegido(const QComboBox* combo) {
    if (combo->currentIndex() < 0) return std::nullopt;
    return static_cast<T>(combo->currentIndex());
}

}  // namespace

VentanaEliminarColumnas::VentanaEliminarColumnas(engine::Combinacion& combinacion,
                                                 builders::EntornoBoletos entorno,
                                                 std::function<void()> abrirAnadir, QWidget* madre)
    : QDialog(madre), comb_(combinacion), entorno_(entorno), abrirAnadir_(std::move(abrirAnadir)) {
    setObjectName(QStringLiteral("VentanaEliminarColumnas"));
    setWindowTitle(QStringLiteral("Eliminar columnas manualmente"));
    auto* caja = new QVBoxLayout(this);

    rejilla_ = new QTableWidget(engine::kPartidos, kColumnasPorPagina, this);
    rejilla_->setObjectName(QStringLiteral("RejillaColumnas"));
    rejilla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla_->setSelectionMode(QAbstractItemView::NoSelection);
    rejilla_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rejilla_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rejilla_->verticalHeader()->setDefaultSectionSize(rejilla_->fontMetrics().height() + 4);
    rejilla_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    rejilla_->horizontalHeader()->setDefaultSectionSize(
        rejilla_->fontMetrics().horizontalAdvance(QStringLiteral("Col. 0000")) + 10);
    rejilla_->setContextMenuPolicy(Qt::CustomContextMenu);
    for (int f = 0; f < engine::kPartidos; ++f) {
        for (int c = 0; c < kColumnasPorPagina; ++c) {
            auto* item = new QTableWidgetItem;
            item->setTextAlignment(Qt::AlignCenter);
            rejilla_->setItem(f, c, item);
        }
    }
    rejilla_->setFixedSize(
        rejilla_->verticalHeader()->sizeHint().width() +
            rejilla_->horizontalHeader()->defaultSectionSize() * kColumnasPorPagina + 4,
        rejilla_->verticalHeader()->defaultSectionSize() * engine::kPartidos +
            rejilla_->horizontalHeader()->sizeHint().height() + 4);
    caja->addWidget(rejilla_);
    barra_ = new QScrollBar(Qt::Horizontal, this);
    barra_->setObjectName(QStringLiteral("BarraColumnas"));
    barra_->setPageStep(1);
    caja->addWidget(barra_);

    auto* regla = new QGroupBox(QStringLiteral("Eliminar las columnas que tengan"), this);
    auto* filaRegla = new QHBoxLayout(regla);
    modo_ = Combo(regla, QStringLiteral("ComboModo"),
                  {QStringLiteral("más"), QStringLiteral("menos"), QStringLiteral("igual")});
    deA_ = new QLabel(QStringLiteral("de"), regla);
    deA_->setObjectName(QStringLiteral("RotuloDeA"));
    QStringList numeros;
    for (int n = 0; n <= engine::kPartidos; ++n) numeros << QString::number(n);
    numero_ = Combo(regla, QStringLiteral("ComboNumero"), numeros);
    signo_ = Combo(regla, QStringLiteral("ComboSigno"),
                   {QStringLiteral("Unos"), QStringLiteral("Equis"), QStringLiteral("Doses"),
                    QStringLiteral("Variantes")});
    filaRegla->addWidget(modo_);
    filaRegla->addWidget(deA_);
    filaRegla->addWidget(numero_);
    filaRegla->addWidget(signo_);
    auto* eliminar = new QPushButton(QStringLiteral("&Eliminar"), regla);
    eliminar->setObjectName(QStringLiteral("BotonEliminar"));
    filaRegla->addWidget(eliminar);
    filaRegla->addStretch();
    caja->addWidget(regla);

    auto* formulario = new QFormLayout;
    cuenta_ = new QLabel(this);
    cuenta_->setObjectName(QStringLiteral("CuentaEliminar"));
    precio_ = new QLabel(this);
    precio_->setObjectName(QStringLiteral("PrecioEliminar"));
    formulario->addRow(QStringLiteral("Apuestas que se juegan en total "), cuenta_);
    formulario->addRow(QStringLiteral("Precio"), precio_);
    caja->addLayout(formulario);
    auto* botones = new QHBoxLayout;
    auto* todas =
        Boton(this, botones, QStringLiteral("Jugar &Todas"), QStringLiteral("BotonJugarTodas"));
    botones->addStretch();
    auto* salir = Boton(this, botones, QStringLiteral("&Salir"), QStringLiteral("BotonSalir"));
    caja->addLayout(botones);

    connect(modo_, &QComboBox::currentIndexChanged, this, [this](int modo) {
        deA_->setText(modo == static_cast<int>(builders::ModoRegla::Igual) ? QStringLiteral("a")
                                                                           : QStringLiteral("de"));
    });
    connect(eliminar, &QPushButton::clicked, this, &VentanaEliminarColumnas::Eliminar);
    connect(todas, &QPushButton::clicked, this, &VentanaEliminarColumnas::JugarTodas);
    connect(salir, &QPushButton::clicked, this, &QDialog::accept);
    connect(barra_, &QScrollBar::valueChanged, this, &VentanaEliminarColumnas::Escrol);
    connect(rejilla_, &QWidget::customContextMenuRequested, this,
            &VentanaEliminarColumnas::MenuColumna);
    Actualizar();
}

void VentanaEliminarColumnas::Accion(const std::function<void()>& accion) {
    setCursor(Qt::BusyCursor);
    try {
        accion();
    } catch (const std::exception& e) {
        entorno_.dialogo.Mensaje(std::string("Error: ") + e.what(), base::Icono::Error);
    }
    unsetCursor();
    Actualizar();
    emit cambiado();
}

// La cuenta, el precio, el número de páginas y la página que se ve.
void VentanaEliminarColumnas::Actualizar() {
    const builders::Jugada jugada = builders::JugadaElegida(comb_);
    const auto activas = builders::ApuestasJugadas(comb_, jugada);
    cuenta_->setText(QString::fromStdString(base::Formato(activas, "#,##0") + " "));
    precio_->setText(QString::fromStdString(
        base::Formato(comb_.panel.precio.value_or(0.0), "#,##0.#0") + " Euros"));
    const std::int32_t total =
        jugada == builders::Jugada::Condicionada ? comb_.totalGeneradas : comb_.totalReducidas;
    const QSignalBlocker quieta(barra_);
    barra_->setRange(1, std::max(1, (total + kColumnasPorPagina - 1) / kColumnasPorPagina));
    Escrol();
}

void VentanaEliminarColumnas::Escrol() {
    const std::int32_t desde = builders::RegistroDeRejilla(kColumnasPorPagina, barra_->value(), 1);
    std::vector<engine::RegistroColumna> pagina;
    try {
        pagina = builders::PaginaDeColumnas(comb_, desde, kColumnasPorPagina, entorno_);
    } catch (const std::exception& e) {
        entorno_.dialogo.Mensaje(std::string("Error: ") + e.what(), base::Icono::Error);
    }
    QStringList cabeceras;
    for (int c = 0; c < kColumnasPorPagina; ++c) {
        const bool hay = static_cast<std::size_t>(c) < pagina.size();
        cabeceras << (hay ? QStringLiteral("Col. %1").arg(desde + c) : QString());
        const bool eliminada =
            hay && pagina[static_cast<std::size_t>(c)].estado == engine::kEliminada;
        for (int f = 0; f < engine::kPartidos; ++f) {
            QTableWidgetItem* item = rejilla_->item(f, c);
            item->setText(
                hay ? QString(QChar::fromLatin1(
                          pagina[static_cast<std::size_t>(c)].columna[static_cast<std::size_t>(f)]))
                    : QString());
            item->setForeground(eliminada ? Qt::red : palette().text().color());
        }
    }
    rejilla_->setHorizontalHeaderLabels(cabeceras);
}

void VentanaEliminarColumnas::Eliminar() {
    builders::Regla regla;
    regla.modo = Elegido<builders::ModoRegla>(modo_);
    regla.numero = Elegido<int>(numero_);
    regla.signo = Elegido<builders::SignoRegla>(signo_);
    Accion([&] { builders::EliminarPorRegla(comb_, regla, ventana_, entorno_); });
}

void VentanaEliminarColumnas::JugarTodas() {
    Accion([&] { builders::JugarTodas(comb_, ventana_, entorno_); });
}

void VentanaEliminarColumnas::MenuColumna(const QPoint& donde) {
    const int columna = rejilla_->columnAt(donde.x());
    if (columna < 0) return;
    const std::int32_t registro =
        builders::RegistroDeRejilla(kColumnasPorPagina, barra_->value(), columna + 1);
    const builders::Jugada jugada = builders::JugadaElegida(comb_);
    const std::int32_t total =
        jugada == builders::Jugada::Condicionada ? comb_.totalGeneradas : comb_.totalReducidas;
    if (registro > total) return;
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("MenuColumna"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("Jugar columna")), &QAction::triggered, this,
            [this, registro] { Jugar(registro, true); });
    connect(menu->addAction(QStringLiteral("No jugar columna")), &QAction::triggered, this,
            [this, registro] { Jugar(registro, false); });
    menu->popup(rejilla_->viewport()->mapToGlobal(donde));
}

void VentanaEliminarColumnas::Jugar(std::int32_t registro, bool jugar) {
    Accion([&] { builders::JugarColumna(comb_, registro, jugar, entorno_); });
}

void VentanaEliminarColumnas::done(int resultado) {
    bool cerrar = true;
    try {
        cerrar = builders::CerrarEliminar(comb_, entorno_, abrirAnadir_);
    } catch (const std::exception& e) {
        entorno_.dialogo.Mensaje(std::string("Error: ") + e.what(), base::Icono::Error);
    }
    emit cambiado();
    if (cerrar) QDialog::done(resultado);
}

}  // namespace quinteva::ui
