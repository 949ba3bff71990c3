#pragma once

#include <filesystem>
#include <functional>

#include "seasons/version_update.h"
#include "ui/net_window.h"

class QLabel;
class QPushButton;

namespace quinteva::ui {

// "Actualización del programa": la versión del servidor, sus modificaciones, los archivos nuevos
// y el paso al actualizador (donde lo hay). Al abrirse con un servidor guardado comprueba ya.
class VentanaActualizacionPrograma : public VentanaDeRed {
    Q_OBJECT

  public:
    struct Entorno {
        std::filesystem::path carpetaTrabajo;
        seasons::Instalacion instalacion;
        // La ventana de las modificaciones; las pruebas ponen la suya.
        seasons::VerCambios verCambios;
    };
    VentanaActualizacionPrograma(Entorno entorno, base::Ajustes& ajustes, base::Dialogo& dialogo,
                                 QWidget* madre = nullptr);

    // Cómo se instaló este programa: en Windows, con su actualizador; en los demás, con el
    // gestor de paquetes.
    static seasons::Instalacion InstalacionDelPrograma();

  signals:
    // Los archivos de la versión están en la carpeta de trabajo: que el actualizador siga.
    void traspasar();

  protected:
    void Terminado() override;

  private:
    void Comprobar();

    Entorno e_;
    QLabel* enServidor_ = nullptr;
    QPushButton* comprobar_ = nullptr;
    seasons::ResultadoVersion resultado_;  // lo escribe el hilo de fondo; se lee al acabar
};

}  // namespace quinteva::ui
