#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "base/settings.h"

namespace quinteva::base {

// Ajustes en archivos INI, uno por aplicación ("Quinteva-07.ini") en una carpeta. Es el mismo
// formato que escribe QSettings con IniFormat: el programa de escritorio y quinteva-cli leen así
// los mismos valores. Las claves con caracteres fuera de [A-Za-z0-9_-.] van escapadas como
// "%XX" (hasta U+00FF) o "%UXXXX"; los valores van en UTF-8, entre comillas cuando lo necesitan.
class AjustesIni : public Ajustes {
  public:
    explicit AjustesIni(std::filesystem::path carpeta);

    std::string Leer(std::string_view aplicacion, std::string_view seccion, std::string_view clave,
                     std::string_view defecto) const override;
    void Guardar(std::string_view aplicacion, std::string_view seccion, std::string_view clave,
                 std::string_view valor) override;

    std::filesystem::path RutaDe(std::string_view aplicacion) const;

  private:
    using Secciones = std::map<std::string, std::map<std::string, std::string>>;
    Secciones Cargar(std::string_view aplicacion) const;

    std::filesystem::path carpeta_;
};

}  // namespace quinteva::base
