#include "clases_laterales.h"

#include <algorithm>
#include <bit>
#include <random>
#include <vector>

namespace sistemas {
namespace {

// Los síndromes: un índice con las cifras de base 3 abajo y las de base 2 arriba.
class Sindromes {
  public:
    explicit Sindromes(FormaSindrome forma) : ternarios_(1), dobles_(forma.dobles) {
        for (int i = 0; i < forma.triples; ++i) ternarios_ *= 3;
    }

    std::int64_t Cuantos() const { return ternarios_ << dobles_; }

    std::int64_t Sumar(std::int64_t a, std::int64_t b) const {
        std::int64_t ta = a % ternarios_;
        std::int64_t tb = b % ternarios_;
        std::int64_t suma = 0;
        for (std::int64_t peso = 1; peso < ternarios_; peso *= 3, ta /= 3, tb /= 3) {
            suma += (ta % 3 + tb % 3) % 3 * peso;
        }
        return suma + ((a / ternarios_) ^ (b / ternarios_)) * ternarios_;
    }

    std::int64_t Opuesto(std::int64_t a) const {
        std::int64_t t = a % ternarios_;
        std::int64_t opuesto = 0;
        for (std::int64_t peso = 1; peso < ternarios_; peso *= 3, t /= 3) {
            opuesto += (3 - t % 3) % 3 * peso;
        }
        return opuesto + a / ternarios_ * ternarios_;
    }

    std::int64_t Ternarios() const { return ternarios_; }

  private:
    std::int64_t ternarios_;
    int dobles_;
};

// Una matriz: el síndrome de cambiar cada lugar en una unidad (base 3) o de ponerlo a 1 (base 2).
struct Matriz {
    std::vector<std::int64_t> columnas;

    std::int64_t Sindrome(const Sindromes& s, const Espacio& e, const Palabra& p) const {
        std::int64_t sindrome = 0;
        for (int l = 0; l < e.Lugares(); ++l) {
            for (int v = 0; v < p[static_cast<std::size_t>(l)]; ++v) {
                sindrome = s.Sumar(sindrome, columnas[static_cast<std::size_t>(l)]);
            }
        }
        return sindrome;
    }
};

Matriz MatrizAlAzar(const Sindromes& s, const Espacio& e, std::mt19937_64& azar) {
    Matriz m;
    const auto dobles = static_cast<std::uint64_t>(s.Cuantos() / s.Ternarios());
    for (int l = 0; l < e.Lugares(); ++l) {
        if (e.Base(l) == 3) {
            m.columnas.push_back(static_cast<std::int64_t>(
                1 + azar() % static_cast<std::uint64_t>(s.Ternarios() - 1)));
        } else {
            m.columnas.push_back(static_cast<std::int64_t>(1 + azar() % (dobles - 1)) *
                                 s.Ternarios());
        }
    }
    return m;
}

// B: los síndromes a los que se llega con "radio" cambios o menos, en anchura.
std::vector<std::int64_t> Bola(const Sindromes& s, const Espacio& e, const Matriz& m, int radio) {
    std::vector<std::int64_t> pasos;
    for (int l = 0; l < e.Lugares(); ++l) {
        const std::int64_t c = m.columnas[static_cast<std::size_t>(l)];
        pasos.push_back(c);
        if (e.Base(l) == 3) pasos.push_back(s.Opuesto(c));
    }
    std::vector<char> visto(static_cast<std::size_t>(s.Cuantos()), 0);
    std::vector<std::int64_t> bola{0};
    visto[0] = 1;
    std::size_t desde = 0;
    for (int r = 0; r < radio; ++r) {
        const std::size_t hasta = bola.size();
        for (std::size_t i = desde; i < hasta; ++i) {
            for (const std::int64_t paso : pasos) {
                const std::int64_t y = s.Sumar(bola[i], paso);
                if (!visto[static_cast<std::size_t>(y)]) {
                    visto[static_cast<std::size_t>(y)] = 1;
                    bola.push_back(y);
                }
            }
        }
        desde = hasta;
    }
    return bola;
}

// La búsqueda de S: mapas de bits de los síndromes cubiertos en cada nivel.
class BusquedaS {
  public:
    BusquedaS(const Sindromes& s, const std::vector<std::int64_t>& bola, int clases)
        : s_(s), bola_(bola), clases_(clases), palabras_((s.Cuantos() + 63) / 64) {
        trasladadas_.assign(static_cast<std::size_t>(s.Cuantos() * palabras_), 0);
        for (std::int64_t x = 0; x < s.Cuantos(); ++x) {
            for (const std::int64_t b : bola) Poner(Trasladada(x), s.Sumar(x, b));
        }
        for (const std::int64_t b : bola) opuestos_.push_back(s.Opuesto(b));
        niveles_.assign(static_cast<std::size_t>(clases + 1),
                        std::vector<std::uint64_t>(static_cast<std::size_t>(palabras_), 0));
    }

    std::optional<std::vector<std::int64_t>> Buscar(std::int64_t nodos) {
        nodos_ = nodos;
        elegidos_.assign(1, 0);
        std::copy_n(Trasladada(0), palabras_, niveles_[1].begin());
        if (!Profundizar(1)) return std::nullopt;
        return elegidos_;
    }

  private:
    std::uint64_t* Trasladada(std::int64_t x) {
        return trasladadas_.data() + static_cast<std::size_t>(x * palabras_);
    }
    static void Poner(std::uint64_t* mapa, std::int64_t y) {
        mapa[y / 64] |= std::uint64_t{1} << (y % 64);
    }

    bool Profundizar(int nivel) {
        if (--nodos_ < 0) return false;
        const auto& cubiertos = niveles_[static_cast<std::size_t>(nivel)];
        std::int64_t primero = -1;
        std::int64_t sinCubrir = 0;
        for (std::int64_t w = 0; w < palabras_; ++w) {
            std::uint64_t libres = ~cubiertos[static_cast<std::size_t>(w)];
            if (w == palabras_ - 1 && s_.Cuantos() % 64 != 0) {
                libres &= (std::uint64_t{1} << (s_.Cuantos() % 64)) - 1;
            }
            if (libres == 0) continue;
            if (primero < 0) primero = w * 64 + std::countr_zero(libres);
            sinCubrir += std::popcount(libres);
        }
        if (primero < 0) return true;
        if (nivel == clases_ || sinCubrir > static_cast<std::int64_t>(clases_ - nivel) *
                                                static_cast<std::int64_t>(bola_.size())) {
            return false;
        }
        auto& siguiente = niveles_[static_cast<std::size_t>(nivel + 1)];
        for (const std::int64_t menos : opuestos_) {
            const std::int64_t elegido = s_.Sumar(primero, menos);
            const std::uint64_t* t = Trasladada(elegido);
            for (std::size_t w = 0; w < siguiente.size(); ++w) siguiente[w] = cubiertos[w] | t[w];
            elegidos_.push_back(elegido);
            if (Profundizar(nivel + 1)) return true;
            elegidos_.pop_back();
            if (nodos_ < 0) return false;
        }
        return false;
    }

    const Sindromes& s_;
    const std::vector<std::int64_t>& bola_;
    int clases_;
    std::int64_t palabras_;
    std::vector<std::uint64_t> trasladadas_;
    std::vector<std::int64_t> opuestos_;
    std::vector<std::vector<std::uint64_t>> niveles_;
    std::vector<std::int64_t> elegidos_;
    std::int64_t nodos_ = 0;
};

constexpr std::int64_t kNodosPorMatriz = 200'000;

}  // namespace

std::optional<Codigo> BuscarClasesLaterales(const Espacio& espacio, int radio, FormaSindrome forma,
                                            std::uint64_t semilla, int matrices) {
    const Sindromes s(forma);
    std::mt19937_64 azar(semilla);
    std::size_t mayor = 0;
    for (int intento = 0; intento < matrices; ++intento) {
        const Matriz m = MatrizAlAzar(s, espacio, azar);
        const auto bola = Bola(s, espacio, m, radio);
        // Solo las matrices con la bola más grande vista hasta ahora: las que cubren salen de ahí.
        if (bola.size() < mayor) continue;
        mayor = bola.size();
        if (static_cast<std::int64_t>(bola.size()) * forma.clases < s.Cuantos()) continue;
        BusquedaS busqueda(s, bola, forma.clases);
        const auto elegidos = busqueda.Buscar(kNodosPorMatriz);
        if (!elegidos) continue;
        Codigo c{espacio, {}};
        for (std::int64_t i = 0; i < espacio.Palabras(); ++i) {
            Palabra p = espacio.DeIndice(i);
            if (std::ranges::find(*elegidos, m.Sindrome(s, espacio, p)) != elegidos->end()) {
                c.filas.push_back(std::move(p));
            }
        }
        return c;
    }
    return std::nullopt;
}

}  // namespace sistemas
