#include "ui/pools_results_window.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {
namespace {

constexpr int kColumnaSigno = 2;

}  // namespace

VentanaResultadosQuinielaQt::VentanaResultadosQuinielaQt(
    const std::filesystem::path& carpetaTemporada, std::string temporada, base::Dialogo& dialogo,
    QWidget* madre)
    : QDialog(madre),
      dialogo_(dialogo),
      resultados_(carpetaTemporada, std::move(temporada), dialogo) {
    setObjectName(QStringLiteral("VentanaResultadosQuiniela"));
    setWindowTitle(QStringLiteral("Introducir o Ver Resultados"));
    auto* caja = new QVBoxLayout(this);
    auto* arriba = new QHBoxLayout;
    jornada_ = SelectorJornada(this, arriba);
    for (int j : resultados_.Jornadas()) jornada_->addItem(QString::number(j));
    jornada_->setCurrentIndex(-1);
    arriba->addStretch();
    caja->addLayout(arriba);

    rejilla_ = RejillaPartidos(
        this, {QStringLiteral("Local"), QStringLiteral("Visitante"), QStringLiteral("Signo")});
    rejilla_->setRowCount(seasons::kPartidosBoleto);
    rejilla_->horizontalHeader()->setSectionResizeMode(kColumnaSigno,
                                                       QHeaderView::ResizeToContents);
    rejilla_->setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                              QAbstractItemView::EditKeyPressed);
    caja->addWidget(rejilla_, 1);
    fecha_ = new QLabel(this);
    fecha_->setObjectName(QStringLiteral("EtiquetaFecha"));
    caja->addWidget(fecha_);

    auto* botones = new QHBoxLayout;
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Guardar"), QStringLiteral("BotonGuardar")),
            &QPushButton::clicked, this, &VentanaResultadosQuinielaQt::Guardar);
    connect(BotonVentana(this, botones, QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar")),
            &QPushButton::clicked, this, &QDialog::accept);
    caja->addLayout(botones);

    connect(jornada_, &QComboBox::currentIndexChanged, this, [this](int indice) {
        if (indice >= 0)
            Manejar([&] { resultados_.ElegirJornada(jornada_->itemText(indice).toInt()); });
    });
    connect(rejilla_, &QTableWidget::cellChanged, this, &VentanaResultadosQuinielaQt::SignoEditado);
    Refrescar();
    resize(560, 620);
}

template <typename F>
void VentanaResultadosQuinielaQt::Manejar(F&& mandato) {
    ConAviso(dialogo_, mandato);
    Refrescar();
}

// Lo escrito en la celda del signo: si no se toma, vuelve lo que había.
void VentanaResultadosQuinielaQt::SignoEditado(int fila, int columna) {
    if (columna != kColumnaSigno) return;
    resultados_.EscribirSigno(fila, S(rejilla_->item(fila, columna)->text().trimmed()));
    Refrescar();
}

void VentanaResultadosQuinielaQt::Guardar() {
    bool guardados = false;
    Manejar([&] { guardados = resultados_.Guardar(); });
    if (guardados) emit resultadosGuardados();
}

void VentanaResultadosQuinielaQt::Refrescar() {
    const QSignalBlocker bloqueo(rejilla_);
    for (int f = 0; f < seasons::kPartidosBoleto; ++f) {
        const seasons::FilaSigno& fila = resultados_.Rejilla()[static_cast<std::size_t>(f)];
        PonerCelda(rejilla_, f, 0, Q(fila.local));
        PonerCelda(rejilla_, f, 1, Q(fila.visitante));
        PonerCelda(rejilla_, f, kColumnaSigno, Q(fila.signo));
        QTableWidgetItem* signo = rejilla_->item(f, kColumnaSigno);
        signo->setTextAlignment(Qt::AlignCenter);
        signo->setFlags(resultados_.Jornada() ? signo->flags() | Qt::ItemIsEditable
                                              : signo->flags() & ~Qt::ItemIsEditable);
    }
    fecha_->setText(resultados_.Fecha().empty()
                        ? QString()
                        : QStringLiteral("Fecha: ") + Q(resultados_.Fecha()));
}

}  // namespace quinteva::ui
