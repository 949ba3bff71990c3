#include "ui/conditions_history_window.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "base/formats.h"
#include "ui/qt_text.h"
#include "ui/report_grid.h"

namespace quinteva::ui {

namespace {

QString Cifra(int n) { return Q(base::Formato(n, "#,##0")); }

QLabel* Resumen(QWidget* madre, const QString& nombre, const QString& texto) {
    auto* l = new QLabel(texto, madre);
    l->setObjectName(nombre);
    return l;
}

QTableWidget* Familias(QWidget* madre, const builders::HistoricoCondiciones& h) {
    auto* rejilla = RejillaInforme(madre, QStringLiteral("RejillaFamilias"),
                                   static_cast<int>(h.familias.size()),
                                   {QStringLiteral("Familia"), QStringLiteral("Dejaría pasar")});
    for (std::size_t i = 0; i < h.familias.size(); ++i) {
        const int fila = static_cast<int>(i);
        rejilla->setItem(fila, 0, CeldaInforme(Q(h.familias[i].nombre), false, false));
        rejilla->setItem(fila, 1, CeldaInforme(Cifra(h.familias[i].pasan), true, true));
    }
    rejilla->resizeColumnsToContents();
    // Tan alta como sus filas: son pocas.
    rejilla->setFixedHeight(rejilla->horizontalHeader()->sizeHint().height() +
                            rejilla->verticalHeader()->length() + 2 * rejilla->frameWidth());
    return rejilla;
}

QTableWidget* Jornadas(QWidget* madre, const builders::HistoricoCondiciones& h) {
    auto* rejilla = RejillaInforme(
        madre, QStringLiteral("RejillaJornadas"), static_cast<int>(h.jornadas.size()),
        {QStringLiteral("Temporada"), QStringLiteral("Jorn."), QStringLiteral("Columna"),
         QStringLiteral("En la base"), QStringLiteral("La rechaza")});
    for (std::size_t i = 0; i < h.jornadas.size(); ++i) {
        const auto& j = h.jornadas[i];
        const int fila = static_cast<int>(i);
        rejilla->setItem(fila, 0, CeldaInforme(Q(j.temporada), false, false));
        rejilla->setItem(fila, 1, CeldaInforme(QString::number(j.jornada), false, true));
        rejilla->setItem(fila, 2, CeldaInforme(Q(j.columna), false, false));
        rejilla->setItem(
            fila, 3,
            CeldaInforme(j.enLaBase ? QStringLiteral("Sí") : QStringLiteral("No"), false, false));
        rejilla->setItem(fila, 4,
                         CeldaInforme(j.rechazo.empty() ? QStringLiteral("Cumple") : Q(j.rechazo),
                                      j.rechazo.empty(), false));
    }
    rejilla->resizeColumnsToContents();
    return rejilla;
}

}  // namespace

VentanaHistoricoCondiciones::VentanaHistoricoCondiciones(const builders::HistoricoCondiciones& h,
                                                         QWidget* madre)
    : QDialog(madre) {
    setObjectName(QStringLiteral("VentanaHistoricoCondiciones"));
    setWindowTitle(QStringLiteral("Histórico de condiciones"));
    auto* caja = new QVBoxLayout(this);
    caja->addWidget(Resumen(this, QStringLiteral("TextoGanadoras"),
                            QStringLiteral("Columnas ganadoras guardadas: %1 (en la Quiniela "
                                           "Base: %2)")
                                .arg(Cifra(h.ganadoras), Cifra(h.enLaBase))));
    caja->addWidget(
        Resumen(this, QStringLiteral("TextoPasan"),
                QStringLiteral("Cumplen todas las condiciones: %1").arg(Cifra(h.pasan))));
    caja->addWidget(Familias(this, h));
    auto* jornadas = Jornadas(this, h);
    jornadas->horizontalHeader()->setSectionResizeMode(4, QHeaderView::Stretch);
    caja->addWidget(jornadas, 1);
    BotonAceptar(this, caja);
    resize(640, 560);
}

}  // namespace quinteva::ui
