#include "ui/bets_list_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "base/formats.h"
#include "base/record_files.h"
#include "engine/columns.h"
#include "engine/combination.h"
#include "outputs/played_set.h"
#include "outputs/printed_reports.h"
#include "ui/report_grid.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

VentanaListado::VentanaListado(const QString& rotulo, const std::filesystem::path& carpetaTrabajo,
                               std::int32_t totalGeneradas, std::int32_t totalReducidas,
                               Impresion impresion, QWidget* madre)
    : QDialog(madre), impresion_(std::move(impresion)) {
    setObjectName(QStringLiteral("VentanaListado"));
    setWindowTitle(QStringLiteral("Quinteva [Listado de Apuestas]"));
    // La prueba sobre el texto del rótulo es la que elige el almacén.
    const bool condicionadas = rotulo.right(4) == QStringLiteral("adas");
    almacen_ = carpetaTrabajo / (condicionadas ? engine::kCmbTmp : engine::kRedTmp);
    total_ = condicionadas ? totalGeneradas : totalReducidas;

    auto* caja = new QVBoxLayout(this);
    auto* titulo = new QLabel(rotulo, this);
    titulo->setObjectName(QStringLiteral("RotuloListado"));
    titulo->setStyleSheet(QStringLiteral("font-weight: bold"));
    caja->addWidget(titulo);
    auto* fila = new QHBoxLayout;
    lista_ = new QListWidget(this);
    lista_->setObjectName(QStringLiteral("ListaApuestas"));
    lista_->setSelectionMode(QAbstractItemView::NoSelection);
    QFont fija(QStringLiteral("Courier New"));
    fija.setStyleHint(QFont::Monospace);
    lista_->setFont(fija);
    const QFontMetrics medidas(fija);
    lista_->setMinimumSize(
        medidas.horizontalAdvance(QStringLiteral("0.000.000  11111111111111")) + 40,
        medidas.height() * 20);
    fila->addWidget(lista_, 1);
    barra_ = new QScrollBar(Qt::Vertical, this);
    barra_->setObjectName(QStringLiteral("BarraListado"));
    barra_->setRange(1, std::max(1, (total_ + kFilasPorPagina - 1) / kFilasPorPagina));
    barra_->setPageStep(1);
    fila->addWidget(barra_);
    caja->addLayout(fila);
    auto* aviso = new QLabel(
        QStringLiteral("Aparecen en rojo las apuestas eliminadas manualmente de la combinación"),
        this);
    aviso->setWordWrap(true);
    caja->addWidget(aviso);
    connect(BotonesListado(this, caja), &QPushButton::clicked, this,
            &VentanaListado::ImprimirListado);
    connect(barra_, &QScrollBar::valueChanged, this, &VentanaListado::Escrol);
    Escrol();
}

void VentanaListado::Escrol() {
    lista_->clear();
    const std::int32_t hay =
        std::min(total_, base::CuentaRegistros(almacen_, engine::RegistroColumna::kLongitud));
    if (hay <= 0) return;
    const base::ArchivoDe<engine::RegistroColumna> archivo(almacen_);
    const std::int32_t desde = (barra_->value() - 1) * kFilasPorPagina + 1;
    for (std::int32_t n = desde; n < desde + kFilasPorPagina && n <= hay; ++n) {
        const engine::RegistroColumna registro = archivo.Leer(n);
        const std::string texto = base::Formato(n, "#,##0") + '\t' +
                                  std::string(registro.columna.begin(), registro.columna.end());
        auto* item = new QListWidgetItem(QString::fromStdString(texto), lista_);
        if (registro.estado == engine::kEliminada) item->setForeground(Qt::red);
    }
}

void VentanaListado::ImprimirListado() {
    if (total_ > outputs::kColumnasSinPreguntar &&
        impresion_.dialogo.PreguntaSiNo(outputs::PreguntaImprimirListado(total_)) !=
            base::Respuesta::Si) {
        return;
    }
    ConAviso(impresion_.dialogo, [this] {
        const auto columnas = outputs::LeerColumnas(almacen_, false);
        const auto hasta = std::min<std::size_t>(columnas.size(), static_cast<std::size_t>(total_));
        impresion_.imprimir(
            outputs::ImpresionListado(impresion_.jornada, std::span(columnas.data(), hasta)));
    });
}

}  // namespace quinteva::ui
