#include "ui/info_panel.h"
#include "ui/qt_text.h"

#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QTableWidget>
#include <QVBoxLayout>

namespace quinteva::ui {
namespace {

const QColor kColorLocal(0, 90, 200);
const QColor kColorVisitante(200, 60, 0);

QTableWidget* Rejilla(QWidget* madre, const QString& nombre, const QStringList& cabeceras) {
    auto* r = new QTableWidget(0, static_cast<int>(cabeceras.size()), madre);
    r->setObjectName(nombre);
    r->setHorizontalHeaderLabels(cabeceras);
    r->verticalHeader()->hide();
    r->verticalHeader()->setDefaultSectionSize(r->fontMetrics().height() + 4);
    r->setEditTriggers(QAbstractItemView::NoEditTriggers);
    r->setSelectionMode(QAbstractItemView::NoSelection);
    r->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    r->horizontalHeader()->setStretchLastSection(true);
    return r;
}

QStringList Cabeceras(auto cabeceras) {
    QStringList l;
    for (auto c : cabeceras) l << Q(c);
    return l;
}

void Celda(QTableWidget* r, int fila, int columna, const QString& texto, bool derecha = false) {
    auto* item = new QTableWidgetItem(texto);
    if (derecha) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    r->setItem(fila, columna, item);
}

// El puesto, los puntos y la Valoracion de un equipo que está en "Nomeq.rar".
QString Datos(const builders::FichaEquipo& ficha) {
    if (!ficha.encontrado) return {};
    return QStringLiteral("%1º, %2 ptos., Valoración %3")
        .arg(ficha.posicion)
        .arg(ficha.puntos)
        .arg(ficha.valoracion);
}

void Recientes(QTableWidget* r, const builders::FichaEquipo& ficha) {
    r->setRowCount(static_cast<int>(ficha.recientes.size()));
    int fila = 0;
    for (const auto& p : ficha.recientes) {
        Celda(r, fila, 0, Q(p.fecha));
        Celda(r, fila, 1, Q(p.local));
        Celda(r, fila, 2, Q(p.visitante));
        Celda(r, fila, 3, QStringLiteral("%1-%2").arg(p.golesLocal).arg(p.golesVisitante), true);
        ++fila;
    }
}

}  // namespace

GraficoPuestos::GraficoPuestos(QWidget* madre) : QWidget(madre) {
    setObjectName(QStringLiteral("GraficoPuestos"));
    setMinimumSize(300, 170);
}

void GraficoPuestos::Mostrar(const builders::InfoPartido& info) {
    info_ = info;
    update();
}

void GraficoPuestos::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), palette().base());
    QFont titulo = font();
    titulo.setBold(true);
    p.setFont(titulo);
    const int alto = p.fontMetrics().height();
    p.drawText(QRect(0, 2, width(), alto), Qt::AlignCenter, Q(builders::kTituloPuestos));
    p.setFont(font());
    const int equipos = info_.equipos;
    const int puntos = static_cast<int>(info_.local.puestos.size() > info_.visitante.puestos.size()
                                            ? info_.local.puestos.size()
                                            : info_.visitante.puestos.size());
    if (equipos <= 0 || puntos < 2) return;
    const QRect area(30, alto + 8, width() - 40, height() - alto - 26);
    p.setPen(palette().mid().color());
    p.drawRect(area);
    const auto x = [&](int jornada) {
        return area.left() + area.width() * (jornada - 1) / (puntos - 1);
    };
    const auto y = [&](int puesto) {
        return area.top() + area.height() * (puesto - 1) / (equipos > 1 ? equipos - 1 : 1);
    };
    p.setPen(palette().text().color());
    for (int puesto : {1, equipos}) {
        p.drawText(QRect(0, y(puesto) - alto / 2, 26, alto), Qt::AlignRight,
                   QString::number(puesto));
    }
    for (int j = 1; j <= puntos; j += 5) {
        p.drawText(QRect(x(j) - 15, area.bottom() + 2, 30, alto), Qt::AlignCenter,
                   QString::number(j));
    }
    const auto linea = [&](const std::vector<int>& puestos, const QColor& color) {
        p.setPen(QPen(color, 2));
        for (std::size_t j = 1; j < puestos.size(); ++j) {
            if (puestos[j - 1] == 0 || puestos[j] == 0) continue;
            const int a = static_cast<int>(j);
            p.drawLine(x(a), y(puestos[j - 1]), x(a + 1), y(puestos[j]));
        }
    };
    linea(info_.local.puestos, kColorLocal);
    linea(info_.visitante.puestos, kColorVisitante);
}

PanelInfo::PanelInfo(QWidget* madre) : QWidget(madre) {
    setObjectName(QStringLiteral("PanelInfo"));
    auto* caja = new QVBoxLayout(this);
    caja->setContentsMargins(0, 0, 0, 0);
    auto* nombres = new QHBoxLayout;
    local_ = new QLabel(this);
    local_->setObjectName(QStringLiteral("InfoLocal"));
    visitante_ = new QLabel(this);
    visitante_->setObjectName(QStringLiteral("InfoVisitante"));
    for (auto [etiqueta, color] :
         {std::pair{local_, kColorLocal}, std::pair{visitante_, kColorVisitante}}) {
        etiqueta->setStyleSheet(QStringLiteral("font-weight: bold; color: %1").arg(color.name()));
        nombres->addWidget(etiqueta);
    }
    caja->addLayout(nombres);
    auto* datos = new QHBoxLayout;
    datosLocal_ = new QLabel(this);
    datosLocal_->setObjectName(QStringLiteral("InfoDatosLocal"));
    datosVisitante_ = new QLabel(this);
    datosVisitante_->setObjectName(QStringLiteral("InfoDatosVisitante"));
    datos->addWidget(datosLocal_);
    datos->addWidget(datosVisitante_);
    caja->addLayout(datos);
    grafico_ = new GraficoPuestos(this);
    caja->addWidget(grafico_, 2);
    const QStringList recientes = Cabeceras(builders::kCabeceraRecientes);
    recientesLocal_ = Rejilla(this, QStringLiteral("RecientesLocal"), recientes);
    recientesVisitante_ = Rejilla(this, QStringLiteral("RecientesVisitante"), recientes);
    for (auto* r : {recientesLocal_, recientesVisitante_}) {
        // Cinco partidos sin barras: las columnas de los equipos se reparten el ancho.
        r->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        r->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        r->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
        r->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
        r->horizontalHeader()->setStretchLastSection(false);
        r->setFixedHeight(r->verticalHeader()->defaultSectionSize() *
                              static_cast<int>(builders::kPartidosRecientes) +
                          r->horizontalHeader()->sizeHint().height() + 4);
        caja->addWidget(r);
    }
    clasificacion_ =
        Rejilla(this, QStringLiteral("Clasificacion"), Cabeceras(builders::kCabeceraClasificacion));
    caja->addWidget(clasificacion_, 3);
}

void PanelInfo::Mostrar(const builders::InfoPartido& info) {
    local_->setText(Q(info.local.nombre));
    visitante_->setText(Q(info.visitante.nombre));
    datosLocal_->setText(Datos(info.local));
    datosVisitante_->setText(Datos(info.visitante));
    grafico_->Mostrar(info);
    Recientes(recientesLocal_, info.local);
    Recientes(recientesVisitante_, info.visitante);
    clasificacion_->setRowCount(static_cast<int>(info.clasificacion.size()));
    int fila = 0;
    for (const auto& c : info.clasificacion) {
        Celda(clasificacion_, fila, 0, QString::number(c.posicion), true);
        Celda(clasificacion_, fila, 1, QString::number(c.puntos), true);
        Celda(clasificacion_, fila, 2, QString::number(c.puntosCasa), true);
        Celda(clasificacion_, fila, 3, QString::number(c.puntosFuera), true);
        Celda(clasificacion_, fila, 4, Q(c.equipo));
        const bool suyo = c.equipo == info.local.nombre || c.equipo == info.visitante.nombre;
        for (int col = 0; col < 5 && suyo; ++col) {
            QFont f = clasificacion_->item(fila, col)->font();
            f.setBold(true);
            clasificacion_->item(fila, col)->setFont(f);
        }
        ++fila;
    }
}

}  // namespace quinteva::ui
