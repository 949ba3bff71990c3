#include "ui/slip_print_window.h"

#include <QBoxLayout>
#include <QFormLayout>
#include <QGroupBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

VentanaImprimirBoletos::VentanaImprimirBoletos(ColumnasAImprimir columnas, base::Ajustes& ajustes,
                                               base::Dialogo& dialogo, Imprimir imprimir,
                                               QWidget* madre)
    : VentanaDeImpresion(std::move(columnas), ajustes, dialogo, std::move(imprimir), madre),
      boletos_(ajustes, dialogo) {
    setObjectName(QStringLiteral("VentanaImprimirBoletos"));
    Construir(QStringLiteral("Imprimir en Boletos oficiales"), PanelDeAjuste());
}

QGroupBox* VentanaImprimirBoletos::PanelDeAjuste() {
    auto* panel = new QGroupBox(QStringLiteral("Ajuste de la impresora"), this);
    panel->setObjectName(QStringLiteral("PanelAjuste"));
    auto* caja = new QVBoxLayout(panel);
    auto* impresion = new QGroupBox(QStringLiteral("Impresión"), panel);
    auto* direcciones = new QHBoxLayout(impresion);
    vertical_ = new QRadioButton(QStringLiteral("Vertical"), impresion);
    vertical_->setObjectName(QStringLiteral("OpcionVertical"));
    apaisada_ = new QRadioButton(QStringLiteral("Apaisada"), impresion);
    apaisada_->setObjectName(QStringLiteral("OpcionApaisada"));
    direcciones->addWidget(vertical_);
    direcciones->addWidget(apaisada_);
    caja->addWidget(impresion);
    auto* formulario = new QFormLayout;
    const std::array<const char*, 4> nombres = {"CampoAjuste1", "CampoAjuste2", "CampoAjuste3",
                                                "CampoAjuste4"};
    const std::array<QString, 4> etiquetas = {QStringLiteral("Izquierda:"),
                                              QStringLiteral("Arriba:"), QStringLiteral("Derecha:"),
                                              QStringLiteral("Abajo:")};
    for (std::size_t i = 0; i < campos_.size(); ++i) {
        campos_[i] = new QLineEdit(panel);
        campos_[i]->setObjectName(QString::fromLatin1(nombres[i]));
        campos_[i]->setValidator(new QIntValidator(-9999, 99999, campos_[i]));
        formulario->addRow(etiquetas[i], campos_[i]);
    }
    caja->addLayout(formulario);
    // Al cambiar de dirección, los campos con lo guardado de la nueva.
    connect(vertical_, &QRadioButton::toggled, this,
            [this] { PonerCampos(boletos_.ValoresDe(DireccionDelPanel())); });
    auto* fila1 = new QHBoxLayout;
    auto* fila2 = new QHBoxLayout;
    connect(BotonVentana(panel, fila1, QStringLiteral("&Prueba"), QStringLiteral("BotonPrueba")),
            &QPushButton::clicked, this,
            [this] { Enviar([this] { return boletos_.Prueba(DireccionDelPanel(), Campos()); }); });
    connect(
        BotonVentana(panel, fila1, QStringLiteral("&Restaurar"), QStringLiteral("BotonRestaurar")),
        &QPushButton::clicked, this,
        [this] { PonerCampos(outputs::ValoresDeRestaurar(DireccionDelPanel())); });
    connect(BotonVentana(panel, fila1, QStringLiteral("I&mprimir"),
                         QStringLiteral("BotonImprimirAjuste")),
            &QPushButton::clicked, this, [this] {
                Enviar([this]() -> std::optional<outputs::Impresion> {
                    if (!boletos_.Ajustar(DireccionDelPanel(), Campos())) return std::nullopt;
                    return Uno(BoletoElegido());
                });
            });
    connect(BotonVentana(panel, fila2, QStringLiteral("&Aceptar"), QStringLiteral("BotonAceptar")),
            &QPushButton::clicked, this, [this] {
                if (boletos_.Aceptar(DireccionDelPanel(), Campos())) OcultarAjuste();
            });
    connect(
        BotonVentana(panel, fila2, QStringLiteral("&Cancelar"), QStringLiteral("BotonCancelar")),
        &QPushButton::clicked, this, &VentanaImprimirBoletos::OcultarAjuste);
    caja->addLayout(fila1);
    caja->addLayout(fila2);
    return panel;
}

void VentanaImprimirBoletos::LlenarAjuste() {
    const QSignalBlocker quieto(vertical_);
    const bool vertical = boletos_.DireccionElegida() == outputs::Direccion::Vertical;
    vertical_->setChecked(vertical);
    apaisada_->setChecked(!vertical);
    PonerCampos(boletos_.ValoresDe(boletos_.DireccionElegida()));
}

outputs::Direccion VentanaImprimirBoletos::DireccionDelPanel() const {
    return vertical_->isChecked() ? outputs::Direccion::Vertical : outputs::Direccion::Apaisada;
}

outputs::CamposAjuste VentanaImprimirBoletos::Campos() const {
    outputs::CamposAjuste campos;
    for (std::size_t i = 0; i < campos.size(); ++i) campos[i] = S(campos_[i]->text());
    return campos;
}

void VentanaImprimirBoletos::PonerCampos(const outputs::ValoresAjuste& valores) {
    for (std::size_t i = 0; i < valores.size(); ++i)
        campos_[i]->setText(QString::number(valores[i]));
}

std::optional<outputs::Impresion> VentanaImprimirBoletos::Uno(int boleto) {
    return boletos_.ImprimirUno(columnas_.activas, boleto, columnas_.fecha);
}

std::optional<outputs::Impresion> VentanaImprimirBoletos::Todos(std::int32_t desde,
                                                                std::int32_t hasta) {
    return boletos_.ImprimirTodos(columnas_.activas, desde, hasta, columnas_.fecha);
}

}  // namespace quinteva::ui
