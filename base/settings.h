#pragma once

#include <string>
#include <string_view>

namespace quinteva::base {

// Almacén de ajustes por aplicación, sección y clave; todos los valores son texto. Las claves se
// guardan tal cual, con sus tildes y ordinales ("MaxJor1ª", "NPeña").
class Ajustes {
  public:
    virtual ~Ajustes() = default;
    virtual std::string Leer(std::string_view aplicacion, std::string_view seccion,
                             std::string_view clave, std::string_view defecto) const = 0;
    virtual void Guardar(std::string_view aplicacion, std::string_view seccion,
                         std::string_view clave, std::string_view valor) = 0;
};

// Las aplicaciones del almacén.
inline constexpr std::string_view kAplicacion = "Quinteva-07";
inline constexpr std::string_view kAplicacionPrograma = "Quinteva";

}  // namespace quinteva::base
