#pragma once

#include <QDialog>
#include <filesystem>
#include <memory>

#include "base/dialog.h"
#include "outputs/print_list.h"
#include "ui/printing.h"

class QPrinter;
class QPrintPreviewWidget;

namespace quinteva::ui {

// El visor de informes del programa: la vista previa de las páginas, "&Imprimir" en la impresora
// del ajuste, "&Guardar PDF" (con la pregunta si el archivo ya existe) y "&Salir". Lo usan el
// "Visor de Quinielas" y los informes que lo necesiten.
class VentanaVisor : public QDialog {
    Q_OBJECT

  public:
    struct Informe {
        QString titulo;
        outputs::Impresion paginas;
        // El PDF que propone "&Guardar PDF".
        std::filesystem::path pdf;
    };
    VentanaVisor(Informe informe, base::Dialogo& dialogo, Imprimir imprimir,
                 QWidget* madre = nullptr);
    ~VentanaVisor() override;

  private:
    Informe informe_;
    base::Dialogo& dialogo_;
    Imprimir imprimir_;
    std::unique_ptr<QPrinter> vista_;
};

}  // namespace quinteva::ui
