#include "ui/status_panel.h"

#include <QGridLayout>
#include <QLabel>

#include "base/formats.h"

namespace quinteva::ui {

QString Cifra(const std::optional<double>& valor) {
    if (!valor) return {};
    return QStringLiteral(" ") + QString::fromStdString(base::Formato(*valor, "#,##0"));
}

namespace {

template <typename T>
std::optional<double> Doble(const std::optional<T>& v) {
    return v ? std::optional<double>(static_cast<double>(*v)) : std::nullopt;
}

}  // namespace

PanelEstadoQt::PanelEstadoQt(QWidget* madre)
    : QGroupBox(QStringLiteral("Estado de la Combinación"), madre) {
    setObjectName(QStringLiteral("PanelEstado"));
    auto* rejilla = new QGridLayout(this);
    rejilla->setVerticalSpacing(2);
    nombre_ = Valor(QStringLiteral("EtiquetaNombre"), QStringLiteral("Nombre"), 0);
    guardada_ = Valor(QStringLiteral("EtiquetaGuardada"), QStringLiteral("Guardada"), 1);
    alDirecto_ = Valor(QStringLiteral("EtiquetaAlDirecto"), QStringLiteral("Al Directo"), 2);
    dobles_ = Valor(QStringLiteral("EtiquetaDobles"), QStringLiteral("Nº Dobles"), 3);
    triples_ = Valor(QStringLiteral("EtiquetaTriples"), QStringLiteral("Nº Triples"), 4);
    condicionada_ =
        Valor(QStringLiteral("EtiquetaCondicionada"), QStringLiteral("Condicionada"), 5);
    const std::array<QString, 4> niveles = {QStringLiteral("13"), QStringLiteral("12"),
                                            QStringLiteral("11"), QStringLiteral("10")};
    for (std::size_t i = 0; i < niveles.size(); ++i) {
        reducidas_[i] = Valor(QStringLiteral("EtiquetaAl") + niveles[i],
                              QStringLiteral("Reducida al ") + niveles[i], 6 + static_cast<int>(i));
    }
    precio_ = new QLabel(this);
    precio_->setObjectName(QStringLiteral("EtiquetaPrecio"));
    precio_->setStyleSheet(QStringLiteral("font-weight: bold"));
    rejilla->addWidget(precio_, 10, 0, 1, 2);
}

QLabel* PanelEstadoQt::Valor(const QString& nombre, const QString& rotulo, int fila) {
    auto* rejilla = static_cast<QGridLayout*>(layout());
    rejilla->addWidget(new QLabel(rotulo, this), fila, 0);
    auto* valor = new QLabel(this);
    valor->setObjectName(nombre);
    valor->setFrameShape(QFrame::StyledPanel);
    valor->setFrameShadow(QFrame::Sunken);
    valor->setMinimumWidth(90);
    valor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    rejilla->addWidget(valor, fila, 1);
    return valor;
}

void PanelEstadoQt::Mostrar(const engine::PanelEstado& panel) {
    nombre_->setText(QString::fromStdString(panel.nombre));
    guardada_->setText(panel.guardada ? QStringLiteral("SI") : QStringLiteral("NO"));
    alDirecto_->setText(Cifra(Doble(panel.alDirecto)));
    dobles_->setText(Cifra(Doble(panel.dobles)));
    triples_->setText(Cifra(Doble(panel.triples)));
    condicionada_->setText(Cifra(Doble(panel.condicionada)));
    for (std::size_t i = 0; i < reducidas_.size(); ++i) {
        reducidas_[i]->setText(Cifra(Doble(panel.reducidas[i])));
    }
    precio_->setText(panel.precio
                         ? QStringLiteral("Precio: ") +
                               QString::fromStdString(base::Formato(*panel.precio, "#,##0.#0")) +
                               QStringLiteral(" Euros")
                         : QString());
}

}  // namespace quinteva::ui
