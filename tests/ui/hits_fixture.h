#pragma once

#include <QMenu>
#include <QTableWidget>
#include <QtTest>

#include "tests/ui/window_fixture.h"
#include "ui/hits_window.h"

namespace quinteva::pruebas {

// Teclea en la celda de resultado de la fila (desde 0).
inline void Teclear(ui::VentanaAciertos& ventana, int fila, const QString& teclas) {
    auto* rejilla = Hijo<QTableWidget>(ventana, QStringLiteral("RejillaGanadora"));
    rejilla->setFocus();
    rejilla->setCurrentCell(fila, 1);
    QTest::keyClicks(rejilla, teclas);
}

inline QString Celda(ui::VentanaAciertos& ventana, int fila) {
    return Hijo<QTableWidget>(ventana, QStringLiteral("RejillaGanadora"))->item(fila, 1)->text();
}

// El menú del botón derecho sobre la celda de una fila y una de sus entradas.
inline void MenuResultado(ui::VentanaAciertos& ventana, int fila, const QString& entrada) {
    auto* rejilla = Hijo<QTableWidget>(ventana, QStringLiteral("RejillaGanadora"));
    emit rejilla->customContextMenuRequested(
        rejilla->visualItemRect(rejilla->item(fila, 1)).center());
    // El último: los anteriores se borran más tarde.
    const auto menus = ventana.findChildren<QMenu*>(QStringLiteral("MenuResultado"));
    QVERIFY(!menus.isEmpty());
    QMenu* menu = menus.last();
    for (QAction* a : menu->actions()) {
        if (a->text() == entrada) a->trigger();
    }
    menu->close();
}

// La columna ganadora entera con el teclado: 14 signos y los dos goles del Pleno.
inline void PonerGanadora(ui::VentanaAciertos& ventana, const QString& signos,
                          const QString& pleno) {
    MenuResultado(ventana, 0, QStringLiteral("Eliminar todos"));
    for (int f = 0; f < 14; ++f) Teclear(ventana, f, signos.mid(f, 1));
    Teclear(ventana, 14, pleno);
}

inline void Comprobar(ui::VentanaAciertos& ventana, const char* boton) {
    Pulsar(ventana, boton);
    QTRY_VERIFY_WITH_TIMEOUT(!ventana.Trabajo().EnCurso(), 60000);
}

}  // namespace quinteva::pruebas
