#pragma once

#include <filesystem>

#include "base/settings.h"

namespace quinteva::ui {

// Los ajustes sobre QSettings, en archivos INI de la carpeta de trabajo (uno por aplicación):
// los mismos que lee base::AjustesIni, así que quinteva-cli ve lo que guarda el programa.
class AjustesQt : public base::Ajustes {
  public:
    explicit AjustesQt(std::filesystem::path carpeta);

    std::string Leer(std::string_view aplicacion, std::string_view seccion, std::string_view clave,
                     std::string_view defecto) const override;
    void Guardar(std::string_view aplicacion, std::string_view seccion, std::string_view clave,
                 std::string_view valor) override;

  private:
    std::filesystem::path carpeta_;
};

}  // namespace quinteva::ui
