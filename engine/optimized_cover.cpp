#include "engine/optimized_cover.h"

#include <algorithm>
#include <array>
#include <queue>
#include <utility>

#include "engine/column_code.h"

namespace quinteva::engine {

namespace {

constexpr int kPosiciones = 14;

// 3 elevado a la posición de cada partido en el código: el partido 1 es la cifra más alta.
constexpr std::array<std::int32_t, kPosiciones> kPeso = [] {
    std::array<std::int32_t, kPosiciones> peso{};
    std::int32_t p = 1;
    for (int i = kPosiciones - 1; i >= 0; --i) {
        peso[static_cast<std::size_t>(i)] = p;
        p *= 3;
    }
    return peso;
}();

// Las columnas y su índice por código, para ver cuáles del entorno de una están entre ellas.
class Entornos {
  public:
    explicit Entornos(std::span<const std::int32_t> codigos)
        : codigos_(codigos), indice_(static_cast<std::size_t>(kCodigosColumna), -1) {
        for (std::size_t i = 0; i < codigos.size(); ++i) {
            indice_[static_cast<std::size_t>(codigos[i])] = static_cast<std::int32_t>(i);
        }
    }

    // Llama f(j) por cada columna j a "radio" o menos de la columna i (ella incluida).
    template <typename F>
    void Cada(std::size_t i, int radio, F&& f) const {
        std::array<int, kPosiciones> cifras{};
        std::int32_t c = codigos_[i];
        for (int p = kPosiciones - 1; p >= 0; --p) {
            cifras[static_cast<std::size_t>(p)] = c % 3;
            c /= 3;
        }
        Recorrer(codigos_[i], cifras, 0, radio, f);
    }

  private:
    template <typename F>
    void Recorrer(std::int32_t codigo, const std::array<int, kPosiciones>& cifras, int desde,
                  int quedan, F& f) const {
        const std::int32_t j = indice_[static_cast<std::size_t>(codigo)];
        if (j >= 0) f(static_cast<std::size_t>(j));
        if (quedan == 0) return;
        for (int p = desde; p < kPosiciones; ++p) {
            const auto u = static_cast<std::size_t>(p);
            for (int otra = 0; otra < 3; ++otra) {
                if (otra == cifras[u]) continue;
                Recorrer(codigo + (otra - cifras[u]) * kPeso[u], cifras, p + 1, quedan - 1, f);
            }
        }
    }

    std::span<const std::int32_t> codigos_;
    std::vector<std::int32_t> indice_;
};

// La voraz perezosa: la que más cubre de lo que falta; a igual ganancia, la primera.
std::vector<std::size_t> Voraz(const Entornos& entornos, std::size_t n, int radio) {
    std::vector<char> cubierta(n, 0);
    std::priority_queue<std::pair<std::int64_t, std::int64_t>> cola;
    for (std::size_t i = 0; i < n; ++i) {
        std::int64_t ganancia = 0;
        entornos.Cada(i, radio, [&](std::size_t) { ++ganancia; });
        cola.emplace(ganancia, -static_cast<std::int64_t>(i));
    }
    std::size_t faltan = n;
    std::vector<std::size_t> elegidas;
    while (faltan > 0 && !cola.empty()) {
        const auto [antes, menosI] = cola.top();
        cola.pop();
        const auto i = static_cast<std::size_t>(-menosI);
        std::int64_t ganancia = 0;
        entornos.Cada(i, radio, [&](std::size_t j) { ganancia += cubierta[j] ? 0 : 1; });
        if (ganancia == 0) continue;
        if (ganancia < antes) {
            cola.emplace(ganancia, menosI);
            continue;
        }
        elegidas.push_back(i);
        entornos.Cada(i, radio, [&](std::size_t j) {
            if (!cubierta[j]) {
                cubierta[j] = 1;
                --faltan;
            }
        });
    }
    return elegidas;
}

// La voraz del orden dado: cada columna que aún no está cubierta se queda.
std::vector<std::size_t> EnOrden(const Entornos& entornos, std::size_t n, int radio) {
    std::vector<char> cubierta(n, 0);
    std::vector<std::size_t> elegidas;
    for (std::size_t i = 0; i < n; ++i) {
        if (cubierta[i]) continue;
        elegidas.push_back(i);
        entornos.Cada(i, radio, [&](std::size_t j) { cubierta[j] = 1; });
    }
    return elegidas;
}

// Quita, de la última a la primera, las elegidas cuyo entorno queda cubierto por otras.
void QuitarSobrantes(const Entornos& entornos, std::size_t n, int radio,
                     std::vector<std::size_t>& elegidas) {
    std::vector<std::int32_t> veces(n, 0);
    for (const std::size_t e : elegidas)
        entornos.Cada(e, radio, [&](std::size_t j) { ++veces[j]; });
    std::vector<std::size_t> quedan;
    for (auto e = elegidas.rbegin(); e != elegidas.rend(); ++e) {
        bool sobra = true;
        entornos.Cada(*e, radio, [&](std::size_t j) { sobra = sobra && veces[j] >= 2; });
        if (sobra) {
            entornos.Cada(*e, radio, [&](std::size_t j) { --veces[j]; });
        } else {
            quedan.push_back(*e);
        }
    }
    elegidas = std::move(quedan);
}

}  // namespace

std::vector<std::size_t> CubrirOptimizado(std::span<const std::int32_t> codigos, int radio) {
    const Entornos entornos(codigos);
    // Las dos voraces, sin las que sobran; la menor (así nunca es más que la del orden dado).
    auto porGanancia = Voraz(entornos, codigos.size(), radio);
    auto enOrden = EnOrden(entornos, codigos.size(), radio);
    QuitarSobrantes(entornos, codigos.size(), radio, porGanancia);
    QuitarSobrantes(entornos, codigos.size(), radio, enOrden);
    auto& elegidas = porGanancia.size() <= enOrden.size() ? porGanancia : enOrden;
    std::sort(elegidas.begin(), elegidas.end());
    return elegidas;
}

}  // namespace quinteva::engine
