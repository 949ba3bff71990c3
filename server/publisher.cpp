#include "server/publisher.h"

#include <system_error>

#include "seasons/server_reply.h"

namespace quinteva::servidor {

std::string RespuestaCarpeta(const Publicacion& publicacion) {
    std::error_code error;
    if (!std::filesystem::is_directory(publicacion.Archivos(), error)) {
        return seasons::PaginaDeRespuesta("0#");
    }
    return seasons::PaginaDeRespuesta("1" + publicacion.nombre + "#");
}

std::string RespuestaVersion(const Publicacion& publicacion) {
    const auto lista = publicacion.Archivos() / "VersionQVPr.txt";
    std::error_code error;
    if (!std::filesystem::is_regular_file(lista, error)) return seasons::PaginaDeRespuesta("2");
    const auto versiones = seasons::LeerListaDeVersiones(lista, 0);
    return seasons::PaginaDeRespuesta(std::to_string(versiones.ultima));
}

}  // namespace quinteva::servidor
