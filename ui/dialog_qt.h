#pragma once

#include "base/dialog.h"

class QWidget;

namespace quinteva::ui {

// El Dialogo del programa: cajas de mensaje, de entrada y de archivos de Qt, con el título
// "Quinteva" y la ventana dada como madre.
class DialogoQt : public base::Dialogo {
  public:
    explicit DialogoQt(QWidget* madre = nullptr) : madre_(madre) {}
    void FijarMadre(QWidget* madre) { madre_ = madre; }

    void Mensaje(std::string_view texto, base::Icono icono) override;
    base::Respuesta PreguntaSiNo(std::string_view texto, base::Respuesta porDefecto) override;
    base::Respuesta PreguntaSiNoCancelar(std::string_view texto,
                                         base::Respuesta porDefecto) override;
    base::Respuesta AceptarCancelar(std::string_view texto) override;
    std::optional<std::string> PedirTexto(std::string_view texto, std::string_view titulo,
                                          std::string_view inicial) override;
    std::optional<std::filesystem::path> ArchivoParaAbrir(
        std::string_view titulo, std::string_view filtro,
        const std::filesystem::path& carpeta) override;
    std::optional<std::filesystem::path> ArchivoParaGuardar(
        std::string_view titulo, std::string_view filtro,
        const std::filesystem::path& inicial) override;
    std::optional<std::filesystem::path> Carpeta(std::string_view titulo,
                                                 const std::filesystem::path& inicial) override;

  private:
    QWidget* madre_;
};

}  // namespace quinteva::ui
