#include "ui/pools_view_window.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include "outputs/printed_reports.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {
namespace {

constexpr std::string_view kSignos = "1X2";
const QColor kMarca(0x20, 0x20, 0x20);

}  // namespace

VentanaVerQuinielas::VentanaVerQuinielas(outputs::VistaQuinielas vista, Imprimir imprimir,
                                         QWidget* madre)
    : QDialog(madre), vista_(std::move(vista)), imprimir_(std::move(imprimir)) {
    setObjectName(QStringLiteral("VentanaVerQuinielas"));
    setWindowTitle(QStringLiteral("Ver Quinielas"));
    auto* caja = new QVBoxLayout(this);
    auto* cabecera = new QLabel(Q(vista_.Cabecera()), this);
    cabecera->setObjectName(QStringLiteral("EtiquetaCabecera"));
    caja->addWidget(cabecera);
    titulo_ = new QLabel(this);
    titulo_->setObjectName(QStringLiteral("EtiquetaTitulo"));
    QFont negrita = titulo_->font();
    negrita.setBold(true);
    titulo_->setFont(negrita);
    caja->addWidget(titulo_);

    boleto_ = new QTableWidget(engine::kPartidos + 1, 3, this);
    boleto_->setObjectName(QStringLiteral("BoletoQuiniela"));
    boleto_->setHorizontalHeaderLabels(
        {QStringLiteral("1"), QStringLiteral("X"), QStringLiteral("2")});
    QStringList filas;
    for (int p = 1; p <= engine::kPartidos; ++p) filas << QString::number(p);
    filas << QStringLiteral("P-15");
    boleto_->setVerticalHeaderLabels(filas);
    boleto_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    boleto_->setSelectionMode(QAbstractItemView::NoSelection);
    boleto_->setFocusPolicy(Qt::NoFocus);
    boleto_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    boleto_->horizontalHeader()->setDefaultSectionSize(40);
    boleto_->setFixedWidth(boleto_->verticalHeader()->sizeHint().width() + 3 * 40 + 4);
    boleto_->setFixedHeight(boleto_->horizontalHeader()->sizeHint().height() +
                            boleto_->rowCount() * boleto_->verticalHeader()->defaultSectionSize() +
                            4);
    caja->addWidget(boleto_, 0, Qt::AlignHCenter);

    barra_ = new QScrollBar(Qt::Horizontal, this);
    barra_->setObjectName(QStringLiteral("BarraQuinielas"));
    barra_->setRange(0, std::max(0, vista_.Cuenta() - 1));
    barra_->setPageStep(1);
    caja->addWidget(barra_);
    todas_ = new QListWidget(this);
    todas_->setObjectName(QStringLiteral("ListaTodas"));
    todas_->setVisible(false);
    caja->addWidget(todas_, 1);

    auto* botones = new QHBoxLayout;
    QPushButton* imprimirUna = BotonVentana(this, botones, QStringLiteral("&Imprimir Una"),
                                            QStringLiteral("BotonImprimirUna"));
    imprimirUna->setEnabled(vista_.Cuenta() > 0);
    connect(imprimirUna, &QPushButton::clicked, this, [this] {
        const int indice = barra_->value();
        imprimir_(outputs::ImpresionQuiniela(vista_.Cabecera(),
                                             outputs::VistaQuinielas::Titulo(indice + 1),
                                             vista_.Columna(indice)));
    });
    connect(
        BotonVentana(this, botones, QStringLiteral("&Ver Todas"), QStringLiteral("BotonVerTodas")),
        &QPushButton::clicked, this, &VentanaVerQuinielas::VerTodas);
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Cerrar"), QStringLiteral("BotonCerrar")),
            &QPushButton::clicked, this, &QDialog::accept);
    caja->addLayout(botones);

    connect(barra_, &QScrollBar::valueChanged, this, &VentanaVerQuinielas::Mostrar);
    Mostrar(0);
    resize(440, 620);
}

void VentanaVerQuinielas::Mostrar(int indice) {
    if (vista_.Cuenta() == 0) {
        titulo_->setText(Q(outputs::kSinQuinielas));
        return;
    }
    titulo_->setText(Q(outputs::VistaQuinielas::Titulo(indice + 1)));
    const engine::RegistroColumna& c = vista_.Columna(indice);
    for (int p = 0; p < engine::kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) {
            const bool marcada =
                c.columna[static_cast<std::size_t>(p)] == kSignos[static_cast<std::size_t>(s)];
            PonerCelda(boleto_, p, s,
                       QString(QChar::fromLatin1(kSignos[static_cast<std::size_t>(s)])));
            QTableWidgetItem* celda = boleto_->item(p, s);
            celda->setTextAlignment(Qt::AlignCenter);
            celda->setBackground(marcada ? QBrush(kMarca) : QBrush());
            celda->setForeground(marcada ? QBrush(Qt::white) : QBrush(Qt::gray));
        }
    }
    const int pleno = engine::kPartidos;
    PonerCelda(boleto_, pleno, 0, QString(QChar::fromLatin1(c.pleno[0])));
    PonerCelda(boleto_, pleno, 1, QStringLiteral("-"));
    PonerCelda(boleto_, pleno, 2, QString(QChar::fromLatin1(c.pleno[1])));
    for (int s = 0; s < 3; ++s) boleto_->item(pleno, s)->setTextAlignment(Qt::AlignCenter);
}

void VentanaVerQuinielas::VerTodas() {
    todas_->clear();
    for (const auto& linea : vista_.Todas()) todas_->addItem(Q(linea));
    todas_->setVisible(true);
}

}  // namespace quinteva::ui
