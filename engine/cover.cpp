#include "engine/cover.h"

#include <algorithm>

#include "engine/reduction.h"

namespace quinteva::engine {
namespace {

constexpr std::array<std::int32_t, kPartidos> Potencias() {
    std::array<std::int32_t, kPartidos> p{};
    std::int32_t v = 1;
    for (int i = kPartidos - 1; i >= 0; --i, v *= 3) p[static_cast<std::size_t>(i)] = v;
    return p;
}
constexpr auto kPotencia = Potencias();

}  // namespace

std::int32_t CodigoColumna(const Columna& columna) {
    std::int32_t codigo = 0;
    for (const Signo s : columna) {
        const int cifra = IndiceSigno(s);
        if (cifra < 0) return -1;
        codigo = codigo * 3 + cifra;
    }
    return codigo;
}

Recubrimiento::Recubrimiento(int distancia)
    : distancia_(distancia), marcadas_((kCodigosColumna + 63) / 64, 0) {}

bool Recubrimiento::Cubierta(const Columna& columna, std::int32_t codigo) const {
    const auto cerca = [&](const Columna& g) { return !DifierenMasDe(g, columna, distancia_); };
    if (codigo < 0) return std::any_of(guardadas_.begin(), guardadas_.end(), cerca);
    const auto u = static_cast<std::uint32_t>(codigo);
    if ((marcadas_[u / 64] >> (u % 64)) & 1U) return true;
    return std::any_of(guardadasSinCodigo_.begin(), guardadasSinCodigo_.end(), cerca);
}

// Marca el código y, cambiando a lo sumo "quedan" partidos a partir de "desde", todos los
// demás: cada código a la distancia se visita una sola vez.
void Recubrimiento::Marcar(std::int32_t codigo, const Columna& columna, int desde, int quedan) {
    const auto u = static_cast<std::uint32_t>(codigo);
    marcadas_[u / 64] |= std::uint64_t{1} << (u % 64);
    if (quedan == 0) return;
    for (int p = desde; p < kPartidos; ++p) {
        const int propia = IndiceSigno(columna[static_cast<std::size_t>(p)]);
        for (int otra = 0; otra < 3; ++otra) {
            if (otra == propia) continue;
            Marcar(codigo + (otra - propia) * kPotencia[static_cast<std::size_t>(p)], columna,
                   p + 1, quedan - 1);
        }
    }
}

bool Recubrimiento::Considerar(const Columna& columna) {
    const std::int32_t codigo = CodigoColumna(columna);
    if (Cubierta(columna, codigo)) return false;
    guardadas_.push_back(columna);
    if (codigo < 0) {
        guardadasSinCodigo_.push_back(columna);
    } else {
        Marcar(codigo, columna, 0, distancia_);
    }
    return true;
}

}  // namespace quinteva::engine
