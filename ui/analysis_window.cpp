#include "ui/analysis_window.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "outputs/analysis_view.h"
#include "ui/help_window.h"
#include "ui/qt_text.h"
#include "ui/report_grid.h"

namespace quinteva::ui {
namespace {

const QColor kPremiada(255, 236, 160);
constexpr std::string_view kFilaPremios = "Premios";

QTableWidget* Rejilla(QWidget* madre, const outputs::AnalisisDatos& analisis) {
    const auto& titulos = outputs::FilasAnalisis();
    QStringList cabeceras{QString()};
    for (const auto& c : analisis.columnas) cabeceras << Q(c.cabecera);
    auto* r = RejillaInforme(madre, QStringLiteral("RejillaAnalisis"),
                             static_cast<int>(titulos.size()), cabeceras);
    for (std::size_t f = 0; f < titulos.size(); ++f) {
        auto* titulo = CeldaInforme(Q(titulos[f]), true, false);
        titulo->setBackground(r->palette().button());
        r->setItem(static_cast<int>(f), 0, titulo);
        for (std::size_t c = 0; c < analisis.columnas.size(); ++c) {
            const auto& columna = analisis.columnas[c];
            auto* celda = CeldaInforme(Q(columna.celdas[f]), false, true);
            if (titulos[f] == kFilaPremios && columna.premiada) celda->setBackground(kPremiada);
            r->setItem(static_cast<int>(f), static_cast<int>(c) + 1, celda);
        }
    }
    r->resizeColumnToContents(0);
    const int jornada = r->fontMetrics().horizontalAdvance(QStringLiteral("Jorn. 00")) + 24;
    for (int c = 1; c < r->columnCount(); ++c) r->setColumnWidth(c, jornada);
    r->setMinimumSize(r->columnWidth(0) + 4 * jornada + 30,
                      r->verticalHeader()->defaultSectionSize() * static_cast<int>(titulos.size()) +
                          r->horizontalHeader()->sizeHint().height() + 4);
    return r;
}

QGroupBox* Resumen(QWidget* madre, const outputs::AnalisisDatos& analisis) {
    auto* panel = new QGroupBox(QStringLiteral("Resumen"), madre);
    panel->setObjectName(QStringLiteral("PanelResumen"));
    auto* formulario = new QFormLayout(panel);
    for (std::size_t i = 0; i < analisis.resumen.size(); ++i) {
        auto* valor = new QLabel(Q(analisis.resumen[i].valor), panel);
        valor->setObjectName(QStringLiteral("ValorResumen%1").arg(i));
        valor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        valor->setMinimumWidth(valor->fontMetrics().horizontalAdvance(QStringLiteral("100,00% ")));
        formulario->addRow(Q(analisis.resumen[i].etiqueta), valor);
    }
    return panel;
}

}  // namespace

VentanaAnalisisDatos::VentanaAnalisisDatos(const std::filesystem::path& carpetaTemporada,
                                           base::Dialogo& dialogo, QWidget* madre)
    : QDialog(madre) {
    setObjectName(QStringLiteral("VentanaAnalisisDatos"));
    setWindowTitle(QStringLiteral("Quinteva [Análisis de datos]"));
    setCursor(Qt::BusyCursor);
    const outputs::AnalisisDatos analisis = outputs::Contenido(carpetaTemporada, dialogo);
    unsetCursor();
    auto* caja = new QVBoxLayout(this);
    auto* fila = new QHBoxLayout;
    fila->addWidget(Rejilla(this, analisis), 1);
    fila->addWidget(Resumen(this, analisis));
    caja->addLayout(fila);
    auto* botones = new QHBoxLayout;
    // La ayuda llega con el archivo de ayuda.
    auto* ayuda = new QPushButton(QStringLiteral("Ay&uda"), this);
    ayuda->setObjectName(QStringLiteral("BotonAyuda"));
    ConectarAyuda(ayuda);
    auto* salir = new QPushButton(QStringLiteral("&Salir"), this);
    salir->setObjectName(QStringLiteral("BotonSalir"));
    botones->addStretch();
    botones->addWidget(ayuda);
    botones->addWidget(salir);
    caja->addLayout(botones);
    connect(salir, &QPushButton::clicked, this, &QDialog::accept);
}

}  // namespace quinteva::ui
