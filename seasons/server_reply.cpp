#include "seasons/server_reply.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "base/error.h"
#include "base/record_files.h"
#include "base/text1252.h"

namespace quinteva::seasons {

namespace {

constexpr std::string_view kAbre = "<BODY>";
constexpr std::string_view kCierra = "</BODY>";
constexpr std::size_t kInicio = 9;
constexpr std::size_t kMenos = 11;

}  // namespace

std::optional<std::string> CuerpoDeRespuesta(std::string_view html) {
    const std::size_t abre = html.find(kAbre);
    if (abre == std::string_view::npos) return std::nullopt;
    const std::size_t cierra = html.find(kCierra, abre);
    if (cierra == std::string_view::npos) return std::nullopt;
    const std::size_t distancia = cierra - abre;
    if (distancia <= kMenos || abre + kInicio >= html.size()) return std::string();
    return std::string(html.substr(abre + kInicio, distancia - kMenos));
}

std::string PaginaDeRespuesta(std::string_view cuerpo) {
    std::string pagina = "<HTML><HEAD><TITLE>Quinteva</TITLE></HEAD>";
    pagina.append(kAbre).append("\r\n ").append(cuerpo).append("\r\n").append(kCierra);
    return pagina.append("</HTML>");
}

std::optional<std::string> CarpetaDeActualizacion(std::string_view html) {
    const auto cuerpo = CuerpoDeRespuesta(html);
    if (!cuerpo || cuerpo->empty() || cuerpo->front() != '1') return std::nullopt;
    const std::size_t fin = cuerpo->find('#', 1);
    if (fin == std::string::npos) return std::nullopt;
    return cuerpo->substr(1, fin - 1);
}

std::optional<long> VersionDelServidor(std::string_view html) {
    const auto cuerpo = CuerpoDeRespuesta(html);
    if (!cuerpo) return std::nullopt;
    const std::string_view numero = base::Recortar(*cuerpo);
    if (numero == "2") throw base::Error(std::string(kMsgErrorVersion));
    long version = 0;
    const auto [fin, error] =
        std::from_chars(numero.data(), numero.data() + numero.size(), version);
    if (numero.empty() || error != std::errc{} || fin != numero.data() + numero.size()) {
        return std::nullopt;
    }
    return version;
}

std::array<base::Byte, RegVersion::kLongitud> RegVersion::ABytes() const {
    std::array<base::Byte, kLongitud> b{};
    base::PonerTexto(b, 0, 20, fichero);
    base::PonerTexto(b, 20, 20, destino);
    base::PonerTexto(b, 40, 20, clase);
    base::PonerInt32(b, 60, version);
    return b;
}

RegVersion RegVersion::DeBytes(std::span<const base::Byte> b) {
    return {base::TomarTexto(b, 0, 20), base::TomarTexto(b, 20, 20), base::TomarTexto(b, 40, 20),
            base::TomarInt32(b, 60)};
}

ListaDeVersiones LeerListaDeVersiones(const std::filesystem::path& archivo,
                                      std::int32_t versionPrograma) {
    const auto registros = base::LeerTodos<RegVersion>(archivo);
    ListaDeVersiones lista;
    if (registros.empty()) return lista;
    lista.ultima = registros.front().version;
    std::copy_if(registros.begin() + 1, registros.end(), std::back_inserter(lista.aTraer),
                 [&](const RegVersion& r) { return r.version > versionPrograma; });
    return lista;
}

bool EsZip(std::string_view fichero) { return base::Recortar(fichero).ends_with("zip"); }

}  // namespace quinteva::seasons
