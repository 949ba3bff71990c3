#include "ui/statistics_window.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

#include "seasons/statistics.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {
namespace {

// Lo que se puede contar, en el orden del selector: 0 a 2 los signos por posición, 3 a 5 las
// rachas, y luego las combinaciones.
const QStringList kTipos = {QStringLiteral("Unos por posición"),
                            QStringLiteral("Equis por posición"),
                            QStringLiteral("Doses por posición"),
                            QStringLiteral("Unos seguidos"),
                            QStringLiteral("Equis seguidas"),
                            QStringLiteral("Doses seguidos"),
                            QStringLiteral("Parejas"),
                            QStringLiteral("Tríos"),
                            QStringLiteral("Grupos de ")};
constexpr int kParejas = 6;
constexpr int kTrios = 7;
constexpr int kGrupos = 8;
constexpr char kSignos[] = {'1', 'X', '2'};

QFont FuenteTitulos() {
    QFont fuente(QStringLiteral("Arial"), 10);
    fuente.setBold(true);
    return fuente;
}

}  // namespace

VentanaEstadisticas::VentanaEstadisticas(std::filesystem::path carpetaTemporada,
                                         base::Dialogo& dialogo, QWidget* madre)
    : QDialog(madre), carpetaTemporada_(std::move(carpetaTemporada)), dialogo_(dialogo) {
    setObjectName(QStringLiteral("VentanaEstadisticas"));
    setWindowTitle(QStringLiteral("Estadísticas"));
    auto* caja = new QVBoxLayout(this);
    auto* arriba = new QHBoxLayout;
    arriba->addWidget(new QLabel(QStringLiteral("Temporada"), this));
    temporada_ = new QComboBox(this);
    temporada_->setObjectName(QStringLiteral("ListaTemporada"));
    ConAviso(dialogo_, [this] {
        const auto selector = seasons::TemporadasDeJornadas(carpetaTemporada_);
        for (const auto& t : selector.entradas) temporada_->addItem(Q(t));
        temporada_->setCurrentIndex(selector.elegida);
    });
    arriba->addWidget(temporada_);
    tipo_ = new QComboBox(this);
    tipo_->setObjectName(QStringLiteral("ListaTipo"));
    tipo_->addItems(kTipos);
    arriba->addWidget(tipo_);
    grupo_ = new QSpinBox(this);
    grupo_->setObjectName(QStringLiteral("NumeroGrupo"));
    grupo_->setRange(4, static_cast<int>(posiciones_.size()));
    arriba->addWidget(grupo_);
    for (std::size_t i = 0; i < posiciones_.size(); ++i) {
        posiciones_[i] = new QComboBox(this);
        posiciones_[i]->setObjectName(QStringLiteral("Posicion%1").arg(i + 1));
        for (int p = 1; p <= 14; ++p) posiciones_[i]->addItem(QString::number(p));
        posiciones_[i]->setCurrentIndex(static_cast<int>(i));
        arriba->addWidget(posiciones_[i]);
        connect(posiciones_[i], &QComboBox::currentIndexChanged, this,
                &VentanaEstadisticas::Dibujar);
    }
    arriba->addStretch();
    caja->addLayout(arriba);
    etiqueta_ = new QLabel(this);
    etiqueta_->setObjectName(QStringLiteral("EtiquetaCombinacion"));
    caja->addWidget(etiqueta_);
    vista_ = new QChartView(new QChart, this);
    vista_->setObjectName(QStringLiteral("Grafico"));
    vista_->setRenderHint(QPainter::Antialiasing);
    caja->addWidget(vista_, 1);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar")),
            &QPushButton::clicked, this, &QDialog::accept);
    caja->addLayout(botones);

    connect(temporada_, &QComboBox::currentIndexChanged, this, &VentanaEstadisticas::Dibujar);
    connect(tipo_, &QComboBox::currentIndexChanged, this, &VentanaEstadisticas::Dibujar);
    connect(grupo_, &QSpinBox::valueChanged, this, &VentanaEstadisticas::Dibujar);
    Dibujar();
    resize(900, 560);
}

int VentanaEstadisticas::PosicionesPedidas() const {
    switch (tipo_->currentIndex()) {
        case kParejas:
            return 2;
        case kTrios:
            return 3;
        case kGrupos:
            return grupo_->value();
        default:
            return 0;
    }
}

void VentanaEstadisticas::Dibujar() {
    const int pedidas = PosicionesPedidas();
    grupo_->setVisible(tipo_->currentIndex() == kGrupos);
    for (std::size_t i = 0; i < posiciones_.size(); ++i) {
        posiciones_[i]->setVisible(static_cast<int>(i) < pedidas);
    }
    QStringList categorias;
    auto* barras = new QBarSet(temporada_->currentText());
    ConAviso(dialogo_, [&] {
        const auto columnas =
            seasons::ColumnasDeTemporada(carpetaTemporada_, S(temporada_->currentText()));
        const int tipo = tipo_->currentIndex();
        if (tipo < 3) {
            const auto veces = seasons::SignosPorPosicion(columnas, kSignos[tipo]);
            for (std::size_t p = 0; p < veces.size(); ++p) {
                categorias << QString::number(p + 1);
                *barras << veces[p];
            }
        } else if (tipo < kParejas) {
            const auto veces = seasons::Rachas(columnas, kSignos[tipo - 3]);
            for (std::size_t n = 0; n < veces.size(); ++n) {
                categorias << QString::number(n + 2);
                *barras << veces[n];
            }
        } else {
            std::vector<int> elegidas;
            for (int i = 0; i < pedidas; ++i) {
                elegidas.push_back(posiciones_[static_cast<std::size_t>(i)]->currentIndex() + 1);
            }
            for (const auto& c : seasons::CombinacionesEnPosiciones(columnas, elegidas)) {
                categorias << Q(c.signos);
                *barras << c.veces;
            }
            etiqueta_->setText(Q(seasons::EtiquetaCombinacion(elegidas)));
        }
    });
    etiqueta_->setVisible(pedidas > 0);

    auto* serie = new QBarSeries;
    serie->append(barras);
    auto* grafico = new QChart;
    grafico->addSeries(serie);
    grafico->legend()->setVisible(false);
    auto* ejeX = new QBarCategoryAxis;
    ejeX->append(categorias);
    ejeX->setTitleText(QStringLiteral("Número"));
    ejeX->setTitleFont(FuenteTitulos());
    auto* ejeY = new QValueAxis;
    ejeY->setTitleText(QStringLiteral("Veces en Temporada"));
    ejeY->setTitleFont(FuenteTitulos());
    ejeY->setLabelFormat(QStringLiteral("%d"));
    double mayor = 0;
    for (int i = 0; i < barras->count(); ++i) mayor = std::max(mayor, barras->at(i));
    // Marcas en números enteros: de 1 en 1 hasta 10 veces, y luego a pasos enteros.
    const double paso = std::max(1.0, std::ceil(mayor / 10));
    ejeY->setRange(0, std::max(paso, std::ceil(mayor / paso) * paso));
    ejeY->setTickType(QValueAxis::TicksDynamic);
    ejeY->setTickAnchor(0);
    ejeY->setTickInterval(paso);
    grafico->addAxis(ejeX, Qt::AlignBottom);
    grafico->addAxis(ejeY, Qt::AlignLeft);
    serie->attachAxis(ejeX);
    serie->attachAxis(ejeY);
    QChart* anterior = vista_->chart();
    vista_->setChart(grafico);
    delete anterior;
}

}  // namespace quinteva::ui
