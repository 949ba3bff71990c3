#pragma once

#include <QString>
#include <QStringList>

class QDialog;
class QPushButton;
class QTableWidget;
class QTableWidgetItem;
class QVBoxLayout;
class QWidget;

namespace quinteva::ui {

// Las piezas comunes de las ventanas de informe: una rejilla de solo lectura sin cabecera de filas,
// sus celdas y el "&Aceptar" que cierra.
QTableWidget* RejillaInforme(QWidget* madre, const QString& nombre, int filas,
                             const QStringList& cabeceras);
QTableWidgetItem* CeldaInforme(const QString& texto, bool negrita, bool derecha);
// "&Aceptar" que cierra la ventana, con el foco al abrirse.
void BotonAceptar(QDialog* ventana, QVBoxLayout* caja);
// La fila de los listados: "&Imprimir", que devuelve para que cada uno diga qué imprime, y
// "&Salir", que cierra la ventana.
QPushButton* BotonesListado(QDialog* ventana, QVBoxLayout* caja);

}  // namespace quinteva::ui
