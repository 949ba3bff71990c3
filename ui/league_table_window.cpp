#include "ui/league_table_window.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "seasons/league_table.h"
#include "ui/report_grid.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {
namespace {

// Los colores de las bandas, como los pinta la rejilla.
QColor Color(seasons::ColorPuesto color) {
    switch (color) {
        case seasons::ColorPuesto::Verde:
            return QColor(0x80, 0xFF, 0x80);
        case seasons::ColorPuesto::Azul:
            return QColor(0xC0, 0xC0, 0xFF);
        case seasons::ColorPuesto::Rojo:
            return QColor(0xFF, 0x80, 0x80);
        default:
            return {};
    }
}

}  // namespace

VentanaClasificacion::VentanaClasificacion(std::filesystem::path carpetaTemporada,
                                           base::Ajustes& ajustes, base::Dialogo& dialogo,
                                           QWidget* madre)
    : QDialog(madre),
      carpetaTemporada_(std::move(carpetaTemporada)),
      ajustes_(ajustes),
      dialogo_(dialogo) {
    setObjectName(QStringLiteral("VentanaClasificacion"));
    setWindowTitle(QStringLiteral("Clasificación"));
    auto* caja = new QVBoxLayout(this);
    auto* arriba = new QHBoxLayout;
    arriba->addWidget(new QLabel(QStringLiteral("División"), this));
    division_ = new QComboBox(this);
    division_->setObjectName(QStringLiteral("ListaDivision"));
    division_->addItems({QStringLiteral("1ª"), QStringLiteral("2ª")});
    arriba->addWidget(division_);
    arriba->addStretch();
    auto* recalcular = new QPushButton(QStringLiteral("&Recalcular"), this);
    recalcular->setObjectName(QStringLiteral("BotonRecalcular"));
    recalcular->setAutoDefault(false);
    arriba->addWidget(recalcular);
    caja->addLayout(arriba);
    tabla_ = RejillaInforme(
        this, QStringLiteral("TablaClasificacion"), 0,
        {QStringLiteral("Nº"), QStringLiteral("EQUIPO"), QStringLiteral("Ptos."),
         QStringLiteral("J"), QStringLiteral("G"), QStringLiteral("E"), QStringLiteral("P"),
         QStringLiteral("GF"), QStringLiteral("GC"), QStringLiteral("DG")});
    tabla_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tabla_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    caja->addWidget(tabla_, 1);
    BotonAceptar(this, caja);
    connect(division_, &QComboBox::currentIndexChanged, this, &VentanaClasificacion::Llenar);
    connect(recalcular, &QPushButton::clicked, this, &VentanaClasificacion::Recalcular);
    Llenar();
    resize(560, 640);
}

int VentanaClasificacion::Division() const { return division_->currentIndex() + 1; }

void VentanaClasificacion::Llenar() {
    ConAviso(dialogo_, [this] {
        const auto filas = seasons::FilasClasificacion(carpetaTemporada_, Division(), ajustes_);
        tabla_->setRowCount(static_cast<int>(filas.size()));
        for (int f = 0; f < tabla_->rowCount(); ++f) {
            const auto& puesto = filas[static_cast<std::size_t>(f)];
            const QColor color = Color(seasons::ColorDelPuesto(Division(), f + 1));
            for (int c = 0; c < tabla_->columnCount(); ++c) {
                QString texto;
                if (puesto) {
                    const std::array<int, 8> cifras = {puesto->puntos,      puesto->jugados,
                                                       puesto->ganados,     puesto->empatados,
                                                       puesto->perdidos,    puesto->golesFavor,
                                                       puesto->golesContra, puesto->diferencia};
                    texto = c == 0   ? QString::number(puesto->posicion)
                            : c == 1 ? QString::fromStdString(puesto->nombre)
                                     : QString::number(cifras[static_cast<std::size_t>(c - 2)]);
                }
                QTableWidgetItem* celda = CeldaInforme(texto, false, c != 1);
                if (color.isValid()) celda->setBackground(color);
                tabla_->setItem(f, c, celda);
            }
        }
    });
}

void VentanaClasificacion::Recalcular() {
    bool hecho = true;
    ConAviso(dialogo_, [&] {
        hecho = seasons::Recalcular(carpetaTemporada_, Division(), ajustes_, dialogo_);
    });
    if (hecho) Llenar();
}

}  // namespace quinteva::ui
