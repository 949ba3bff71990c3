#pragma once

#include <functional>

#include "base/dialog.h"
#include "base/settings.h"
#include "outputs/print_list.h"

class QPainter;
class QPrinter;

namespace quinteva::ui {

// Dibuja una página de una impresión: los twips de la página pasan a puntos del dispositivo con
// su resolución, cada texto con su fuente y su esquina superior izquierda donde dice la lista.
void PintarPagina(QPainter& pintor, const outputs::Impresion& impresion, int pagina,
                  double resolucion);

// Todas las páginas en la impresora dada (o en su PDF), desde la esquina del papel.
void ImprimirEn(QPrinter& impresora, const outputs::Impresion& impresion);

// La impresora del ajuste "Impresora": la primera del sistema con ese nombre; si no hay ninguna
// así (o dice "Predeterminada del sistema"), la predeterminada, sin decir nada.
void ElegirImpresora(QPrinter& impresora, const base::Ajustes& ajustes);

// Cómo imprimen las ventanas: en el programa, en la impresora del ajuste; en las pruebas, lo que
// ellas digan.
using Imprimir = std::function<void(const outputs::Impresion&)>;
Imprimir ImpresoraDelSistema(const base::Ajustes& ajustes, base::Dialogo& dialogo);

}  // namespace quinteva::ui
