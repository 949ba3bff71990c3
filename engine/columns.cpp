#include "engine/columns.h"

#include <algorithm>

namespace quinteva::engine {
namespace {

template <std::size_t N>
std::array<char, N> Fijo(std::string_view texto, char relleno) {
    std::array<char, N> salida;
    salida.fill(relleno);
    std::copy_n(texto.begin(), std::min(N, texto.size()), salida.begin());
    return salida;
}

}  // namespace

Columna ColumnaDeTexto(std::string_view texto) { return Fijo<kPartidos>(texto, ' '); }
std::string TextoDeColumna(const Columna& c) { return {c.begin(), c.end()}; }
PlenoBase PlenoDeTexto(std::string_view texto) { return Fijo<2>(texto, ' '); }
std::string TextoDePleno(const PlenoBase& p) { return {p.begin(), p.end()}; }

std::array<base::Byte, RegistroColumna::kLongitud> RegistroColumna::ABytes() const {
    std::array<base::Byte, kLongitud> bytes{};
    std::copy(columna.begin(), columna.end(), bytes.begin());
    bytes[14] = static_cast<base::Byte>(pleno[0]);
    bytes[15] = static_cast<base::Byte>(pleno[1]);
    bytes[16] = static_cast<base::Byte>(estado);
    return bytes;
}

RegistroColumna RegistroColumna::DeBytes(std::span<const base::Byte> bytes) {
    RegistroColumna r;
    std::copy_n(bytes.begin(), kPartidos, r.columna.begin());
    r.pleno = {static_cast<char>(bytes[14]), static_cast<char>(bytes[15])};
    r.estado = static_cast<char>(bytes[16]);
    return r;
}

}  // namespace quinteva::engine
