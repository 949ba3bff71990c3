#include "engine/columns.h"

#include <algorithm>

namespace quinteva::engine {
namespace {

constexpr std::string_view kGoles = "012M";

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

std::string PlenoALetra(std::string_view golesLocal, std::string_view golesVisitante) {
    if (golesLocal.size() != 1 || golesVisitante.size() != 1) return {};
    const auto l = kGoles.find(golesLocal[0]);
    const auto v = kGoles.find(golesVisitante[0]);
    if (l == std::string_view::npos || v == std::string_view::npos) return {};
    return std::string(1, static_cast<char>('A' + l * 4 + v));
}

std::string LetraAPleno(std::string_view letra) {
    if (letra.size() != 1 || letra[0] < 'A' || letra[0] > 'P') return {};
    const int n = letra[0] - 'A';
    return {kGoles[static_cast<std::size_t>(n / 4)], kGoles[static_cast<std::size_t>(n % 4)]};
}

}  // namespace quinteva::engine
