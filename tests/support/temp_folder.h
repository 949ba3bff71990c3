#pragma once

#include <filesystem>

namespace quinteva::pruebas {

// Carpeta temporal propia de una prueba; se borra con todo su contenido al salir.
class CarpetaTemporal {
  public:
    CarpetaTemporal();
    ~CarpetaTemporal();
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    const std::filesystem::path& Ruta() const { return ruta_; }
    std::filesystem::path operator/(const std::filesystem::path& nombre) const {
        return ruta_ / nombre;
    }

  private:
    std::filesystem::path ruta_;
};

}  // namespace quinteva::pruebas
