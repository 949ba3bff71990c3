#include "ui/winning_columns_window.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "outputs/printed_reports.h"
#include "seasons/statistics.h"
#include "ui/qt_text.h"
#include "ui/report_grid.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

VentanaColumnasGanadoras::VentanaColumnasGanadoras(std::filesystem::path carpetaTemporada,
                                                   base::Dialogo& dialogo, Imprimir imprimir,
                                                   QWidget* madre)
    : QDialog(madre),
      carpetaTemporada_(std::move(carpetaTemporada)),
      dialogo_(dialogo),
      imprimir_(std::move(imprimir)) {
    setObjectName(QStringLiteral("VentanaColumnasGanadoras"));
    setWindowTitle(QStringLiteral("Columnas Ganadoras"));
    auto* caja = new QVBoxLayout(this);
    auto* arriba = new QHBoxLayout;
    arriba->addWidget(new QLabel(QStringLiteral("Temporada"), this));
    temporada_ = new QComboBox(this);
    temporada_->setObjectName(QStringLiteral("ListaTemporada"));
    ConAviso(dialogo_, [this] {
        auto entradas = seasons::TemporadasDeJornadas(carpetaTemporada_).entradas;
        entradas.pop_back();  // "Todas" no es de esta ventana
        for (const auto& t : entradas) temporada_->addItem(Q(t));
        temporada_->setCurrentIndex(temporada_->count() - 1);
    });
    arriba->addWidget(temporada_);
    arriba->addStretch();
    caja->addLayout(arriba);
    tabla_ = RejillaInforme(this, QStringLiteral("TablaColumnas"), 0,
                            {QStringLiteral("Jorn."), QStringLiteral("Columna")});
    tabla_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tabla_->horizontalHeader()->setStretchLastSection(true);
    tabla_->setFont(QFont(QStringLiteral("Courier New"), tabla_->font().pointSize()));
    caja->addWidget(tabla_, 1);
    auto* botones = new QHBoxLayout;
    connect(
        BotonVentana(this, botones, QStringLiteral("&Imprimir"), QStringLiteral("BotonImprimir")),
        &QPushButton::clicked, this, &VentanaColumnasGanadoras::ImprimirColumnas);
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar")),
            &QPushButton::clicked, this, &QDialog::accept);
    caja->addLayout(botones);
    connect(temporada_, &QComboBox::currentIndexChanged, this, &VentanaColumnasGanadoras::Llenar);
    Llenar();
    resize(420, 560);
}

void VentanaColumnasGanadoras::Llenar() {
    ConAviso(dialogo_, [this] {
        const auto filas =
            seasons::ColumnasGanadoras(carpetaTemporada_, S(temporada_->currentText()));
        tabla_->setRowCount(static_cast<int>(filas.size()));
        for (int f = 0; f < tabla_->rowCount(); ++f) {
            const auto& fila = filas[static_cast<std::size_t>(f)];
            tabla_->setItem(f, 0, CeldaInforme(QString::number(fila.jornada), false, true));
            tabla_->setItem(f, 1, CeldaInforme(Q(fila.columna), false, false));
        }
    });
}

void VentanaColumnasGanadoras::ImprimirColumnas() {
    ConAviso(dialogo_, [this] {
        const std::string temporada = S(temporada_->currentText());
        std::vector<std::pair<int, std::string>> filas;
        for (const auto& fila : seasons::ColumnasGanadoras(carpetaTemporada_, temporada)) {
            filas.emplace_back(fila.jornada, fila.columna);
        }
        imprimir_(outputs::ImpresionColumnasGanadoras(temporada, filas));
    });
}

}  // namespace quinteva::ui
