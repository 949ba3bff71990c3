#include "ui/add_columns_window.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "base/formats.h"

namespace quinteva::ui {
namespace {

constexpr int kColumnaSigno = 1;

}  // namespace

VentanaAnadirColumnas::VentanaAnadirColumnas(engine::Combinacion& combinacion,
                                             builders::EntornoBoletos entorno, QWidget* madre)
    : QDialog(madre), comb_(combinacion), entorno_(entorno) {
    setObjectName(QStringLiteral("VentanaAnadirColumnas"));
    setWindowTitle(QStringLiteral("Añadir columnas manualmente"));
    auto* caja = new QVBoxLayout(this);
    caja->addWidget(new QLabel(
        QStringLiteral("Teclee en cada partido el signo de la columna: 1, X o 2"), this));
    entrada_ = new QTableWidget(engine::kPartidos, 2, this);
    entrada_->setObjectName(QStringLiteral("RejillaEntrada"));
    entrada_->setHorizontalHeaderLabels({QStringLiteral("Partido"), QStringLiteral("Signo")});
    entrada_->verticalHeader()->setDefaultSectionSize(entrada_->fontMetrics().height() + 6);
    entrada_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    entrada_->setSelectionMode(QAbstractItemView::SingleSelection);
    entrada_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    entrada_->setColumnWidth(
        kColumnaSigno, entrada_->fontMetrics().horizontalAdvance(QStringLiteral("Signo")) + 24);
    entrada_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    entrada_->setFixedHeight(entrada_->verticalHeader()->defaultSectionSize() * engine::kPartidos +
                             entrada_->horizontalHeader()->sizeHint().height() + 4);
    entrada_->setMinimumWidth(entrada_->fontMetrics().horizontalAdvance(
                                  QStringLiteral("Atlético Madrid - Rayo Vallecano")) +
                              120);
    for (int f = 0; f < engine::kPartidos; ++f) {
        entrada_->setItem(f, 0,
                          new QTableWidgetItem(QString::fromStdString(comb_.base.Equipos(f + 1))));
        auto* signo = new QTableWidgetItem;
        signo->setTextAlignment(Qt::AlignCenter);
        entrada_->setItem(f, kColumnaSigno, signo);
    }
    entrada_->setCurrentCell(0, kColumnaSigno);
    entrada_->installEventFilter(this);
    caja->addWidget(entrada_);
    auto* formulario = new QFormLayout;
    cuenta_ = new QLabel(this);
    cuenta_->setObjectName(QStringLiteral("CuentaAnadir"));
    formulario->addRow(QStringLiteral("Apuestas que se juegan en total "), cuenta_);
    caja->addLayout(formulario);
    auto* botones = new QHBoxLayout;
    auto* incluir = new QPushButton(QStringLiteral("&Incluir"), this);
    incluir->setObjectName(QStringLiteral("BotonIncluir"));
    auto* salir = new QPushButton(QStringLiteral("&Salir"), this);
    salir->setObjectName(QStringLiteral("BotonSalir"));
    botones->addWidget(incluir);
    botones->addStretch();
    botones->addWidget(salir);
    caja->addLayout(botones);
    connect(incluir, &QPushButton::clicked, this, &VentanaAnadirColumnas::Incluir);
    connect(salir, &QPushButton::clicked, this, &QDialog::accept);
    MostrarCuenta();
}

void VentanaAnadirColumnas::MostrarCuenta() {
    const auto activas = builders::ApuestasJugadas(comb_, builders::JugadaElegida(comb_));
    cuenta_->setText(QString::fromStdString(base::Formato(activas, "#,##0") + " "));
}

void VentanaAnadirColumnas::Incluir() {
    std::array<std::string, engine::kPartidos> celdas;
    for (int f = 0; f < engine::kPartidos; ++f)
        celdas[static_cast<std::size_t>(f)] =
            entrada_->item(f, kColumnaSigno)->text().toStdString();
    setCursor(Qt::BusyCursor);
    builders::Inclusion inclusion = builders::Inclusion::Rechazada;
    try {
        inclusion = builders::Incluir(comb_, celdas, ventana_, entorno_);
    } catch (const std::exception& e) {
        entorno_.dialogo.Mensaje(std::string("Error: ") + e.what(), base::Icono::Error);
    }
    unsetCursor();
    if (inclusion == builders::Inclusion::Rechazada) return;
    for (int f = 0; f < engine::kPartidos; ++f) entrada_->item(f, kColumnaSigno)->setText({});
    entrada_->setCurrentCell(0, kColumnaSigno);
    MostrarCuenta();
    emit cambiado();
}

// La rejilla de entrada: "1", "X" (o "x") y "2" escriben el signo y bajan al partido siguiente;
// Supr y Retroceso lo borran.
bool VentanaAnadirColumnas::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto != entrada_ || evento->type() != QEvent::KeyPress)
        return QDialog::eventFilter(objeto, evento);
    const auto* tecla = static_cast<QKeyEvent*>(evento);
    const int fila = std::max(0, entrada_->currentRow());
    const QString texto = tecla->text().toUpper();
    if (texto == QStringLiteral("1") || texto == QStringLiteral("X") ||
        texto == QStringLiteral("2")) {
        entrada_->item(fila, kColumnaSigno)->setText(texto);
        entrada_->setCurrentCell(std::min(fila + 1, engine::kPartidos - 1), kColumnaSigno);
        return true;
    }
    if (tecla->key() == Qt::Key_Delete || tecla->key() == Qt::Key_Backspace) {
        entrada_->item(fila, kColumnaSigno)->setText({});
        return true;
    }
    return QDialog::eventFilter(objeto, evento);
}

}  // namespace quinteva::ui
