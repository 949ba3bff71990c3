#pragma once

#include <QMainWindow>
#include <filesystem>

#include "base/dialog.h"
#include "base/settings.h"

namespace quinteva::ui {

// Lo que la ventana principal toma del programa: la carpeta de trabajo, los ajustes y el Dialogo
// por el que habla con el usuario (el de Qt en el programa, uno con guion en las pruebas).
struct Servicios {
    std::filesystem::path carpetaTrabajo;
    base::Ajustes& ajustes;
    base::Dialogo& dialogo;
};

// La ventana principal, "Quinteva", con su barra de menús.
class VentanaPrincipal : public QMainWindow {
    Q_OBJECT

  public:
    explicit VentanaPrincipal(Servicios servicios, QWidget* madre = nullptr);

    void AcercaDe();

  private:
    void CrearMenus();

    Servicios servicios_;
};

}  // namespace quinteva::ui
