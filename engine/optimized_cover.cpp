#include "engine/optimized_cover.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "engine/cover_search.h"
#include "engine/neighbourhoods.h"

namespace quinteva::engine {

namespace {

// El tiempo de la búsqueda y "&Detener": se mira cada tantas vueltas.
class Plazo {
  public:
    // La búsqueda para un poco antes: lo que cuesta acabar (ordenar, soltar la memoria) también
    // cuenta en los segundos pedidos.
    Plazo(double segundos, base::Progreso& progreso)
        : limite_(std::chrono::duration_cast<std::chrono::steady_clock::duration>(
              std::chrono::duration<double>(segundos * kParteParaBuscar))),
          progreso_(progreso) {}

    bool Acabado() {
        if (++vueltas_ % kVueltasPorMirada != 0) return acabado_;
        const auto gastado = std::chrono::steady_clock::now() - inicio_;
        progreso_.Avance(std::min<std::int64_t>(Milesimas(gastado), Milesimas(limite_)),
                         Milesimas(limite_));
        acabado_ = progreso_.Detenido() || gastado >= limite_;
        return acabado_;
    }

  private:
    static constexpr std::int64_t kVueltasPorMirada = 64;
    static constexpr double kParteParaBuscar = 0.98;
    static std::int64_t Milesimas(std::chrono::steady_clock::duration d) {
        return std::max<std::int64_t>(
            1, std::chrono::duration_cast<std::chrono::milliseconds>(d).count());
    }

    std::chrono::steady_clock::time_point inicio_ = std::chrono::steady_clock::now();
    std::chrono::steady_clock::duration limite_;
    base::Progreso& progreso_;
    std::int64_t vueltas_ = 0;
    bool acabado_ = false;
};

// La voraz por la que más cubre de lo que falta. La ganancia de cada columna (las de su entorno
// aún sin cubrir) baja en uno por cada vecina que se cubre; las columnas esperan en cubos por
// ganancia, y la que sale de un cubo que ya no es el suyo vuelve al suyo. Vacía si se acaba el
// plazo antes.
std::vector<std::size_t> Voraz(const Entornos& entornos, int radio, Plazo& plazo) {
    auto ganancia = entornos.Cuentas(radio);
    std::int32_t alta = *std::max_element(ganancia.begin(), ganancia.end());
    std::vector<std::vector<std::size_t>> cubos(static_cast<std::size_t>(alta) + 1);
    for (std::size_t i = entornos.Tamano(); i-- > 0;) {
        cubos[static_cast<std::size_t>(ganancia[i])].push_back(i);
    }
    std::vector<char> cubierta(entornos.Tamano(), 0);
    std::size_t faltan = entornos.Tamano();
    std::vector<std::size_t> elegidas;
    while (faltan > 0) {
        if (plazo.Acabado()) return {};
        while (cubos[static_cast<std::size_t>(alta)].empty()) --alta;
        auto& cubo = cubos[static_cast<std::size_t>(alta)];
        const std::size_t i = cubo.back();
        cubo.pop_back();
        if (ganancia[i] != alta) {
            cubos[static_cast<std::size_t>(ganancia[i])].push_back(i);
            continue;
        }
        elegidas.push_back(i);
        entornos.Cada(i, radio, [&](std::size_t j) {
            if (cubierta[j]) return;
            cubierta[j] = 1;
            --faltan;
            entornos.Cada(j, radio, [&](std::size_t c) { --ganancia[c]; });
        });
    }
    return elegidas;
}

// La voraz del orden dado tras las de "primeras": cada columna que aún no está cubierta se queda.
std::vector<std::size_t> EnOrden(const Entornos& entornos, int radio,
                                 std::span<const std::size_t> primeras = {}) {
    std::vector<char> cubierta(entornos.Tamano(), 0);
    std::vector<std::size_t> elegidas(primeras.begin(), primeras.end());
    for (const std::size_t e : elegidas)
        entornos.Cada(e, radio, [&](std::size_t j) { cubierta[j] = 1; });
    for (std::size_t i = 0; i < entornos.Tamano(); ++i) {
        if (cubierta[i]) continue;
        elegidas.push_back(i);
        entornos.Cada(i, radio, [&](std::size_t j) { cubierta[j] = 1; });
    }
    return elegidas;
}

// Quita, de la última a la primera, las elegidas cuyo entorno queda cubierto por otras.
void QuitarSobrantes(const Entornos& entornos, int radio, std::vector<std::size_t>& elegidas) {
    std::vector<std::int32_t> veces(entornos.Tamano(), 0);
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

std::vector<std::size_t> CubrirOptimizado(std::span<const std::int32_t> codigos, int radio,
                                          const OpcionesOptimizada& opciones,
                                          base::Progreso& progreso,
                                          std::span<const std::size_t> semilla) {
    if (codigos.empty()) return {};
    Plazo plazo(opciones.segundos, progreso);
    const Entornos entornos(codigos);
    auto mejor = EnOrden(entornos, radio);
    QuitarSobrantes(entornos, radio, mejor);
    if (!semilla.empty()) {
        auto completada = EnOrden(entornos, radio, semilla);
        QuitarSobrantes(entornos, radio, completada);
        if (completada.size() < mejor.size()) mejor = std::move(completada);
    }
    auto porGanancia = Voraz(entornos, radio, plazo);
    if (!porGanancia.empty()) {
        QuitarSobrantes(entornos, radio, porGanancia);
        if (porGanancia.size() < mejor.size()) mejor = std::move(porGanancia);
    }
    BusquedaLocal busqueda(entornos, radio, mejor, opciones.semilla);
    for (std::size_t sinMenguar = 0; sinMenguar < opciones.paciencia * busqueda.Tamano();) {
        if (plazo.Acabado()) break;
        sinMenguar = busqueda.Paso() ? 0 : sinMenguar + 1;
    }
    return busqueda.Elegidas();
}

}  // namespace quinteva::engine
