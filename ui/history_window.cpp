#include "ui/history_window.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "seasons/statistics.h"
#include "ui/qt_text.h"
#include "ui/report_grid.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {
namespace {

QComboBox* Lista(QWidget* madre, const QString& nombre) {
    auto* lista = new QComboBox(madre);
    lista->setObjectName(nombre);
    return lista;
}

}  // namespace

VentanaHistorico::VentanaHistorico(Entorno entorno, QWidget* madre)
    : QDialog(madre), e_(std::move(entorno)) {
    setObjectName(QStringLiteral("VentanaHistorico"));
    setWindowTitle(QStringLiteral("Histórico de Resultados"));
    auto* caja = new QVBoxLayout(this);
    caja->addWidget(CrearSeleccion());
    tabla_ = RejillaInforme(
        this, QStringLiteral("TablaHistorico"), 0,
        {QStringLiteral("Fecha"), QStringLiteral("Local"), QStringLiteral("Visitante"),
         QStringLiteral("Gol."), QStringLiteral("Gol."), QString()});
    tabla_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tabla_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    tabla_->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
    caja->addWidget(tabla_, 1);

    auto* herramientas = new QHBoxLayout;
    connect(BotonVentana(this, herramientas, QStringLiteral("Añadir del Jlig2 temporada a hist."),
                         QStringLiteral("BotonAnadirJlig2")),
            &QPushButton::clicked, this, &VentanaHistorico::AnadirJlig2);
    existente_ = new QLineEdit(this);
    existente_->setObjectName(QStringLiteral("CampoNombreExistente"));
    existente_->setPlaceholderText(QStringLiteral("Nombre Eq existente"));
    existente_->setMaxLength(15);
    nuevo_ = new QLineEdit(this);
    nuevo_->setObjectName(QStringLiteral("CampoNombreNuevo"));
    nuevo_->setPlaceholderText(QStringLiteral("Nombre Eq nuevo"));
    nuevo_->setMaxLength(15);
    for (QLineEdit* campo : {existente_, nuevo_}) {
        campo->setMinimumWidth(campo->fontMetrics().horizontalAdvance(campo->placeholderText()) +
                               20);
        herramientas->addWidget(campo);
    }
    connect(BotonVentana(this, herramientas, QStringLiteral("Cambiar nombre Eq"),
                         QStringLiteral("BotonCambiarNombre")),
            &QPushButton::clicked, this, &VentanaHistorico::CambiarNombre);
    herramientas->addStretch();
    connect(
        BotonVentana(this, herramientas, QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar")),
        &QPushButton::clicked, this, &QDialog::accept);
    caja->addLayout(herramientas);
    resize(760, 560);
}

QWidget* VentanaHistorico::CrearSeleccion() {
    auto* grupo = new QGroupBox(QStringLiteral("Seleccione"), this);
    auto* rejilla = new QGridLayout(grupo);
    equipos_ = new QRadioButton(QStringLiteral("Equipos"), grupo);
    equipos_->setObjectName(QStringLiteral("ModoEquipos"));
    equipos_->setChecked(true);
    partidos_ = new QRadioButton(QStringLiteral("Partidos"), grupo);
    partidos_->setObjectName(QStringLiteral("ModoPartidos"));
    jornadas_ = new QRadioButton(QStringLiteral("Jornadas"), grupo);
    jornadas_->setObjectName(QStringLiteral("ModoJornadas"));
    equipo1_ = Lista(grupo, QStringLiteral("ListaEquipo1"));
    equipo2_ = Lista(grupo, QStringLiteral("ListaEquipo2"));
    ConAviso(e_.dialogo, [this] {
        for (const auto& nombre : seasons::NombresDelHistorico(e_.carpetaDatos)) {
            equipo1_->addItem(Q(nombre));
            equipo2_->addItem(Q(nombre));
        }
    });
    equipo1_->setCurrentIndex(-1);
    equipo2_->setCurrentIndex(-1);
    temporada_ = Lista(grupo, QStringLiteral("ListaTemporada"));
    LlenarTemporadas();
    division_ = Lista(grupo, QStringLiteral("ListaDivision"));
    division_->addItems({QStringLiteral("1ª"), QStringLiteral("2ª")});
    division_->setCurrentIndex(-1);
    jornada_ = Lista(grupo, QStringLiteral("ListaJornada"));
    for (int j = 1; j <= 2 * 21; ++j) jornada_->addItem(QString::number(j));
    jornada_->setCurrentIndex(-1);
    auto* buscar = new QPushButton(QStringLiteral("&Buscar"), grupo);
    buscar->setObjectName(QStringLiteral("BotonBuscar"));
    buscar->setAutoDefault(false);
    connect(buscar, &QPushButton::clicked, this, &VentanaHistorico::Buscar);

    rejilla->addWidget(equipos_, 0, 0);
    rejilla->addWidget(equipo1_, 0, 1);
    rejilla->addWidget(partidos_, 1, 0);
    rejilla->addWidget(equipo2_, 1, 1);
    rejilla->addWidget(jornadas_, 2, 0);
    auto* jornada = new QHBoxLayout;
    for (QComboBox* lista : {temporada_, division_, jornada_}) jornada->addWidget(lista);
    rejilla->addLayout(jornada, 2, 1);
    rejilla->addWidget(buscar, 0, 2, 3, 1);
    rejilla->setColumnStretch(1, 1);
    return grupo;
}

void VentanaHistorico::LlenarTemporadas() {
    temporada_->clear();
    ConAviso(e_.dialogo, [this] {
        for (const auto& t : seasons::TemporadasDeHistorico(e_.carpetaTrabajo)) {
            temporada_->addItem(Q(t));
        }
    });
    temporada_->setCurrentIndex(-1);
}

void VentanaHistorico::Buscar() {
    using seasons::BusquedaHistorico;
    const BusquedaHistorico busqueda =
        equipos_->isChecked() ? BusquedaHistorico::DeEquipo(S(equipo1_->currentText()))
        : partidos_->isChecked()
            ? BusquedaHistorico::DePartidos(S(equipo1_->currentText()), S(equipo2_->currentText()))
            : BusquedaHistorico::DeJornada(S(temporada_->currentText()),
                                           division_->currentIndex() + 1,
                                           jornada_->currentIndex() + 1);
    tabla_->setRowCount(0);
    ConAviso(e_.dialogo, [&] {
        const auto filas = seasons::BuscarEnHistorico(e_.carpetaTrabajo, busqueda,
                                                      e_.temporadaEnCurso, e_.ajustes);
        tabla_->setRowCount(static_cast<int>(filas.size()));
        for (int f = 0; f < tabla_->rowCount(); ++f) {
            const auto& fila = filas[static_cast<std::size_t>(f)];
            const QStringList celdas = {Q(fila.fecha),
                                        Q(fila.local),
                                        Q(fila.visitante),
                                        QString::number(fila.golesLocal),
                                        QString::number(fila.golesVisitante),
                                        Q(fila.signo)};
            for (int c = 0; c < celdas.size(); ++c) {
                tabla_->setItem(f, c, CeldaInforme(celdas[c], false, c >= 3));
            }
        }
    });
}

void VentanaHistorico::AnadirJlig2() {
    ConAviso(e_.dialogo, [this] {
        seasons::AnadirJlig2AHistorico(e_.carpetaTrabajo);
        e_.dialogo.Mensaje("Proceso terminado.");
    });
    LlenarTemporadas();
}

void VentanaHistorico::CambiarNombre() {
    if (existente_->text().trimmed().isEmpty() || nuevo_->text().trimmed().isEmpty()) return;
    ConAviso(e_.dialogo, [this] {
        seasons::CambiarNombreEnHistorico(e_.carpetaTrabajo, S(existente_->text().trimmed()),
                                          S(nuevo_->text().trimmed()));
        e_.dialogo.Mensaje("Proceso terminado.");
    });
}

}  // namespace quinteva::ui
