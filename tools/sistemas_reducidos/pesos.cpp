#include "pesos.h"

#include <algorithm>
#include <random>
#include <span>
#include <utility>

#include "conjunto.h"

namespace sistemas {
namespace {

// Una lista de clases por clase, todas seguidas: la de c es clases[inicio[c] .. inicio[c + 1]).
struct Listas {
    std::vector<std::size_t> inicio{0};
    std::vector<int> clases;

    std::span<const int> De(int c) const {
        const auto i = static_cast<std::size_t>(c);
        return {clases.data() + inicio[i], inicio[i + 1] - inicio[i]};
    }
};

// Las clases del grupo, con sus vecinas: las clases a distancia <= radio.
struct Clases {
    std::vector<int> deLaPalabra;
    std::vector<std::int64_t> representantes;
    int tamano = 0;
    Listas vecinas;

    Clases(const Espacio& e, int radio, const std::vector<Palabra>& generadores)
        : deLaPalabra(static_cast<std::size_t>(e.Palabras()), -1) {
        for (std::int64_t x = 0; x < e.Palabras(); ++x) {
            if (deLaPalabra[static_cast<std::size_t>(x)] < 0) Recorrer(e, x, generadores);
        }
        for (const std::int64_t r : representantes) {
            std::vector<int> v;
            e.Bola(e.DeIndice(r), radio,
                   [&](std::int64_t y) { v.push_back(deLaPalabra[static_cast<std::size_t>(y)]); });
            std::sort(v.begin(), v.end());
            v.erase(std::unique(v.begin(), v.end()), v.end());
            vecinas.clases.insert(vecinas.clases.end(), v.begin(), v.end());
            vecinas.inicio.push_back(vecinas.clases.size());
        }
    }

    std::size_t Cuantas() const { return representantes.size(); }

  private:
    // La clase de x: las palabras que se alcanzan sumando generadores.
    void Recorrer(const Espacio& e, std::int64_t x, const std::vector<Palabra>& generadores) {
        const int clase = static_cast<int>(representantes.size());
        representantes.push_back(x);
        std::vector<std::int64_t> pendientes{x};
        deLaPalabra[static_cast<std::size_t>(x)] = clase;
        tamano = 0;
        while (!pendientes.empty()) {
            const Palabra p = e.DeIndice(pendientes.back());
            pendientes.pop_back();
            ++tamano;
            for (const Palabra& g : generadores) {
                Palabra q = p;
                for (std::size_t l = 0; l < q.size(); ++l) {
                    q[l] = static_cast<std::uint8_t>((p[l] + g[l]) % e.Base(static_cast<int>(l)));
                }
                const std::int64_t y = e.Indice(q);
                if (deLaPalabra[static_cast<std::size_t>(y)] < 0) {
                    deLaPalabra[static_cast<std::size_t>(y)] = clase;
                    pendientes.push_back(y);
                }
            }
        }
    }
};

// Las vecinas de cada clase que pueden entrar en el código, en su orden.
Listas SoloPermitidas(const Listas& vecinas, const std::vector<bool>& permitidas) {
    Listas cubridoras;
    for (std::size_t c = 0; c + 1 < vecinas.inicio.size(); ++c) {
        for (const int v : vecinas.De(static_cast<int>(c))) {
            if (permitidas[static_cast<std::size_t>(v)]) cubridoras.clases.push_back(v);
        }
        cubridoras.inicio.push_back(cubridoras.clases.size());
    }
    return cubridoras;
}

// El estado de la búsqueda. Los puntos de una clase fuera del código son el peso sin cubrir que
// cubriría; los de una clase del código, menos el peso que solo ella cubre. "suma" guarda la suma
// de las clases del código que cubren cada clase: cuando la cubre una sola, es esa. Solo se
// llevan los puntos de las clases que pueden entrar: las "cubridoras" de una clase son sus
// vecinas permitidas.
class Busqueda {
  public:
    Busqueda(const Clases& clases, const Listas& cubridoras, std::vector<bool> permitidas)
        : k_(clases),
          cubridoras_(cubridoras),
          permitidas_(std::move(permitidas)),
          cuenta_(k_.Cuantas(), 0),
          suma_(k_.Cuantas(), 0),
          peso_(k_.Cuantas(), 1),
          puntos_(k_.Cuantas()),
          sello_(k_.Cuantas(), 0),
          libre_(permitidas_),
          codigo_(k_.Cuantas()),
          sinCubrir_(k_.Cuantas()) {
        for (std::size_t c = 0; c < k_.Cuantas(); ++c) {
            puntos_[c] = static_cast<std::int64_t>(k_.vecinas.De(static_cast<int>(c)).size());
            sinCubrir_.Anadir(static_cast<int>(c));
        }
    }

    const std::vector<int>& Elegidas() const { return codigo_.Lista(); }
    const std::vector<int>& SinCubrir() const { return sinCubrir_.Lista(); }

    void Entrar(int c, std::int64_t paso) {
        codigo_.Anadir(c);
        sello_[I(c)] = paso;
        std::int64_t puntos = 0;
        for (const int y : k_.vecinas.De(c)) {
            if (++cuenta_[I(y)] == 1) {
                sinCubrir_.Quitar(y);
                Repartir(y, -peso_[I(y)]);
                puntos -= peso_[I(y)];
            } else if (cuenta_[I(y)] == 2) {
                puntos_[static_cast<std::size_t>(suma_[I(y)])] += peso_[I(y)];
            }
            suma_[I(y)] += c;
        }
        puntos_[I(c)] = puntos;
    }

    void Salir(int c, std::int64_t paso) {
        codigo_.Quitar(c);
        sello_[I(c)] = paso;
        std::int64_t puntos = 0;
        for (const int y : k_.vecinas.De(c)) {
            suma_[I(y)] -= c;
            if (--cuenta_[I(y)] == 0) {
                sinCubrir_.Anadir(y);
                Repartir(y, peso_[I(y)]);
                puntos += peso_[I(y)];
            } else if (cuenta_[I(y)] == 1) {
                puntos_[static_cast<std::size_t>(suma_[I(y)])] -= peso_[I(y)];
            }
        }
        puntos_[I(c)] = puntos;
        libre_[I(c)] = false;
    }

    // Cada clase sin cubrir pesa uno más.
    void Pesar() {
        for (const int y : sinCubrir_.Lista()) {
            ++peso_[I(y)];
            for (const int z : cubridoras_.De(y)) ++puntos_[I(z)];
        }
    }

    // La de más puntos entre las que f acepta; a igualdad, la que lleva más tiempo igual.
    template <class Lista, class F>
    int Mejor(const Lista& lista, F&& acepta) const {
        int mejor = -1;
        for (const int c : lista) {
            if (!acepta(c)) continue;
            if (mejor < 0 || puntos_[I(c)] > puntos_[I(mejor)] ||
                (puntos_[I(c)] == puntos_[I(mejor)] && sello_[I(c)] < sello_[I(mejor)])) {
                mejor = c;
            }
        }
        return mejor;
    }

    bool Libre(int c) const { return libre_[I(c)]; }
    bool EsPermitida(int c) const { return permitidas_[I(c)]; }
    bool EnCodigo(int c) const { return codigo_.Contiene(c); }

    // Las clases que pueden entrar para cubrir la clase c.
    std::span<const int> Cubridoras(int c) const { return cubridoras_.De(c); }

  private:
    static std::size_t I(int c) { return static_cast<std::size_t>(c); }

    // Las clases que pueden entrar para cubrir y ganan (o pierden) su peso, y han visto un cambio.
    void Repartir(int y, std::int64_t cambio) {
        for (const int z : cubridoras_.De(y)) {
            puntos_[I(z)] += cambio;
            libre_[I(z)] = true;
        }
    }

    const Clases& k_;
    const Listas& cubridoras_;
    const std::vector<bool> permitidas_;
    std::vector<int> cuenta_;
    std::vector<std::int64_t> suma_;
    std::vector<std::int64_t> peso_;
    std::vector<std::int64_t> puntos_;
    std::vector<std::int64_t> sello_;
    std::vector<bool> libre_;
    Conjunto codigo_;
    Conjunto sinCubrir_;
};

Codigo Palabras(const Espacio& e, const Clases& clases, const std::vector<int>& elegidas) {
    std::vector<bool> dentro(clases.Cuantas(), false);
    for (const int c : elegidas) dentro[static_cast<std::size_t>(c)] = true;
    Codigo codigo{e, {}};
    for (std::int64_t x = 0; x < e.Palabras(); ++x) {
        if (dentro[static_cast<std::size_t>(clases.deLaPalabra[static_cast<std::size_t>(x)])]) {
            codigo.filas.push_back(e.DeIndice(x));
        }
    }
    return codigo;
}

}  // namespace

std::optional<Codigo> BuscarConPesos(const Espacio& e, int radio, int filas,
                                     const std::vector<Palabra>& generadores, std::uint64_t semilla,
                                     std::int64_t pasos, const Permitida& permitida) {
    const Clases clases(e, radio, generadores);
    if (filas % clases.tamano != 0) return std::nullopt;
    const auto objetivo = static_cast<std::size_t>(filas / clases.tamano);
    std::vector<bool> permitidas(clases.Cuantas(), true);
    if (permitida) {
        for (std::size_t c = 0; c < permitidas.size(); ++c)
            permitidas[c] = permitida(e.DeIndice(clases.representantes[c]));
    }
    const bool todasPermitidas = std::ranges::find(permitidas, false) == permitidas.end();
    const Listas cubridoras =
        todasPermitidas ? Listas{} : SoloPermitidas(clases.vecinas, permitidas);
    Busqueda b(clases, todasPermitidas ? clases.vecinas : cubridoras, std::move(permitidas));
    std::mt19937_64 azar(semilla);
    std::int64_t paso = 0;
    // Al principio, con avidez, hasta que no quede ninguna clase sin cubrir.
    std::vector<int> todas(clases.Cuantas());
    for (std::size_t c = 0; c < todas.size(); ++c) todas[c] = static_cast<int>(c);
    while (!b.SinCubrir().empty()) {
        const int c = b.Mejor(todas, [&](int c) { return !b.EnCodigo(c) && b.EsPermitida(c); });
        if (c < 0) return std::nullopt;  // las permitidas no cubren el espacio
        b.Entrar(c, ++paso);
    }
    int entro = -1;
    for (; paso < pasos; ++paso) {
        // Sin clases por cubrir: sobra una clase, o es el código buscado.
        while (b.SinCubrir().empty()) {
            if (b.Elegidas().size() <= objetivo) return Palabras(e, clases, b.Elegidas());
            b.Salir(b.Mejor(b.Elegidas(), [](int) { return true; }), paso);
        }
        int sale = b.Mejor(b.Elegidas(), [&](int c) { return c != entro; });
        if (sale < 0) sale = entro;
        b.Salir(sale, paso);
        const int y = b.SinCubrir()[azar() % b.SinCubrir().size()];
        const int entra = b.Mejor(b.Cubridoras(y), [&](int c) { return b.Libre(c); });
        entro = entra < 0 ? sale : entra;
        b.Entrar(entro, paso);
        b.Pesar();
    }
    return std::nullopt;
}

}  // namespace sistemas
