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

}  // namespace

Recubrimiento::Recubrimiento(int distancia)
    : distancia_(distancia),
      marcadas_(kCodigosColumna / kPorPalabra, 0),
      guardadas_((kCodigosColumna + 63) / 64, 0) {}

// Cada código a la distancia cambia A lugares de los altos, M de los medios y el resto, hasta la
// distancia, de los bajos: las palabras de unos altos a distancia A y unos medios a distancia M
// reciben la máscara de los bajos a distancia D - A - M. Con A y M fijos, cada bucle sabe cuántas
// vueltas da.
template <int D, std::size_t A, std::size_t M>
void MarcarBloque(std::uint32_t* marcas, const std::int16_t* altas, const std::int16_t* medias,
                  const std::array<std::uint32_t, kDistanciaMaxima + 1>& bajas) {
    // La palabra misma ya está marcada.
    if constexpr (A == 0 && M == 0) return;
    const std::uint32_t mascara = bajas[D - A - M];
    for (std::size_t i = kHasta<kAltos>[A]; i < kHasta<kAltos>[A + 1]; ++i) {
        std::uint32_t* fila = marcas + altas[i] * kCodigosMedios;
        for (std::size_t j = kHasta<kMedios>[M]; j < kHasta<kMedios>[M + 1]; ++j) {
            fila[medias[j]] |= mascara;
        }
    }
}

// Los bloques de los altos a distancia A: M de 0 a D - A.
template <int D, std::size_t A, std::size_t... M>
void MarcarAltas(std::uint32_t* marcas, const std::int16_t* altas, const std::int16_t* medias,
                 const std::array<std::uint32_t, kDistanciaMaxima + 1>& bajas,
                 std::index_sequence<M...>) {
    (MarcarBloque<D, A, M>(marcas, altas, medias, bajas), ...);
}

template <int D, std::size_t... A>
void MarcarBloques(std::uint32_t* marcas, const std::int16_t* altas, const std::int16_t* medias,
                   const std::array<std::uint32_t, kDistanciaMaxima + 1>& bajas,
                   std::index_sequence<A...>) {
    (MarcarAltas<D, A>(marcas, altas, medias, bajas, std::make_index_sequence<D - A + 1>()), ...);
}

template <int D>
void Recubrimiento::MarcarVecinas() {
    const std::int16_t* altas =
        Vecinos<kAltos>::Hasta(D).De(pendiente_ / kCodigosMedios, D + 1).data();
    const std::int16_t* medias =
        Vecinos<kMedios>::Hasta(D).De(pendiente_ % kCodigosMedios, D + 1).data();
    MarcarBloques<D>(marcadas_.data(), altas, medias, bajasPendientes_,
                     std::make_index_sequence<D + 1>());
}

void Recubrimiento::Vaciar() {
    switch (distancia_) {
        case 1:
            MarcarVecinas<1>();
            break;
        case 2:
            MarcarVecinas<2>();
            break;
        default:
            MarcarVecinas<3>();
            break;
    }
    bajasPendientes_ = {};
    pendiente_ = -1;
}

bool Recubrimiento::ConsiderarSinMarca(SignosColumna signos, std::int32_t codigo) {
    if (codigo < 0 || !guardadasSinCodigo_.empty()) {
        Columna columna;
        std::ranges::copy(signos, columna.begin());
        const auto cerca = [&](const Columna& g) { return !DifierenMasDe(g, columna, distancia_); };
        if (std::ranges::any_of(guardadasSinCodigo_, cerca)) return false;
        if (codigo < 0) {
            if (GuardadaConCodigoCerca(columna, 0, 0, distancia_)) return false;
            guardadasSinCodigo_.push_back(columna);
            return true;
        }
    }
    guardadas_[static_cast<std::size_t>(codigo / 64)] |= std::uint64_t{1} << (codigo % 64);
    const auto& bajas = kMascarasBajas[static_cast<std::size_t>(codigo % kPorPalabra)];
    pendiente_ = codigo / kPorPalabra;
    marcadas_[static_cast<std::size_t>(pendiente_)] |= bajas[static_cast<std::size_t>(distancia_)];
    for (std::size_t r = 0; r < bajasPendientes_.size(); ++r) bajasPendientes_[r] |= bajas[r];
    return true;
}

// Recorre los códigos que, desde "partido", difieren de la columna en "margen" partidos o menos;
// donde la columna no tiene un signo, todos difieren.
bool Recubrimiento::GuardadaConCodigoCerca(const Columna& columna, std::size_t partido,
                                           std::int32_t codigo, int margen) const {
    if (partido == kPartidos) {
        return (guardadas_[static_cast<std::size_t>(codigo / 64)] >> (codigo % 64)) & 1U;
    }
    const int cifra = IndiceSigno(columna[partido]);
    for (int c = 0; c < 3; ++c) {
        const int resto = c == cifra ? margen : margen - 1;
        if (resto >= 0 && GuardadaConCodigoCerca(columna, partido + 1, codigo * 3 + c, resto)) {
            return true;
        }
    }
    return false;
}

}  // namespace quinteva::engine
