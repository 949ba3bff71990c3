#include "ui/report_grid.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace quinteva::ui {

QTableWidget* RejillaInforme(QWidget* madre, const QString& nombre, int filas,
                             const QStringList& cabeceras) {
    auto* r = new QTableWidget(filas, static_cast<int>(cabeceras.size()), madre);
    r->setObjectName(nombre);
    r->setHorizontalHeaderLabels(cabeceras);
    r->verticalHeader()->hide();
    r->verticalHeader()->setDefaultSectionSize(r->fontMetrics().height() + 6);
    r->setEditTriggers(QAbstractItemView::NoEditTriggers);
    r->setSelectionMode(QAbstractItemView::NoSelection);
    // Solo se lee: sin celda actual marcada.
    r->setFocusPolicy(Qt::NoFocus);
    return r;
}

QTableWidgetItem* CeldaInforme(const QString& texto, bool negrita, bool derecha) {
    auto* item = new QTableWidgetItem(texto);
    QFont f = item->font();
    f.setBold(negrita);
    item->setFont(f);
    item->setTextAlignment((derecha ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return item;
}

void BotonAceptar(QDialog* ventana, QVBoxLayout* caja) {
    auto* botones = new QDialogButtonBox(ventana);
    auto* aceptar = botones->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
    aceptar->setObjectName(QStringLiteral("BotonAceptar"));
    aceptar->setDefault(true);
    QObject::connect(botones, &QDialogButtonBox::accepted, ventana, &QDialog::accept);
    caja->addWidget(botones);
    aceptar->setFocus();
}

QPushButton* BotonesListado(QDialog* ventana, QVBoxLayout* caja) {
    auto* botones = new QHBoxLayout;
    auto* imprimir = new QPushButton(QStringLiteral("&Imprimir"), ventana);
    imprimir->setObjectName(QStringLiteral("BotonImprimir"));
    auto* salir = new QPushButton(QStringLiteral("&Salir"), ventana);
    salir->setObjectName(QStringLiteral("BotonSalir"));
    botones->addWidget(imprimir);
    botones->addStretch();
    botones->addWidget(salir);
    caja->addLayout(botones);
    QObject::connect(salir, &QPushButton::clicked, ventana, &QDialog::accept);
    return imprimir;
}

}  // namespace quinteva::ui
