#include "ui/season_window_parts.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>

namespace quinteva::ui {
namespace {

QComboBox* Selector(QWidget* madre, QBoxLayout* fila, const QString& etiqueta,
                    const QString& nombre) {
    fila->addWidget(new QLabel(etiqueta, madre));
    auto* selector = new QComboBox(madre);
    selector->setObjectName(nombre);
    fila->addWidget(selector);
    return selector;
}

}  // namespace

QComboBox* SelectorDivision(QWidget* madre, QBoxLayout* fila) {
    QComboBox* selector =
        Selector(madre, fila, QStringLiteral("División"), QStringLiteral("ListaDivision"));
    selector->addItems({QStringLiteral("1ª"), QStringLiteral("2ª")});
    return selector;
}

QComboBox* SelectorJornada(QWidget* madre, QBoxLayout* fila) {
    QComboBox* selector =
        Selector(madre, fila, QStringLiteral("Jornada"), QStringLiteral("ListaJornada"));
    selector->setMinimumContentsLength(3);
    return selector;
}

void PonerJornadas(QComboBox* selector, int jornadas, int elegida) {
    const QSignalBlocker bloqueo(selector);
    if (selector->count() != jornadas) {
        selector->clear();
        for (int j = 1; j <= jornadas; ++j) selector->addItem(QString::number(j));
    }
    selector->setCurrentIndex(elegida - 1);
}

QTableWidget* RejillaPartidos(QWidget* madre, const QStringList& cabeceras) {
    auto* rejilla = new QTableWidget(0, static_cast<int>(cabeceras.size()), madre);
    rejilla->setObjectName(QStringLiteral("RejillaPartidos"));
    rejilla->setHorizontalHeaderLabels(cabeceras);
    rejilla->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla->setSelectionMode(QAbstractItemView::SingleSelection);
    rejilla->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    rejilla->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    return rejilla;
}

void PonerCelda(QTableWidget* rejilla, int fila, int columna, const QString& texto) {
    QTableWidgetItem* celda = rejilla->item(fila, columna);
    if (celda == nullptr) {
        celda = new QTableWidgetItem;
        celda->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        rejilla->setItem(fila, columna, celda);
    }
    celda->setText(texto);
}

QPushButton* BotonVentana(QWidget* madre, QBoxLayout* fila, const QString& texto,
                          const QString& nombre) {
    auto* boton = new QPushButton(texto, madre);
    boton->setObjectName(nombre);
    boton->setAutoDefault(false);
    fila->addWidget(boton);
    return boton;
}

}  // namespace quinteva::ui
