#include "recocido.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <queue>
#include <tuple>
#include <cstdio>
#include <cstdlib>

#include "azar.h"

namespace sistemas {

namespace {

class Estado {
   public:
    Estado(const Grupo& grupo, const std::vector<int>& generadores,
           const std::vector<std::uint8_t>& dist, int radio)
        : grupo_(grupo), generadores_(generadores) {
        std::vector<int> bola;
        for (int x = 0; x < grupo.Elementos(); ++x)
            if (dist[x] <= radio) bola.push_back(x);
        bola_ = Trocear(bola);
        // Al mover un centro con g sólo cambia la cobertura de los puntos que
        // salen de la bola (o - g fuera) y de los que entran (o + g fuera,
        // vistos desde el centro nuevo).
        for (int g : generadores) {
            std::vector<int> salen, entran;
            for (int o : bola) {
                if (dist[grupo.Resta(o, g)] > radio) salen.push_back(o);
                if (dist[grupo.Suma(o, g)] > radio) entran.push_back(o);
            }
            salen_.push_back(Trocear(salen));
            entran_.push_back(Trocear(entran));
        }
        cuenta_.assign(grupo.Elementos(), 0);
        peso_.assign(grupo.Elementos(), 1);
        posicion_.resize(grupo.Elementos());
        for (int x = 0; x < grupo.Elementos(); ++x) {
            posicion_[x] = x;
            descubiertos_.push_back(x);
        }
    }

    int TamanoBola() const { return static_cast<int>(bola_.alta.size()); }
    const std::vector<int>& Descubiertos() const { return descubiertos_; }
    int Cuenta(int x) const { return cuenta_[x]; }

    template <typename F>
    void PorBola(int centro, F&& f) const {
        Recorrer(bola_, centro, f);
    }

    void Poner(int centro) {
        Recorrer(bola_, centro, [&](int p) {
            if (cuenta_[p]++ == 0) Quitar(p);
        });
    }

    // Mueve un centro con el generador k.
    void Mover(int centro, std::size_t k) {
        Recorrer(salen_[k], centro, [&](int p) {
            if (--cuenta_[p] == 0) Anadir(p);
        });
        Recorrer(entran_[k], grupo_.Suma(centro, generadores_[k]), [&](int p) {
            if (cuenta_[p]++ == 0) Quitar(p);
        });
    }

    // Cambio del peso descubierto si el centro se mueve con el generador k.
    std::int64_t Delta(int centro, std::size_t k) const {
        std::int64_t delta = 0;
        Recorrer(salen_[k], centro, [&](int p) {
            if (cuenta_[p] == 1) delta += peso_[p];
        });
        Recorrer(entran_[k], grupo_.Suma(centro, generadores_[k]), [&](int p) {
            if (cuenta_[p] == 0) delta -= peso_[p];
        });
        return delta;
    }

    // Los puntos que siguen sin cubrir pesan cada vez más: así la búsqueda
    // no se queda dando vueltas en un mínimo local.
    void Apesadumbrar() {
        for (int x : descubiertos_) ++peso_[x];
    }

   private:
    struct Trozos {
        std::vector<int> alta, baja;
    };
    Trozos Trocear(const std::vector<int>& xs) const {
        Trozos t;
        for (int x : xs) {
            t.alta.push_back(grupo_.Alta(x));
            t.baja.push_back(grupo_.Baja(x));
        }
        return t;
    }
    template <typename F>
    void Recorrer(const Trozos& t, int centro, F&& f) const {
        const int* fa = grupo_.FilaAlta(grupo_.Alta(centro));
        const int* fb = grupo_.FilaBaja(grupo_.Baja(centro));
        const std::size_t n = t.alta.size();
        for (std::size_t i = 0; i < n; ++i) f(fa[t.alta[i]] + fb[t.baja[i]]);
    }
    void Quitar(int x) {
        const int i = posicion_[x];
        const int ultimo = descubiertos_.back();
        descubiertos_[i] = ultimo;
        posicion_[ultimo] = i;
        descubiertos_.pop_back();
        posicion_[x] = -1;
    }
    void Anadir(int x) {
        posicion_[x] = static_cast<int>(descubiertos_.size());
        descubiertos_.push_back(x);
    }

    const Grupo& grupo_;
    const std::vector<int>& generadores_;
    Trozos bola_;
    std::vector<Trozos> salen_, entran_;
    std::vector<std::uint16_t> cuenta_;
    std::vector<std::uint32_t> peso_;
    std::vector<int> posicion_;
    std::vector<int> descubiertos_;
};

// Voraz perezoso: la ganancia de un centro sólo puede bajar, así que basta
// recalcular la del primero de la cola.
std::vector<int> Voraz(Estado& estado, int elementos, int tamano, Azar& azar) {
    using Entrada = std::tuple<int, std::uint64_t, int>;  // ganancia, desempate, centro
    std::priority_queue<Entrada> cola;
    for (int x = 0; x < elementos; ++x) cola.emplace(estado.TamanoBola(), azar.Siguiente(), x);
    std::vector<int> centros;
    while (static_cast<int>(centros.size()) < tamano && !estado.Descubiertos().empty()) {
        auto [ganancia, desempate, x] = cola.top();
        cola.pop();
        int real = 0;
        estado.PorBola(x, [&](int p) { real += estado.Cuenta(p) == 0; });
        if (!cola.empty() && real < std::get<0>(cola.top())) {
            cola.emplace(real, desempate, x);
            continue;
        }
        centros.push_back(x);
        estado.Poner(x);
    }
    return centros;
}

}  // namespace

std::optional<std::vector<int>> CubrirGrupo(const Grupo& grupo, std::vector<int> generadores,
                                            int radio, int tamano, const Presupuesto& presupuesto) {
    // Los generadores han de ser simétricos para poder andar hacia un punto.
    std::vector<int> cerrados;
    for (int g : generadores) {
        for (int h : {g, grupo.Opuesto(g)}) {
            if (h != 0 && std::find(cerrados.begin(), cerrados.end(), h) == cerrados.end())
                cerrados.push_back(h);
        }
    }
    generadores = cerrados;
    const auto dist = grupo.Distancias(generadores);
    if (std::any_of(dist.begin(), dist.end(), [](std::uint8_t d) { return d == 255; }))
        return std::nullopt;

    Azar azar(presupuesto.semilla);
    for (int intento = 0; intento < presupuesto.intentos; ++intento) {
        Estado estado(grupo, generadores, dist, radio);
        std::vector<int> centros = Voraz(estado, grupo.Elementos(), tamano, azar);
        while (static_cast<int>(centros.size()) < tamano) {
            const int x = azar.Menor(grupo.Elementos());
            centros.push_back(x);
            estado.Poner(x);
        }
        std::vector<int> cercanos;
        std::vector<long> movido(tamano, -1000000);
        const long tabu = std::max(1, std::min(presupuesto.tabu, tamano / 2));
        const bool recocer = presupuesto.modo == Modo::kRecocido;
        const double razon =
            std::log(presupuesto.temperaturaFinal / presupuesto.temperaturaInicial);
        for (long paso = 0; paso < presupuesto.pasos; ++paso) {
            if (estado.Descubiertos().empty()) break;
            const auto& descubiertos = estado.Descubiertos();
            const int x = descubiertos[azar.Menor(static_cast<int>(descubiertos.size()))];
            // Centros más cercanos a x: cualquiera de ellos puede dar un paso
            // hacia x.
            int mejor = 256;
            cercanos.clear();
            for (int j = 0; j < tamano; ++j) {
                const int d = dist[grupo.Resta(x, centros[j])];
                if (d < mejor) {
                    mejor = d;
                    cercanos.clear();
                }
                if (d == mejor) cercanos.push_back(j);
            }
            if (recocer) {
                // Un paso al azar, aceptado según la temperatura.
                const int j = cercanos[azar.Menor(static_cast<int>(cercanos.size()))];
                const int diferencia = grupo.Resta(x, centros[j]);
                std::size_t k = 0;
                int opciones = 0;
                for (std::size_t g = 0; g < generadores.size(); ++g)
                    if (dist[grupo.Resta(diferencia, generadores[g])] + 1 == mejor &&
                        azar.Menor(++opciones) == 0)
                        k = g;
                const std::int64_t delta = estado.Delta(centros[j], k);
                const double temperatura =
                    presupuesto.temperaturaInicial *
                    std::exp(razon * static_cast<double>(paso) / static_cast<double>(presupuesto.pasos));
                if (delta <= 0 ||
                    azar.Real() < std::exp(-static_cast<double>(delta) / temperatura)) {
                    estado.Mover(centros[j], k);
                    centros[j] = grupo.Suma(centros[j], generadores[k]);
                }
                continue;
            }
            // Tabú con pesos: el mejor paso de los cercanos que no esté
            // quieto por tabú, aunque empeore.
            if (presupuesto.muestra > 0 && static_cast<int>(cercanos.size()) > presupuesto.muestra) {
                for (int i = 0; i < presupuesto.muestra; ++i)
                    std::swap(cercanos[i], cercanos[i + azar.Menor(static_cast<int>(cercanos.size()) - i)]);
                cercanos.resize(presupuesto.muestra);
            }
            std::int64_t mejorDelta = INT64_MAX;
            int elegidoJ = -1;
            std::size_t elegidoK = 0;
            int empates = 0;
            for (int j : cercanos) {
                if (paso - movido[j] < tabu) continue;
                const int diferencia = grupo.Resta(x, centros[j]);
                for (std::size_t k = 0; k < generadores.size(); ++k) {
                    if (dist[grupo.Resta(diferencia, generadores[k])] + 1 != mejor) continue;
                    const std::int64_t delta = estado.Delta(centros[j], k);
                    if (delta < mejorDelta) {
                        mejorDelta = delta;
                        empates = 0;
                    }
                    if (delta == mejorDelta && azar.Menor(++empates) == 0) {
                        elegidoJ = j;
                        elegidoK = k;
                    }
                }
            }
            if (elegidoJ < 0) continue;
            estado.Mover(centros[elegidoJ], elegidoK);
            centros[elegidoJ] = grupo.Suma(centros[elegidoJ], generadores[elegidoK]);
            movido[elegidoJ] = paso;
            estado.Apesadumbrar();
        }
        if (std::getenv("DEPURAR")) std::fprintf(stderr, "intento %d: quedan %zu\n", intento, estado.Descubiertos().size());
        if (estado.Descubiertos().empty()) {
            std::sort(centros.begin(), centros.end());
            centros.erase(std::unique(centros.begin(), centros.end()), centros.end());
            return centros;
        }
    }
    return std::nullopt;
}

}  // namespace sistemas
