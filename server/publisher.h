#pragma once

#include <filesystem>
#include <string>

namespace quinteva::servidor {

// Lo que publica quinteva-servidor: una carpeta servida tal cual desde la raíz. Los archivos de la
// actualización están en carpeta/nombre/Quinteva ("Jlig2.rar"..., "VersionQVPr.txt",
// "CambiosQVPr.txt" y los del programa); "nombre" es la carpeta que anuncia "/QVactualizar.asp".
struct Publicacion {
    std::filesystem::path carpeta;
    std::string nombre = "descargas";

    std::filesystem::path Archivos() const { return carpeta / nombre / "Quinteva"; }
};

// "/QVactualizar.asp": el código 1 y la carpeta cerrada con "#" si hay archivos publicados; si
// no, el código 0 (no hay actualización).
std::string RespuestaCarpeta(const Publicacion& publicacion);

// "/VersionActual.asp": la versión del registro 1 de "VersionQVPr.txt"; sin lista, "2" (error al
// comprobar versión).
std::string RespuestaVersion(const Publicacion& publicacion);

}  // namespace quinteva::servidor
