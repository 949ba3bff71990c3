#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/column_code.h"

namespace quinteva::engine {

namespace detalle {
// 3 elevado a la posición de cada partido en el código: el partido 1 es la cifra más alta.
inline constexpr std::array<std::int32_t, kPartidos> kPesoPartido = [] {
    std::array<std::int32_t, kPartidos> peso{};
    std::int32_t p = 1;
    for (int i = kPartidos - 1; i >= 0; --i) {
        peso[static_cast<std::size_t>(i)] = p;
        p *= 3;
    }
    return peso;
}();
}  // namespace detalle

// Los entornos de unas columnas dentro de ellas mismas: cuáles están a "radio" signos o menos de
// una dada. Cada columna se conoce por su índice entre las dadas (sus códigos, distintos y
// válidos); un índice por código dice si un código está entre ellas.
class Entornos {
  public:
    explicit Entornos(std::span<const std::int32_t> codigos);

    std::size_t Tamano() const { return codigos_.size(); }

    // Llama f(j) por cada columna j a "radio" o menos de la columna i (ella incluida).
    template <typename F>
    void Cada(std::size_t i, int radio, F&& f) const {
        Recorrer(codigos_[i], Cifras(codigos_[i]), 0, radio, f);
    }

    // En cuántos partidos difieren dos columnas.
    int Distancia(std::size_t i, std::size_t j) const {
        std::uint32_t x = pares_[i] ^ pares_[j];
        x = (x | (x >> 1)) & 0x05555555U;
        return std::popcount(x);
    }

    // Por cada columna, cuántas de las dadas tiene a "radio" o menos (ella incluida).
    std::vector<std::int32_t> Cuentas(int radio) const;

  private:
    static constexpr int kPosiciones = kPartidos;
    using CifrasColumna = std::array<int, kPosiciones>;
    static CifrasColumna Cifras(std::int32_t codigo);

    template <typename F>
    void Recorrer(std::int32_t codigo, const CifrasColumna& cifras, std::size_t desde, int quedan,
                  F& f) const {
        const std::int32_t j = indice_[static_cast<std::size_t>(codigo)];
        if (j >= 0) f(static_cast<std::size_t>(j));
        if (quedan == 0) return;
        for (std::size_t k = desde; k < libres_.size(); ++k) {
            const Libre& libre = libres_[k];
            const int propia = cifras[libre.partido];
            for (int otra = 0; otra < 3; ++otra) {
                if (otra == propia || ((libre.signos >> otra) & 1U) == 0) continue;
                Recorrer(codigo + (otra - propia) * libre.peso, cifras, k + 1, quedan - 1, f);
            }
        }
    }
    // Las cuentas por transformada sobre los 3^14 códigos: cuando hay muchas columnas cuesta
    // menos que recorrer el entorno de cada una.
    std::vector<std::int32_t> CuentasPorTransformada(int radio) const;

    std::span<const std::int32_t> codigos_;
    std::vector<std::int32_t> indice_;
    // Los partidos en los que las columnas no llevan todas el mismo signo, con los signos que
    // llevan (un bit por cifra): solo cambiando estos se llega a otra de ellas.
    struct Libre {
        std::size_t partido;
        std::int32_t peso;
        unsigned signos;
    };
    std::vector<Libre> libres_;
    // Cada columna en dos bits por partido, para contar diferencias de una vez.
    std::vector<std::uint32_t> pares_;
};

}  // namespace quinteva::engine
