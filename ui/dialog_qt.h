#pragma once

#include <QString>

#include "base/dialog.h"
#include "base/settings.h"

class QWidget;

namespace quinteva::ui {

// La última carpeta elegida en un diálogo de archivos, entre una sesión y otra.
inline constexpr std::string_view kUltimaCarpeta = "UltCarpeta";

// El Dialogo del programa: cajas de mensaje, de entrada y de archivos de Qt, con el título
// "Quinteva" y la ventana dada como madre. Los diálogos de archivos se abren donde dice
// CarpetaDelDialogo, con la última carpeta elegida guardada en los ajustes, si los tiene.
class DialogoQt : public base::Dialogo {
  public:
    explicit DialogoQt(QWidget* madre = nullptr) : madre_(madre) {}
    void FijarMadre(QWidget* madre) { madre_ = madre; }
    void FijarAjustes(base::Ajustes& ajustes) { ajustes_ = &ajustes; }

    void Mensaje(std::string_view texto, base::Icono icono) override;
    base::Respuesta PreguntaSiNo(std::string_view texto, base::Respuesta porDefecto) override;
    base::Respuesta PreguntaSiNoCancelar(std::string_view texto,
                                         base::Respuesta porDefecto) override;
    base::Respuesta AceptarCancelar(std::string_view texto, base::Respuesta porDefecto) override;
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
    std::filesystem::path Inicial(const std::filesystem::path& dada) const;
    // Lo elegido (nada si el usuario canceló): su carpeta, o ella misma si es una carpeta, pasa a
    // ser la última.
    std::optional<std::filesystem::path> Elegida(const QString& ruta, bool esCarpeta);

    QWidget* madre_;
    base::Ajustes* ajustes_ = nullptr;
};

}  // namespace quinteva::ui
