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

// La cifra de cada carácter, -1 si no es un signo: una consulta sin saltos imprevisibles.
constexpr std::array<std::int8_t, 256> Cifras() {
    std::array<std::int8_t, 256> c{};
    for (auto& v : c) v = -1;
    c['1'] = 0;
    c['X'] = 1;
    c['2'] = 2;
    return c;
}
constexpr auto kCifra = Cifras();

}  // namespace

std::int32_t CodigoColumna(const Columna& columna) {
    std::int32_t codigo = 0;
    bool valida = true;
    for (const Signo s : columna) {
        const int cifra = kCifra[static_cast<unsigned char>(s)];
        valida &= cifra >= 0;
        codigo = codigo * 3 + cifra;
    }
    return valida ? codigo : -1;
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
// demás: cada código a la distancia se visita una sola vez. cambios[p] son lo que suma al código
// poner en el partido p cada uno de los otros dos signos.
void Recubrimiento::Marcar(std::int32_t codigo, const Cambios& cambios, int desde, int quedan) {
    Poner(codigo);
    for (int p = desde; p < kPartidos && quedan > 0; ++p) {
        for (const std::int32_t cambio : cambios[static_cast<std::size_t>(p)]) {
            // El último nivel se marca aquí mismo: son casi todos los códigos visitados.
            if (quedan == 1) {
                Poner(codigo + cambio);
            } else {
                Marcar(codigo + cambio, cambios, p + 1, quedan - 1);
            }
        }
    }
}

bool Recubrimiento::Considerar(const Columna& columna) {
    const std::int32_t codigo = CodigoColumna(columna);
    if (Cubierta(columna, codigo)) return false;
    guardadas_.push_back(columna);
    if (codigo < 0) {
        guardadasSinCodigo_.push_back(columna);
        return true;
    }
    Cambios cambios{};
    for (std::size_t p = 0; p < kPartidos; ++p) {
        const int propia = kCifra[static_cast<unsigned char>(columna[p])];
        cambios[p] = {((propia + 1) % 3 - propia) * kPotencia[p],
                      ((propia + 2) % 3 - propia) * kPotencia[p]};
    }
    Marcar(codigo, cambios, 0, distancia_);
    return true;
}

}  // namespace quinteva::engine
