#include "ui/pena_accounts_window.h"

#include <QBoxLayout>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

namespace {

// Los colores del resultado: 0xC00000 del sistema (azul oscuro) y 192 (rojo).
const QColor kPositivo(0x00, 0x00, 0xC0);
const QColor kNegativo(0xC0, 0x00, 0x00);

QLabel* Cifra(QWidget* madre, const QString& texto, const char* nombre) {
    auto* e = new QLabel(texto, madre);
    e->setObjectName(QString::fromLatin1(nombre));
    e->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return e;
}

}  // namespace

VentanaCuentas::VentanaCuentas(const QString& titulo, const QStringList& cabecera,
                               const syndicates::Cuentas& c, bool conGastos,
                               std::function<void()> visor, QWidget* madre)
    : QDialog(madre) {
    setObjectName(QStringLiteral("VentanaCuentas"));
    setWindowTitle(titulo);
    auto* caja = new QVBoxLayout(this);
    for (const QString& linea : cabecera) caja->addWidget(new QLabel(linea, this));
    auto* forma = new QFormLayout;
    forma->addRow(QStringLiteral("Jornadas jugadas:"),
                  Cifra(this, QString::number(c.jornadasJugadas), "JornadasJugadas"));
    forma->addRow(QStringLiteral("Invertido (euros):"), Cifra(this, Q(c.invertido), "Invertido"));
    forma->addRow(QStringLiteral("Obtenido (euros):"), Cifra(this, Q(c.obtenido), "Obtenido"));
    if (conGastos) {
        forma->addRow(QStringLiteral("Total Gastos (euros):"), Cifra(this, Q(c.gastos), "Gastos"));
    }
    auto* resultado = Cifra(this, Q(c.resultado), "Resultado");
    QPalette colores = resultado->palette();
    colores.setColor(QPalette::WindowText, c.resultadoNegativo ? kNegativo : kPositivo);
    resultado->setPalette(colores);
    forma->addRow(QStringLiteral("Resultado (euros):"), resultado);
    if (c.porcentaje) {
        forma->addRow(QStringLiteral("Resultado (%):"),
                      Cifra(this, Q(*c.porcentaje), "Porcentaje"));
    }
    caja->addLayout(forma);
    caja->addWidget(new QLabel(QStringLiteral("Detalle de Jornadas jugadas"), this));
    QStringList columnas{QStringLiteral("Jornada"), QStringLiteral("Invertido"),
                         QStringLiteral("Obtenido")};
    if (conGastos) columnas << QStringLiteral("Gastos");
    columnas << QStringLiteral("Resultado");
    auto* rejilla =
        new QTableWidget(static_cast<int>(c.filas.size()), static_cast<int>(columnas.size()), this);
    rejilla->setObjectName(QStringLiteral("RejillaDetalle"));
    rejilla->setHorizontalHeaderLabels(columnas);
    rejilla->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla->verticalHeader()->hide();
    rejilla->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    for (std::size_t f = 0; f < c.filas.size(); ++f) {
        const auto& fila = c.filas[f];
        QStringList celdas{QString::number(fila.jornada), Q(fila.invertido), Q(fila.obtenido)};
        if (conGastos) celdas << Q(fila.gastos);
        celdas << Q(fila.resultado);
        for (int col = 0; col < celdas.size(); ++col) {
            auto* item = new QTableWidgetItem(celdas[col]);
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            rejilla->setItem(static_cast<int>(f), col, item);
        }
    }
    caja->addWidget(rejilla, 1);
    auto* botones = new QHBoxLayout;
    connect(BotonVentana(this, botones, QStringLiteral("&Visor"), QStringLiteral("BotonVisor")),
            &QPushButton::clicked, this, [visor = std::move(visor)] { visor(); });
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Salir"), QStringLiteral("BotonSalir")),
            &QPushButton::clicked, this, &QDialog::close);
    caja->addLayout(botones);
    resize(520, 480);
}

}  // namespace quinteva::ui
