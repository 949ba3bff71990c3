#include "ui/paper_print_window.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

namespace {

QString Decimal(float valor) { return QString::number(valor, 'g', 6).replace('.', ','); }

float LeerDecimal(const QLineEdit* campo) { return campo->text().replace(',', '.').toFloat(); }

}  // namespace

VentanaImprimirPapel::VentanaImprimirPapel(ColumnasAImprimir columnas, base::Ajustes& ajustes,
                                           base::Dialogo& dialogo, Imprimir imprimir,
                                           QWidget* madre)
    : VentanaDeImpresion(std::move(columnas), ajustes, dialogo, std::move(imprimir), madre),
      papel_(ajustes, dialogo, outputs::Direccion::Apaisada) {
    setObjectName(QStringLiteral("VentanaImprimirPapel"));
    Construir(QStringLiteral("Imprimir en papel blanco"), PanelDeAjuste());
}

QGroupBox* VentanaImprimirPapel::PanelDeAjuste() {
    auto* panel = new QGroupBox(QStringLiteral("Ajuste de impresión"), this);
    panel->setObjectName(QStringLiteral("PanelAjuste"));
    auto* caja = new QVBoxLayout(panel);
    auto* impresion = new QGroupBox(QStringLiteral("Impresión"), panel);
    auto* direcciones = new QHBoxLayout(impresion);
    vertical_ = new QRadioButton(QStringLiteral("Vertical"), impresion);
    vertical_->setObjectName(QStringLiteral("OpcionVertical"));
    auto* apaisada = new QRadioButton(QStringLiteral("Apaisada"), impresion);
    apaisada->setObjectName(QStringLiteral("OpcionApaisada"));
    apaisada->setChecked(true);
    direcciones->addWidget(vertical_);
    direcciones->addWidget(apaisada);
    caja->addWidget(impresion);
    auto* formulario = new QFormLayout;
    const auto campo = [panel, formulario](const QString& etiqueta, const char* nombre) {
        auto* c = new QLineEdit(panel);
        c->setObjectName(QString::fromLatin1(nombre));
        formulario->addRow(etiqueta, c);
        return c;
    };
    ancho_ = campo(QStringLiteral("Ancho del boleto (twips):"), "CampoAncho");
    alto_ = campo(QStringLiteral("Alto del boleto (twips):"), "CampoAlto");
    izquierdo_ = campo(QStringLiteral("Margen izquierdo (mm):"), "CampoMargenIzquierdo");
    superior_ = campo(QStringLiteral("Margen superior (mm):"), "CampoMargenSuperior");
    caja->addLayout(formulario);
    dorso_ = new QCheckBox(QStringLiteral("Imprimir en el dorso de los boletos"), panel);
    dorso_->setObjectName(QStringLiteral("MarcaDorso"));
    caja->addWidget(dorso_);
    connect(vertical_, &QRadioButton::toggled, this, [this](bool vertical) {
        papel_.ElegirDireccion(vertical ? outputs::Direccion::Vertical
                                        : outputs::Direccion::Apaisada);
    });
    auto* fila1 = new QHBoxLayout;
    auto* fila2 = new QHBoxLayout;
    connect(BotonVentana(panel, fila1, QStringLiteral("&Prueba"), QStringLiteral("BotonPrueba")),
            &QPushButton::clicked, this, [this] {
                Enviar([this] {
                    papel_.Ajustar(AjusteDelPanel());
                    return std::optional(papel_.Prueba());
                });
            });
    connect(
        BotonVentana(panel, fila1, QStringLiteral("&Restaurar"), QStringLiteral("BotonRestaurar")),
        &QPushButton::clicked, this, [this] { PonerAjuste(outputs::AjustePapel{}); });
    connect(BotonVentana(panel, fila1, QStringLiteral("I&mprimir"),
                         QStringLiteral("BotonImprimirAjuste")),
            &QPushButton::clicked, this, [this] {
                Enviar([this] {
                    papel_.Ajustar(AjusteDelPanel());
                    return Uno(BoletoElegido());
                });
            });
    connect(BotonVentana(panel, fila2, QStringLiteral("&Aceptar"), QStringLiteral("BotonAceptar")),
            &QPushButton::clicked, this, [this] {
                papel_.Aceptar(AjusteDelPanel());
                OcultarAjuste();
            });
    connect(
        BotonVentana(panel, fila2, QStringLiteral("&Cancelar"), QStringLiteral("BotonCancelar")),
        &QPushButton::clicked, this, &VentanaImprimirPapel::OcultarAjuste);
    caja->addLayout(fila1);
    caja->addLayout(fila2);
    return panel;
}

void VentanaImprimirPapel::LlenarAjuste() { PonerAjuste(papel_.Ajuste()); }

outputs::AjustePapel VentanaImprimirPapel::AjusteDelPanel() const {
    return {ancho_->text().toInt(), alto_->text().toInt(), LeerDecimal(izquierdo_),
            LeerDecimal(superior_), dorso_->isChecked()};
}

void VentanaImprimirPapel::PonerAjuste(const outputs::AjustePapel& ajuste) {
    ancho_->setText(QString::number(ajuste.ancho));
    alto_->setText(QString::number(ajuste.alto));
    izquierdo_->setText(Decimal(ajuste.margenIzquierdo));
    superior_->setText(Decimal(ajuste.margenSuperior));
    dorso_->setChecked(ajuste.dorso);
}

std::optional<outputs::Impresion> VentanaImprimirPapel::Uno(int boleto) {
    return papel_.ImprimirUno(columnas_.activas, boleto, columnas_.fecha);
}

std::optional<outputs::Impresion> VentanaImprimirPapel::Todos(std::int32_t desde,
                                                              std::int32_t hasta) {
    return papel_.ImprimirTodos(columnas_.activas, desde, hasta, columnas_.fecha);
}

}  // namespace quinteva::ui
