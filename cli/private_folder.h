#pragma once

#include <filesystem>

#include "cli/arguments.h"

namespace quinteva::cli {

// La carpeta de los almacenes ("Cmb.tmp", "Red.tmp") de un subcomando: --carpeta si se dio; si
// no, una carpeta temporal propia que se borra al acabar, para no pisar los almacenes de un
// programa abierto.
class CarpetaDeAlmacenes {
  public:
    explicit CarpetaDeAlmacenes(const Argumentos& argumentos);
    ~CarpetaDeAlmacenes();
    CarpetaDeAlmacenes(const CarpetaDeAlmacenes&) = delete;
    CarpetaDeAlmacenes& operator=(const CarpetaDeAlmacenes&) = delete;

    const std::filesystem::path& Ruta() const { return ruta_; }

  private:
    std::filesystem::path ruta_;
    bool privada_ = false;
};

}  // namespace quinteva::cli
