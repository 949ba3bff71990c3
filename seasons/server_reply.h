#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/bytes.h"

namespace quinteva::seasons {

inline constexpr std::string_view kMsgErrorVersion = "Error al comprobar versión";

// Lo que dicen las páginas del servidor del editor: HTML con el texto útil entre "<BODY>" y
// "</BODY>". Estas funciones leen datos de fuera: nada de lo que llegue hace fallar al programa.

// El cuerpo: empieza 9 caracteres después del primero de "<BODY>" y mide la distancia entre las
// dos marcas menos 11. Sin las dos marcas en su orden, nada; si la cuenta no deja texto, vacío.
std::optional<std::string> CuerpoDeRespuesta(std::string_view html);

// La página que da el servidor con su cuerpo donde lo busca el programa (la inversa de la
// anterior).
std::string PaginaDeRespuesta(std::string_view cuerpo);

// La respuesta de "/QVactualizar.asp": con el código 1, la carpeta que sigue hasta "#"; si no,
// nada (la actualización no hace nada).
std::optional<std::string> CarpetaDeActualizacion(std::string_view html);

// La respuesta de "/VersionActual.asp": el número de versión del servidor. El cuerpo "2" es
// base::Error kMsgErrorVersion; un cuerpo que no es un número entero, nada.
std::optional<long> VersionDelServidor(std::string_view html);

// Un registro de 64 bytes de "VersionQVPr.txt": el 1 trae la versión más nueva; los demás, los
// archivos que cambiaron en su versión.
struct RegVersion {
    static constexpr std::size_t kLongitud = 64;
    std::string fichero;
    std::string destino;
    std::string clase;  // "Parche" marca un parche
    std::int32_t version = 0;

    std::array<base::Byte, kLongitud> ABytes() const;
    static RegVersion DeBytes(std::span<const base::Byte> b);
    friend bool operator==(const RegVersion&, const RegVersion&) = default;
};

// La lista de versiones leída: la versión del registro 1 y los archivos que hay que traer para
// pasar de la versión del programa a ella (los registros desde el 2 con una versión mayor que la
// del programa), en su orden. Un archivo sin registros da versión 0 y ningún archivo.
struct ListaDeVersiones {
    std::int32_t ultima = 0;
    std::vector<RegVersion> aTraer;
};
ListaDeVersiones LeerListaDeVersiones(const std::filesystem::path& archivo,
                                      std::int32_t versionPrograma);

// Un archivo que se trae y se expande: su nombre recortado acaba en "zip".
bool EsZip(std::string_view fichero);

}  // namespace quinteva::seasons
