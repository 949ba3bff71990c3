#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace quinteva::cli {

// La carpeta donde la línea de órdenes deja "Cmb.tmp" y "Red.tmp": la de --carpeta si se dio; si
// no, una temporal propia que se borra al acabar, para no pisar los almacenes de trabajo del
// programa de escritorio que pueda estar abierto.
class CarpetaPrivada {
  public:
    explicit CarpetaPrivada(const std::optional<std::string>& indicada);
    ~CarpetaPrivada();
    CarpetaPrivada(const CarpetaPrivada&) = delete;
    CarpetaPrivada& operator=(const CarpetaPrivada&) = delete;

    const std::filesystem::path& Ruta() const { return ruta_; }

  private:
    std::filesystem::path ruta_;
    bool propia_;
};

}  // namespace quinteva::cli
