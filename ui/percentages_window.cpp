#include "ui/percentages_window.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "ui/columns_price_boxes.h"
#include "ui/help_window.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"
#include "ui/working_label.h"

namespace quinteva::ui {

namespace {

const QColor kFueraDeLaBase(0xc0, 0xc0, 0xc0);

char TeclaDe(const QKeyEvent& evento) {
    if (evento.key() == Qt::Key_Delete) return '\x7f';
    if (evento.key() == Qt::Key_Backspace) return '\b';
    const QString texto = evento.text();
    if (texto.size() == 1 && texto[0].isDigit()) return texto[0].toLatin1();
    return 0;
}

}  // namespace

VentanaPorcentajes::VentanaPorcentajes(const engine::Combinacion& comb, float precioColumna,
                                       QWidget* madre)
    : QDialog(madre), base_(comb.base), tabla_(builders::PorcentajesAlAbrir(comb)) {
    setObjectName(QStringLiteral("VentanaPorcentajes"));
    setWindowTitle(QStringLiteral("Quiniela por Porcentajes"));
    auto* caja = new QVBoxLayout(this);
    auto* texto = new QLabel(Q(builders::kTextoPorcentajes), this);
    texto->setWordWrap(true);
    caja->addWidget(texto);
    rejilla_ = new QTableWidget(engine::kPartidos, 3, this);
    rejilla_->setObjectName(QStringLiteral("RejillaPorcentajes"));
    rejilla_->setHorizontalHeaderLabels(
        {QStringLiteral("1"), QStringLiteral("X"), QStringLiteral("2")});
    rejilla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla_->setSelectionMode(QAbstractItemView::SingleSelection);
    rejilla_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    for (int p = 1; p <= engine::kPartidos; ++p) {
        rejilla_->setVerticalHeaderItem(p - 1, new QTableWidgetItem(QStringLiteral("%1 ").arg(p)));
        for (int s = 0; s < 3; ++s) {
            auto* celda = new QTableWidgetItem;
            celda->setTextAlignment(Qt::AlignCenter);
            if (!base_.Elegido(p, s)) celda->setBackground(kFueraDeLaBase);
            rejilla_->setItem(p - 1, s, celda);
        }
        MostrarFila(p);
    }
    rejilla_->setMinimumHeight(
        rejilla_->verticalHeader()->defaultSectionSize() * (engine::kPartidos + 1) + 4);
    rejilla_->installEventFilter(this);
    caja->addWidget(rejilla_, 1);
    cajas_ = new CajasColumnasPrecio(precioColumna, this);
    if (comb.origenPorcentajes == 1) cajas_->PonerNumero(QString::number(comb.valorPorcentajes));
    caja->addWidget(cajas_);
    trabajando_ = new EtiquetaTrabajo(this);
    caja->addWidget(trabajando_);
    auto* botones = new QHBoxLayout;
    auto* generar = BotonVentana(this, botones, QStringLiteral("&Generar"),
                                 QStringLiteral("BotonGenerarPorcentajes"));
    connect(generar, &QPushButton::clicked, this, &VentanaPorcentajes::generar);
    cajas_->IntroLlevaA(generar);
    connect(BotonVentana(this, botones, QStringLiteral("&Estadísticas"),
                         QStringLiteral("BotonEstadisticas")),
            &QPushButton::clicked, this, &VentanaPorcentajes::estadisticas);
    ConectarAyuda(
        BotonVentana(this, botones, QStringLiteral("Ay&uda"), QStringLiteral("BotonAyuda")));
    connect(BotonVentana(this, botones, QStringLiteral("&Salir"), QStringLiteral("BotonSalir")),
            &QPushButton::clicked, this, &QDialog::close);
    caja->addLayout(botones);
}

QString VentanaPorcentajes::Numero() const { return cajas_->Numero(); }

void VentanaPorcentajes::EnfocarNumero() { cajas_->EnfocarNumero(); }

void VentanaPorcentajes::Trabajando(bool trabajando) { trabajando_->Trabajando(trabajando); }

void VentanaPorcentajes::MostrarFila(int partido) {
    const auto m = static_cast<std::size_t>(partido - 1);
    for (int s = 0; s < 3; ++s) {
        const bool enBase = base_.Elegido(partido, s);
        rejilla_->item(partido - 1, s)
            ->setText(enBase ? QString::number(tabla_[static_cast<std::size_t>(s)][m]) : QString());
    }
}

void VentanaPorcentajes::Tecla(char tecla) {
    const int fila = rejilla_->currentRow();
    const int signo = rejilla_->currentColumn();
    if (fila < 0 || signo < 0 || !builders::CeldaEditable(base_, fila + 1, signo)) return;
    std::uint8_t& valor = tabla_[static_cast<std::size_t>(signo)][static_cast<std::size_t>(fila)];
    valor =
        static_cast<std::uint8_t>(std::stoi(builders::TeclaEnCelda(std::to_string(valor), tecla)));
    builders::SumaCien(tabla_, base_, fila + 1, signo);
    MostrarFila(fila + 1);
}

bool VentanaPorcentajes::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == rejilla_ && evento->type() == QEvent::KeyPress) {
        const char tecla = TeclaDe(static_cast<const QKeyEvent&>(*evento));
        if (tecla != 0) {
            Tecla(tecla);
            return true;
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

}  // namespace quinteva::ui
