#include "ui/conditions_page.h"
#include "ui/qt_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "engine/condition_grids.h"
#include "engine/conditions.h"
#include "engine/editing_rules.h"

namespace quinteva::ui {
namespace {

using engine::SetCondiciones;

const QColor kVerde(120, 200, 120);
const QColor kMagenta(220, 110, 220);
const QColor kGris(200, 200, 200);

const std::array<QString, 4> kClases = {QStringLiteral("1"), QStringLiteral("X"),
                                        QStringLiteral("2"), QStringLiteral("V")};

QTableWidget* TablaFija(int filas, const QStringList& columnas, QWidget* madre) {
    auto* t = new QTableWidget(filas, static_cast<int>(columnas.size()), madre);
    t->setHorizontalHeaderLabels(columnas);
    t->verticalHeader()->hide();
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->setSelectionMode(QAbstractItemView::NoSelection);
    t->setFocusPolicy(Qt::NoFocus);
    const int alto = t->fontMetrics().height() + 4;
    t->verticalHeader()->setDefaultSectionSize(alto);
    t->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    t->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    t->setFixedHeight(alto * filas + t->horizontalHeader()->sizeHint().height() + 4);
    for (int f = 0; f < filas; ++f) {
        for (int c = 0; c < t->columnCount(); ++c) {
            auto* item = new QTableWidgetItem;
            item->setTextAlignment(Qt::AlignCenter);
            t->setItem(f, c, item);
        }
    }
    return t;
}

void AnchoColumnas(QTableWidget* t, const QString& muestra) {
    const int ancho = t->fontMetrics().horizontalAdvance(muestra) + 18;
    for (int c = 0; c < t->columnCount(); ++c) t->setColumnWidth(c, ancho);
    t->setFixedWidth(ancho * t->columnCount() + 4);
}

QLabel* Ayuda(const QString& texto, QWidget* madre) {
    auto* l = new QLabel(texto, madre);
    l->setWordWrap(true);
    return l;
}

}  // namespace

RejillaRangos::RejillaRangos(const QStringList& columnas, int filas, const QColor& elegido,
                             QWidget* madre)
    : QWidget(madre), elegido_(elegido) {
    auto* caja = new QVBoxLayout(this);
    caja->setContentsMargins(0, 0, 0, 0);
    tabla_ = TablaFija(filas, QStringList{QStringLiteral("Nº")} + columnas, this);
    AnchoColumnas(tabla_, QStringLiteral("Aciertos"));
    for (int f = 0; f < filas; ++f) tabla_->item(f, 0)->setText(QString::number(f));
    caja->addWidget(tabla_);
    connect(tabla_, &QTableWidget::cellClicked, this, [this](int fila, int columna) {
        if (columna > 0) emit pulsada(columna - 1, fila);
    });
}

void RejillaRangos::Mostrar(const std::vector<engine::RangoRejilla>& rangos) {
    for (std::size_t c = 0; c < rangos.size(); ++c) {
        const engine::RangoRejilla& r = rangos[c];
        for (int f = 0; f < tabla_->rowCount(); ++f) {
            const bool posible = f >= r.posMin && f <= r.posMax;
            const bool elegida = posible && f >= r.min && f <= r.max;
            auto* item = tabla_->item(f, static_cast<int>(c) + 1);
            item->setBackground(elegida ? elegido_ : posible ? QColor(Qt::white) : kGris);
            item->setText(elegida ? QString::number(f) : QString());
        }
    }
}

PaginaCondiciones::PaginaCondiciones(engine::Combinacion& combinacion, base::Dialogo& dialogo,
                                     QWidget* madre)
    : QWidget(madre), comb_(combinacion), dialogo_(dialogo) {
    setObjectName(QStringLiteral("PaginaCondiciones"));
    auto* caja = new QVBoxLayout(this);
    pestanas_ = new QTabWidget(this);
    pestanas_->setObjectName(QStringLiteral("PestanasCondiciones"));
    pestanas_->setUsesScrollButtons(false);
    caja->addWidget(pestanas_);
    auto* historicoBoton = new QPushButton(QStringLiteral("&Histórico de condiciones"), this);
    historicoBoton->setObjectName(QStringLiteral("BotonHistoricoCondiciones"));
    historicoBoton->setToolTip(
        QStringLiteral("Cuántas columnas ganadoras guardadas habrían pasado estas condiciones"));
    connect(historicoBoton, &QPushButton::clicked, this, &PaginaCondiciones::historico);
    caja->addWidget(historicoBoton, 0, Qt::AlignLeft);
    CrearGenerales();
    CrearSeguidos();
    CrearInterrupciones();
    CrearConsecutivas();
    CrearParejasYTrios();
    CrearGrupos();
    CrearGruposAciertos();
    CrearSumas();
    CrearComparaciones();
    CrearRepeticiones();
    Mostrar();
}

QWidget* PaginaCondiciones::Pestana(const QString& titulo, const QString& casilla,
                                    engine::Casilla familia, QWidget* contenido) {
    auto* pestana = new QWidget(pestanas_);
    pestana->setObjectName(QStringLiteral("Pestana%1").arg(static_cast<int>(familia)));
    auto* caja = new QVBoxLayout(pestana);
    auto* arriba = new QHBoxLayout;
    // Los Grupos llevan su casilla ("Activar Grupo") junto al Grupo que se ve.
    if (!casilla.isEmpty()) {
        auto* c = new QCheckBox(casilla, pestana);
        c->setObjectName(QStringLiteral("Casilla%1").arg(static_cast<int>(familia)));
        casillas_[static_cast<std::size_t>(familia)] = c;
        connect(c, &QCheckBox::toggled, this, [this, familia](bool on) {
            if (pintando_) return;
            // Sumas se enciende solo con límites válidos.
            if (familia == engine::kCasillaSumas && on) {
                ActivarSumas();
                return;
            }
            comb_.condiciones.casilla[static_cast<std::size_t>(familia)] = on;
            emit cambiado();
        });
        arriba->addWidget(c);
    }
    arriba->addStretch();
    auto* reiniciar = new QPushButton(QStringLiteral("&Reiniciar"), pestana);
    reiniciar->setObjectName(QStringLiteral("Reiniciar%1").arg(static_cast<int>(familia)));
    connect(reiniciar, &QPushButton::clicked, this, [this, familia] {
        engine::ReiniciarFamilia(comb_.condiciones, familia, comb_.base);
        Mostrar();
        emit cambiado();
    });
    arriba->addWidget(reiniciar);
    caja->addLayout(arriba);
    contenido->setParent(pestana);
    caja->addWidget(contenido);
    caja->addStretch(1);
    pestanas_->addTab(pestana, titulo);
    return pestana;
}

void PaginaCondiciones::Marcar(engine::Casilla familia) {
    comb_.condiciones.casilla[static_cast<std::size_t>(familia)] = true;
    Pintar();
    emit cambiado();
}

template <typename T>
PaginaCondiciones::Par PaginaCondiciones::ParDe(engine::Casilla familia, T& min, T& max) {
    return {[&min, &max](bool esMinimo) { return static_cast<int>(esMinimo ? min : max); },
            [this, familia, &min, &max](bool esMinimo, int valor) {
                return engine::CambiarLimite(comb_, familia, min, max, esMinimo, valor, dialogo_);
            }};
}

void PaginaCondiciones::ParDeListas(QGridLayout* rejilla, int fila, int columna,
                                    std::function<std::pair<int, int>()> valores, Par par,
                                    const QString& nombre) {
    auto* madre = rejilla->parentWidget();
    QComboBox* listas[2] = {new QComboBox(madre), new QComboBox(madre)};
    listas[0]->setObjectName(QStringLiteral("Min") + nombre);
    listas[1]->setObjectName(QStringLiteral("Max") + nombre);
    for (int i = 0; i < 2; ++i) {
        rejilla->addWidget(listas[i], fila, columna + i);
        const bool esMinimo = i == 0;
        // Rechazado, la lista vuelve a mostrar su valor de antes.
        connect(listas[i], &QComboBox::activated, this, [=, this](int indice) {
            const bool vale = par.cambiar(esMinimo, listas[i]->itemData(indice).toInt());
            Pintar();
            if (vale) emit cambiado();
        });
        pintores_.push_back([=] {
            const auto [desde, hasta] = valores();
            listas[i]->clear();
            for (int v = desde; v <= hasta; ++v) listas[i]->addItem(QString::number(v), v);
            listas[i]->setCurrentIndex(listas[i]->findData(par.leer(esMinimo)));
        });
    }
}

void PaginaCondiciones::CrearGenerales() {
    auto* contenido = new QWidget;
    auto* caja = new QHBoxLayout(contenido);
    generales_ = new RejillaRangos({QStringLiteral("V"), QStringLiteral("X"), QStringLiteral("2")},
                                   15, kVerde, contenido);
    generales_->Tabla()->setObjectName(QStringLiteral("RejillaGenerales"));
    caja->addWidget(generales_);
    caja->addWidget(
        Ayuda(QStringLiteral(
                  "Marque con el ratón el mínimo y el máximo de Variantes (V), Equis (X) y "
                  "Doses (2) que tendrán las columnas. Las filas en gris no son posibles "
                  "con la Quiniela Base."),
              contenido),
        1);
    connect(generales_, &RejillaRangos::pulsada, this, [this](int columna, int fila) {
        auto& c = comb_.condiciones;
        std::array<std::pair<std::uint8_t*, std::uint8_t*>, 3> elegidos = {
            std::pair{&c.minVariantes, &c.maxVariantes},
            {&c.minEquis, &c.maxEquis},
            {&c.minDoses, &c.maxDoses}};
        const std::array<std::pair<int, int>, 3> posibles = {
            std::pair<int, int>{c.posMinVariantes, c.posMaxVariantes},
            {c.posMinEquis, c.posMaxEquis},
            {c.posMinDoses, c.posMaxDoses}};
        auto [min, max] = elegidos[static_cast<std::size_t>(columna)];
        const auto [pmin, pmax] = posibles[static_cast<std::size_t>(columna)];
        const auto r = engine::PulsarRango({pmin, pmax, *min, *max}, fila);
        if (r.min == *min && r.max == *max) return;
        *min = static_cast<std::uint8_t>(r.min);
        *max = static_cast<std::uint8_t>(r.max);
        Marcar(engine::kCasillaGenerales);
    });
    pintores_.push_back([this] {
        const auto& c = comb_.condiciones;
        generales_->Mostrar({{c.posMinVariantes, c.posMaxVariantes, c.minVariantes, c.maxVariantes},
                             {c.posMinEquis, c.posMaxEquis, c.minEquis, c.maxEquis},
                             {c.posMinDoses, c.posMaxDoses, c.minDoses, c.maxDoses}});
    });
    Pestana(QStringLiteral("Generales"), QStringLiteral("Nº de Variantes, Equis y Doses"),
            engine::kCasillaGenerales, contenido);
}

void PaginaCondiciones::CrearSeguidos() {
    auto* contenido = new QWidget;
    auto* rejilla = new QGridLayout(contenido);
    rejilla->addWidget(new QLabel(QStringLiteral("Mínimo"), contenido), 0, 1);
    rejilla->addWidget(new QLabel(QStringLiteral("Máximo"), contenido), 0, 2);
    const std::array<QString, 4> nombres = {
        QStringLiteral("Unos seguidos"), QStringLiteral("Equis seguidas"),
        QStringLiteral("Doses seguidos"), QStringLiteral("Variantes seguidas")};
    auto& c = comb_.condiciones;
    for (std::size_t k = 0; k < 4; ++k) {
        const int fila = static_cast<int>(k) + 1;
        rejilla->addWidget(new QLabel(nombres[k], contenido), fila, 0);
        ParDeListas(
            rejilla, fila, 1,
            [&c, k] {
                return std::pair<int, int>{c.posMinSeg[k], c.posMaxSeg[k]};
            },
            ParDe(engine::kCasillaSeguidos, c.minSeg[k], c.maxSeg[k]),
            QStringLiteral("Seg") + kClases[k]);
    }
    rejilla->setRowStretch(5, 1);
    rejilla->setColumnStretch(3, 1);
    Pestana(QStringLiteral("Seguidos"), QStringLiteral("Signos seguidos"), engine::kCasillaSeguidos,
            contenido);
}

void PaginaCondiciones::CrearInterrupciones() {
    auto* contenido = new QWidget;
    auto* caja = new QHBoxLayout(contenido);
    interrupciones_ = new RejillaRangos({QStringLiteral("I")}, 14, kVerde, contenido);
    interrupciones_->Tabla()->setObjectName(QStringLiteral("RejillaInterrupciones"));
    caja->addWidget(interrupciones_);
    caja->addWidget(
        Ayuda(QStringLiteral("Una interrupción es un cambio de signo entre dos partidos seguidos. "
                             "Marque el mínimo y el máximo que tendrán las columnas."),
              contenido),
        1);
    connect(interrupciones_, &RejillaRangos::pulsada, this, [this](int, int fila) {
        auto& c = comb_.condiciones;
        const auto r = engine::PulsarRango({0, 13, c.minInter, c.maxInter}, fila);
        if (r.min == c.minInter && r.max == c.maxInter) return;
        c.minInter = static_cast<std::int16_t>(r.min);
        c.maxInter = static_cast<std::int16_t>(r.max);
        Marcar(engine::kCasillaInterrupciones);
    });
    pintores_.push_back([this] {
        const auto& c = comb_.condiciones;
        interrupciones_->Mostrar({{0, 13, c.minInter, c.maxInter}});
    });
    Pestana(QStringLiteral("Interrupciones"), QStringLiteral("Nº de Interrupciones totales"),
            engine::kCasillaInterrupciones, contenido);
}

void PaginaCondiciones::CrearConsecutivas() {
    auto* contenido = new QWidget;
    auto* rejilla = new QGridLayout(contenido);
    rejilla->addWidget(
        Ayuda(QStringLiteral("Selecciones el mínimo y máximo de interrupciones (cambios de signo) "
                             "consecutivos que habrá en la quiniela."),
              contenido),
        0, 0, 1, 4);
    rejilla->addWidget(new QLabel(QStringLiteral("Mínimo y máximo"), contenido), 1, 0);
    auto& c = comb_.condiciones;
    ParDeListas(
        rejilla, 1, 1,
        [] {
            return std::pair{0, 13};
        },
        ParDe(engine::kCasillaInterConsecutivas, c.minInterCons, c.maxInterCons),
        QStringLiteral("InterCons"));
    rejilla->setRowStretch(2, 1);
    rejilla->setColumnStretch(3, 1);
    Pestana(QStringLiteral("Consecutivas"), QStringLiteral("Interrupciones consecutivas"),
            engine::kCasillaInterConsecutivas, contenido);
}

void PaginaCondiciones::CrearParejasYTrios() {
    auto& c = comb_.condiciones;
    auto* parejas = new QWidget;
    auto* rp = new QGridLayout(parejas);
    rp->addWidget(new QLabel(QStringLiteral("Mínimo"), parejas), 0, 1);
    rp->addWidget(new QLabel(QStringLiteral("Máximo"), parejas), 0, 2);
    for (std::size_t i = 0; i < 9; ++i) {
        const int fila = static_cast<int>(i) + 1;
        rp->addWidget(new QLabel(QString::fromLatin1(engine::kTextoParejas[i]), parejas), fila, 0);
        const int tope = engine::SinLimitePareja(static_cast<int>(i));
        ParDeListas(
            rp, fila, 1,
            [tope] {
                return std::pair{0, tope};
            },
            ParDe(engine::kCasillaParejas, c.minPareja[i], c.maxPareja[i]),
            QStringLiteral("Pareja%1").arg(i));
    }
    rp->setRowStretch(10, 1);
    rp->setColumnStretch(3, 1);
    Pestana(QStringLiteral("Parejas"), QStringLiteral("Parejas"), engine::kCasillaParejas, parejas);

    auto* trios = new QWidget;
    auto* rt = new QGridLayout(trios);
    for (std::size_t i = 0; i < 27; ++i) {
        const int fila = static_cast<int>(i % 9) + 1;
        const int columna = static_cast<int>(i / 9) * 4;
        if (fila == 1) {
            rt->addWidget(new QLabel(QStringLiteral("Mín."), trios), 0, columna + 1);
            rt->addWidget(new QLabel(QStringLiteral("Máx."), trios), 0, columna + 2);
        }
        const auto& t = engine::kTextoTrios[i];
        rt->addWidget(new QLabel(QString::fromLatin1(t.data(), 3), trios), fila, columna);
        const int tope = engine::SinLimiteTrio(static_cast<int>(i));
        ParDeListas(
            rt, fila, columna + 1,
            [tope] {
                return std::pair{0, tope};
            },
            ParDe(engine::kCasillaTrios, c.minTrio[i], c.maxTrio[i]),
            QStringLiteral("Trio%1").arg(i));
        if (columna > 0) rt->setColumnMinimumWidth(columna - 1, 24);
    }
    rt->setRowStretch(10, 1);
    rt->setColumnStretch(11, 1);
    Pestana(QStringLiteral("Tríos"), QStringLiteral("Tríos"), engine::kCasillaTrios, trios);
}

void PaginaCondiciones::CrearGrupos() {
    auto* contenido = new QWidget;
    auto* caja = new QHBoxLayout(contenido);
    auto* izquierda = new QVBoxLayout;
    auto* navegar = new QHBoxLayout;
    auto* anterior = new QPushButton(QStringLiteral("<"), contenido);
    anterior->setObjectName(QStringLiteral("GrupoAnterior"));
    tituloGrupo_ = new QLabel(contenido);
    tituloGrupo_->setObjectName(QStringLiteral("TituloGrupo"));
    auto* siguiente = new QPushButton(QStringLiteral(">"), contenido);
    siguiente->setObjectName(QStringLiteral("GrupoSiguiente"));
    for (auto* b : {anterior, siguiente})
        b->setFixedWidth(b->fontMetrics().horizontalAdvance(QStringLiteral("<<")) + 20);
    navegar->addWidget(anterior);
    navegar->addWidget(tituloGrupo_, 1, Qt::AlignCenter);
    navegar->addWidget(siguiente);
    izquierda->addLayout(navegar);
    auto* activar = new QCheckBox(QStringLiteral("Activar Grupo"), contenido);
    activar->setObjectName(QStringLiteral("Casilla5"));
    casillas_[engine::kCasillaGrupoMostrado] = activar;
    connect(activar, &QCheckBox::toggled, this, [this](bool on) {
        if (pintando_) return;
        comb_.condiciones.grupos[static_cast<std::size_t>(grupo_)].activo = on;
        comb_.condiciones.ultimoGrupo = engine::MaxGr(comb_.condiciones);
        Pintar();
        emit cambiado();
    });
    izquierda->addWidget(activar);
    partidosGrupo_ = TablaFija(engine::kPartidos,
                               {QStringLiteral("Partido"), QStringLiteral("Grupo")}, contenido);
    partidosGrupo_->setObjectName(QStringLiteral("PartidosGrupo"));
    partidosGrupo_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    partidosGrupo_->setMinimumWidth(partidosGrupo_->fontMetrics().horizontalAdvance(
                                        QStringLiteral("Atlético Madrid - Rayo Vallecano")) +
                                    90);
    izquierda->addWidget(partidosGrupo_);
    auto* botones = new QHBoxLayout;
    const auto boton = [&](const QString& texto, const QString& nombre, auto accion) {
        auto* b = new QPushButton(texto, contenido);
        b->setObjectName(nombre);
        connect(b, &QPushButton::clicked, this, accion);
        botones->addWidget(b);
    };
    const auto todos = [this](bool en) {
        auto& g = comb_.condiciones.grupos[static_cast<std::size_t>(grupo_)];
        g.partidos.fill(en);
        engine::CalcularPosiblesGrupo(g, comb_.base);
        Pintar();
        emit cambiado();
    };
    boton(QStringLiteral("Borrar todos"), QStringLiteral("BorrarTodos"), [todos] { todos(false); });
    boton(QStringLiteral("Selec. todos"), QStringLiteral("SelecTodos"), [todos] { todos(true); });
    boton(QStringLiteral("Desactivar todos"), QStringLiteral("DesactivarTodos"), [this] {
        engine::DesactivarGrupos(comb_.condiciones);
        Pintar();
        emit cambiado();
    });
    izquierda->addLayout(botones);
    auto* tolerancia = new QHBoxLayout;
    tolerancia->addWidget(new QLabel(QStringLiteral("Tolerancia Grupos fallados"), contenido));
    toleranciaGrupos_ = new QSpinBox(contenido);
    toleranciaGrupos_->setObjectName(QStringLiteral("ToleranciaGrupos"));
    toleranciaGrupos_->setRange(0, 255);
    tolerancia->addWidget(toleranciaGrupos_);
    tolerancia->addStretch();
    izquierda->addLayout(tolerancia);
    izquierda->addStretch();
    caja->addLayout(izquierda);
    limitesGrupo_ = new RejillaRangos(
        {QStringLiteral("1"), QStringLiteral("X"), QStringLiteral("2"), QStringLiteral("V")}, 15,
        kMagenta, contenido);
    limitesGrupo_->Tabla()->setObjectName(QStringLiteral("LimitesGrupo"));
    caja->addWidget(limitesGrupo_, 0, Qt::AlignTop);
    caja->addStretch();

    connect(anterior, &QPushButton::clicked, this, [this] {
        grupo_ = std::max(0, grupo_ - 1);
        Pintar();
    });
    connect(siguiente, &QPushButton::clicked, this, [this] {
        grupo_ = std::min(engine::kGrupos - 1, grupo_ + 1);
        Pintar();
    });
    connect(partidosGrupo_, &QTableWidget::cellClicked, this, [this](int fila, int) {
        auto& g = comb_.condiciones.grupos[static_cast<std::size_t>(grupo_)];
        g.partidos[static_cast<std::size_t>(fila)] = !g.partidos[static_cast<std::size_t>(fila)];
        engine::CalcularPosiblesGrupo(g, comb_.base);
        Pintar();
        emit cambiado();
    });
    connect(limitesGrupo_, &RejillaRangos::pulsada, this, [this](int columna, int fila) {
        auto& g = comb_.condiciones.grupos[static_cast<std::size_t>(grupo_)];
        const auto k = static_cast<std::size_t>(columna);
        const auto r = engine::PulsarRango(
            {g.posMin[k], g.posMax[k], g.min[k], std::min<int>(g.max[k], g.posMax[k])}, fila);
        g.min[k] = static_cast<std::uint8_t>(r.min);
        g.max[k] = static_cast<std::uint8_t>(r.max);
        g.activo = true;
        comb_.condiciones.ultimoGrupo = engine::MaxGr(comb_.condiciones);
        Pintar();
        emit cambiado();
    });
    connect(toleranciaGrupos_, &QSpinBox::valueChanged, this, [this](int v) {
        if (pintando_) return;
        engine::FijarToleranciaGrupos(comb_.condiciones, v, dialogo_);
        Pintar();
        emit cambiado();
    });
    pintores_.push_back([this] { MostrarGrupo(); });
    Pestana(QStringLiteral("Grupos"), {}, engine::kCasillaGrupoMostrado, contenido);
}

void PaginaCondiciones::MostrarGrupo() {
    const auto& g = comb_.condiciones.grupos[static_cast<std::size_t>(grupo_)];
    tituloGrupo_->setText(QStringLiteral("Grupo nº %1").arg(grupo_ + 1));
    casillas_[engine::kCasillaGrupoMostrado]->setChecked(g.activo);
    for (int p = 0; p < engine::kPartidos; ++p) {
        partidosGrupo_->item(p, 0)->setText(Q(comb_.base.Equipos(p + 1)));
        const bool en = g.partidos[static_cast<std::size_t>(p)];
        partidosGrupo_->item(p, 1)->setText(en ? QStringLiteral("X") : QString());
        partidosGrupo_->item(p, 1)->setBackground(en ? kMagenta : QColor(Qt::white));
    }
    std::vector<engine::RangoRejilla> rangos;
    for (std::size_t k = 0; k < 4; ++k) {
        rangos.push_back({g.posMin[k], g.posMax[k], std::max<int>(g.min[k], g.posMin[k]),
                          std::min<int>(g.max[k], g.posMax[k])});
    }
    limitesGrupo_->Mostrar(rangos);
    toleranciaGrupos_->setValue(comb_.condiciones.toleranciaGrupos);
}

void PaginaCondiciones::CrearGruposAciertos() {
    auto* contenido = new QWidget;
    auto* caja = new QHBoxLayout(contenido);
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(
        Ayuda(QStringLiteral("Seleccione los Partidos del Grupo,  marcando el resultado de cada "
                             "Partido, e indique los aciertos o fallos que puede haber en dichos "
                             "pronósticos respecto a la quiniela ganadora"),
              contenido));
    auto* navegar = new QHBoxLayout;
    auto* anterior = new QPushButton(QStringLiteral("<"), contenido);
    anterior->setObjectName(QStringLiteral("GrupoAcAnterior"));
    tituloGrupoAc_ = new QLabel(contenido);
    tituloGrupoAc_->setObjectName(QStringLiteral("TituloGrupoAc"));
    auto* siguiente = new QPushButton(QStringLiteral(">"), contenido);
    siguiente->setObjectName(QStringLiteral("GrupoAcSiguiente"));
    for (auto* b : {anterior, siguiente})
        b->setFixedWidth(b->fontMetrics().horizontalAdvance(QStringLiteral("<<")) + 20);
    navegar->addWidget(anterior);
    navegar->addWidget(tituloGrupoAc_, 1, Qt::AlignCenter);
    navegar->addWidget(siguiente);
    izquierda->addLayout(navegar);
    auto* activar = new QCheckBox(QStringLiteral("Activar Grupo"), contenido);
    activar->setObjectName(QStringLiteral("Casilla6"));
    casillas_[engine::kCasillaGrupoAcMostrado] = activar;
    connect(activar, &QCheckBox::toggled, this, [this](bool on) {
        if (pintando_) return;
        comb_.condiciones.gruposAc[static_cast<std::size_t>(grupoAc_)].activo = on;
        comb_.condiciones.ultimoGrupoAc = engine::MaxAGr(comb_.condiciones);
        Pintar();
        emit cambiado();
    });
    izquierda->addWidget(activar);
    partidosGrupoAc_ = TablaFija(
        engine::kPartidos,
        {QStringLiteral("Partido"), QStringLiteral("1"), QStringLiteral("X"), QStringLiteral("2")},
        contenido);
    partidosGrupoAc_->setObjectName(QStringLiteral("PartidosGrupoAc"));
    partidosGrupoAc_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int c = 1; c <= 3; ++c)
        partidosGrupoAc_->setColumnWidth(
            c, partidosGrupoAc_->fontMetrics().horizontalAdvance(QStringLiteral("MM")) + 16);
    partidosGrupoAc_->setMinimumWidth(partidosGrupoAc_->fontMetrics().horizontalAdvance(
                                          QStringLiteral("Atlético Madrid - Rayo Vallecano")) +
                                      150);
    izquierda->addWidget(partidosGrupoAc_);
    auto* tolerancia = new QHBoxLayout;
    tolerancia->addWidget(new QLabel(QStringLiteral("Tolerancia Grupos Ac. fallados"), contenido));
    toleranciaGruposAc_ = new QSpinBox(contenido);
    toleranciaGruposAc_->setObjectName(QStringLiteral("ToleranciaGruposAc"));
    toleranciaGruposAc_->setRange(0, 255);
    tolerancia->addWidget(toleranciaGruposAc_);
    tolerancia->addStretch();
    izquierda->addLayout(tolerancia);
    izquierda->addStretch();
    caja->addLayout(izquierda);
    limitesGrupoAc_ = new RejillaRangos({QStringLiteral("Aciertos"), QStringLiteral("Fallos")}, 15,
                                        kMagenta, contenido);
    limitesGrupoAc_->Tabla()->setObjectName(QStringLiteral("LimitesGrupoAc"));
    caja->addWidget(limitesGrupoAc_, 0, Qt::AlignTop);
    caja->addStretch();

    connect(anterior, &QPushButton::clicked, this, [this] {
        grupoAc_ = std::max(0, grupoAc_ - 1);
        Pintar();
    });
    connect(siguiente, &QPushButton::clicked, this, [this] {
        grupoAc_ = std::min(engine::kGrupos - 1, grupoAc_ + 1);
        Pintar();
    });
    connect(partidosGrupoAc_, &QTableWidget::cellClicked, this, [this](int fila, int columna) {
        auto& g = comb_.condiciones.gruposAc[static_cast<std::size_t>(grupoAc_)];
        if (columna == 0 || !engine::AlternarSignoGrupoAc(g, comb_.base, fila, columna - 1)) return;
        Pintar();
        emit cambiado();
    });
    connect(limitesGrupoAc_, &RejillaRangos::pulsada, this, [this](int columna, int fila) {
        auto& g = comb_.condiciones.gruposAc[static_cast<std::size_t>(grupoAc_)];
        engine::PulsarAciertosFallos(g, columna, fila);
        g.activo = true;
        comb_.condiciones.ultimoGrupoAc = engine::MaxAGr(comb_.condiciones);
        Pintar();
        emit cambiado();
    });
    connect(toleranciaGruposAc_, &QSpinBox::valueChanged, this, [this](int v) {
        if (pintando_) return;
        engine::FijarToleranciaGruposAc(comb_.condiciones, v, dialogo_);
        Pintar();
        emit cambiado();
    });
    pintores_.push_back([this] { MostrarGrupoAc(); });
    Pestana(QStringLiteral("Grupos Aciertos"), {}, engine::kCasillaGrupoAcMostrado, contenido);
}

void PaginaCondiciones::MostrarGrupoAc() {
    const auto& g = comb_.condiciones.gruposAc[static_cast<std::size_t>(grupoAc_)];
    tituloGrupoAc_->setText(QStringLiteral("Grupo nº %1").arg(grupoAc_ + 1));
    casillas_[engine::kCasillaGrupoAcMostrado]->setChecked(g.activo);
    for (int p = 0; p < engine::kPartidos; ++p) {
        partidosGrupoAc_->item(p, 0)->setText(Q(comb_.base.Equipos(p + 1)));
        for (int s = 0; s < 3; ++s) {
            const char signo = g.signos[static_cast<std::size_t>(p)][static_cast<std::size_t>(s)];
            auto* item = partidosGrupoAc_->item(p, s + 1);
            item->setText(signo == ' ' ? QString() : QString(QLatin1Char(signo)));
            item->setBackground(signo != ' '                   ? kMagenta
                                : comb_.base.Elegido(p + 1, s) ? QColor(Qt::white)
                                                               : kGris);
        }
    }
    const int n = g.numPartidos;
    limitesGrupoAc_->Mostrar(
        {{0, n, g.aciertosMin, g.aciertosMax}, {0, n, n - g.aciertosMax, n - g.aciertosMin}});
    toleranciaGruposAc_->setValue(comb_.condiciones.toleranciaGruposAc);
}

void PaginaCondiciones::CrearSumas() {
    auto* contenido = new QWidget;
    auto* caja = new QHBoxLayout(contenido);
    sumas_ = TablaFija(
        engine::kPartidos,
        {QStringLiteral("Partido"), QStringLiteral("1"), QStringLiteral("X"), QStringLiteral("2")},
        contenido);
    sumas_->setObjectName(QStringLiteral("RejillaSumas"));
    sumas_->setEditTriggers(QAbstractItemView::AllEditTriggers);
    sumas_->setSelectionMode(QAbstractItemView::SingleSelection);
    sumas_->setFocusPolicy(Qt::StrongFocus);
    sumas_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int c = 1; c <= 3; ++c)
        sumas_->setColumnWidth(
            c, sumas_->fontMetrics().horizontalAdvance(QStringLiteral("1000")) + 16);
    sumas_->setMinimumWidth(sumas_->fontMetrics().horizontalAdvance(
                                QStringLiteral("Atlético Madrid - Rayo Vallecano")) +
                            170);
    caja->addWidget(sumas_);
    auto* derecha = new QVBoxLayout;
    derecha->addWidget(Ayuda(
        QStringLiteral("Indique para cada partido las probabilidades de que se dé el Uno, la Equis "
                       "o el Dos. Para cada columna posible sumamos sus porcentajes. Ponga límites "
                       "mínimo y máximo  a las Sumas de las columnas que se jugarán."),
        contenido));
    auto* limites = new QGridLayout;
    sumaMinima_ = new QLineEdit(contenido);
    sumaMinima_->setObjectName(QStringLiteral("SumaMinima"));
    sumaMaxima_ = new QLineEdit(contenido);
    sumaMaxima_->setObjectName(QStringLiteral("SumaMaxima"));
    sumaMasBaja_ = new QLabel(contenido);
    sumaMasBaja_->setObjectName(QStringLiteral("SumaMasBaja"));
    sumaMasAlta_ = new QLabel(contenido);
    sumaMasAlta_->setObjectName(QStringLiteral("SumaMasAlta"));
    limites->addWidget(new QLabel(QStringLiteral("Suma mínima"), contenido), 0, 0);
    limites->addWidget(sumaMinima_, 0, 1);
    limites->addWidget(sumaMasBaja_, 0, 2);
    limites->addWidget(new QLabel(QStringLiteral("Suma máxima"), contenido), 1, 0);
    limites->addWidget(sumaMaxima_, 1, 1);
    limites->addWidget(sumaMasAlta_, 1, 2);
    limites->setColumnStretch(3, 1);
    for (auto* campo : {sumaMinima_, sumaMaxima_}) {
        // Solo cifras.
        campo->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), campo));
        campo->setMaximumWidth(campo->fontMetrics().horizontalAdvance(QStringLiteral("00000")) +
                               16);
    }
    derecha->addLayout(limites);
    auto* automatico = new QPushButton(QStringLiteral("% &Automático"), contenido);
    automatico->setObjectName(QStringLiteral("BotonAutomatico"));
    connect(automatico, &QPushButton::clicked, this, &PaginaCondiciones::automatico);
    derecha->addWidget(automatico, 0, Qt::AlignLeft);
    derecha->addStretch();
    caja->addLayout(derecha, 1);

    connect(sumas_, &QTableWidget::cellChanged, this, [this](int fila, int columna) {
        if (pintando_ || columna == 0) return;
        CambioEnSumas(fila, columna - 1);
    });
    // Con la casilla encendida, un límite nuevo se valida y se guarda como al encenderla.
    for (auto* campo : {sumaMinima_, sumaMaxima_}) {
        connect(campo, &QLineEdit::editingFinished, this, [this] {
            if (comb_.condiciones.casilla[engine::kCasillaSumas]) ActivarSumas();
        });
    }
    pintores_.push_back([this] { MostrarSumas(); });
    Pestana(QStringLiteral("Sumas"), QStringLiteral("Sumas de probabilidades"),
            engine::kCasillaSumas, contenido);
}

// Lo que la pantalla guarda mientras se escribe (las celdas de Sumas, sus límites, los datos de
// una Comparación aún no activada) se toma de las condiciones solo al abrir o reiniciar.
void PaginaCondiciones::Cargar() {
    const auto& c = comb_.condiciones;
    for (std::size_t r = 0; r < engine::kComparacionesFilas; ++r) {
        const auto& comp = c.comparaciones[r];
        const std::array<int, 5> v = {comp.signoIzq, comp.listaIzq, comp.operador, comp.signoDer,
                                      comp.listaDer};
        for (std::size_t k = 0; k < 5; ++k) datosComparacion_[r][k]->setCurrentIndex(v[k]);
    }
    for (std::size_t p = 0; p < engine::kPartidos; ++p) {
        for (std::size_t s = 0; s < 3; ++s) rejillaSumas_[p][s] = c.sumasTabla[s][p];
    }
    const bool hay = c.sumaMinima != 0 || c.sumaMaxima != 0;
    sumaMinima_->setText(hay ? QString::number(c.sumaMinima) : QString());
    sumaMaxima_->setText(hay ? QString::number(c.sumaMaxima) : QString());
}

// Una celda escrita: en blanco deja la fila sin completar; con un número, SumaCien rehace la fila
// y pasa a SumasTabla.
void PaginaCondiciones::CambioEnSumas(int fila, int signo) {
    auto& f = rejillaSumas_[static_cast<std::size_t>(fila)];
    const QString texto = sumas_->item(fila, signo + 1)->text().trimmed();
    f[static_cast<std::size_t>(signo)] =
        texto.isEmpty() ? std::nullopt : std::optional<int>(texto.toInt());
    if (!texto.isEmpty()) {
        engine::SumaCien(f, signo);
        for (std::size_t s = 0; s < 3; ++s)
            comb_.condiciones.sumasTabla[s][static_cast<std::size_t>(fila)] =
                static_cast<std::uint8_t>(f[s].value_or(0));
    }
    if (!engine::ConSumas(rejillaSumas_)) comb_.condiciones.casilla[engine::kCasillaSumas] = false;
    engine::AnularResultados(comb_);
    Pintar();
    emit cambiado();
}

void PaginaCondiciones::PonerPorcentajes(
    const std::array<std::array<int, 3>, engine::kPartidos>& tabla) {
    for (std::size_t p = 0; p < engine::kPartidos; ++p) {
        for (std::size_t s = 0; s < 3; ++s) {
            rejillaSumas_[p][s] = tabla[p][s];
            comb_.condiciones.sumasTabla[s][p] = static_cast<std::uint8_t>(tabla[p][s]);
        }
    }
    engine::AnularResultados(comb_);
    Pintar();
    emit cambiado();
}

void PaginaCondiciones::ActivarSumas() {
    const auto numero = [](QLineEdit* campo) {
        return campo->text().isEmpty() ? std::nullopt : std::optional<int>(campo->text().toInt());
    };
    engine::ActivarSumas(comb_, rejillaSumas_, numero(sumaMinima_), numero(sumaMaxima_), dialogo_);
    Pintar();
    emit cambiado();
}

// ConSumas: las sumas más baja y más alta posibles; con una celda en blanco, los límites en
// blanco y bloqueados.
void PaginaCondiciones::MostrarSumas() {
    for (int p = 0; p < engine::kPartidos; ++p) {
        sumas_->item(p, 0)->setText(Q(comb_.base.Equipos(p + 1)));
        sumas_->item(p, 0)->setFlags(Qt::ItemIsEnabled);
        for (std::size_t s = 0; s < 3; ++s) {
            const auto& v = rejillaSumas_[static_cast<std::size_t>(p)][s];
            sumas_->item(p, static_cast<int>(s) + 1)->setText(v ? QString::number(*v) : QString());
        }
    }
    const auto posibles = engine::ConSumas(rejillaSumas_);
    sumaMasBaja_->setText(posibles ? QString::number(posibles->first) : QString());
    sumaMasAlta_->setText(posibles ? QString::number(posibles->second) : QString());
    for (auto* campo : {sumaMinima_, sumaMaxima_}) {
        if (!posibles) campo->clear();
        campo->setEnabled(posibles.has_value());
    }
}

void PaginaCondiciones::CrearComparaciones() {
    auto* contenido = new QWidget;
    auto* caja = new QVBoxLayout(contenido);
    caja->addWidget(Ayuda(
        QStringLiteral("Incluya los partidos que quiera en cada columna y establezca comparaciones "
                       "de Unos, Equis o Doses entre las columnas"),
        contenido));
    auto* fila = new QHBoxLayout;
    listas_ = TablaFija(engine::kPartidos,
                        {QStringLiteral("Partido"), QStringLiteral("A"), QStringLiteral("B"),
                         QStringLiteral("C"), QStringLiteral("D")},
                        contenido);
    listas_->setObjectName(QStringLiteral("RejillaComparaciones"));
    listas_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int c = 1; c <= 4; ++c)
        listas_->setColumnWidth(
            c, listas_->fontMetrics().horizontalAdvance(QStringLiteral("1X2")) + 16);
    listas_->setMinimumWidth(listas_->fontMetrics().horizontalAdvance(
                                 QStringLiteral("Atlético Madrid - Rayo Vallecano")) +
                             200);
    fila->addWidget(listas_);
    auto* filas = new QGridLayout;
    const QStringList signos = {QStringLiteral("1"), QStringLiteral("X"), QStringLiteral("2")};
    const QStringList columnas = {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
                                  QStringLiteral("D")};
    const QStringList operadores = {QStringLiteral("<"), QStringLiteral("<="), QStringLiteral("="),
                                    QStringLiteral(">="), QStringLiteral(">")};
    for (std::size_t r = 0; r < engine::kComparacionesFilas; ++r) {
        const int f = static_cast<int>(r);
        auto* activa = new QCheckBox(contenido);
        activa->setObjectName(QStringLiteral("Comparacion%1").arg(f));
        filas->addWidget(activa, f, 0);
        std::array<QComboBox*, 5> campos{};
        const std::array<const QStringList*, 5> textos = {&signos, &columnas, &operadores, &signos,
                                                          &columnas};
        for (std::size_t k = 0; k < 5; ++k) {
            campos[k] = new QComboBox(contenido);
            campos[k]->setObjectName(QStringLiteral("Comparacion%1Dato%2").arg(f).arg(k));
            campos[k]->addItem(QString());
            campos[k]->addItems(*textos[k]);
            filas->addWidget(campos[k], f, static_cast<int>(k) + 1);
        }
        connect(activa, &QCheckBox::toggled, this, [this, r, activa, campos](bool on) {
            if (pintando_) return;
            const int fila = static_cast<int>(r);
            if (!on) {
                engine::DesactivarComparacion(comb_, fila);
            } else {
                const auto v = [&](std::size_t k) {
                    return static_cast<std::uint8_t>(campos[k]->currentIndex());
                };
                const engine::Comparacion datos{1, v(0), v(1), v(2), v(3), v(4)};
                if (!engine::ActivarComparacion(comb_, fila, datos, dialogo_)) {
                    const QSignalBlocker bloqueo(activa);
                    activa->setChecked(false);
                    return;
                }
            }
            Pintar();
            emit cambiado();
        });
        datosComparacion_[r] = campos;
        pintores_.push_back([this, r, activa] {
            activa->setChecked(comb_.condiciones.comparaciones[r].activa == 1);
        });
    }
    fila->addLayout(filas);
    fila->addStretch();
    caja->addLayout(fila);
    caja->addStretch();
    connect(listas_, &QTableWidget::cellClicked, this, [this](int fila, int columna) {
        if (columna == 0) return;
        engine::AlternarPartidoLista(comb_.condiciones, columna, fila + 1);
        engine::AnularResultados(comb_);
        Pintar();
        emit cambiado();
    });
    pintores_.push_back([this] { MostrarComparaciones(); });
    Pestana(QStringLiteral("Comparaciones"), QStringLiteral("Comparaciones"),
            engine::kCasillaComparaciones, contenido);
}

void PaginaCondiciones::MostrarComparaciones() {
    const auto& c = comb_.condiciones;
    for (int p = 0; p < engine::kPartidos; ++p) {
        listas_->item(p, 0)->setText(Q(comb_.base.Equipos(p + 1)));
        QString signos;
        for (int s = 0; s < 3; ++s) {
            if (comb_.base.Elegido(p + 1, s))
                signos += QLatin1Char(engine::kSignos[static_cast<std::size_t>(s)]);
        }
        for (std::size_t l = 0; l < 4; ++l) {
            const auto fin = c.listas[l].begin() + 1 + c.numListas[l];
            const bool en = std::find(c.listas[l].begin() + 1, fin, p + 1) != fin;
            listas_->item(p, static_cast<int>(l) + 1)->setText(en ? signos : QString());
        }
    }
}

void PaginaCondiciones::CrearRepeticiones() {
    auto* contenido = new QWidget;
    auto* rejilla = new QGridLayout(contenido);
    rejilla->addWidget(new QLabel(QStringLiteral("Longitud"), contenido), 0, 1);
    rejilla->addWidget(new QLabel(QStringLiteral("Límite"), contenido), 0, 2);
    const std::array<QString, 4> nombres = {
        QStringLiteral("Unos repetidos"), QStringLiteral("Equis repetidas"),
        QStringLiteral("Doses repetidos"), QStringLiteral("Variantes repetidas")};
    for (std::size_t k = 0; k < 4; ++k) {
        const int f = static_cast<int>(k) + 1;
        rejilla->addWidget(new QLabel(nombres[k], contenido), f, 0);
        auto* largo = new QComboBox(contenido);
        largo->setObjectName(QStringLiteral("LongRep") + kClases[k]);
        auto* limite = new QComboBox(contenido);
        limite->setObjectName(QStringLiteral("LimiteRep") + kClases[k]);
        largo->addItem(QString(), 0);
        limite->addItem(QString(), 0);
        for (int v = 1; v <= 14; ++v) largo->addItem(QString::number(v), v);
        for (int v = 1; v <= 7; ++v) limite->addItem(QString::number(v), v);
        rejilla->addWidget(largo, f, 1);
        rejilla->addWidget(limite, f, 2);
        // Elegir la longitud borra el límite de ese signo; el límite con longitud enciende la
        // familia.
        connect(largo, &QComboBox::activated, this, [this, k, largo](int i) {
            engine::ElegirLargoRepeticion(comb_, static_cast<int>(k), largo->itemData(i).toInt());
            Pintar();
            emit cambiado();
        });
        connect(limite, &QComboBox::activated, this, [this, k, limite](int i) {
            engine::ElegirLimiteRepeticion(comb_, static_cast<int>(k), limite->itemData(i).toInt());
            Pintar();
            emit cambiado();
        });
        pintores_.push_back([this, k, largo, limite] {
            const auto& c = comb_.condiciones;
            largo->setCurrentIndex(largo->findData(c.longRep[k]));
            limite->setCurrentIndex(limite->findData(c.longRep[k] > 0 ? c.limiteRep[k] : 0));
            limite->setEnabled(c.longRep[k] > 0);
        });
    }
    rejilla->setRowStretch(5, 1);
    rejilla->setColumnStretch(3, 1);
    Pestana(QStringLiteral("Repeticiones"), QStringLiteral("Repeticiones"),
            engine::kCasillaRepeticiones, contenido);
}

void PaginaCondiciones::Mostrar() {
    Cargar();
    Pintar();
}

void PaginaCondiciones::Pintar() {
    pintando_ = true;
    for (std::size_t i = 0; i < casillas_.size(); ++i) {
        if (i == engine::kCasillaGrupoMostrado || i == engine::kCasillaGrupoAcMostrado ||
            casillas_[i] == nullptr)
            continue;
        casillas_[i]->setChecked(comb_.condiciones.casilla[i]);
    }
    for (const auto& pintar : pintores_) pintar();
    pintando_ = false;
}

void PaginaCondiciones::AlEntrar() {
    if (toleranciaGrupos_->text().isEmpty()) toleranciaGrupos_->setValue(0);
    if (toleranciaGruposAc_->text().isEmpty()) toleranciaGruposAc_->setValue(0);
    Pintar();
}

}  // namespace quinteva::ui
