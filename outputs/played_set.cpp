#include "outputs/played_set.h"

#include <fstream>
#include <iterator>
#include <span>

#include "base/bytes.h"
#include "base/error.h"
#include "base/text1252.h"
#include "engine/combination_files.h"

namespace quinteva::outputs {
namespace {

std::vector<base::Byte> Contenido(const std::filesystem::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    if (!archivo) throw base::Error("No se puede leer el archivo " + ruta.string());
    return {std::istreambuf_iterator<char>(archivo), std::istreambuf_iterator<char>()};
}

}  // namespace

JuegoJugado LeerJuegoJugado(const std::filesystem::path& uxd) {
    const engine::RegistroCabecera cabecera = engine::LeerCabecera(uxd);
    const bool condicionada = base::MismoTexto(cabecera.jugada, "cnd");
    return {cabecera.jornada, cabecera.jugada,
            engine::RutaHermana(uxd, condicionada ? ".cnd" : ".red")};
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
