#include "ui/base_page.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "ui/info_panel.h"
#include "ui/qt_text.h"

namespace quinteva::ui {
namespace {

constexpr int kFilaPleno = engine::QuinielaBase::kFilas - 1;
const QColor kElegido(200, 235, 200);
const QColor kPleno(255, 248, 210);

bool EsNavegacion(int tecla) {
    switch (tecla) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
            return true;
        default:
            return false;
    }
}

}  // namespace

PaginaBase::PaginaBase(QWidget* madre) : QWidget(madre) {
    setObjectName(QStringLiteral("PaginaBase"));
    auto* caja = new QHBoxLayout(this);
    auto* izquierda = new QVBoxLayout;
    auto* arriba = new QHBoxLayout;
    arriba->addWidget(new QLabel(QStringLiteral("Jornada"), this));
    jornadas_ = new QComboBox(this);
    jornadas_->setObjectName(QStringLiteral("ListaJornadas"));
    jornadas_->setMinimumContentsLength(4);
    arriba->addWidget(jornadas_);
    fecha_ = new QLabel(this);
    fecha_->setObjectName(QStringLiteral("FechaJornada"));
    fecha_->setMinimumWidth(fecha_->fontMetrics().horizontalAdvance(QStringLiteral("00/00/00")) +
                            8);
    arriba->addWidget(fecha_);
    arriba->addStretch();
    izquierda->addLayout(arriba);

    rejilla_ =
        new QTableWidget(engine::QuinielaBase::kFilas, engine::QuinielaBase::kColumnas, this);
    rejilla_->setObjectName(QStringLiteral("RejillaBase"));
    rejilla_->setHorizontalHeaderLabels({QStringLiteral("Nº"), QStringLiteral("Local - Visitante"),
                                         QStringLiteral("1"), QStringLiteral("X"),
                                         QStringLiteral("2")});
    rejilla_->verticalHeader()->hide();
    rejilla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla_->setSelectionMode(QAbstractItemView::SingleSelection);
    rejilla_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rejilla_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int alto = rejilla_->fontMetrics().height() + 8;
    rejilla_->verticalHeader()->setDefaultSectionSize(alto);
    auto* cabecera = rejilla_->horizontalHeader();
    cabecera->setSectionResizeMode(QHeaderView::Fixed);
    cabecera->setSectionResizeMode(1, QHeaderView::Stretch);
    const int signo = rejilla_->fontMetrics().horizontalAdvance(QStringLiteral("MM")) + 16;
    rejilla_->setColumnWidth(0,
                             rejilla_->fontMetrics().horizontalAdvance(QStringLiteral("15")) + 16);
    for (int c = 2; c <= 4; ++c) rejilla_->setColumnWidth(c, signo);
    rejilla_->setMinimumWidth(rejilla_->fontMetrics().horizontalAdvance(
                                  QStringLiteral("Atlético Madrid - Rayo Vallecano")) +
                              4 * signo + 40);
    rejilla_->setFixedHeight(alto * engine::QuinielaBase::kFilas + cabecera->sizeHint().height() +
                             4);
    for (int f = 0; f < engine::QuinielaBase::kFilas; ++f) {
        for (int c = 0; c < engine::QuinielaBase::kColumnas; ++c) {
            auto* item = new QTableWidgetItem;
            item->setTextAlignment(c == 1 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
            if (f == kFilaPleno && c >= 2) item->setBackground(kPleno);
            rejilla_->setItem(f, c, item);
        }
    }
    rejilla_->installEventFilter(this);
    connect(rejilla_, &QTableWidget::cellClicked, this, &PaginaBase::Pulsada);
    connect(rejilla_, &QTableWidget::currentCellChanged, this,
            [this](int fila, int columna) { CeldaActual(fila, columna); });
    izquierda->addWidget(rejilla_);

    auto* rapidas = new QGroupBox(QStringLiteral("Quinielas rápidas"), this);
    auto* botones = new QHBoxLayout(rapidas);
    const auto rapida = [&](const char* nombre, const char* texto, void (PaginaBase::*senal)()) {
        auto* b = new QPushButton(QString::fromUtf8(texto), rapidas);
        b->setObjectName(QString::fromUtf8(nombre));
        connect(b, &QPushButton::clicked, this, senal);
        botones->addWidget(b);
    };
    rapida("BotonPorcentajes", "Quiniela por Porcentajes", &PaginaBase::porPorcentajes);
    rapida("BotonMuyReducida", "Quiniela muy reducida", &PaginaBase::muyReducida);
    rapida("BotonBasica", "Generar Quin. Básica", &PaginaBase::rapidaBasica);
    auto* ponderar = new QPushButton(QStringLiteral("Ponderar equipos"), rapidas);
    ponderar->setObjectName(QStringLiteral("BotonPonderar"));
    connect(ponderar, &QPushButton::clicked, this, &PaginaBase::ponderar);
    botones->addWidget(ponderar);
    izquierda->addWidget(rapidas);
    izquierda->addStretch();
    caja->addLayout(izquierda, 3);

    info_ = new PanelInfo(this);
    caja->addWidget(info_, 2);

    connect(jornadas_, &QComboBox::activated, this,
            [this](int indice) { emit jornadaElegida(jornadas_->itemData(indice).toInt()); });
}

QStringList PaginaBase::Partidos() const {
    QStringList partidos;
    for (int fila = 0; fila < engine::kPartidos; ++fila) {
        const QTableWidgetItem* celda = rejilla_->item(fila, 1);
        partidos << (celda != nullptr ? celda->text() : QString());
    }
    return partidos;
}

void PaginaBase::PonerJornadas(const std::vector<int>& jornadas) {
    const QSignalBlocker bloqueo(jornadas_);
    jornadas_->clear();
    for (int j : jornadas) jornadas_->addItem(QString::number(j), j);
    jornadas_->setCurrentIndex(-1);
}

void PaginaBase::SeleccionarJornada(int jornada) {
    const QSignalBlocker bloqueo(jornadas_);
    jornadas_->setCurrentIndex(jornadas_->findData(jornada));
}

void PaginaBase::PonerFecha(const QString& fecha) { fecha_->setText(fecha); }

void PaginaBase::Mostrar(const engine::QuinielaBase& base) {
    for (int fila = 1; fila <= engine::QuinielaBase::kFilas; ++fila) {
        for (int c = 0; c < engine::QuinielaBase::kColumnas; ++c) {
            auto* item = rejilla_->item(fila - 1, c);
            const QString texto = Q(base.Celda(fila, c));
            item->setText(texto);
            if (fila == engine::QuinielaBase::kFilas || c < 2) continue;
            const bool elegido = texto == QStringLiteral("X");
            QFont f = item->font();
            f.setBold(elegido);
            item->setFont(f);
            item->setBackground(elegido ? QBrush(kElegido) : QBrush());
        }
    }
}

void PaginaBase::Pulsada(int fila, int columna) {
    if (fila < kFilaPleno && columna >= 2) emit signoPulsado(fila + 1, columna - 2);
    if (fila < kFilaPleno && columna == 1) emit partidoElegido(fila + 1);
}

void PaginaBase::CeldaActual(int fila, int columna) {
    if (fila == kFilaPleno && (columna == 2 || columna == 4))
        emit golVisitado(columna == 2 ? 0 : 1);
}

bool PaginaBase::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto != rejilla_ || evento->type() != QEvent::KeyPress)
        return QWidget::eventFilter(objeto, evento);
    const auto* tecla = static_cast<QKeyEvent*>(evento);
    const int fila = rejilla_->currentRow();
    const int columna = rejilla_->currentColumn();
    if (fila != kFilaPleno || (columna != 2 && columna != 4) || EsNavegacion(tecla->key())) {
        return QWidget::eventFilter(objeto, evento);
    }
    emit golTecleado(columna == 2 ? 0 : 1, tecla->text());
    return true;
}

}  // namespace quinteva::ui
