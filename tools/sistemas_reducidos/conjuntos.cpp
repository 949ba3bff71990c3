#include "conjuntos.h"

#include <algorithm>

#include "azar.h"

namespace sistemas {

namespace {

class Busqueda {
   public:
    explicit Busqueda(const Ejemplar& e) : e_(e) {
        cubridores_.resize(e.puntos);
        for (int c = 0; c < static_cast<int>(e.cubre.size()); ++c)
            for (int p : e.cubre[c]) cubridores_[p].push_back(c);
        Reiniciar();
    }

    void Reiniciar() {
        const int candidatos = static_cast<int>(e_.cubre.size());
        cuenta_.assign(e_.puntos, 0);
        peso_.assign(e_.puntos, 1);
        elegido_.assign(candidatos, 0);
        puntuacion_.assign(candidatos, 0);
        edad_.assign(candidatos, 0);
        for (int c = 0; c < candidatos; ++c) puntuacion_[c] = static_cast<std::int64_t>(e_.cubre[c].size());
        descubiertos_.clear();
        posicion_.assign(e_.puntos, -1);
        for (int p = 0; p < e_.puntos; ++p) Anadir(p);
        elegidos_.clear();
    }

    // puntuacion_: para un candidato libre, peso que cubriría de nuevo; para
    // uno elegido, peso que dejaría de estar cubierto si se quita (negado no:
    // se guarda en positivo como pérdida).
    void Poner(int c) {
        elegido_[c] = 1;
        elegidos_.push_back(c);
        puntuacion_[c] = 0;
        for (int p : e_.cubre[c]) {
            const int antes = cuenta_[p]++;
            if (antes == 0) {
                Quitar(p);
                for (int d : cubridores_[p])
                    if (!elegido_[d]) puntuacion_[d] -= peso_[p];
                puntuacion_[c] += peso_[p];
            } else if (antes == 1) {
                for (int d : cubridores_[p])
                    if (elegido_[d] && d != c) {
                        puntuacion_[d] -= peso_[p];
                        break;
                    }
            }
        }
    }

    void Sacar(int c) {
        elegido_[c] = 0;
        elegidos_.erase(std::find(elegidos_.begin(), elegidos_.end(), c));
        puntuacion_[c] = 0;
        for (int p : e_.cubre[c]) {
            const int despues = --cuenta_[p];
            if (despues == 0) {
                Anadir(p);
                for (int d : cubridores_[p])
                    if (!elegido_[d]) puntuacion_[d] += peso_[p];
                puntuacion_[c] += peso_[p];
            } else if (despues == 1) {
                for (int d : cubridores_[p])
                    if (elegido_[d]) {
                        puntuacion_[d] += peso_[p];
                        break;
                    }
            }
        }
    }

    void Apesadumbrar() {
        for (int p : descubiertos_) {
            ++peso_[p];
            for (int d : cubridores_[p]) ++puntuacion_[d];
        }
    }

    const Ejemplar& e_;
    std::vector<std::vector<int>> cubridores_;
    std::vector<int> cuenta_;
    std::vector<std::int64_t> peso_;
    std::vector<char> elegido_;
    std::vector<std::int64_t> puntuacion_;
    std::vector<long> edad_;
    std::vector<int> descubiertos_, posicion_;
    std::vector<int> elegidos_;

   private:
    void Quitar(int p) {
        const int i = posicion_[p];
        const int ultimo = descubiertos_.back();
        descubiertos_[i] = ultimo;
        posicion_[ultimo] = i;
        descubiertos_.pop_back();
        posicion_[p] = -1;
    }
    void Anadir(int p) {
        posicion_[p] = static_cast<int>(descubiertos_.size());
        descubiertos_.push_back(p);
    }
};

}  // namespace

std::optional<std::vector<int>> CubrirConjuntos(const Ejemplar& ejemplar, int elegir,
                                                const PresupuestoConjuntos& presupuesto) {
    const int candidatos = static_cast<int>(ejemplar.cubre.size());
    if (elegir <= 0 || elegir > candidatos) return std::nullopt;
    Busqueda b(ejemplar);
    for (int p = 0; p < ejemplar.puntos; ++p)
        if (b.cubridores_[p].empty()) return std::nullopt;
    Azar azar(presupuesto.semilla);
    for (int intento = 0; intento < presupuesto.intentos; ++intento) {
        b.Reiniciar();
        // Voraz con desempate al azar.
        while (static_cast<int>(b.elegidos_.size()) < elegir) {
            std::int64_t mejor = -1;
            int elegido = -1, empates = 0;
            for (int c = 0; c < candidatos; ++c) {
                if (b.elegido_[c]) continue;
                if (b.puntuacion_[c] > mejor) {
                    mejor = b.puntuacion_[c];
                    empates = 0;
                }
                if (b.puntuacion_[c] == mejor && azar.Menor(++empates) == 0) elegido = c;
            }
            b.Poner(elegido);
        }
        int ultimoQuitado = -1;
        for (long paso = 1; paso <= presupuesto.pasos && !b.descubiertos_.empty(); ++paso) {
            // Sale el elegido que menos pierde (el más antiguo si empatan),
            // salvo el que acaba de entrar.
            int sale = -1;
            for (int c : b.elegidos_) {
                if (b.edad_[c] == paso - 1) continue;
                if (sale < 0 || b.puntuacion_[c] < b.puntuacion_[sale] ||
                    (b.puntuacion_[c] == b.puntuacion_[sale] && b.edad_[c] < b.edad_[sale]))
                    sale = c;
            }
            if (sale < 0) sale = b.elegidos_.front();
            b.Sacar(sale);
            b.edad_[sale] = paso;
            ultimoQuitado = sale;
            // Entra el que más gana de los que cubren un punto descubierto.
            const int x = b.descubiertos_[azar.Menor(static_cast<int>(b.descubiertos_.size()))];
            int entra = -1;
            for (int c : b.cubridores_[x]) {
                if (b.elegido_[c] || c == ultimoQuitado) continue;
                if (entra < 0 || b.puntuacion_[c] > b.puntuacion_[entra] ||
                    (b.puntuacion_[c] == b.puntuacion_[entra] && b.edad_[c] < b.edad_[entra]))
                    entra = c;
            }
            if (entra < 0) entra = ultimoQuitado;
            b.Poner(entra);
            b.edad_[entra] = paso;
            b.Apesadumbrar();
        }
        if (b.descubiertos_.empty()) {
            std::vector<int> r = b.elegidos_;
            std::sort(r.begin(), r.end());
            return r;
        }
    }
    return std::nullopt;
}

}  // namespace sistemas
