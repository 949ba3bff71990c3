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
// Parejas 2, tríos 4, 50 Grupos 25 y 50 Grupos de Aciertos 7.
constexpr std::size_t kPalabrasMaximas = 38;

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

void Filtro::PonerCarril(std::size_t carril, int minimo, int maximo) {
    // Las cuentas no pasan de 14: un mínimo de 15 o más falla siempre, un máximo de 15 o más no.
    const auto recorte = [](int v) { return static_cast<std::uint64_t>(std::clamp(v, 0, 15)); };
    const std::size_t palabra = carril / 8;
    const std::size_t desplazamiento = carril % 8 * 8;
    min_[palabra] |= recorte(minimo) << desplazamiento;
    max_[palabra] |= recorte(maximo) << desplazamiento;
    usados_[palabra] |= std::uint64_t{0x80} << desplazamiento;
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
    probarVariantes_ =
        !(c.minVariantes == c.posMinVariantes && c.maxVariantes == c.posMaxVariantes);
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

    sumas_ = casilla(kCasillaSumas);
    limSumas_ = {c.sumaMinima, c.sumaMaxima};
    for (std::size_t p = 0; p < kPartidos; ++p) {
        for (std::size_t s = 0; s < 3; ++s) tablaSumas_[s][p] = c.sumasTabla[s][p];
        // Lo que no es signo suma como el "2", igual que en el recorrido sobre el texto.
        tablaSumas_[kNoSigno][p] = c.sumasTabla[2][p];
    }

    // Los Grupos y Grupos de Aciertos que se prueban, en su orden.
    const int ultimo = std::min<int>(c.ultimoGrupo, kGrupos - 1);
    for (int g = 0; g <= ultimo; ++g) {
        if (c.grupos[static_cast<std::size_t>(g)].activo) indiceGrupo_.push_back(g);
    }
    toleranciaGrupos_ = c.toleranciaGrupos;
    const int ultimoAc = std::min<int>(c.ultimoGrupoAc, kGrupos - 1);
    for (int g = 0; g <= ultimoAc; ++g) {
        if (c.gruposAc[static_cast<std::size_t>(g)].activo) indiceGrupoAc_.push_back(g);
    }
    toleranciaGruposAc_ = c.toleranciaGruposAc;

    // Reparto de los carriles: cada familia en palabras propias.
    parejas_ = casilla(kCasillaParejas);
    trios_ = casilla(kCasillaTrios);
    auto reservar = [&](std::size_t carriles, std::size_t& primera) {
        primera = palabras_;
        const std::size_t n = (carriles + 7) / 8;
        palabras_ += n;
        return n;
    };
    reservar(parejas_ ? 9 : 0, palabraParejas_);
    reservar(trios_ ? 27 : 0, palabraTrios_);
    palabrasGrupos_ = reservar(indiceGrupo_.size() * 4, palabraGrupos_);
    palabrasAc_ = reservar(indiceGrupoAc_.size(), palabraAc_);
    min_.assign(palabras_, 0);
    max_.assign(palabras_, 0);
    usados_.assign(palabras_, 0);

    // Una pareja o un trío en su "sin límite" con mínimo 0 se salta.
    if (parejas_) {
        for (int i = 0; i < 9; ++i) {
            const auto u = static_cast<std::size_t>(i);
            if (c.minPareja[u] == 0 && c.maxPareja[u] >= SinLimitePareja(i)) continue;
            PonerCarril(palabraParejas_ * 8 + u, c.minPareja[u], c.maxPareja[u]);
        }
    }
    if (trios_) {
        for (int i = 0; i < 27; ++i) {
            const auto u = static_cast<std::size_t>(i);
            if (c.minTrio[u] == 0 && c.maxTrio[u] >= SinLimiteTrio(i)) continue;
            PonerCarril(palabraTrios_ * 8 + u, c.minTrio[u], c.maxTrio[u]);
        }
    }
    for (std::size_t j = 0; j < indiceGrupo_.size(); ++j) {
        const Grupo& grupo = c.grupos[static_cast<std::size_t>(indiceGrupo_[j])];
        for (std::size_t p = 0; p < kPartidos; ++p) {
            if (grupo.partidos[p]) gruposDelPartido_[p].push_back(static_cast<std::uint8_t>(j));
        }
        for (std::size_t k = 0; k < 4; ++k) {
            PonerCarril(palabraGrupos_ * 8 + j * 4 + k, grupo.min[k], grupo.max[k]);
        }
    }
    for (std::size_t j = 0; j < indiceGrupoAc_.size(); ++j) {
        const GrupoAciertos& grupo = c.gruposAc[static_cast<std::size_t>(indiceGrupoAc_[j])];
        for (std::size_t p = 0; p < kPartidos; ++p) {
            if (!grupo.EsDelGrupo(static_cast<int>(p))) continue;
            const auto& celda = grupo.signos[p];
            for (std::size_t s = 0; s < 3; ++s) {
                if (std::find(celda.begin(), celda.end(), kSignos[s]) != celda.end()) {
                    aciertaEn_[p][s].push_back(static_cast<std::uint8_t>(j));
                }
            }
        }
        PonerCarril(palabraAc_ * 8 + j, grupo.aciertosMin, grupo.aciertosMax);
    }

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

void Filtro::AportarPareja(std::uint8_t a, std::uint8_t b, std::uint64_t* carriles) const {
    if (parejas_ && a < 3 && b < 3) SumarCarril(carriles, palabraParejas_ * 8 + a * 3U + b);
}

void Filtro::AportarTrio(std::uint8_t a, std::uint8_t b, std::uint8_t c,
                         std::uint64_t* carriles) const {
    if (trios_ && a < 3 && b < 3 && c < 3) {
        SumarCarril(carriles, palabraTrios_ * 8 + a * 9U + b * 3U + c);
    }
}

void Filtro::Aportar(int desde, const SignosMitad& signos, Aporte& a,
                     std::uint64_t* carriles) const {
    a = {};
    std::fill(carriles, carriles + palabras_, std::uint64_t{0});
    for (std::size_t i = 0; i < static_cast<std::size_t>(kMitad); ++i) {
        const std::uint8_t s = signos[i];
        const auto p = static_cast<std::size_t>(desde) + i;
        if (s < 3) a.m[s] |= static_cast<std::uint16_t>(1U << p);
        a.suma += tablaSumas_[s][p];
        a.listas[s] += vecesEnListas_[p];
        if (s < 3) {
            for (std::uint8_t j : gruposDelPartido_[p]) {
                SumarCarril(carriles, palabraGrupos_ * 8 + j * 4U + s);
                if (s != 0) SumarCarril(carriles, palabraGrupos_ * 8 + j * 4U + kVariantes);
            }
            for (std::uint8_t j : aciertaEn_[p][s]) SumarCarril(carriles, palabraAc_ * 8 + j);
        }
        if (i >= 1) AportarPareja(signos[i - 1], s, carriles);
        if (i >= 2) AportarTrio(signos[i - 2], signos[i - 1], s, carriles);
    }
}

void Filtro::AportePrimera(const SignosMitad& signos, Aporte& a, std::uint64_t* carriles) const {
    Aportar(0, signos, a, carriles);
}

void Filtro::AporteSegunda(std::uint8_t penultimo, std::uint8_t ultimo, const SignosMitad& signos,
                           Aporte& a, std::uint64_t* carriles) const {
    Aportar(kMitad, signos, a, carriles);
    AportarPareja(ultimo, signos[0], carriles);
    AportarTrio(penultimo, ultimo, signos[0], carriles);
    AportarTrio(ultimo, signos[0], signos[1], carriles);
}

bool Filtro::Condicionar(const Columna& columna, Rechazos& r) const {
    SignosMitad primera{}, segunda{};
    for (std::size_t i = 0; i < static_cast<std::size_t>(kMitad); ++i) {
        const int a = IndiceSigno(columna[i]);
        const int b = IndiceSigno(columna[i + kMitad]);
        primera[i] = static_cast<std::uint8_t>(a < 0 ? kNoSigno : a);
        segunda[i] = static_cast<std::uint8_t>(b < 0 ? kNoSigno : b);
    }
    Aporte a, b;
    std::array<std::uint64_t, kPalabrasMaximas> ca{}, cb{};
    AportePrimera(primera, a, ca.data());
    AporteSegunda(primera[kMitad - 2], primera[kMitad - 1], segunda, b, cb.data());
    return Condicionar(a, ca.data(), b, cb.data(), r);
}

bool Filtro::FallaInterConsecutivas(const Mascaras& col) const {
    const auto [m1, mx, m2] = col.m;
    const auto iguales =
        static_cast<std::uint16_t>((m1 & (m1 >> 1)) | (mx & (mx >> 1)) | (m2 & (m2 >> 1)));
    return limInterCons_.Fuera(TablaRachas()[static_cast<std::uint16_t>(~iguales & kLugares13)]);
}

bool Filtro::FallaSeguidos(const Mascaras& col) const {
    const auto& rachas = TablaRachas();
    const auto [m1, mx, m2] = col.m;
    const auto variantes = static_cast<std::uint16_t>(~m1 & kTodos);
    return (probarSeg_[0] & !segPasa_[0][rachas[m1]]) | (probarSeg_[1] & !segPasa_[1][rachas[mx]]) |
           (probarSeg_[2] & !segPasa_[2][rachas[m2]]) |
           (probarSeg_[3] & !segPasa_[3][rachas[variantes]]);
}

bool Filtro::FallaRepeticiones(const Mascaras& col) const {
    const std::array<std::uint16_t, 4> mascaras = {col.m[0], col.m[1], col.m[2], col.m[0]};
    bool f = false;
    for (std::size_t k = 0; k < 4; ++k) {
        f |= probarRep_[k] && cuentaRep_[k][mascaras[k]] > limiteRep_[k];
    }
    return f;
}

// Sin saltos que dependan de la columna: se evalúan todas las familias activas y se anota cuáles
// fallan; si alguna falla, la primera en el orden de las pruebas es la que cuenta. Cada familia
// depende solo de la columna, así que veredicto y contadores son los de pararse en la primera.
bool Filtro::Condicionar(const Aporte& a, const std::uint64_t* ca, const Aporte& b,
                         const std::uint64_t* cb, Rechazos& r) const {
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
    const auto m1 = static_cast<std::uint16_t>(a.m[0] | b.m[0]);
    const auto mx = static_cast<std::uint16_t>(a.m[1] | b.m[1]);
    const auto m2 = static_cast<std::uint16_t>(a.m[2] | b.m[2]);
    const auto& rachas = TablaRachas();
    unsigned fallo = 0;
    auto si = [](bool v, unsigned bit) { return v ? bit : 0U; };

    if (inter_ || interCons_) {
        const auto iguales =
            static_cast<std::uint16_t>((m1 & (m1 >> 1)) | (mx & (mx >> 1)) | (m2 & (m2 >> 1)));
        const auto cambios = static_cast<std::uint16_t>(~iguales & kLugares13);
        fallo |= si(inter_ && limInter_.Fuera(Cuenta(cambios)), kFInter);
        fallo |= si(interCons_ && limInterCons_.Fuera(rachas[cambios]), kFInterCons);
    }
    const Mascaras mascaras{{m1, mx, m2}};
    if (generales_) {
        const bool f = (probarEquis_ & limEquis_.Fuera(Cuenta(mx))) |
                       (probarDoses_ & limDoses_.Fuera(Cuenta(m2))) |
                       (probarVariantes_ & limVariantes_.Fuera(kPartidos - Cuenta(m1)));
        fallo |= si(f, kFGenerales);
    }
    if (seguidos_) fallo |= si(FallaSeguidos(mascaras), kFSeguidos);
    // Las familias van por tramos en su orden: si un tramo ya falla, lo que viene detrás no
    // puede cambiar el contador y no se calcula.
    int gruposFallados = 0, acFallados = 0;
    std::size_t primerGrupo = 0, primerAc = 0;
    auto fuera = [&](std::size_t w) {
        return FueraSwar(ca[w] + cb[w], min_[w], max_[w], usados_[w]);
    };
    if (fallo != 0) goto rechazo;
    {
        std::uint64_t fallaParejas = 0, fallaTrios = 0;
        for (std::size_t w = palabraParejas_; w < palabraTrios_; ++w) fallaParejas |= fuera(w);
        for (std::size_t w = palabraTrios_; w < palabraGrupos_; ++w) fallaTrios |= fuera(w);
        fallo |= si(fallaParejas != 0, kFParejas) | si(fallaTrios != 0, kFTrios);
    }
    if (sumas_) fallo |= si(limSumas_.Fuera(a.suma + b.suma), kFSumas);
    if (fallo != 0) goto rechazo;
    {
        // Dos Grupos por palabra, cuatro carriles cada uno. Se cuentan solo si alguno falla.
        std::array<std::uint64_t, kPalabrasMaximas> fg{};
        std::uint64_t alguno = 0;
        for (std::size_t w = 0; w < palabrasGrupos_; ++w)
            alguno |= fg[w] = fuera(palabraGrupos_ + w);
        if (alguno != 0) {
            constexpr std::uint64_t kPrimero = 0x0000000080808080ULL;
            constexpr std::uint64_t kSegundo = 0x8080808000000000ULL;
            for (std::size_t w = 0; w < palabrasGrupos_; ++w) {
                const std::uint64_t f = fg[w];
                if (gruposFallados == 0 && f != 0)
                    primerGrupo = w * 2 + ((f & kPrimero) != 0 ? 0 : 1);
                gruposFallados += int{(f & kPrimero) != 0} + int{(f & kSegundo) != 0};
            }
        }
        std::uint64_t algunoAc = 0;
        for (std::size_t w = 0; w < palabrasAc_; ++w) algunoAc |= fg[w] = fuera(palabraAc_ + w);
        if (algunoAc != 0) {
            for (std::size_t w = 0; w < palabrasAc_; ++w) {
                const std::uint64_t f = fg[w];
                if (acFallados == 0 && f != 0) {
                    primerAc = w * 8 + static_cast<std::size_t>(std::countr_zero(f)) / 8;
                }
                acFallados += static_cast<int>(((f >> 7) * 0x0101010101010101ULL) >> 56);
            }
        }
        fallo |= si(gruposFallados > toleranciaGrupos_, kFGrupos);
        fallo |= si(acFallados > toleranciaGruposAc_, kFGruposAc);
    }
    if (fallo != 0) goto rechazo;

    if (comparaciones_) {
        std::array<std::uint32_t, 3> tabla = {a.listas[0] + b.listas[0], a.listas[1] + b.listas[1],
                                              a.listas[2] + b.listas[2]};
        auto celda = [&](int c) -> int {
            if (c < 0) return 0;
            return static_cast<int>(tabla[static_cast<std::size_t>(c / 4)] >> (8 * (c % 4)) &
                                    0xFFU);
        };
        bool f = false;
        for (const ComparacionProbada& fila : comparacionesProbadas_) {
            const int x = celda(fila.izq);
            const int y = celda(fila.der);
            switch (fila.operador) {
                case 1:
                    f |= !(x < y);
                    break;
                case 2:
                    f |= !(x <= y);
                    break;
                case 3:
                    f |= !(x == y);
                    break;
                case 4:
                    f |= !(x >= y);
                    break;
                case 5:
                    f |= !(x > y);
                    break;
                default:
                    break;
            }
        }
        fallo |= si(f, kFComparaciones);
    }
    if (repeticiones_) fallo |= si(FallaRepeticiones(mascaras), kFRepeticiones);

    if (fallo == 0) return true;
rechazo:
    switch (fallo & (~fallo + 1)) {
        case kFInter:
            r.porCondicion[2] += 1;
            break;
        case kFInterCons:
            r.porCondicion[3] += 1;
            break;
        case kFGenerales:
            r.porCondicion[0] += 1;
            break;
        case kFSeguidos:
            r.porCondicion[1] += 1;
            break;
        case kFParejas:
            r.porCondicion[4] += 1;
            break;
        case kFTrios:
            r.porCondicion[5] += 1;
            break;
        case kFSumas:
            r.porCondicion[6] += 1;
            break;
        case kFGrupos:
            if (toleranciaGrupos_ == 0) {
                r.grupo[static_cast<std::size_t>(indiceGrupo_[primerGrupo])] += 1;
            } else {
                r.tolGrupos += 1;
            }
            break;
        case kFGruposAc:
            if (toleranciaGruposAc_ == 0) {
                r.grupoAciertos[static_cast<std::size_t>(indiceGrupoAc_[primerAc])] += 1;
            } else {
                r.tolGruposAciertos += 1;
            }
            break;
        case kFComparaciones:
            r.porCondicion[7] += 1;
            break;
        default:
            r.porCondicion[8] += 1;
            break;
    }
    return false;
}

}  // namespace quinteva::engine
