#pragma once

#include <array>
#include <filesystem>

#include "seasons/update.h"
#include "ui/net_window.h"

class QLabel;
class QPushButton;

namespace quinteva::ui {

// "Actualización de Resultados, Jornadas de Liga y de Quinielas": los archivos de la temporada
// del servidor del editor, con sus tres pasos uno tras otro. Al cerrarse tras una actualización
// completa pide recargar los datos de la temporada.
class VentanaActualizacionTemporada : public VentanaDeRed {
    Q_OBJECT

  public:
    struct Carpetas {
        std::filesystem::path trabajo;
        std::filesystem::path temporada;
    };
    VentanaActualizacionTemporada(Carpetas carpetas, base::Ajustes& ajustes, base::Dialogo& dialogo,
                                  QWidget* madre = nullptr);

  signals:
    void recargar();

  protected:
    void Terminado() override;
    void closeEvent(QCloseEvent* evento) override;

  private:
    void Actualizar();
    void MostrarPaso(seasons::PasoActualizacion paso);

    Carpetas carpetas_;
    std::array<QLabel*, 3> pasos_{};
    QPushButton* actualizar_ = nullptr;
    bool completa_ = false;  // lo escribe el hilo de fondo; se lee al acabar
};

}  // namespace quinteva::ui
