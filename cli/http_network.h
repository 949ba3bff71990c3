#pragma once

#include <string>

#include "base/network.h"

namespace quinteva::cli {

// El cliente de la red de la línea de órdenes, sobre cpp-httplib: http o https según la dirección.
// Un error de conexión da el número del cliente y su texto en español; una respuesta que no es
// 200, su estado.
class RedHttp final : public base::Red {
  public:
    explicit RedHttp(std::string servidor) : servidor_(std::move(servidor)) {}

    base::Pagina Pedir(std::string_view ruta, const base::Consulta& consulta) override;
    int Descargar(std::string_view ruta, const std::filesystem::path& destino) override;

  private:
    std::string servidor_;
};

}  // namespace quinteva::cli
