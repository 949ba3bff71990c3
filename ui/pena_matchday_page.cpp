#include "ui/pena_matchday_page.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include "engine/pricing.h"
#include "seasons/pools.h"
#include "syndicates/reports.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

namespace {

QLabel* Etiqueta(QWidget* madre, const char* nombre) {
    auto* e = new QLabel(madre);
    e->setObjectName(QString::fromLatin1(nombre));
    e->setMinimumWidth(90);
    e->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    e->setFrameShape(QFrame::Panel);
    e->setFrameShadow(QFrame::Sunken);
    e->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return e;
}

QLineEdit* Caja(QWidget* madre, const QString& nombre) {
    auto* c = new QLineEdit(madre);
    c->setObjectName(nombre);
    c->setMaximumWidth(110);
    c->setAlignment(Qt::AlignRight);
    return c;
}

}  // namespace

PaginaJornadasPena::PaginaJornadasPena(const syndicates::ArchivosPena& pena,
                                       const EntornoPena& entorno, QWidget* madre)
    : QWidget(madre), pena_(pena), entorno_(entorno) {
    auto* caja = new QVBoxLayout(this);
    auto* cabecera = new QHBoxLayout;
    cabecera->addWidget(new QLabel(QStringLiteral("Jornada"), this));
    jornada_ = new QComboBox(this);
    jornada_->setObjectName(QStringLiteral("SelectorJornadaPena"));
    for (int j = 1; j <= syndicates::kJornadasPena; ++j) jornada_->addItem(QString::number(j));
    jornada_->setCurrentIndex(-1);
    connect(jornada_, &QComboBox::activated, this, [this](int i) { ElegirJornada(i + 1); });
    cabecera->addWidget(jornada_);
    fecha_ = new QLabel(this);
    fecha_->setObjectName(QStringLiteral("FechaJornadaPena"));
    cabecera->addWidget(fecha_);
    cabecera->addStretch();
    caja->addLayout(cabecera);

    auto* medio = new QHBoxLayout;
    auto* jugado = new QGroupBox(QStringLiteral("Jugado"), this);
    auto* rejillaJugado = new QGridLayout(jugado);
    columnas_ = Caja(jugado, QStringLiteral("CajaColumnasPena"));
    importe_ = Etiqueta(jugado, "ImportePena");
    apostantes_ = Etiqueta(jugado, "NumApostantesPena");
    rejillaJugado->addWidget(new QLabel(QStringLiteral("Nº Columnas:"), jugado), 0, 0);
    rejillaJugado->addWidget(columnas_, 0, 1);
    rejillaJugado->addWidget(new QLabel(QStringLiteral("Importe (euros):"), jugado), 1, 0);
    rejillaJugado->addWidget(importe_, 1, 1);
    rejillaJugado->addWidget(new QLabel(QStringLiteral("Nº de Apostantes:"), jugado), 2, 0);
    rejillaJugado->addWidget(apostantes_, 2, 1);
    connect(columnas_, &QLineEdit::textEdited, this, [this](const QString& texto) {
        LeerCasillas();
        if (!syndicates::TeclearColumnas(pagina_, S(texto), engine::PrecioColumna(entorno_.ajustes),
                                         entorno_.dialogo)) {
            columnas_->setText(Q(pagina_.numColumnas));
        }
        Mostrar();
    });
    auto* estado = new QGroupBox(QStringLiteral("Estado de la Apuesta"), jugado);
    auto* filaEstado = new QHBoxLayout(estado);
    abierta_ = new QRadioButton(QStringLiteral("Abierta"), estado);
    abierta_->setObjectName(QStringLiteral("OpcionAbierta"));
    cerrada_ = new QRadioButton(QStringLiteral("Cerrada"), estado);
    cerrada_->setObjectName(QStringLiteral("OpcionCerrada"));
    filaEstado->addWidget(abierta_);
    filaEstado->addWidget(cerrada_);
    connect(cerrada_, &QRadioButton::clicked, this, [this] { Estado(true); });
    connect(abierta_, &QRadioButton::clicked, this, [this] { Estado(false); });
    rejillaJugado->addWidget(estado, 3, 0, 1, 2);
    medio->addWidget(jugado);

    auto* obtenido = new QGroupBox(QStringLiteral("Obtenido"), this);
    auto* rejillaObtenido = new QGridLayout(obtenido);
    rejillaObtenido->addWidget(new QLabel(QStringLiteral("Col. acertadas"), obtenido), 0, 1);
    rejillaObtenido->addWidget(new QLabel(QStringLiteral("Cobra c/u"), obtenido), 0, 2);
    for (int i = 0; i < 6; ++i) {
        const auto u = static_cast<std::size_t>(i);
        rejillaObtenido->addWidget(new QLabel(QStringLiteral("De %1").arg(15 - i), obtenido), i + 1,
                                   0);
        acertadas_[u] = Caja(obtenido, QStringLiteral("CajaAcertadas%1").arg(i));
        premios_[u] = Caja(obtenido, QStringLiteral("CajaPremio%1").arg(i));
        rejillaObtenido->addWidget(acertadas_[u], i + 1, 1);
        rejillaObtenido->addWidget(premios_[u], i + 1, 2);
        for (QLineEdit* c : {acertadas_[u], premios_[u]}) {
            connect(c, &QLineEdit::textEdited, this, [this] {
                LeerCasillas();
                syndicates::ReCalculo(pagina_);
                Mostrar();
            });
        }
    }
    cobrado_ = Etiqueta(obtenido, "TotalCobradoPena");
    gastos_ = Caja(obtenido, QStringLiteral("CajaGastosPena"));
    repartir_ = Etiqueta(obtenido, "ARepartirPena");
    connect(gastos_, &QLineEdit::textEdited, this, [this] {
        LeerCasillas();
        syndicates::ReCalculo(pagina_);
        Mostrar();
    });
    rejillaObtenido->addWidget(new QLabel(QStringLiteral("Total cobrado:"), obtenido), 7, 0, 1, 2);
    rejillaObtenido->addWidget(cobrado_, 7, 2);
    rejillaObtenido->addWidget(new QLabel(QStringLiteral("Gastos:"), obtenido), 8, 0, 1, 2);
    rejillaObtenido->addWidget(gastos_, 8, 2);
    rejillaObtenido->addWidget(new QLabel(QStringLiteral("A repartir:"), obtenido), 9, 0, 1, 2);
    rejillaObtenido->addWidget(repartir_, 9, 2);
    medio->addWidget(obtenido);
    medio->addStretch();
    caja->addLayout(medio);

    caja->addWidget(
        new QLabel(QStringLiteral("Relación de apostantes y cantidades jugadas"), this));
    rejilla_ = new QTableWidget(0, 4, this);
    rejilla_->setObjectName(QStringLiteral("RejillaJornadaPena"));
    rejilla_->setHorizontalHeaderLabels({QStringLiteral("Nombre"), QStringLiteral("Jugado"),
                                         QStringLiteral("Particip. %"),
                                         QStringLiteral("Obtenido")});
    rejilla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    rejilla_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(rejilla_, &QTableWidget::customContextMenuRequested, this, [this](QPoint donde) {
        // Sin bucle propio: el menú se borra al cerrarse.
        auto* menu = new QMenu(this);
        menu->setObjectName(QStringLiteral("MenuOrdenJornada"));
        menu->setAttribute(Qt::WA_DeleteOnClose);
        for (const auto& [texto, orden] : {std::pair{"Importe", syndicates::OrdenFilas::Importe},
                                           std::pair{"Nombres", syndicates::OrdenFilas::Nombres}}) {
            menu->addAction(QString::fromLatin1(texto), this, [this, orden = orden] {
                syndicates::OrdenarFilas(pagina_, orden);
                Mostrar();
            });
        }
        menu->popup(rejilla_->viewport()->mapToGlobal(donde));
    });
    caja->addWidget(rejilla_, 1);
    auto* totales = new QHBoxLayout;
    totales->addStretch();
    totalJugado_ = Etiqueta(this, "TotalJugadoPena");
    totalObtenido_ = Etiqueta(this, "TotalObtenidoPena");
    totales->addWidget(totalJugado_);
    totales->addWidget(new QLabel(QStringLiteral("100%"), this));
    totales->addWidget(totalObtenido_);
    caja->addLayout(totales);

    auto* botones = new QHBoxLayout;
    distribuir_ = BotonVentana(this, botones, QStringLiteral("Distri&buir"),
                               QStringLiteral("BotonDistribuir"));
    connect(distribuir_, &QPushButton::clicked, this, [this] {
        syndicates::Distribuir(pagina_);
        Mostrar();
    });
    connect(BotonVentana(this, botones, QStringLiteral("Guardar"),
                         QStringLiteral("BotonGuardarJornada")),
            &QPushButton::clicked, this, [this] {
                if (pagina_.jornada < 1) return;
                LeerCasillas();
                ConAviso(entorno_.dialogo, [this] { syndicates::GuardarPagina(pena_, pagina_); });
            });
    connect(BotonVentana(this, botones, QStringLiteral("&Ver Jornada"),
                         QStringLiteral("BotonVerJornada")),
            &QPushButton::clicked, this, [this] {
                if (pagina_.jornada < 1) return;
                LeerCasillas();
                ConAviso(entorno_.dialogo, [this] {
                    AbrirEnVisor(this, entorno_, QStringLiteral("Quinteva - Peñas"),
                                 syndicates::ImpresionJornada(pena_.LeerPena(), pagina_),
                                 pena_.Ruta().string() + " Jornada " +
                                     std::to_string(pagina_.jornada) + ".pdf");
                });
            });
    botones->addStretch();
    caja->addLayout(botones);
    Mostrar();
}

void PaginaJornadasPena::ElegirJornada(int jornada) {
    ConAviso(entorno_.dialogo, [&] {
        pagina_ = syndicates::LlenarFlex1(
            pena_, jornada, seasons::FechaDeJornadaEnCurso(entorno_.carpetaTrabajo, jornada));
        Mostrar();
    });
}

void PaginaJornadasPena::Refrescar() {
    if (pagina_.jornada >= 1) ElegirJornada(pagina_.jornada);
}

void PaginaJornadasPena::LeerCasillas() {
    for (std::size_t i = 0; i < 6; ++i) {
        pagina_.acertadas[i] = S(acertadas_[i]->text());
        pagina_.premios[i] = S(premios_[i]->text());
    }
    pagina_.gastos = S(gastos_->text());
}

void PaginaJornadasPena::Estado(bool cerrada) {
    LeerCasillas();
    ConAviso(entorno_.dialogo, [&] {
        if (cerrada) {
            syndicates::CerrarJornada(pena_, pagina_, entorno_.dialogo);
        } else {
            syndicates::AbrirJornada(pena_, pagina_);
        }
    });
    Mostrar();
}

void PaginaJornadasPena::Mostrar() {
    const auto& p = pagina_;
    fecha_->setText(Q(p.fecha));
    if (columnas_->text() != Q(p.numColumnas)) columnas_->setText(Q(p.numColumnas));
    importe_->setText(Q(p.importe));
    apostantes_->setText(p.jornada < 1 ? QString() : QString::number(p.NumApostantes()));
    for (std::size_t i = 0; i < 6; ++i) {
        if (acertadas_[i]->text() != Q(p.acertadas[i])) acertadas_[i]->setText(Q(p.acertadas[i]));
        if (premios_[i]->text() != Q(p.premios[i])) premios_[i]->setText(Q(p.premios[i]));
    }
    cobrado_->setText(Q(p.totalCobrado));
    if (gastos_->text() != Q(p.gastos)) gastos_->setText(Q(p.gastos));
    repartir_->setText(Q(p.aRepartir));
    (p.cerrada ? cerrada_ : abierta_)->setChecked(true);
    distribuir_->setEnabled(syndicates::PuedeDistribuir(p));
    rejilla_->setRowCount(static_cast<int>(p.filas.size()));
    for (std::size_t f = 0; f < p.filas.size(); ++f) {
        const auto& fila = p.filas[f];
        const std::array<const std::string*, 4> celdas = {&fila.nombre, &fila.jugado,
                                                          &fila.participacion, &fila.obtenido};
        for (int c = 0; c < 4; ++c) {
            auto* item = new QTableWidgetItem(Q(*celdas[static_cast<std::size_t>(c)]));
            if (c > 0) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            rejilla_->setItem(static_cast<int>(f), c, item);
        }
    }
    totalJugado_->setText(Q(p.totalJugado));
    totalObtenido_->setText(Q(p.totalObtenido));
}

}  // namespace quinteva::ui
