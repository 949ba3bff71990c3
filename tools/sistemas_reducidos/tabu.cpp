#include "tabu.h"

#include <algorithm>
#include <climits>
#include <random>

#include "conjunto.h"

namespace sistemas {
namespace {

// Cuántas filas cubren cada palabra y la lista de las que no cubre ninguna.
class Cobertura {
  public:
    Cobertura(const Espacio& e, int radio)
        : e_(e),
          radio_(radio),
          cuenta_(static_cast<std::size_t>(e.Palabras()), 0),
          sinCubrir_(static_cast<std::size_t>(e.Palabras())) {
        for (std::int64_t x = 0; x < e.Palabras(); ++x) sinCubrir_.Anadir(static_cast<int>(x));
    }

    void Marcar(std::int64_t fila, int signo) {
        e_.Bola(e_.DeIndice(fila), radio_, [&](std::int64_t y) {
            const auto iy = static_cast<std::size_t>(y);
            const int antes = cuenta_[iy];
            cuenta_[iy] += signo;
            if (antes == 0 && cuenta_[iy] > 0) {
                sinCubrir_.Quitar(static_cast<int>(y));
            } else if (antes > 0 && cuenta_[iy] == 0) {
                sinCubrir_.Anadir(static_cast<int>(y));
            }
        });
    }

    // Cuánto cambian las palabras sin cubrir si la fila "de" pasa a "a" (sin hacerlo).
    std::int64_t Cambio(std::int64_t de, std::int64_t a) {
        const auto antes = static_cast<std::int64_t>(SinCubrir().size());
        Marcar(de, -1);
        Marcar(a, 1);
        const auto cambio = static_cast<std::int64_t>(SinCubrir().size()) - antes;
        Marcar(a, -1);
        Marcar(de, 1);
        return cambio;
    }

    const std::vector<int>& SinCubrir() const { return sinCubrir_.Lista(); }

  private:
    const Espacio& e_;
    int radio_;
    std::vector<int> cuenta_;
    Conjunto sinCubrir_;
};

struct Movimiento {
    int fila;
    int lugar;
    std::int64_t destino;
};

}  // namespace

std::optional<Codigo> BuscarTabu(const Espacio& e, int radio, int filas, std::uint64_t semilla,
                                 std::int64_t pasos) {
    std::mt19937_64 azar(semilla);
    const int lugares = e.Lugares();
    const int permanencia = std::max(3, filas / 8);
    Cobertura cobertura(e, radio);
    std::vector<std::int64_t> codigo(static_cast<std::size_t>(filas));
    for (auto& c : codigo) {
        c = static_cast<std::int64_t>(azar() % static_cast<std::uint64_t>(e.Palabras()));
        cobertura.Marcar(c, 1);
    }
    std::vector<std::vector<std::int64_t>> tabu(
        static_cast<std::size_t>(filas),
        std::vector<std::int64_t>(static_cast<std::size_t>(lugares), -1));
    std::size_t mejor = SIZE_MAX;
    const auto desplazar = [&](std::int64_t x, int lugar, int valor) {
        const Palabra p = e.DeIndice(x);
        Palabra q = p;
        q[static_cast<std::size_t>(lugar)] = static_cast<std::uint8_t>(valor);
        return e.Indice(q);
    };
    for (std::int64_t paso = 1; paso <= pasos; ++paso) {
        const auto& sin = cobertura.SinCubrir();
        if (sin.empty()) {
            Codigo c{e, {}};
            for (auto x : codigo) c.filas.push_back(e.DeIndice(x));
            return c;
        }
        const Palabra u = e.DeIndice(sin[azar() % sin.size()]);
        std::int64_t mejorCambio = LLONG_MAX;
        std::vector<Movimiento> mejores;
        for (int i = 0; i < filas; ++i) {
            const Palabra c = e.DeIndice(codigo[static_cast<std::size_t>(i)]);
            if (Distancia(c, u) != radio + 1) continue;
            for (int l = 0; l < lugares; ++l) {
                const auto il = static_cast<std::size_t>(l);
                if (c[il] == u[il]) continue;
                const bool prohibido = tabu[static_cast<std::size_t>(i)][il] >= paso;
                const std::int64_t destino =
                    desplazar(codigo[static_cast<std::size_t>(i)], l, u[il]);
                const std::int64_t cambio =
                    cobertura.Cambio(codigo[static_cast<std::size_t>(i)], destino);
                if (prohibido &&
                    !(static_cast<std::int64_t>(cobertura.SinCubrir().size()) + cambio <
                      static_cast<std::int64_t>(mejor))) {
                    continue;
                }
                if (cambio < mejorCambio) {
                    mejorCambio = cambio;
                    mejores.clear();
                }
                if (cambio == mejorCambio) mejores.push_back({i, l, destino});
            }
        }
        if (mejores.empty()) {
            // Ninguna fila a radio + 1: una al azar da un paso hacia la palabra.
            const int i = static_cast<int>(azar() % static_cast<std::uint64_t>(filas));
            const Palabra c = e.DeIndice(codigo[static_cast<std::size_t>(i)]);
            std::vector<int> distintos;
            for (int l = 0; l < lugares; ++l) {
                if (c[static_cast<std::size_t>(l)] != u[static_cast<std::size_t>(l)])
                    distintos.push_back(l);
            }
            if (distintos.empty()) continue;
            const int l = distintos[azar() % distintos.size()];
            const std::int64_t destino =
                desplazar(codigo[static_cast<std::size_t>(i)], l, u[static_cast<std::size_t>(l)]);
            cobertura.Marcar(codigo[static_cast<std::size_t>(i)], -1);
            cobertura.Marcar(destino, 1);
            codigo[static_cast<std::size_t>(i)] = destino;
            tabu[static_cast<std::size_t>(i)][static_cast<std::size_t>(l)] = paso + permanencia;
            continue;
        }
        const Movimiento m = mejores[azar() % mejores.size()];
        cobertura.Marcar(codigo[static_cast<std::size_t>(m.fila)], -1);
        cobertura.Marcar(m.destino, 1);
        codigo[static_cast<std::size_t>(m.fila)] = m.destino;
        tabu[static_cast<std::size_t>(m.fila)][static_cast<std::size_t>(m.lugar)] =
            paso + permanencia;
        mejor = std::min(mejor, cobertura.SinCubrir().size());
    }
    if (!cobertura.SinCubrir().empty()) return std::nullopt;
    Codigo c{e, {}};
    for (auto x : codigo) c.filas.push_back(e.DeIndice(x));
    return c;
}

}  // namespace sistemas
