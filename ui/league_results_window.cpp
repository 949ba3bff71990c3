#include "ui/league_results_window.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {
namespace {

// Las dos columnas de goles van tras las de los equipos.
constexpr int kColumnaGoles = 2;

}  // namespace

VentanaResultadosLigaQt::VentanaResultadosLigaQt(const std::filesystem::path& carpetaTrabajo,
                                                 const std::filesystem::path& carpetaTemporada,
                                                 std::string temporada, base::Ajustes& ajustes,
                                                 base::Dialogo& dialogo,
                                                 std::optional<double> fechaQuiniela,
                                                 QWidget* madre)
    : QDialog(madre),
      dialogo_(dialogo),
      resultados_(carpetaTrabajo, carpetaTemporada, std::move(temporada), ajustes, dialogo) {
    setObjectName(QStringLiteral("VentanaResultadosLiga"));
    setWindowTitle(QStringLiteral("Introducir o Ver Resultados"));
    auto* caja = new QVBoxLayout(this);
    auto* arriba = new QHBoxLayout;
    division_ = SelectorDivision(this, arriba);
    jornada_ = SelectorJornada(this, arriba);
    arriba->addStretch();
    caja->addLayout(arriba);

    rejilla_ = RejillaPartidos(this, {QStringLiteral("Local"), QStringLiteral("Visitante"),
                                      QStringLiteral("Goles"), QStringLiteral("Goles")});
    rejilla_->horizontalHeader()->setSectionResizeMode(kColumnaGoles,
                                                       QHeaderView::ResizeToContents);
    rejilla_->horizontalHeader()->setSectionResizeMode(kColumnaGoles + 1,
                                                       QHeaderView::ResizeToContents);
    rejilla_->installEventFilter(this);
    caja->addWidget(rejilla_, 1);
    fecha_ = new QLabel(this);
    fecha_->setObjectName(QStringLiteral("EtiquetaFecha"));
    caja->addWidget(fecha_);

    auto* botones = new QHBoxLayout;
    botones->addStretch();
    guardar_ =
        BotonVentana(this, botones, QStringLiteral("&Guardar"), QStringLiteral("BotonGuardar"));
    connect(guardar_, &QPushButton::clicked, this, &VentanaResultadosLigaQt::Guardar);
    connect(BotonVentana(this, botones, QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar")),
            &QPushButton::clicked, this, &QDialog::accept);
    caja->addLayout(botones);

    connect(division_, &QComboBox::currentIndexChanged, this,
            [this](int indice) { Manejar([&] { resultados_.ElegirDivision(indice + 1); }); });
    connect(jornada_, &QComboBox::currentIndexChanged, this,
            [this](int indice) { Manejar([&] { resultados_.ElegirJornada(indice + 1); }); });
    connect(rejilla_, &QTableWidget::currentCellChanged, this, [this](int fila, int columna) {
        if (columna >= kColumnaGoles) resultados_.ElegirCelda({fila, columna - kColumnaGoles});
    });

    // Al abrir, las cifras van a la rejilla y no a los selectores.
    rejilla_->setFocus();
    Manejar([&] {
        resultados_.ElegirDivision(1);
        if (fechaQuiniela) resultados_.IrALaFecha(*fechaQuiniela);
    });
    resize(560, 520);
}

template <typename F>
void VentanaResultadosLigaQt::Manejar(F&& mandato) {
    ConAviso(dialogo_, mandato);
    Refrescar();
}

bool VentanaResultadosLigaQt::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == rejilla_ && evento->type() == QEvent::KeyPress) {
        const auto* tecla = static_cast<QKeyEvent*>(evento);
        if (tecla->key() == Qt::Key_Delete) {
            Manejar([&] { resultados_.Borrar(); });
            return true;
        }
        const QString texto = tecla->text();
        if (texto.size() == 1 && texto.at(0).isPrint()) {
            Manejar([&] { resultados_.Tecla(texto.at(0).toLatin1()); });
            return true;
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

void VentanaResultadosLigaQt::Guardar() {
    bool guardados = false;
    Manejar([&] { guardados = resultados_.Guardar(); });
    if (guardados) emit resultadosGuardados();
}

void VentanaResultadosLigaQt::Refrescar() {
    PonerJornadas(jornada_, resultados_.Jornadas(), resultados_.Jornada());
    {
        const QSignalBlocker bloqueo(division_);
        division_->setCurrentIndex(resultados_.Division() - 1);
    }
    const auto& filas = resultados_.Rejilla();
    const QSignalBlocker bloqueo(rejilla_);
    rejilla_->setRowCount(static_cast<int>(filas.size()));
    for (int f = 0; f < rejilla_->rowCount(); ++f) {
        const seasons::FilaResultado& fila = filas[static_cast<std::size_t>(f)];
        PonerCelda(rejilla_, f, 0, Q(fila.local));
        PonerCelda(rejilla_, f, 1, Q(fila.visitante));
        PonerCelda(rejilla_, f, kColumnaGoles, Q(fila.golesLocal));
        PonerCelda(rejilla_, f, kColumnaGoles + 1, Q(fila.golesVisitante));
        for (int c = kColumnaGoles; c < kColumnaGoles + 2; ++c) {
            rejilla_->item(f, c)->setTextAlignment(Qt::AlignCenter);
        }
    }
    rejilla_->setCurrentCell(resultados_.Elegida().fila,
                             resultados_.Elegida().columna + kColumnaGoles);
    fecha_->setText(resultados_.Fecha().empty()
                        ? QString()
                        : QStringLiteral("Fecha: ") + Q(resultados_.Fecha()));
    guardar_->setEnabled(resultados_.PuedeGuardar());
}

}  // namespace quinteva::ui
