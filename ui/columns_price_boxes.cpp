#include "ui/columns_price_boxes.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "builders/columns_and_price.h"
#include "ui/qt_text.h"

namespace quinteva::ui {

namespace {

// Deja en la caja el texto limpio sin mover el cursor más de lo que se quitó.
void Limpiar(QLineEdit* caja, const std::string& limpio) {
    const QString nuevo = Q(limpio);
    if (caja->text() == nuevo) return;
    const int cursor =
        caja->cursorPosition() - static_cast<int>(caja->text().size() - nuevo.size());
    caja->setText(nuevo);
    caja->setCursorPosition(std::max(0, cursor));
}

}  // namespace

CajasColumnasPrecio::CajasColumnasPrecio(float precioColumna, QWidget* madre)
    : QWidget(madre), precioColumna_(precioColumna) {
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    numero_ = new QLineEdit(this);
    numero_->setObjectName(QStringLiteral("CajaNumeroColumnas"));
    precio_ = new QLineEdit(this);
    precio_->setObjectName(QStringLiteral("CajaPrecio"));
    fila->addWidget(new QLabel(QStringLiteral("Nº de columnas:"), this));
    fila->addWidget(numero_);
    fila->addWidget(new QLabel(QStringLiteral("Precio:"), this));
    fila->addWidget(precio_);
    connect(numero_, &QLineEdit::textEdited, this, [this](const QString& texto) {
        Limpiar(numero_, builders::LimpiarNumero(S(texto)));
        precio_->setText(Q(builders::PrecioDeColumnas(S(numero_->text()), precioColumna_)));
    });
    connect(precio_, &QLineEdit::textEdited, this, [this](const QString& texto) {
        Limpiar(precio_, builders::LimpiarPrecio(S(texto)));
        if (auto columnas = builders::ColumnasDePrecio(S(precio_->text()), precioColumna_)) {
            numero_->setText(Q(*columnas));
        }
    });
}

void CajasColumnasPrecio::IntroLlevaA(QPushButton* boton) {
    connect(numero_, &QLineEdit::returnPressed, boton, [boton] { boton->setFocus(); });
}

QString CajasColumnasPrecio::Numero() const { return numero_->text(); }

void CajasColumnasPrecio::PonerNumero(const QString& numero) {
    numero_->setText(numero);
    precio_->setText(Q(builders::PrecioDeColumnas(S(numero), precioColumna_)));
}

void CajasColumnasPrecio::EnfocarNumero() { numero_->setFocus(); }

}  // namespace quinteva::ui
