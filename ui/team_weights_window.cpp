#include "ui/team_weights_window.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

VentanaPonderar::VentanaPonderar(QStringList partidos, builders::PesosEquipos& pesos,
                                 QWidget* madre)
    : QDialog(madre), partidos_(std::move(partidos)), ponderacion_(pesos) {
    setObjectName(QStringLiteral("VentanaPonderar"));
    setWindowTitle(QStringLiteral("Ponderar equipos"));
    auto* caja = new QVBoxLayout(this);
    auto* cabecera = new QHBoxLayout;
    cabecera->addWidget(new QLabel(QStringLiteral("Partido"), this));
    numero_ = new QLabel(this);
    numero_->setObjectName(QStringLiteral("NumeroPartido"));
    cabecera->addWidget(numero_);
    cabecera->addStretch();
    caja->addLayout(cabecera);
    auto* rejilla = new QGridLayout;
    local_ = new QLabel(this);
    local_->setObjectName(QStringLiteral("EquipoLocal"));
    visitante_ = new QLabel(this);
    visitante_->setObjectName(QStringLiteral("EquipoVisitante"));
    for (QLabel* equipo : {local_, visitante_}) {
        QFont negrita = equipo->font();
        negrita.setBold(true);
        equipo->setFont(negrita);
    }
    rejilla->addWidget(local_, 0, 0);
    rejilla->addWidget(visitante_, 0, 1);
    for (int i = 0; i < 2 * builders::kFactores; ++i) {
        auto* marca = new QCheckBox(
            Q(builders::kCircunstancias[static_cast<std::size_t>(i % builders::kFactores)]), this);
        marca->setObjectName(QStringLiteral("Marca%1").arg(i));
        marcas_[static_cast<std::size_t>(i)] = marca;
        rejilla->addWidget(marca, 1 + i % builders::kFactores, i / builders::kFactores);
        connect(marca, &QCheckBox::clicked, this, [this, i](bool marcada) {
            ponderacion_.Marcar(i, marcada);
            Mostrar();
        });
    }
    caja->addLayout(rejilla);
    auto* botones = new QHBoxLayout;
    const auto ir = [this, botones](const QString& texto, const char* nombre, auto destino) {
        connect(BotonVentana(this, botones, texto, QString::fromLatin1(nombre)),
                &QPushButton::clicked, this, [this, destino] { IrA(destino()); });
    };
    ir(QStringLiteral("|<"), "BotonPrimero", [] { return 1; });
    ir(QStringLiteral("&Anterior"), "BotonAnterior", [this] { return ponderacion_.Partido() - 1; });
    ir(QStringLiteral("&Siguiente"), "BotonSiguiente",
       [this] { return ponderacion_.Partido() + 1; });
    ir(QStringLiteral(">|"), "BotonUltimo", [] { return engine::kPartidos; });
    botones->addStretch();
    connect(
        BotonVentana(this, botones, QStringLiteral("&Terminar"), QStringLiteral("BotonTerminar")),
        &QPushButton::clicked, this, &QDialog::close);
    caja->addLayout(botones);
    Mostrar();
}

void VentanaPonderar::IrA(int partido) {
    ponderacion_.IrA(partido);
    Mostrar();
}

void VentanaPonderar::Mostrar() {
    const int partido = ponderacion_.Partido();
    numero_->setText(QString::number(partido));
    const auto equipos = builders::EquiposDelPartido(
        partido <= partidos_.size() ? S(partidos_[partido - 1]) : std::string());
    local_->setText(Q(equipos.first));
    visitante_->setText(Q(equipos.second));
    for (std::size_t i = 0; i < marcas_.size(); ++i) {
        marcas_[i]->setChecked(ponderacion_.Marcas()[i]);
    }
}

void VentanaPonderar::closeEvent(QCloseEvent* evento) {
    ponderacion_.Terminar();
    QDialog::closeEvent(evento);
}

}  // namespace quinteva::ui
