#include "ui/quick_basic_window.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "ui/columns_price_boxes.h"
#include "ui/help_window.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"
#include "ui/working_label.h"

namespace quinteva::ui {

VentanaRapidaBasica::VentanaRapidaBasica(const engine::SetCondiciones& condiciones,
                                         float precioColumna, QWidget* madre)
    : QDialog(madre) {
    setObjectName(QStringLiteral("VentanaRapidaBasica"));
    setWindowTitle(QStringLiteral("Quiniela rápida Básica"));
    auto* caja = new QVBoxLayout(this);
    cajas_ = new CajasColumnasPrecio(precioColumna, this);
    caja->addWidget(cajas_);
    auto* grupo = new QGroupBox(QStringLiteral("Condiciones (opcionales)"), this);
    auto* rejilla = new QGridLayout(grupo);
    rejilla->addWidget(new QLabel(QStringLiteral("Mínimo"), grupo), 0, 1);
    rejilla->addWidget(new QLabel(QStringLiteral("Máximo"), grupo), 0, 2);
    for (int f = 0; f < builders::kFilasBasica; ++f) {
        const auto u = static_cast<std::size_t>(f);
        marcas_[u] = new QCheckBox(Q(builders::kRotulosBasica[u]), grupo);
        marcas_[u]->setObjectName(QStringLiteral("MarcaBasica%1").arg(f));
        rejilla->addWidget(marcas_[u], f + 1, 0);
        connect(marcas_[u], &QCheckBox::clicked, this, [this, f](bool m) { Marcada(f, m); });
        const auto [desde, hasta] = builders::RangoDeFila(condiciones, f);
        for (int lado = 0; lado < 2; ++lado) {
            auto* lista = new QComboBox(grupo);
            lista->setObjectName(
                QStringLiteral("%1Basica%2")
                    .arg(lado == 0 ? QStringLiteral("Minimo") : QStringLiteral("Maximo"))
                    .arg(f));
            for (int v = desde; v <= hasta; ++v) lista->addItem(QString::number(v));
            lista->setCurrentIndex(-1);
            connect(lista, &QComboBox::activated, this,
                    [this, u] { marcas_[u]->setChecked(true); });
            listas_[u][static_cast<std::size_t>(lado)] = lista;
            rejilla->addWidget(lista, f + 1, lado + 1);
        }
    }
    caja->addWidget(grupo);
    trabajando_ = new EtiquetaTrabajo(this);
    caja->addWidget(trabajando_);
    auto* botones = new QHBoxLayout;
    auto* generar = BotonVentana(this, botones, QStringLiteral("&Generar"),
                                 QStringLiteral("BotonGenerarBasica"));
    connect(generar, &QPushButton::clicked, this, &VentanaRapidaBasica::generar);
    cajas_->IntroLlevaA(generar);
    ConectarAyuda(
        BotonVentana(this, botones, QStringLiteral("Ay&uda"), QStringLiteral("BotonAyuda")));
    connect(BotonVentana(this, botones, QStringLiteral("&Salir"), QStringLiteral("BotonSalir")),
            &QPushButton::clicked, this, &QDialog::close);
    caja->addLayout(botones);
}

void VentanaRapidaBasica::Marcada(int fila, bool marcada) {
    const auto u = static_cast<std::size_t>(fila);
    if (!marcada) {
        for (QComboBox* lista : listas_[u]) lista->setCurrentIndex(-1);
        emit desmarcada(fila);
        return;
    }
    // Marcar una fila sin nada elegido no la marca.
    if (listas_[u][0]->currentIndex() < 0 && listas_[u][1]->currentIndex() < 0) {
        marcas_[u]->setChecked(false);
    }
}

builders::LimitesBasica VentanaRapidaBasica::Limites() const {
    builders::LimitesBasica limites{};
    for (std::size_t f = 0; f < limites.size(); ++f) {
        const auto valor = [](const QComboBox* lista) -> std::optional<int> {
            if (lista->currentIndex() < 0) return std::nullopt;
            return lista->currentText().toInt();
        };
        limites[f] = {valor(listas_[f][0]), valor(listas_[f][1])};
    }
    return limites;
}

QString VentanaRapidaBasica::Numero() const { return cajas_->Numero(); }

void VentanaRapidaBasica::EnfocarNumero() { cajas_->EnfocarNumero(); }

void VentanaRapidaBasica::Trabajando(bool trabajando) { trabajando_->Trabajando(trabajando); }

}  // namespace quinteva::ui
