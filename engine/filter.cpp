#include "engine/filter.h"

#include <algorithm>
#include <bit>

namespace quinteva::engine {
namespace {

constexpr std::uint16_t kTodos = 0x3FFF;
constexpr std::uint16_t kLugares13 = 0x1FFF;

// Racha más larga de cada máscara de 14 bits, calculada una vez.
const std::array<std::uint8_t, 1 << kPartidos>& TablaRachas() {
    static const auto tabla = [] {
        std::array<std::uint8_t, 1 << kPartidos> t{};
        for (unsigned m = 0; m < t.size(); ++m) {
            int mejor = 0;
            for (unsigned x = m; x != 0; x &= x >> 1) ++mejor;
            t[m] = static_cast<std::uint8_t>(mejor);
        }
        return t;
    }();
    return tabla;
}

// Seguidos de un signo con su racha más larga r: el recorrido de k hacia arriba hasta el máximo
// más uno, donde S(k) aparece si k <= r. "1" y "X" empiezan en 1, "2" en 0.
bool SeguidosPasa(int racha, int desde, int min, int max) {
    for (int k = desde; k <= max + 1; ++k) {
        if (k <= racha) {
            if (k > max) return false;
            if (k < min && k + 1 > racha) return false;
        } else if (k < min) {
            return false;
        }
    }
    return true;
}

int Cuenta(std::uint16_t m) { return std::popcount(static_cast<unsigned>(m)); }

}  // namespace

Mascaras MascarasDe(const Columna& columna) {
    Mascaras r;
    for (int p = 0; p < kPartidos; ++p) {
        const int s = IndiceSigno(columna[static_cast<std::size_t>(p)]);
        if (s >= 0) r.m[static_cast<std::size_t>(s)] |= static_cast<std::uint16_t>(1U << p);
    }
    return r;
}

int RachaMasLarga(std::uint16_t mascara) { return TablaRachas()[mascara & kTodos]; }

int RepeticionesSigno(std::uint16_t mascara, int largo) {
    if (largo <= 0) return 0;
    int cuenta = 0;
    int p = 0;
    while (p < kPartidos) {
        if ((mascara >> p & 1U) == 0) {
            ++p;
            continue;
        }
        int fin = p;
        while (fin < kPartidos && (mascara >> fin & 1U) != 0) ++fin;
        const int racha = fin - p;
        // Posición encontrada (desde 1) más L de 14 o más: cuenta sin mirar el signo siguiente.
        if (racha >= largo && (racha == largo || p + 1 + largo >= kPartidos)) ++cuenta;
        p = fin;
    }
    return cuenta;
}

int RepeticionesVariantes(std::uint16_t unos, int largo) {
    int cuenta = 0;
    int seguidas = 0;
    for (int p = 0; p < kPartidos; ++p) {
        if ((unos >> p & 1U) != 0) {
            if (seguidas == largo) ++cuenta;
            seguidas = 0;
        } else {
            ++seguidas;
        }
    }
    return cuenta;
}

Filtro::Filtro(const SetCondiciones& c) {
    auto casilla = [&](Casilla i) { return c.casilla[static_cast<std::size_t>(i)]; };

    inter_ = casilla(kCasillaInterrupciones);
    limInter_ = {c.minInter, c.maxInter};
    interCons_ = casilla(kCasillaInterConsecutivas);
    limInterCons_ = {c.minInterCons, c.maxInterCons};

    generales_ = casilla(kCasillaGenerales);
    probarEquis_ = !(c.minEquis == c.posMinEquis && c.maxEquis == c.posMaxEquis);
    probarDoses_ = !(c.minDoses == c.posMinDoses && c.maxDoses == c.posMaxDoses);
    probarVariantes_ = !(c.minVariantes == c.posMinVariantes && c.maxVariantes == c.posMaxVariantes);
    limEquis_ = {c.minEquis, c.maxEquis};
    limDoses_ = {c.minDoses, c.maxDoses};
    limVariantes_ = {c.minVariantes, c.maxVariantes};

    seguidos_ = casilla(kCasillaSeguidos);
    for (std::size_t k = 0; k < 4; ++k) {
        probarSeg_[k] = !(c.minSeg[k] == c.posMinSeg[k] && c.maxSeg[k] == c.posMaxSeg[k]);
        for (int r = 0; r <= kPartidos; ++r) {
            segPasa_[k][static_cast<std::size_t>(r)] =
                k == kVariantes ? (r >= c.minSeg[k] && r <= c.maxSeg[k])
                                : SeguidosPasa(r, k == kDos ? 0 : 1, c.minSeg[k], c.maxSeg[k]);
        }
    }

    parejas_ = casilla(kCasillaParejas);
    for (int i = 0; i < 9; ++i) {
        const auto u = static_cast<std::size_t>(i);
        if (c.minPareja[u] == 0 && c.maxPareja[u] >= SinLimitePareja(i)) continue;
        parejasProbadas_.push_back({i / 3, i % 3, -1, {c.minPareja[u], c.maxPareja[u]}});
    }
    trios_ = casilla(kCasillaTrios);
    for (int i = 0; i < 27; ++i) {
        const auto u = static_cast<std::size_t>(i);
        if (c.minTrio[u] == 0 && c.maxTrio[u] >= SinLimiteTrio(i)) continue;
        triosProbados_.push_back({i / 9, i / 3 % 3, i % 3, {c.minTrio[u], c.maxTrio[u]}});
    }

    sumas_ = casilla(kCasillaSumas);
    limSumas_ = {c.sumaMinima, c.sumaMaxima};
    for (std::size_t s = 0; s < 3; ++s) {
        for (std::size_t mitad = 0; mitad < 2; ++mitad) {
            for (unsigned m = 0; m < 128; ++m) {
                int suma = 0;
                for (unsigned b = 0; b < 7; ++b) {
                    if ((m >> b & 1U) != 0) suma += c.sumasTabla[s][mitad * 7 + b];
                }
                sumaMitad_[s][mitad][m] = suma;
            }
        }
    }

    const int ultimo = std::min<int>(c.ultimoGrupo, kGrupos - 1);
    for (int g = 0; g <= ultimo; ++g) {
        const Grupo& grupo = c.grupos[static_cast<std::size_t>(g)];
        if (!grupo.activo) continue;
        GrupoProbado p{g, 0, {}};
        for (int i = 0; i < kPartidos; ++i) {
            if (grupo.partidos[static_cast<std::size_t>(i)]) {
                p.partidos |= static_cast<std::uint16_t>(1U << i);
            }
        }
        for (std::size_t k = 0; k < 4; ++k) p.lim[k] = {grupo.min[k], grupo.max[k]};
        grupos_.push_back(p);
    }
    toleranciaGrupos_ = c.toleranciaGrupos;

    const int ultimoAc = std::min<int>(c.ultimoGrupoAc, kGrupos - 1);
    for (int g = 0; g <= ultimoAc; ++g) {
        const GrupoAciertos& grupo = c.gruposAc[static_cast<std::size_t>(g)];
        if (!grupo.activo) continue;
        GrupoAcProbado p{g, {}, {grupo.aciertosMin, grupo.aciertosMax}};
        for (int i = 0; i < kPartidos; ++i) {
            if (!grupo.EsDelGrupo(i)) continue;
            const auto& celda = grupo.signos[static_cast<std::size_t>(i)];
            for (std::size_t s = 0; s < 3; ++s) {
                if (std::find(celda.begin(), celda.end(), kSignos[s]) != celda.end()) {
                    p.acierto[s] |= static_cast<std::uint16_t>(1U << i);
                }
            }
        }
        gruposAc_.push_back(p);
    }
    toleranciaGruposAc_ = c.toleranciaGruposAc;

    comparaciones_ = casilla(kCasillaComparaciones);
    for (std::size_t l = 0; l < 4; ++l) {
        std::array<int, kPartidos> veces{};
        const int n = std::min<int>(c.numListas[l], kPartidos);
        for (int i = 1; i <= n; ++i) {
            const int partido = c.listas[l][static_cast<std::size_t>(i)];
            if (partido >= 1 && partido <= kPartidos) ++veces[static_cast<std::size_t>(partido - 1)];
        }
        for (int p = 0; p < kPartidos; ++p) {
            for (std::size_t b = 0; b < 4; ++b) {
                if ((veces[static_cast<std::size_t>(p)] >> b & 1) != 0) {
                    planosLista_[l][b] |= static_cast<std::uint16_t>(1U << p);
                }
            }
        }
    }
    auto celda = [](int signo, int lista) {
        return signo >= 1 && signo <= 3 && lista >= 1 && lista <= 4 ? (signo - 1) * 4 + lista - 1
                                                                      : -1;
    };
    for (const Comparacion& f : c.comparaciones) {
        if (f.activa == 0) continue;
        comparacionesProbadas_.push_back(
            {celda(f.signoIzq, f.listaIzq), celda(f.signoDer, f.listaDer), f.operador});
    }

    repeticiones_ = casilla(kCasillaRepeticiones);
    for (std::size_t k = 0; k < 4; ++k) {
        probarRep_[k] = c.limiteRep[k] > 0;
        limiteRep_[k] = c.limiteRep[k];
        if (!probarRep_[k]) continue;
        cuentaRep_[k].resize(1 << kPartidos);
        for (unsigned m = 0; m < cuentaRep_[k].size(); ++m) {
            const auto mascara = static_cast<std::uint16_t>(m);
            cuentaRep_[k][m] = static_cast<std::uint8_t>(
                k == kVariantes ? RepeticionesVariantes(mascara, c.longRep[k])
                                : RepeticionesSigno(mascara, c.longRep[k]));
        }
    }
}

bool Filtro::Condicionar(const Mascaras& col, Rechazos& r) const {
    const std::uint16_t m1 = col.m[0];
    const std::uint16_t mx = col.m[1];
    const std::uint16_t m2 = col.m[2];
    const auto& rachas = TablaRachas();

    if (inter_ || interCons_) {
        const auto iguales = static_cast<std::uint16_t>((m1 & (m1 >> 1)) | (mx & (mx >> 1)) |
                                                        (m2 & (m2 >> 1)));
        const auto cambios = static_cast<std::uint16_t>(~iguales & kLugares13);
        if (inter_ && limInter_.Fuera(Cuenta(cambios))) {
            r.porCondicion[2] += 1;
            return false;
        }
        if (interCons_ && limInterCons_.Fuera(rachas[cambios])) {
            r.porCondicion[3] += 1;
            return false;
        }
    }

    const auto variantes = static_cast<std::uint16_t>(~m1 & kTodos);
    if (generales_) {
        if ((probarEquis_ && limEquis_.Fuera(Cuenta(mx))) ||
            (probarDoses_ && limDoses_.Fuera(Cuenta(m2))) ||
            (probarVariantes_ && limVariantes_.Fuera(kPartidos - Cuenta(m1)))) {
            r.porCondicion[0] += 1;
            return false;
        }
    }

    if (seguidos_) {
        const std::array<std::uint16_t, 4> mascaras = {m1, mx, m2, variantes};
        for (std::size_t k = 0; k < 4; ++k) {
            if (probarSeg_[k] && !segPasa_[k][rachas[mascaras[k]]]) {
                r.porCondicion[1] += 1;
                return false;
            }
        }
    }

    const std::array<std::uint16_t, 3> m = {m1, mx, m2};
    if (parejas_) {
        for (const ParejaProbada& p : parejasProbadas_) {
            const auto n = Cuenta(static_cast<std::uint16_t>(m[static_cast<std::size_t>(p.a)] &
                                                             (m[static_cast<std::size_t>(p.b)] >> 1)));
            if (p.lim.Fuera(n)) {
                r.porCondicion[4] += 1;
                return false;
            }
        }
    }
    if (trios_) {
        for (const ParejaProbada& p : triosProbados_) {
            const auto n = Cuenta(static_cast<std::uint16_t>(
                m[static_cast<std::size_t>(p.a)] & (m[static_cast<std::size_t>(p.b)] >> 1) &
                (m[static_cast<std::size_t>(p.c)] >> 2)));
            if (p.lim.Fuera(n)) {
                r.porCondicion[5] += 1;
                return false;
            }
        }
    }

    if (sumas_) {
        int suma = 0;
        for (std::size_t s = 0; s < 3; ++s) {
            suma += sumaMitad_[s][0][m[s] & 0x7F] + sumaMitad_[s][1][m[s] >> 7];
        }
        if (limSumas_.Fuera(suma)) {
            r.porCondicion[6] += 1;
            return false;
        }
    }

    int fallados = 0;
    for (const GrupoProbado& g : grupos_) {
        const int n1 = Cuenta(static_cast<std::uint16_t>(g.partidos & m1));
        const int nx = Cuenta(static_cast<std::uint16_t>(g.partidos & mx));
        const int n2 = Cuenta(static_cast<std::uint16_t>(g.partidos & m2));
        if (!(g.lim[0].Fuera(n1) || g.lim[1].Fuera(nx) || g.lim[2].Fuera(n2) ||
              g.lim[3].Fuera(nx + n2))) {
            continue;
        }
        if (toleranciaGrupos_ == 0) {
            r.grupo[static_cast<std::size_t>(g.indice)] += 1;
            return false;
        }
        if (++fallados > toleranciaGrupos_) {
            r.tolGrupos += 1;
            return false;
        }
    }

    fallados = 0;
    for (const GrupoAcProbado& g : gruposAc_) {
        const int aciertos = Cuenta(static_cast<std::uint16_t>(g.acierto[0] & m1)) +
                             Cuenta(static_cast<std::uint16_t>(g.acierto[1] & mx)) +
                             Cuenta(static_cast<std::uint16_t>(g.acierto[2] & m2));
        if (!g.lim.Fuera(aciertos)) continue;
        if (toleranciaGruposAc_ == 0) {
            r.grupoAciertos[static_cast<std::size_t>(g.indice)] += 1;
            return false;
        }
        if (++fallados > toleranciaGruposAc_) {
            r.tolGruposAciertos += 1;
            return false;
        }
    }

    if (comparaciones_) {
        std::array<int, 12> tabla{};
        for (std::size_t s = 0; s < 3; ++s) {
            for (std::size_t l = 0; l < 4; ++l) {
                int n = 0;
                for (std::size_t b = 0; b < 4; ++b) {
                    n += Cuenta(static_cast<std::uint16_t>(planosLista_[l][b] & m[s])) << b;
                }
                tabla[s * 4 + l] = n;
            }
        }
        for (const ComparacionProbada& f : comparacionesProbadas_) {
            const int a = f.izq < 0 ? 0 : tabla[static_cast<std::size_t>(f.izq)];
            const int b = f.der < 0 ? 0 : tabla[static_cast<std::size_t>(f.der)];
            bool cumple = true;
            switch (f.operador) {
                case 1: cumple = a < b; break;
                case 2: cumple = a <= b; break;
                case 3: cumple = a == b; break;
                case 4: cumple = a >= b; break;
                case 5: cumple = a > b; break;
                default: break;
            }
            if (!cumple) {
                r.porCondicion[7] += 1;
                return false;
            }
        }
    }

    if (repeticiones_) {
        const std::array<std::uint16_t, 4> mascaras = {m1, mx, m2, m1};
        for (std::size_t k = 0; k < 4; ++k) {
            if (probarRep_[k] && cuentaRep_[k][mascaras[k]] > limiteRep_[k]) {
                r.porCondicion[8] += 1;
                return false;
            }
        }
    }
    return true;
}

}  // namespace quinteva::engine
