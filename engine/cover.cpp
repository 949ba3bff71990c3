#include "engine/cover.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "engine/reduction.h"

namespace quinteva::engine {
namespace {

constexpr std::uint64_t kUnos = 0x0101010101010101;

// Las cifras de ocho caracteres a la vez, un byte cada una, y si los ocho son signos. La cifra
// de "1" (0x31) es 0, la de "X" (0x58) 1 y la de "2" (0x32) 2: el bit 3 y el bit 1 del carácter;
// ningún otro carácter es el que se rehace con esos dos bits.
bool Cifras(std::uint64_t caracteres, std::uint64_t& cifras) {
    const std::uint64_t x = (caracteres >> 3) & kUnos;
    const std::uint64_t dos = caracteres & (kUnos << 1);
    cifras = x | dos;
    return caracteres == kUnos * '1' + x * ('X' - '1') + (dos >> 1) * ('2' - '1');
}

// El valor en base 3 de ocho cifras, la del primer byte la más significativa: se juntan de dos
// en dos, de cuatro en cuatro y de ocho en ocho con tres multiplicaciones.
std::int32_t BaseTres(std::uint64_t cifras) {
    cifras = ((cifras * (1 + (3ULL << 8))) >> 8) & 0x00FF00FF00FF00FFULL;
    cifras = ((cifras * (1 + (9ULL << 16))) >> 16) & 0x0000FFFF0000FFFFULL;
    return static_cast<std::int32_t>((cifras * (1 + (81ULL << 32))) >> 32);
}

constexpr int kMitad = kPartidos / 2;
constexpr std::int32_t kPesoAlta = 2187;  // 3^7 códigos de una mitad: código = alta * 3^7 + baja

// Cuántos códigos de una mitad hay a distancia menor que r de uno dado: 1, 14, 84 y 280 a
// distancia exacta 0, 1, 2 y 3.
constexpr std::array<std::size_t, 5> kHasta = {0, 1, 15, 99, 379};

// Para cada código de una mitad, los de distancia 0 a "distancia", ordenados por distancia:
// con filas solo tan largas como hacen falta, la tabla de la distancia 1 cabe en la caché.
class Vecinos {
  public:
    explicit Vecinos(int distancia)
        : distancia_(distancia),
          fila_(kHasta[static_cast<std::size_t>(distancia + 1)]),
          tabla_(static_cast<std::size_t>(kPesoAlta) * fila_) {
        for (std::int32_t v = 0; v < kPesoAlta; ++v) {
            std::array<std::size_t, kDistanciaMaxima + 1> llenos{};
            Recorrer(v, v, 0, 0, llenos);
        }
    }

    // Los de la distancia de cada reducción, hechos la primera vez que hacen falta.
    static const Vecinos& Hasta(int distancia) {
        switch (distancia) {
            case 1: {
                static const Vecinos uno(1);
                return uno;
            }
            case 2: {
                static const Vecinos dos(2);
                return dos;
            }
            default: {
                static const Vecinos tres(3);
                return tres;
            }
        }
    }

    // Los vecinos de "mitad" a distancia menor que "hasta".
    std::span<const std::int16_t> De(std::int32_t mitad, int hasta) const {
        return {tabla_.data() + static_cast<std::size_t>(mitad) * fila_,
                kHasta[static_cast<std::size_t>(hasta)]};
    }

  private:
    // Añade "codigo", a "cambiados" de "origen", y los que salen de cambiar partidos desde "desde".
    void Recorrer(std::int32_t origen, std::int32_t codigo, int desde, int cambiados,
                  std::array<std::size_t, kDistanciaMaxima + 1>& llenos) {
        const auto r = static_cast<std::size_t>(cambiados);
        tabla_[static_cast<std::size_t>(origen) * fila_ + kHasta[r] + llenos[r]++] =
            static_cast<std::int16_t>(codigo);
        if (cambiados == distancia_) return;
        std::int32_t peso = kPesoAlta;
        for (int p = 0; p < kMitad; ++p) {
            peso /= 3;
            if (p < desde) continue;
            const int cifra = codigo / peso % 3;
            for (const int otra : {(cifra + 1) % 3, (cifra + 2) % 3}) {
                Recorrer(origen, codigo + (otra - cifra) * peso, p + 1, cambiados + 1, llenos);
            }
        }
    }

    int distancia_;
    std::size_t fila_;
    std::vector<std::int16_t> tabla_;
};

Columna ColumnaDeCodigo(std::int32_t codigo) {
    Columna columna;
    for (auto s = columna.rbegin(); s != columna.rend(); ++s, codigo /= 3) {
        *s = kSignos[static_cast<std::size_t>(codigo % 3)];
    }
    return columna;
}

}  // namespace

// Los catorce caracteres se leen en dos trozos de ocho que se solapan en los partidos 7 y 8; del
// segundo se quitan esas dos cifras.
std::int32_t CodigoColumna(SignosColumna signos) {
    static_assert(std::endian::native == std::endian::little);
    std::uint64_t primeros = 0;
    std::uint64_t ultimos = 0;
    std::memcpy(&primeros, signos.data(), 8);
    std::memcpy(&ultimos, signos.data() + kPartidos - 8, 8);
    std::uint64_t cifrasPrimeros = 0;
    std::uint64_t cifrasUltimos = 0;
    const bool validos = Cifras(primeros, cifrasPrimeros);
    if (!(Cifras(ultimos, cifrasUltimos) && validos)) return -1;
    return BaseTres(cifrasPrimeros) * 729 + BaseTres(cifrasUltimos & ~0xFFFFULL);
}

Recubrimiento::Recubrimiento(int distancia)
    : distancia_(distancia), marcadas_((kCodigosColumna + 63) / 64, 0) {}

// Cada código a la distancia es una mitad alta a distancia a y una baja a distancia menor que
// distancia - a + 1 de las de la columna.
void Recubrimiento::Marcar(std::int32_t codigo) {
    const Vecinos& vecinos = Vecinos::Hasta(distancia_);
    const auto bajas = vecinos.De(codigo % kPesoAlta, distancia_ + 1);
    const auto altas = vecinos.De(codigo / kPesoAlta, distancia_ + 1);
    for (int a = 0; a <= distancia_; ++a) {
        const auto cuantas = kHasta[static_cast<std::size_t>(distancia_ - a + 1)];
        for (std::size_t i = kHasta[static_cast<std::size_t>(a)];
             i < kHasta[static_cast<std::size_t>(a + 1)]; ++i) {
            const std::int32_t base = altas[i] * kPesoAlta;
            for (std::size_t j = 0; j < cuantas; ++j) Poner(base + bajas[j]);
        }
    }
}

bool Recubrimiento::Considerar(SignosColumna signos) {
    const std::int32_t codigo = CodigoColumna(signos);
    if (codigo >= 0 && Marcada(codigo)) return false;
    Columna columna;
    std::ranges::copy(signos, columna.begin());
    const auto cerca = [&](const Columna& g) { return !DifierenMasDe(g, columna, distancia_); };
    if (std::ranges::any_of(guardadasSinCodigo_, cerca)) return false;
    if (codigo < 0) {
        const auto conCodigo = [&](std::int32_t c) { return cerca(ColumnaDeCodigo(c)); };
        if (std::ranges::any_of(codigosGuardados_, conCodigo)) return false;
        guardadasSinCodigo_.push_back(columna);
    } else {
        codigosGuardados_.push_back(codigo);
        Marcar(codigo);
    }
    return true;
}

}  // namespace quinteva::engine
