#include "ui/options_window.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace quinteva::ui {
namespace {

constexpr std::string_view kOpciones = "Opciones";

}  // namespace

bool AjusteActivo(const base::Ajustes& ajustes, std::string_view clave) {
    const std::string v = ajustes.Leer(base::kAplicacion, kOpciones, clave, "True");
    return v == "True" || v == "1" || v == "-1";
}

VentanaOpciones::VentanaOpciones(base::Ajustes& ajustes, QWidget* madre)
    : QDialog(madre), ajustes_(ajustes) {
    setObjectName(QStringLiteral("VentanaOpciones"));
    setWindowTitle(QStringLiteral("Opciones"));
    auto* caja = new QVBoxLayout(this);
    const auto casilla = [&](QGroupBox* grupo, const char* nombre, const QString& texto,
                             std::string_view clave) {
        auto* c = new QCheckBox(texto, grupo);
        c->setObjectName(QString::fromUtf8(nombre));
        c->setChecked(AjusteActivo(ajustes_, clave));
        grupo->layout()->addWidget(c);
        return c;
    };
    auto* generacion = new QGroupBox(QStringLiteral("Al generar"), this);
    new QVBoxLayout(generacion);
    verAp1_ = casilla(generacion, "CasillaVerAp1", QStringLiteral("Ver el contador de apuestas"),
                      "VerAp1");
    verBar1_ = casilla(generacion, "CasillaVerBar1", QStringLiteral("Ver la barra de progreso"),
                       "VerBar1");
    auto* reduccion = new QGroupBox(QStringLiteral("Al reducir"), this);
    new QVBoxLayout(reduccion);
    verR_ =
        casilla(reduccion, "CasillaVerR", QStringLiteral("Ver el contador de apuestas"), "VerR");
    verBar2_ =
        casilla(reduccion, "CasillaVerBar2", QStringLiteral("Ver la barra de progreso"), "VerBar2");
    caja->addWidget(generacion);
    caja->addWidget(reduccion);

    auto* formulario = new QFormLayout;
    precio_ = new QLineEdit(this);
    precio_->setObjectName(QStringLiteral("CampoPrecio"));
    precio_->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9,]*")), precio_));
    QString precio =
        QString::fromStdString(ajustes_.Leer(base::kAplicacion, kOpciones, "PrecioApu15", "0,75"));
    precio.replace(QLatin1Char('.'), QLatin1Char(','));
    precio_->setText(precio);
    formulario->addRow(QStringLiteral("Precio de la apuesta (Euros)"), precio_);
    caja->addLayout(formulario);
    connect(precio_, &QLineEdit::returnPressed, this, &VentanaOpciones::accept);

    auto* botones = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    botones->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&Aceptar"));
    botones->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Cancelar"));
    connect(botones, &QDialogButtonBox::accepted, this, &VentanaOpciones::accept);
    connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
    caja->addWidget(botones);
}

void VentanaOpciones::accept() {
    const auto guardar = [this](std::string_view clave, const QCheckBox* c) {
        ajustes_.Guardar(base::kAplicacion, kOpciones, clave, c->isChecked() ? "1" : "0");
    };
    guardar("VerAp1", verAp1_);
    guardar("VerBar1", verBar1_);
    guardar("VerR", verR_);
    guardar("VerBar2", verBar2_);
    ajustes_.Guardar(base::kAplicacion, kOpciones, "Moneda", "Euros");
    const QString precio = precio_->text().isEmpty() ? QStringLiteral("0") : precio_->text();
    ajustes_.Guardar(base::kAplicacion, kOpciones, "PrecioApu15", precio.toStdString());
    QDialog::accept();
}

}  // namespace quinteva::ui
