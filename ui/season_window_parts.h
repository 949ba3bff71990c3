#pragma once

#include <QString>
#include <QStringList>

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

QPushButton* BotonVentana(QWidget* madre, QBoxLayout* fila, const QString& texto,
                          const QString& nombre);

}  // namespace quinteva::ui
