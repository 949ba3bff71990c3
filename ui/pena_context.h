#pragma once

#include <QDialog>
#include <QString>
#include <QWidget>
#include <filesystem>

#include "base/dialog.h"
#include "base/settings.h"
#include "outputs/print_list.h"
#include "ui/printing.h"

namespace quinteva::ui {

// Lo que las ventanas de una Peña toman del programa: la carpeta de trabajo (las fechas de
// "Jquin.rar"), los ajustes (el precio de una columna), el Dialogo y la impresora.
struct EntornoPena {
    std::filesystem::path carpetaTrabajo;
    base::Ajustes& ajustes;
    base::Dialogo& dialogo;
    Imprimir imprimir;
};

// Abre una ventana de la Peña sobre la que la pide: modal sin bucle propio, y se borra al
// cerrarse.
void AbrirSobre(QDialog* ventana);

// Abre un documento de la Peña en el visor de informes, junto a la ventana que lo pide.
void AbrirEnVisor(QWidget* madre, const EntornoPena& entorno, const QString& titulo,
                  outputs::Impresion paginas, const std::filesystem::path& pdf);

}  // namespace quinteva::ui
