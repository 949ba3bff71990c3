#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>

namespace quinteva::pruebas {

// quinteva-servidor de verdad en 127.0.0.1, en un puerto libre, mientras dura el objeto.
class ServidorPublicando {
  public:
    ServidorPublicando(const std::filesystem::path& programa, const std::filesystem::path& carpeta);
    ~ServidorPublicando();
    ServidorPublicando(const ServidorPublicando&) = delete;
    ServidorPublicando& operator=(const ServidorPublicando&) = delete;

    // "http://127.0.0.1:puerto"
    const std::string& Direccion() const { return direccion_; }

  private:
    pid_t proceso_ = -1;
    std::string direccion_;
};

// Una dirección de 127.0.0.1 donde nadie escucha.
inline constexpr const char* kServidorCaido = "http://127.0.0.1:1";

}  // namespace quinteva::pruebas
