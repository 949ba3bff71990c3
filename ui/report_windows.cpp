#include "ui/report_windows.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "builders/reduction_display.h"
#include "ui/odds_window.h"
#include "ui/qt_text.h"
#include "ui/report_grid.h"

namespace quinteva::ui {
VentanaRechazadas::VentanaRechazadas(const std::vector<engine::FilaInforme>& filas, QWidget* madre)
    : QDialog(madre) {
    setObjectName(QStringLiteral("VentanaRechazadas"));
    setWindowTitle(QStringLiteral("Rechazadas"));
    auto* caja = new QVBoxLayout(this);
    auto* titulo =
        new QLabel(QStringLiteral("Informe sobre Columnas rechazadas por los filtros"), this);
    titulo->setStyleSheet(QStringLiteral("font-weight: bold"));
    caja->addWidget(titulo);
    auto* r =
        RejillaInforme(this, QStringLiteral("RejillaRechazadas"), static_cast<int>(filas.size()),
                       {QStringLiteral("Filtro"), QStringLiteral("Número")});
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const bool total = i + 1 == filas.size();
        r->setItem(static_cast<int>(i), 0, CeldaInforme(Q(filas[i].primera), total, false));
        r->setItem(static_cast<int>(i), 1, CeldaInforme(Q(filas[i].segunda), total, true));
    }
    r->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    r->setColumnWidth(1, r->fontMetrics().horizontalAdvance(QStringLiteral("4.782.969")) + 40);
    r->setMinimumSize(
        r->fontMetrics().horizontalAdvance(QStringLiteral("Más de 10 Grupos de Ac. fallados")) +
            r->columnWidth(1) + 40,
        r->verticalHeader()->defaultSectionSize() * 14);
    caja->addWidget(r);
    BotonAceptar(this, caja);
}

QTableWidget* RejillaTablaReducciones(QWidget* madre,
                                      const std::vector<FilaTablaReducciones>& filas) {
    auto* r = RejillaInforme(madre, QStringLiteral("RejillaTablaReducciones"),
                             static_cast<int>(filas.size()),
                             {QStringLiteral("Combinaciones"), QStringLiteral("Al 13"),
                              QStringLiteral("Al 12"), QStringLiteral("Al 11")});
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const int f = static_cast<int>(i);
        r->setItem(f, 0, CeldaInforme(Q(filas[i].combinaciones), false, false));
        for (int n = 0; n < 3; ++n) {
            const auto& celda = filas[i].niveles[static_cast<std::size_t>(n)];
            auto* item = CeldaInforme(Q(celda.texto), celda.negrita, true);
            item->setTextAlignment(Qt::AlignCenter);
            r->setItem(f, n + 1, item);
        }
    }
    const int cifra = r->fontMetrics().horizontalAdvance(QStringLiteral("19683")) + 30;
    r->setColumnWidth(
        0, r->fontMetrics().horizontalAdvance(QStringLiteral("1 Triple y 10 Dobles")) + 30);
    for (int n = 1; n <= 3; ++n) r->setColumnWidth(n, cifra);
    r->setMinimumSize(r->columnWidth(0) + 3 * cifra + 40,
                      r->verticalHeader()->defaultSectionSize() * 20);
    return r;
}

VentanaTablaReducciones::VentanaTablaReducciones(const std::vector<FilaTablaReducciones>& filas,
                                                 QWidget* madre)
    : QDialog(madre) {
    setObjectName(QStringLiteral("VentanaTablaReducciones"));
    setWindowTitle(QStringLiteral("Tabla de reducciones"));
    auto* caja = new QVBoxLayout(this);
    auto* titulo = new QLabel(
        QString::fromUtf8(builders::kTituloTablaReducciones.data(),
                          static_cast<qsizetype>(builders::kTituloTablaReducciones.size())),
        this);
    titulo->setWordWrap(true);
    caja->addWidget(titulo);
    auto* cabecera = new QLabel(QStringLiteral("Nº de apuestas reducidas"), this);
    cabecera->setAlignment(Qt::AlignRight);
    caja->addWidget(cabecera);
    caja->addWidget(RejillaTablaReducciones(this, filas));
    BotonAceptar(this, caja);
}

VentanaReduccion::VentanaReduccion(const InformeReduccion& informe, QWidget* madre)
    : QDialog(madre) {
    setObjectName(QStringLiteral("VentanaReduccion"));
    setWindowTitle(QStringLiteral("Reducción"));
    auto* caja = new QVBoxLayout(this);
    auto* formulario = new QFormLayout;
    const auto valor = [this](const QString& nombre, const QString& texto) {
        auto* l = new QLabel(texto, this);
        l->setObjectName(nombre);
        l->setStyleSheet(QStringLiteral("font-weight: bold"));
        return l;
    };
    formulario->addRow(QStringLiteral("La reducción realizada es del"),
                       valor(QStringLiteral("ValorReduccion"), Q(informe.reduccion)));
    formulario->addRow(QStringLiteral("Probabilidad de obtener 14 aciertos"),
                       valor(QStringLiteral("ValorProbabilidad"), Q(informe.probabilidad)));
    caja->addLayout(formulario);
    if (!informe.premios.empty()) {
        auto* premios = new QGroupBox(QStringLiteral("Probabilidades de premio"), this);
        auto* filas = new QFormLayout(premios);
        AnadirProbabilidades(filas, informe.premios, premios);
        caja->addWidget(premios);
    }
    BotonAceptar(this, caja);
}

}  // namespace quinteva::ui
