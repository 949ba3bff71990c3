#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quinteva::base {

// Lo que devuelve el cliente de la red al pedir una página: el texto, o el código y el texto del
// error de conexión (un código 0 es que llegó bien).
struct Pagina {
    int error = 0;
    std::string textoError;
    std::string html;
};

using Consulta = std::vector<std::pair<std::string, std::string>>;

// El servidor del editor, visto desde los flujos: rutas y consultas, nunca la dirección, que es un
// ajuste de quien lo implementa. Programa: QNetworkAccessManager; línea de órdenes: cpp-httplib;
// pruebas: un doble en memoria.
class Red {
  public:
    virtual ~Red() = default;
    virtual Pagina Pedir(std::string_view ruta, const Consulta& consulta) = 0;
    // Trae el archivo de la ruta a destino, entero o nada. 0 es éxito.
    virtual int Descargar(std::string_view ruta, const std::filesystem::path& destino) = 0;
};

}  // namespace quinteva::base
