#include "ui/very_reduced_window.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include "builders/very_reduced.h"
#include "ui/qt_text.h"
#include "ui/report_windows.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

namespace {

const QColor kResaltada(0xff, 0xe0, 0x80);
constexpr int kTwipsDerecha = 4800;
constexpr int kTwipsAbajo = 600;

}  // namespace

VentanaMuyReducida::VentanaMuyReducida(const std::vector<FilaTablaReducciones>& filas,
                                       QWidget* principal)
    : QDialog(principal, Qt::Tool | Qt::WindowStaysOnTopHint) {
    setObjectName(QStringLiteral("VentanaMuyReducida"));
    setWindowTitle(QStringLiteral("Quiniela muy reducida"));
    setModal(false);
    auto* caja = new QVBoxLayout(this);
    auto* lema = new QLabel(QStringLiteral("Quiniela reducida al 13, 12 o 11, sin Condiciones. En "
                                           "un sólo paso y optimizada."),
                            this);
    lema->setWordWrap(true);
    QFont negrita = lema->font();
    negrita.setBold(true);
    lema->setFont(negrita);
    caja->addWidget(lema);
    auto* texto = new QLabel(Q(builders::kTextoMuyReducida), this);
    texto->setWordWrap(true);
    caja->addWidget(texto);
    auto* cabecera = new QLabel(QStringLiteral("Nº de apuestas reducidas"), this);
    cabecera->setAlignment(Qt::AlignRight);
    caja->addWidget(cabecera);
    tabla_ = RejillaTablaReducciones(this, filas);
    tabla_->setObjectName(QStringLiteral("RejillaMuyReducida"));
    tabla_->setMinimumHeight(tabla_->verticalHeader()->defaultSectionSize() * 12);
    caja->addWidget(tabla_, 1);
    auto* grupo = new QGroupBox(this);
    auto* opciones = new QHBoxLayout(grupo);
    for (int n = 0; n < 3; ++n) {
        niveles_[static_cast<std::size_t>(n)] =
            new QRadioButton(QStringLiteral("Reducir al %1").arg(13 - n), grupo);
        niveles_[static_cast<std::size_t>(n)]->setObjectName(
            QStringLiteral("OpcionMuy%1").arg(13 - n));
        opciones->addWidget(niveles_[static_cast<std::size_t>(n)]);
    }
    caja->addWidget(grupo);
    auto* botones = new QHBoxLayout;
    generar_ = BotonVentana(this, botones, QStringLiteral("Generar"),
                            QStringLiteral("BotonGenerarMuyReducida"));
    generar_->setEnabled(false);
    connect(generar_, &QPushButton::clicked, this, [this] {
        int elegido = -1;
        for (int n = 0; n < 3; ++n) {
            if (niveles_[static_cast<std::size_t>(n)]->isChecked()) elegido = n;
        }
        emit generar(elegido);
    });
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Salir"), QStringLiteral("BotonSalir")),
            &QPushButton::clicked, this, &QDialog::close);
    caja->addLayout(botones);
    // Junto a la Quiniela Base mientras esté abierta.
    resize(sizeHint().width(), tabla_->verticalHeader()->defaultSectionSize() * 26);
    junto_.setInterval(250);
    connect(&junto_, &QTimer::timeout, this, &VentanaMuyReducida::Colocar);
    junto_.start();
    Colocar();
}

void VentanaMuyReducida::Colocar() {
    const QWidget* principal = parentWidget();
    if (principal == nullptr) return;
    const auto twips = [this](int t) { return t * logicalDpiX() / 1440; };
    const int barras =
        style()->pixelMetric(QStyle::PM_TitleBarHeight) + QFontMetrics(font()).height() + 8;
    move(principal->frameGeometry().left() + twips(kTwipsDerecha),
         principal->frameGeometry().top() + twips(kTwipsAbajo) + barras);
}

void VentanaMuyReducida::Fijar(const engine::QuinielaBase& base) {
    const auto fila = builders::FilaDeLaBase(base);
    generar_->setEnabled(fila.has_value());
    for (int f = 0; f < tabla_->rowCount(); ++f) {
        const bool resaltada = fila && static_cast<int>(*fila) == f;
        for (int c = 0; c < tabla_->columnCount(); ++c) {
            if (QTableWidgetItem* celda = tabla_->item(f, c)) {
                celda->setBackground(resaltada ? QBrush(kResaltada) : QBrush());
            }
        }
        const QTableWidgetItem* primera = tabla_->item(f, 0);
        if (resaltada && primera != nullptr &&
            !tabla_->viewport()->rect().contains(tabla_->visualItemRect(primera))) {
            tabla_->scrollToItem(primera, QAbstractItemView::PositionAtTop);
        }
    }
}

void VentanaMuyReducida::closeEvent(QCloseEvent* evento) {
    junto_.stop();
    QDialog::closeEvent(evento);
}

}  // namespace quinteva::ui
