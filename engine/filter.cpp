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

// Bits de cada máscara de 14 bits: una tabla, porque std::popcount sin la instrucción de la
// CPU cuesta decenas de ciclos y aquí se cuenta decenas de veces por columna.
const std::array<std::uint8_t, 1 << kPartidos>& TablaCuentas() {
    static const auto tabla = [] {
        std::array<std::uint8_t, 1 << kPartidos> t{};
        for (unsigned m = 0; m < t.size(); ++m) t[m] = static_cast<std::uint8_t>(std::popcount(m));
        return t;
    }();
    return tabla;
}
const std::array<std::uint8_t, 1 << kPartidos>& kCuentas = TablaCuentas();

inline int Cuenta(std::uint16_t m) { return kCuentas[m & kTodos]; }

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
                    planos_[l] = std::max(planos_[l], b + 1);
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

// Sin saltos que dependan de la columna: se evalúan todas las familias activas y se anota cuáles
// fallan; si alguna falla, la primera en el orden de las pruebas es la que cuenta. Cada familia
// depende solo de la columna, así que veredicto y contadores son los de pararse en la primera.
bool Filtro::Condicionar(const Mascaras& col, Rechazos& r) const {
    enum : unsigned {
        kFInter = 1U << 0,
        kFInterCons = 1U << 1,
        kFGenerales = 1U << 2,
        kFSeguidos = 1U << 3,
        kFParejas = 1U << 4,
        kFTrios = 1U << 5,
        kFSumas = 1U << 6,
        kFGrupos = 1U << 7,
        kFGruposAc = 1U << 8,
        kFComparaciones = 1U << 9,
        kFRepeticiones = 1U << 10,
    };
    const std::uint16_t m1 = col.m[0];
    const std::uint16_t mx = col.m[1];
    const std::uint16_t m2 = col.m[2];
    const std::array<std::uint16_t, 3> m = {m1, mx, m2};
    const auto& rachas = TablaRachas();
    unsigned fallo = 0;
    auto si = [](bool b, unsigned bit) { return b ? bit : 0U; };

    if (inter_ || interCons_) {
        const auto iguales = static_cast<std::uint16_t>((m1 & (m1 >> 1)) | (mx & (mx >> 1)) |
                                                        (m2 & (m2 >> 1)));
        const auto cambios = static_cast<std::uint16_t>(~iguales & kLugares13);
        fallo |= si(inter_ && limInter_.Fuera(Cuenta(cambios)), kFInter);
        fallo |= si(interCons_ && limInterCons_.Fuera(rachas[cambios]), kFInterCons);
    }
    const auto variantes = static_cast<std::uint16_t>(~m1 & kTodos);
    if (generales_) {
        const bool f = (probarEquis_ & limEquis_.Fuera(Cuenta(mx))) |
                       (probarDoses_ & limDoses_.Fuera(Cuenta(m2))) |
                       (probarVariantes_ & limVariantes_.Fuera(kPartidos - Cuenta(m1)));
        fallo |= si(f, kFGenerales);
    }
    if (seguidos_) {
        const std::array<std::uint16_t, 4> mascaras = {m1, mx, m2, variantes};
        bool f = false;
        for (std::size_t k = 0; k < 4; ++k) f |= probarSeg_[k] & !segPasa_[k][rachas[mascaras[k]]];
        fallo |= si(f, kFSeguidos);
    }
    if (parejas_) {
        bool f = false;
        for (const ParejaProbada& p : parejasProbadas_) {
            f |= p.lim.Fuera(Cuenta(static_cast<std::uint16_t>(
                m[static_cast<std::size_t>(p.a)] & (m[static_cast<std::size_t>(p.b)] >> 1))));
        }
        fallo |= si(f, kFParejas);
    }
    if (trios_) {
        bool f = false;
        for (const ParejaProbada& p : triosProbados_) {
            f |= p.lim.Fuera(Cuenta(static_cast<std::uint16_t>(
                m[static_cast<std::size_t>(p.a)] & (m[static_cast<std::size_t>(p.b)] >> 1) &
                (m[static_cast<std::size_t>(p.c)] >> 2))));
        }
        fallo |= si(f, kFTrios);
    }
    if (sumas_) {
        int suma = 0;
        for (std::size_t s = 0; s < 3; ++s) {
            suma += sumaMitad_[s][0][m[s] & 0x7F] + sumaMitad_[s][1][m[s] >> 7];
        }
        fallo |= si(limSumas_.Fuera(suma), kFSumas);
    }
    // Grupos fallados, un bit por Grupo probado en su orden.
    std::uint64_t fallanGrupos = 0;
    for (std::size_t i = 0; i < grupos_.size(); ++i) {
        const GrupoProbado& g = grupos_[i];
        const int n1 = Cuenta(static_cast<std::uint16_t>(g.partidos & m1));
        const int nx = Cuenta(static_cast<std::uint16_t>(g.partidos & mx));
        const int n2 = Cuenta(static_cast<std::uint16_t>(g.partidos & m2));
        const bool f = g.lim[0].Fuera(n1) | g.lim[1].Fuera(nx) | g.lim[2].Fuera(n2) |
                       g.lim[3].Fuera(nx + n2);
        fallanGrupos |= static_cast<std::uint64_t>(f) << i;
    }
    if (fallanGrupos != 0) {
        fallo |= si(toleranciaGrupos_ == 0 || std::popcount(fallanGrupos) > toleranciaGrupos_,
                    kFGrupos);
    }
    std::uint64_t fallanAc = 0;
    for (std::size_t i = 0; i < gruposAc_.size(); ++i) {
        const GrupoAcProbado& g = gruposAc_[i];
        const int aciertos = Cuenta(static_cast<std::uint16_t>(g.acierto[0] & m1)) +
                             Cuenta(static_cast<std::uint16_t>(g.acierto[1] & mx)) +
                             Cuenta(static_cast<std::uint16_t>(g.acierto[2] & m2));
        fallanAc |= static_cast<std::uint64_t>(g.lim.Fuera(aciertos)) << i;
    }
    if (fallanAc != 0) {
        fallo |= si(toleranciaGruposAc_ == 0 || std::popcount(fallanAc) > toleranciaGruposAc_,
                    kFGruposAc);
    }
    if (comparaciones_) {
        auto celda = [&](int c) {
            if (c < 0) return 0;
            const auto s = static_cast<std::size_t>(c / 4);
            const auto l = static_cast<std::size_t>(c % 4);
            int n = 0;
            for (std::size_t b = 0; b < planos_[l]; ++b) {
                n += Cuenta(static_cast<std::uint16_t>(planosLista_[l][b] & m[s])) << b;
            }
            return n;
        };
        bool f = false;
        for (const ComparacionProbada& fila : comparacionesProbadas_) {
            const int a = celda(fila.izq);
            const int b = celda(fila.der);
            switch (fila.operador) {
                case 1: f |= !(a < b); break;
                case 2: f |= !(a <= b); break;
                case 3: f |= !(a == b); break;
                case 4: f |= !(a >= b); break;
                case 5: f |= !(a > b); break;
                default: break;
            }
        }
        fallo |= si(f, kFComparaciones);
    }
    if (repeticiones_) {
        const std::array<std::uint16_t, 4> mascaras = {m1, mx, m2, m1};
        bool f = false;
        for (std::size_t k = 0; k < 4; ++k) {
            f |= probarRep_[k] && cuentaRep_[k][mascaras[k]] > limiteRep_[k];
        }
        fallo |= si(f, kFRepeticiones);
    }

    if (fallo == 0) return true;
    switch (fallo & (~fallo + 1)) {
        case kFInter: r.porCondicion[2] += 1; break;
        case kFInterCons: r.porCondicion[3] += 1; break;
        case kFGenerales: r.porCondicion[0] += 1; break;
        case kFSeguidos: r.porCondicion[1] += 1; break;
        case kFParejas: r.porCondicion[4] += 1; break;
        case kFTrios: r.porCondicion[5] += 1; break;
        case kFSumas: r.porCondicion[6] += 1; break;
        case kFGrupos:
            if (toleranciaGrupos_ == 0) {
                r.grupo[static_cast<std::size_t>(grupos_[static_cast<std::size_t>(
                    std::countr_zero(fallanGrupos))].indice)] += 1;
            } else {
                r.tolGrupos += 1;
            }
            break;
        case kFGruposAc:
            if (toleranciaGruposAc_ == 0) {
                r.grupoAciertos[static_cast<std::size_t>(gruposAc_[static_cast<std::size_t>(
                    std::countr_zero(fallanAc))].indice)] += 1;
            } else {
                r.tolGruposAciertos += 1;
            }
            break;
        case kFComparaciones: r.porCondicion[7] += 1; break;
        default: r.porCondicion[8] += 1; break;
    }
    return false;
}

}  // namespace quinteva::engine
