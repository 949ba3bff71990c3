#include "cli/http_network.h"

#include <httplib.h>

#include <array>
#include <fstream>
#include <system_error>

#include "base/atomic_write.h"

namespace quinteva::cli {

namespace {

constexpr int kSegundos = 30;

std::string TextoDelError(httplib::Error error) {
    static constexpr std::array<std::string_view, 14> kTextos = {
        "Sin error",
        "Error desconocido",
        "No se pudo conectar con el servidor",
        "No se pudo usar la dirección local",
        "Error al leer la respuesta",
        "Error al enviar la petición",
        "Demasiadas redirecciones",
        "Petición cancelada",
        "No se pudo establecer la conexión segura",
        "No se pudieron cargar los certificados",
        "No se pudo verificar el certificado del servidor",
        "Respuesta en varias partes no válida",
        "Error al descomprimir la respuesta",
        "Se agotó el tiempo de conexión",
    };
    const auto n = static_cast<std::size_t>(error);
    return std::string(n < kTextos.size() ? kTextos[n] : kTextos[1]);
}

httplib::Client Cliente(const std::string& servidor) {
    httplib::Client cliente(servidor);
    cliente.set_connection_timeout(kSegundos);
    cliente.set_read_timeout(kSegundos);
    cliente.set_follow_location(true);
    return cliente;
}

}  // namespace

base::Pagina RedHttp::Pedir(std::string_view ruta, const base::Consulta& consulta) {
    httplib::Params parametros;
    for (const auto& [clave, valor] : consulta) parametros.emplace(clave, valor);
    auto cliente = Cliente(servidor_);
    const auto respuesta = cliente.Get(std::string(ruta), parametros, httplib::Headers{});
    if (!respuesta)
        return {static_cast<int>(respuesta.error()), TextoDelError(respuesta.error()), ""};
    if (respuesta->status != 200) {
        return {respuesta->status, "El servidor respondió " + std::to_string(respuesta->status),
                ""};
    }
    return {0, "", respuesta->body};
}

int RedHttp::Descargar(std::string_view ruta, const std::filesystem::path& destino) {
    // Se escribe junto al destino y se renombra: el archivo llega entero o no llega.
    const auto temporal = base::RutaTemporalJunto(destino);
    int estado = 0;
    int estadoHttp = 0;
    {
        std::ofstream archivo(temporal, std::ios::binary);
        if (!archivo) return -1;
        auto cliente = Cliente(servidor_);
        const auto respuesta = cliente.Get(
            std::string(ruta),
            [&](const httplib::Response& r) {
                estadoHttp = r.status;
                return r.status == 200;
            },
            [&](const char* datos, std::size_t n) {
                archivo.write(datos, static_cast<std::streamsize>(n));
                return archivo.good();
            });
        estado = estadoHttp != 0 && estadoHttp != 200 ? estadoHttp
                 : !respuesta                         ? static_cast<int>(respuesta.error())
                 : archivo.flush()                    ? 0
                                                      : -1;
    }
    std::error_code error;
    if (estado != 0) {
        std::filesystem::remove(temporal, error);
        return estado;
    }
    std::filesystem::rename(temporal, destino, error);
    return error ? -1 : 0;
}

}  // namespace quinteva::cli
