#pragma once

#include <QString>
#include <QStringList>
#include <exception>

#include "base/dialog.h"

class QBoxLayout;
class QComboBox;
class QPushButton;
class QTableWidget;
class QWidget;

namespace quinteva::ui {

// Las piezas comunes de las ventanas de la temporada: los selectores de división y de Jornada
// con su etiqueta, la rejilla de partidos (filas numeradas desde 1, sin edición: las teclas las
// lleva cada ventana) y los botones de abajo.

// "División" con "1ª" y "2ª".
QComboBox* SelectorDivision(QWidget* madre, QBoxLayout* fila);
QComboBox* SelectorJornada(QWidget* madre, QBoxLayout* fila);
// Las Jornadas 1 a n en el selector, con la dada elegida, sin avisar del cambio.
void PonerJornadas(QComboBox* selector, int jornadas, int elegida);

QTableWidget* RejillaPartidos(QWidget* madre, const QStringList& cabeceras);
void PonerCelda(QTableWidget* rejilla, int fila, int columna, const QString& texto);

// Un mandato de una ventana: el texto de su fallo al usuario; lo hecho no se deshace.
template <typename F>
void ConAviso(base::Dialogo& dialogo, F&& mandato) {
    try {
        mandato();
    } catch (const std::exception& e) {
        dialogo.Mensaje(e.what(), base::Icono::Error);
    }
}

QPushButton* BotonVentana(QWidget* madre, QBoxLayout* fila, const QString& texto,
                          const QString& nombre);

}  // namespace quinteva::ui
