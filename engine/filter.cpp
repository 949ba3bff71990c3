#include "engine/filter.h"

#include <algorithm>
#include <bit>
#include <cstring>

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


// Carriles fuera de sus límites: el bit alto de cada byte usado cuya cuenta no está en [min, max].
// Con cuentas y límites por debajo de 128 la resta de un byte no pide prestado al siguiente.
constexpr std::uint64_t kAltos = 0x8080808080808080ULL;
inline std::uint64_t FueraSwar(std::uint64_t cuenta, std::uint64_t min, std::uint64_t max,
                               std::uint64_t usados) {
    const std::uint64_t desdeMin = ((cuenta | kAltos) - min) & kAltos;
    const std::uint64_t hastaMax = ((max | kAltos) - cuenta) & kAltos;
    return ~(desdeMin & hastaMax) & usados;
}

}  // namespace

Mascaras MascarasDe(const Columna& columna) {
    Mascaras r;
    for (int p = 0; p < kPartidos; ++p) {
        const int s = IndiceSigno(columna[static_cast<std::size_t>(p)]);
        if (s < 0) continue;
        r.m[static_cast<std::size_t>(s)] |= static_cast<std::uint16_t>(1U << p);
        r.signo[static_cast<std::size_t>(p)] = static_cast<std::uint8_t>(s);
    }
    return r;
}

template <std::size_t kPalabras>
void Filtro::Carriles<kPalabras>::Poner(std::size_t carril, int minimo, int maximo) {
    // Las cuentas no pasan de 14: un mínimo de 15 o más falla siempre, un máximo de 15 o más no.
    const auto recorte = [](int v) { return static_cast<std::uint64_t>(std::clamp(v, 0, 15)); };
    const std::size_t palabra = carril / 8;
    const std::size_t desplazamiento = carril % 8 * 8;
    min[palabra] |= recorte(minimo) << desplazamiento;
    max[palabra] |= recorte(maximo) << desplazamiento;
    usados[palabra] |= std::uint64_t{0x80} << desplazamiento;
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

    // Una pareja o un trío en su "sin límite" con mínimo 0 se salta.
    parejas_ = casilla(kCasillaParejas);
    for (int i = 0; i < 9; ++i) {
        const auto u = static_cast<std::size_t>(i);
        if (c.minPareja[u] == 0 && c.maxPareja[u] >= SinLimitePareja(i)) continue;
        limParejas_.Poner(static_cast<std::size_t>(i / 3 * 4 + i % 3), c.minPareja[u], c.maxPareja[u]);
    }
    trios_ = casilla(kCasillaTrios);
    for (int i = 0; i < 27; ++i) {
        const auto u = static_cast<std::size_t>(i);
        if (c.minTrio[u] == 0 && c.maxTrio[u] >= SinLimiteTrio(i)) continue;
        limTrios_.Poner(static_cast<std::size_t>(i / 9 * 16 + i / 3 % 3 * 4 + i % 3), c.minTrio[u],
                        c.maxTrio[u]);
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
        const std::size_t carril = indiceGrupo_.size();
        indiceGrupo_.push_back(g);
        for (std::size_t p = 0; p < kPartidos; ++p) {
            if (grupo.partidos[p]) miembro_[p][carril / 8] |= std::uint64_t{1} << (carril % 8 * 8);
        }
        for (std::size_t k = 0; k < 4; ++k) limGrupo_[k].Poner(carril, grupo.min[k], grupo.max[k]);
    }
    palabrasGrupo_ = (indiceGrupo_.size() + 7) / 8;
    toleranciaGrupos_ = c.toleranciaGrupos;

    const int ultimoAc = std::min<int>(c.ultimoGrupoAc, kGrupos - 1);
    for (int g = 0; g <= ultimoAc; ++g) {
        const GrupoAciertos& grupo = c.gruposAc[static_cast<std::size_t>(g)];
        if (!grupo.activo) continue;
        const std::size_t carril = indiceGrupoAc_.size();
        indiceGrupoAc_.push_back(g);
        for (std::size_t p = 0; p < kPartidos; ++p) {
            if (!grupo.EsDelGrupo(static_cast<int>(p))) continue;
            const auto& celda = grupo.signos[p];
            for (std::size_t s = 0; s < 3; ++s) {
                if (std::find(celda.begin(), celda.end(), kSignos[s]) != celda.end()) {
                    acierto_[p][s][carril / 8] |= std::uint64_t{1} << (carril % 8 * 8);
                }
            }
        }
        limGrupoAc_.Poner(carril, grupo.aciertosMin, grupo.aciertosMax);
    }
    palabrasGrupoAc_ = (indiceGrupoAc_.size() + 7) / 8;
    toleranciaGruposAc_ = c.toleranciaGruposAc;

    comparaciones_ = casilla(kCasillaComparaciones);
    for (std::size_t l = 0; l < 4; ++l) {
        const int n = std::min<int>(c.numListas[l], kPartidos);
        for (int i = 1; i <= n; ++i) {
            const int partido = c.listas[l][static_cast<std::size_t>(i)];
            if (partido >= 1 && partido <= kPartidos) {
                vecesEnListas_[static_cast<std::size_t>(partido - 1)] += 1U << (8 * l);
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
    const auto& s = col.signo;
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
    if (generales_) {
        const bool f = (probarEquis_ & limEquis_.Fuera(Cuenta(mx))) |
                       (probarDoses_ & limDoses_.Fuera(Cuenta(m2))) |
                       (probarVariantes_ & limVariantes_.Fuera(kPartidos - Cuenta(m1)));
        fallo |= si(f, kFGenerales);
    }
    if (seguidos_) {
        const auto variantes = static_cast<std::uint16_t>(~m1 & kTodos);
        const bool f = (probarSeg_[0] & !segPasa_[0][rachas[m1]]) |
                       (probarSeg_[1] & !segPasa_[1][rachas[mx]]) |
                       (probarSeg_[2] & !segPasa_[2][rachas[m2]]) |
                       (probarSeg_[3] & !segPasa_[3][rachas[variantes]]);
        fallo |= si(f, kFSeguidos);
    }
    if (parejas_) {
        std::array<std::uint8_t, 16> cuenta{};
        for (std::size_t i = 0; i + 1 < kPartidos; ++i) ++cuenta[(s[i] * 4U + s[i + 1]) & 15U];
        std::array<std::uint64_t, 2> w{};
        std::memcpy(w.data(), cuenta.data(), sizeof w);
        const std::uint64_t f =
            FueraSwar(w[0], limParejas_.min[0], limParejas_.max[0], limParejas_.usados[0]) |
            FueraSwar(w[1], limParejas_.min[1], limParejas_.max[1], limParejas_.usados[1]);
        fallo |= si(f != 0, kFParejas);
    }
    if (trios_) {
        std::array<std::uint8_t, 64> cuenta{};
        for (std::size_t i = 0; i + 2 < kPartidos; ++i) {
            ++cuenta[(s[i] * 16U + s[i + 1] * 4U + s[i + 2]) & 63U];
        }
        std::array<std::uint64_t, 8> w{};
        std::memcpy(w.data(), cuenta.data(), sizeof w);
        std::uint64_t f = 0;
        for (std::size_t i = 0; i < 8; ++i) {
            f |= FueraSwar(w[i], limTrios_.min[i], limTrios_.max[i], limTrios_.usados[i]);
        }
        fallo |= si(f != 0, kFTrios);
    }
    if (sumas_) {
        const std::array<std::uint16_t, 3> m = {m1, mx, m2};
        int suma = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            suma += sumaMitad_[k][0][m[k] & 0x7F] + sumaMitad_[k][1][m[k] >> 7];
        }
        fallo |= si(limSumas_.Fuera(suma), kFSumas);
    }

    // Grupos: cuentas por carril; los fallados con el bit alto de su byte.
    std::array<std::uint64_t, kPalabrasGrupo> fallanGrupos{};
    int gruposFallados = 0;
    if (palabrasGrupo_ > 0) {
        std::array<std::array<std::uint64_t, kPalabrasGrupo>, 4> cuenta{};
        for (std::size_t p = 0; p < kPartidos; ++p) {
            auto& destino = cuenta[s[p]];
            for (std::size_t w = 0; w < palabrasGrupo_; ++w) destino[w] += miembro_[p][w];
        }
        for (std::size_t w = 0; w < palabrasGrupo_; ++w) {
            const std::uint64_t v = cuenta[1][w] + cuenta[2][w];
            fallanGrupos[w] =
                FueraSwar(cuenta[0][w], limGrupo_[0].min[w], limGrupo_[0].max[w], limGrupo_[0].usados[w]) |
                FueraSwar(cuenta[1][w], limGrupo_[1].min[w], limGrupo_[1].max[w], limGrupo_[1].usados[w]) |
                FueraSwar(cuenta[2][w], limGrupo_[2].min[w], limGrupo_[2].max[w], limGrupo_[2].usados[w]) |
                FueraSwar(v, limGrupo_[3].min[w], limGrupo_[3].max[w], limGrupo_[3].usados[w]);
            gruposFallados += std::popcount(fallanGrupos[w]);
        }
        fallo |= si(gruposFallados > toleranciaGrupos_, kFGrupos);
    }
    std::array<std::uint64_t, kPalabrasGrupo> fallanAc{};
    if (palabrasGrupoAc_ > 0) {
        std::array<std::uint64_t, kPalabrasGrupo> aciertos{};
        for (std::size_t p = 0; p < kPartidos; ++p) {
            const auto& suma = acierto_[p][s[p]];
            for (std::size_t w = 0; w < palabrasGrupoAc_; ++w) aciertos[w] += suma[w];
        }
        int fallados = 0;
        for (std::size_t w = 0; w < palabrasGrupoAc_; ++w) {
            fallanAc[w] = FueraSwar(aciertos[w], limGrupoAc_.min[w], limGrupoAc_.max[w],
                                    limGrupoAc_.usados[w]);
            fallados += std::popcount(fallanAc[w]);
        }
        fallo |= si(fallados > toleranciaGruposAc_, kFGruposAc);
    }
    if (comparaciones_) {
        // Por signo, las cuentas de las cuatro listas, un byte cada una.
        std::array<std::uint32_t, 4> tabla{};
        for (std::size_t p = 0; p < kPartidos; ++p) tabla[s[p]] += vecesEnListas_[p];
        auto celda = [&](int c) -> int {
            if (c < 0) return 0;
            return static_cast<int>(tabla[static_cast<std::size_t>(c / 4)] >> (8 * (c % 4)) & 0xFFU);
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
    // El primer carril fallado, en el orden de los grupos.
    auto primero = [](const std::array<std::uint64_t, kPalabrasGrupo>& fallan) {
        std::size_t w = 0;
        while (fallan[w] == 0) ++w;
        return w * 8 + static_cast<std::size_t>(std::countr_zero(fallan[w])) / 8;
    };
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
                r.grupo[static_cast<std::size_t>(indiceGrupo_[primero(fallanGrupos)])] += 1;
            } else {
                r.tolGrupos += 1;
            }
            break;
        case kFGruposAc:
            if (toleranciaGruposAc_ == 0) {
                r.grupoAciertos[static_cast<std::size_t>(indiceGrupoAc_[primero(fallanAc)])] += 1;
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
