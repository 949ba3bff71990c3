#include "outputs/played_set.h"

#include <fstream>
#include <iterator>
#include <span>

#include "base/bytes.h"
#include "base/error.h"
#include "base/text1252.h"

namespace quinteva::outputs {
namespace {

std::vector<base::Byte> Contenido(const std::filesystem::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    if (!archivo) throw base::Error("No se puede leer el archivo " + ruta.string());
    return {std::istreambuf_iterator<char>(archivo), std::istreambuf_iterator<char>()};
}

}  // namespace

JuegoJugado LeerJuegoJugado(const std::filesystem::path& uxd) {
    if (!std::filesystem::is_regular_file(uxd)) {
        throw base::Error("No se encuentra la Combinación " + uxd.string());
    }
    const std::vector<base::Byte> cabecera = Contenido(uxd);
    if (cabecera.size() < kLongitudCabecera) {
        throw base::Error("El archivo " + uxd.string() + " no es una Combinación de Quinteva.");
    }
    JuegoJugado juego;
    juego.jornada = base::TomarByte(cabecera, kPosicionJornada);
    juego.juego = base::TomarTexto(cabecera, kPosicionJuego, 3);
    // Como al guardar: se cortan los 4 últimos caracteres de la ruta y se añade la extensión.
    const std::string ruta = uxd.string();
    const std::string extension = base::MismoTexto(juego.juego, "cnd") ? ".cnd" : ".red";
    juego.columnas = ruta.substr(0, ruta.size() - 4) + extension;
    return juego;
}

std::vector<engine::RegistroColumna> LeerColumnas(const std::filesystem::path& archivo,
                                                  bool soloActivas) {
    std::vector<engine::RegistroColumna> columnas;
    if (!std::filesystem::exists(archivo)) return columnas;
    const std::vector<base::Byte> bytes = Contenido(archivo);
    const std::span<const base::Byte> todo(bytes);
    constexpr std::size_t n = engine::RegistroColumna::kLongitud;
    columnas.reserve(bytes.size() / n);
    for (std::size_t i = 0; i + n <= bytes.size(); i += n) {
        const auto r = engine::RegistroColumna::DeBytes(todo.subspan(i, n));
        if (!soloActivas || r.Activa()) columnas.push_back(r);
    }
    return columnas;
}

}  // namespace quinteva::outputs
