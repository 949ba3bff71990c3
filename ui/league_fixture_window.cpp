#include "ui/league_fixture_window.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

VentanaJornadasLigaQt::VentanaJornadasLigaQt(const std::filesystem::path& carpetaTemporada,
                                             std::string temporada, const base::Ajustes& ajustes,
                                             base::Dialogo& dialogo, QWidget* madre)
    : QDialog(madre),
      dialogo_(dialogo),
      jornadas_(carpetaTemporada, std::move(temporada), ajustes, dialogo) {
    setObjectName(QStringLiteral("VentanaJornadasLiga"));
    setWindowTitle(QStringLiteral("Jornadas de Liga"));
    auto* caja = new QVBoxLayout(this);

    auto* arriba = new QHBoxLayout;
    division_ = SelectorDivision(this, arriba);
    jornada_ = SelectorJornada(this, arriba);
    fecha_ = new QLineEdit(this);
    fecha_->setObjectName(QStringLiteral("CampoFecha"));
    fecha_->setPlaceholderText(QStringLiteral("Fecha"));
    fecha_->setMaxLength(8);
    fecha_->setFixedWidth(fecha_->fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) +
                          16);
    fecha_->installEventFilter(this);
    arriba->addWidget(fecha_);
    arriba->addStretch();
    caja->addLayout(arriba);

    auto* centro = new QHBoxLayout;
    rejilla_ = RejillaPartidos(this, {QStringLiteral("Local"), QStringLiteral("Visitante")});
    rejilla_->setContextMenuPolicy(Qt::CustomContextMenu);
    centro->addWidget(rejilla_, 2);
    equipos_ = new QListWidget(this);
    equipos_->setObjectName(QStringLiteral("ListaEquipos"));
    equipos_->setContextMenuPolicy(Qt::CustomContextMenu);
    centro->addWidget(equipos_, 1);
    caja->addLayout(centro, 1);

    auto* botones = new QHBoxLayout;
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Guardar"), QStringLiteral("BotonGuardar")),
            &QPushButton::clicked, this, &VentanaJornadasLigaQt::Guardar);
    connect(BotonVentana(this, botones, QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar")),
            &QPushButton::clicked, this, &QDialog::accept);
    caja->addLayout(botones);

    connect(division_, &QComboBox::currentIndexChanged, this,
            [this](int indice) { Manejar([&] { jornadas_.ElegirDivision(indice + 1); }); });
    connect(jornada_, &QComboBox::currentIndexChanged, this,
            [this](int indice) { Manejar([&] { jornadas_.ElegirJornada(indice + 1); }); });
    connect(fecha_, &QLineEdit::textEdited, this,
            [this](const QString& texto) { jornadas_.EscribirFecha(S(texto)); });
    connect(equipos_, &QListWidget::customContextMenuRequested, this,
            &VentanaJornadasLigaQt::MenuDeEquipos);
    connect(equipos_, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* equipo) { Agregar(equipo->text()); });
    connect(rejilla_, &QTableWidget::customContextMenuRequested, this,
            &VentanaJornadasLigaQt::MenuDeRejilla);
    connect(rejilla_, &QTableWidget::currentCellChanged, this, [this](int fila, int columna) {
        jornadas_.ElegirCelda({fila, columna});
    });

    Manejar([this] { jornadas_.ElegirDivision(1); });
    resize(640, 520);
}

template <typename F>
void VentanaJornadasLigaQt::Manejar(F&& mandato) {
    ConAviso(dialogo_, mandato);
    Refrescar();
}

bool VentanaJornadasLigaQt::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == fecha_ && evento->type() == QEvent::KeyPress) {
        const QString texto = static_cast<QKeyEvent*>(evento)->text();
        if (texto.size() == 1 && texto.at(0).isPrint() &&
            !jornadas_.TeclaFecha(texto.at(0).toLatin1())) {
            return true;
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

void VentanaJornadasLigaQt::MenuDeEquipos(const QPoint& donde) {
    QListWidgetItem* equipo = equipos_->itemAt(donde);
    if (equipo == nullptr) return;
    const QString nombre = equipo->text();
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("MenuEquipo"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("Agregar")), &QAction::triggered, this,
            [this, nombre] { Agregar(nombre); });
    connect(menu->addAction(QStringLiteral("Reemplazar")), &QAction::triggered, this,
            [this, nombre] { Manejar([&] { jornadas_.Reemplazar(S(nombre)); }); });
    menu->popup(equipos_->viewport()->mapToGlobal(donde));
}

void VentanaJornadasLigaQt::MenuDeRejilla(const QPoint& donde) {
    const QModelIndex celda = rejilla_->indexAt(donde);
    if (!celda.isValid()) return;
    jornadas_.ElegirCelda({celda.row(), celda.column()});
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("MenuCelda"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("Borrar")), &QAction::triggered, this,
            [this] { Manejar([&] { jornadas_.Vaciar(); }); });
    menu->popup(rejilla_->viewport()->mapToGlobal(donde));
}

void VentanaJornadasLigaQt::Agregar(const QString& equipo) {
    Manejar([&] { jornadas_.Agregar(S(equipo)); });
}

void VentanaJornadasLigaQt::Guardar() {
    Manejar([&] { jornadas_.Guardar(); });
}

void VentanaJornadasLigaQt::Refrescar() {
    PonerJornadas(jornada_, jornadas_.Jornadas(), jornadas_.Jornada());
    {
        const QSignalBlocker bloqueo(division_);
        division_->setCurrentIndex(jornadas_.Division() - 1);
    }
    if (S(fecha_->text()) != jornadas_.Fecha()) fecha_->setText(Q(jornadas_.Fecha()));
    equipos_->clear();
    for (const auto& e : jornadas_.Equipos()) equipos_->addItem(Q(e));
    const QSignalBlocker bloqueo(rejilla_);
    rejilla_->setRowCount(static_cast<int>(jornadas_.Rejilla().size()));
    for (int f = 0; f < rejilla_->rowCount(); ++f) {
        for (int c = 0; c < 2; ++c) {
            PonerCelda(
                rejilla_, f, c,
                Q(jornadas_.Rejilla()[static_cast<std::size_t>(f)][static_cast<std::size_t>(c)]));
        }
    }
    rejilla_->setCurrentCell(jornadas_.Elegida().fila, jornadas_.Elegida().columna);
}

}  // namespace quinteva::ui
