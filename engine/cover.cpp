#include "engine/cover.h"

#include <algorithm>
#include <utility>

#include "engine/reduction.h"

namespace quinteva::engine {
namespace {

// El código de una columna es (altos * 81 + medios) * 27 + bajos: los partidos 1 a 7, 8 a 11 y
// 12 a 14. Cada palabra del mapa de bits guarda los 27 códigos de unos mismos altos y medios, uno
// por bit, así que los vecinos que solo cambian en los bajos se marcan con una sola máscara.
constexpr int kAltos = 7;
constexpr int kMedios = 4;
constexpr int kBajos = 3;

constexpr std::int32_t CodigosDe(int lugares) {
    std::int32_t codigos = 1;
    for (int i = 0; i < lugares; ++i) codigos *= 3;
    return codigos;
}

constexpr std::int32_t kCodigosMedios = CodigosDe(kMedios);

// Cuántos códigos de "Lugares" cifras hay a distancia menor que r de uno dado, r = 0 a 4: los
// que están a distancia exacta r son C(Lugares, r) * 2^r (14, 84 y 280 con siete lugares).
template <int Lugares>
constexpr std::array<std::size_t, kDistanciaMaxima + 2> kHasta = [] {
    std::array<std::size_t, kDistanciaMaxima + 2> hasta{};
    std::size_t exactos = 1;
    for (std::size_t r = 0; r <= kDistanciaMaxima; ++r) {
        hasta[r + 1] = hasta[r] + exactos;
        exactos = exactos * (Lugares - r) * 2 / (r + 1);
    }
    return hasta;
}();

// Para cada código de "Lugares" cifras, los de distancia 0 a "distancia", ordenados por
// distancia: con filas solo tan largas como hacen falta, la tabla de la distancia 1 cabe en la
// caché.
template <int Lugares>
class Vecinos {
  public:
    explicit Vecinos(int distancia)
        : distancia_(distancia),
          fila_(kHasta<Lugares>[static_cast<std::size_t>(distancia + 1)]),
          tabla_(static_cast<std::size_t>(kCodigos) * fila_) {
        for (std::int32_t v = 0; v < kCodigos; ++v) {
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

    // Los vecinos de "codigo" a distancia menor que "hasta".
    std::span<const std::int16_t> De(std::int32_t codigo, int hasta) const {
        return {tabla_.data() + static_cast<std::size_t>(codigo) * fila_,
                kHasta<Lugares>[static_cast<std::size_t>(hasta)]};
    }

  private:
    static constexpr std::int32_t kCodigos = CodigosDe(Lugares);

    // Añade "codigo", a "cambiados" de "origen", y los que salen de cambiar lugares desde "desde".
    void Recorrer(std::int32_t origen, std::int32_t codigo, int desde, int cambiados,
                  std::array<std::size_t, kDistanciaMaxima + 1>& llenos) {
        const auto r = static_cast<std::size_t>(cambiados);
        tabla_[static_cast<std::size_t>(origen) * fila_ + kHasta<Lugares>[r] + llenos[r]++] =
            static_cast<std::int16_t>(codigo);
        if (cambiados == distancia_) return;
        std::int32_t peso = kCodigos;
        for (int p = 0; p < Lugares; ++p) {
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

// Para cada código de los bajos, la máscara de los que están a distancia r o menos, r = 0 a 3.
constexpr auto kMascarasBajas = [] {
    std::array<std::array<std::uint32_t, kDistanciaMaxima + 1>, CodigosDe(kBajos)> mascaras{};
    for (std::int32_t t = 0; t < CodigosDe(kBajos); ++t) {
        for (std::int32_t u = 0; u < CodigosDe(kBajos); ++u) {
            int distinto = 0;
            for (std::int32_t a = t, b = u; a > 0 || b > 0; a /= 3, b /= 3)
                distinto += a % 3 != b % 3;
            for (int r = distinto; r <= kDistanciaMaxima; ++r) {
                mascaras[static_cast<std::size_t>(t)][static_cast<std::size_t>(r)] |= 1U << u;
            }
        }
    }
    return mascaras;
}();

Columna ColumnaDeCodigo(std::int32_t codigo) {
    Columna columna;
    for (auto s = columna.rbegin(); s != columna.rend(); ++s, codigo /= 3) {
        *s = kSignos[static_cast<std::size_t>(codigo % 3)];
    }
    return columna;
}

}  // namespace

Recubrimiento::Recubrimiento(int distancia)
    : distancia_(distancia), marcadas_(kCodigosColumna / kPorPalabra, 0) {}

// Cada código a la distancia cambia a lugares de los altos, m de los medios y el resto, hasta
// la distancia, de los bajos: la palabra de unos altos a distancia a y unos medios a distancia m
// recibe la máscara de los bajos a distancia D - a - m.
template <int D>
void Recubrimiento::Marcar(std::int32_t codigo) {
    const std::int32_t palabra = codigo / kPorPalabra;
    const auto& bajas = kMascarasBajas[static_cast<std::size_t>(codigo % kPorPalabra)];
    const std::int16_t* altas =
        Vecinos<kAltos>::Hasta(D).De(palabra / kCodigosMedios, D + 1).data();
    const std::int16_t* medias =
        Vecinos<kMedios>::Hasta(D).De(palabra % kCodigosMedios, D + 1).data();
    std::uint32_t* marcas = marcadas_.data();
    for (std::size_t a = 0; a <= D; ++a) {
        for (std::size_t i = kHasta<kAltos>[a]; i < kHasta<kAltos>[a + 1]; ++i) {
            std::uint32_t* fila = marcas + altas[i] * kCodigosMedios;
            for (std::size_t m = 0; a + m <= D; ++m) {
                const std::uint32_t mascara = bajas[D - a - m];
                for (std::size_t j = kHasta<kMedios>[m]; j < kHasta<kMedios>[m + 1]; ++j) {
                    fila[medias[j]] |= mascara;
                }
            }
        }
    }
}

bool Recubrimiento::ConsiderarSinMarca(SignosColumna signos, std::int32_t codigo) {
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
        switch (distancia_) {
            case 1:
                Marcar<1>(codigo);
                break;
            case 2:
                Marcar<2>(codigo);
                break;
            default:
                Marcar<3>(codigo);
                break;
        }
    }
    return true;
}

}  // namespace quinteva::engine
