#include "engine/filter_blocks.h"

#include <algorithm>
#include <bit>

namespace quinteva::engine {
namespace {

constexpr std::size_t kM = static_cast<std::size_t>(kMitad);

// Lo que aporta una mitad (desde = 0 o 7) a cada cuenta, sin lo que cruza del 7 al 8.
int Cambios(const SignosMitad& s) {
    int n = 0;
    for (std::size_t i = 0; i + 1 < kM; ++i) n += s[i] != s[i + 1] ? 1 : 0;
    return n;
}
int Cuantos(const SignosMitad& s, int signo) {
    return static_cast<int>(std::count(s.begin(), s.end(), static_cast<std::uint8_t>(signo)));
}
int Parejas(const SignosMitad& s, int a, int b) {
    int n = 0;
    for (std::size_t i = 0; i + 1 < kM; ++i) n += (s[i] == a && s[i + 1] == b) ? 1 : 0;
    return n;
}
int Trios(const SignosMitad& s, int a, int b, int c) {
    int n = 0;
    for (std::size_t i = 0; i + 2 < kM; ++i) {
        n += (s[i] == a && s[i + 1] == b && s[i + 2] == c) ? 1 : 0;
    }
    return n;
}
int EnGrupo(const SignosMitad& s, int desde, const Grupo& g, int clase) {
    int n = 0;
    for (std::size_t i = 0; i < kM; ++i) {
        if (!g.partidos[static_cast<std::size_t>(desde) + i]) continue;
        n += (clase == kVariantes ? s[i] != 0 : s[i] == clase) ? 1 : 0;
    }
    return n;
}
int Aciertos(const SignosMitad& s, int desde, const GrupoAciertos& g) {
    int n = 0;
    for (std::size_t i = 0; i < kM; ++i) {
        const auto p = static_cast<std::size_t>(desde) + i;
        if (!g.EsDelGrupo(static_cast<int>(p))) continue;
        const auto& celda = g.signos[p];
        n += std::find(celda.begin(), celda.end(), kSignos[s[i]]) != celda.end() ? 1 : 0;
    }
    return n;
}
int Suma(const SignosMitad& s, int desde, const SetCondiciones& c) {
    int n = 0;
    for (std::size_t i = 0; i < kM; ++i)
        n += c.sumasTabla[s[i]][static_cast<std::size_t>(desde) + i];
    return n;
}
// Celda de Comparaciones (signo 1 a 3, lista 1 a 4) en una mitad; fuera de rango, 0.
int Celda(const SignosMitad& s, int desde, const SetCondiciones& c, int signo, int lista) {
    if (signo < 1 || signo > 3 || lista < 1 || lista > 4) return 0;
    const auto l = static_cast<std::size_t>(lista - 1);
    int n = 0;
    for (int j = 1; j <= std::min<int>(c.numListas[l], kPartidos); ++j) {
        const int p = c.listas[l][static_cast<std::size_t>(j)] - 1 - desde;
        if (p >= 0 && p < kMitad && s[static_cast<std::size_t>(p)] == signo - 1) ++n;
    }
    return n;
}
Mascaras MascarasMitad(const SignosMitad& s, int desde) {
    Mascaras m;
    for (std::size_t i = 0; i < kM; ++i) {
        m.m[s[i]] |= static_cast<std::uint16_t>(1U << (static_cast<std::size_t>(desde) + i));
    }
    return m;
}
// Racha más larga y racha final de los lugares marcados.
std::pair<int, int> Rachas(const std::array<bool, kM>& marca, std::size_t n = kM) {
    int mayor = 0, actual = 0;
    for (std::size_t i = 0; i < n; ++i) {
        actual = marca[i] ? actual + 1 : 0;
        mayor = std::max(mayor, actual);
    }
    return {mayor, actual};
}

}  // namespace

FiltroPorBloques::TablaMenores FiltroPorBloques::HacerTabla(const std::vector<int>& valores) const {
    TablaMenores t;
    t.desde = *std::min_element(valores.begin(), valores.end());
    t.hasta = *std::max_element(valores.begin(), valores.end());
    const auto filas = static_cast<std::size_t>(t.hasta - t.desde + 1);
    t.bits.assign(filas * palabras_, 0);
    for (std::size_t i = 0; i < valores.size(); ++i) {
        const auto fila = static_cast<std::size_t>(valores[i] - t.desde);
        t.bits[fila * palabras_ + i / 64] |= std::uint64_t{1} << (i % 64);
    }
    for (std::size_t fila = 1; fila < filas; ++fila) {
        for (std::size_t w = 0; w < palabras_; ++w) {
            t.bits[fila * palabras_ + w] |= t.bits[(fila - 1) * palabras_ + w];
        }
    }
    return t;
}

void FiltroPorBloques::Todas(std::uint64_t* bits) const {
    std::copy(validas_.begin(), validas_.end(), bits);
}

void FiltroPorBloques::Fuera(const TablaMenores& t, int desde, int hasta,
                             std::uint64_t* fallan) const {
    // Por debajo: valor <= desde - 1. Por encima: no (valor <= hasta).
    const int bajo = desde - 1;
    if (bajo >= t.hasta || hasta < t.desde) {
        Todas(fallan);
        return;
    }
    if (bajo >= t.desde) {
        const std::uint64_t* b = &t.bits[static_cast<std::size_t>(bajo - t.desde) * palabras_];
        for (std::size_t w = 0; w < palabras_; ++w) fallan[w] |= b[w];
    }
    if (hasta < t.hasta) {
        const std::uint64_t* b = &t.bits[static_cast<std::size_t>(hasta - t.desde) * palabras_];
        for (std::size_t w = 0; w < palabras_; ++w) fallan[w] |= ~b[w] & validas_[w];
    }
}

FiltroPorBloques::FiltroPorBloques(const SetCondiciones& c, std::vector<SignosMitad> segundas)
    : c_(c), filtro_(c), segundas_(std::move(segundas)) {
    const std::size_t n = segundas_.size();
    palabras_ = (n + 63) / 64;
    validas_.assign(palabras_, 0);
    for (std::size_t i = 0; i < n; ++i) validas_[i / 64] |= std::uint64_t{1} << (i % 64);
    fallan_.assign(palabras_, 0);
    rechazadas_.assign(palabras_, 0);
    aux_.assign(palabras_, 0);
    planos_.assign(8, std::vector<std::uint64_t>(palabras_, 0));
    for (const auto& s : segundas_) mascarasSegundas_.push_back(MascarasMitad(s, kMitad));

    auto tabla = [&](auto&& valor) {
        std::vector<int> v(n);
        for (std::size_t i = 0; i < n; ++i) v[i] = valor(segundas_[i]);
        return HacerTabla(v);
    };
    auto casilla = [&](Casilla k) { return c.casilla[static_cast<std::size_t>(k)]; };

    if (casilla(kCasillaInterrupciones)) {
        inter_ = {c.minInter, c.maxInter, {}};
        for (int ultimo = 0; ultimo < 3; ++ultimo) {
            inter_.tablas.push_back(
                tabla([&](const SignosMitad& s) { return Cambios(s) + (s[0] != ultimo ? 1 : 0); }));
        }
    }
    if (casilla(kCasillaGenerales)) {
        if (filtro_.probarEquis_) {
            generales_.push_back({c.minEquis, c.maxEquis, {tabla([](const SignosMitad& s) {
                                      return Cuantos(s, 1);
                                  })}});
            claseGenerales_.push_back(1);
        }
        if (filtro_.probarDoses_) {
            generales_.push_back({c.minDoses, c.maxDoses, {tabla([](const SignosMitad& s) {
                                      return Cuantos(s, 2);
                                  })}});
            claseGenerales_.push_back(2);
        }
        if (filtro_.probarVariantes_) {
            generales_.push_back({c.minVariantes, c.maxVariantes, {tabla([](const SignosMitad& s) {
                                      return kMitad - Cuantos(s, 0);
                                  })}});
            claseGenerales_.push_back(kVariantes);
        }
    }
    if (casilla(kCasillaParejas)) {
        for (int i = 0; i < 9; ++i) {
            const auto u = static_cast<std::size_t>(i);
            if (c.minPareja[u] == 0 && c.maxPareja[u] >= SinLimitePareja(i)) continue;
            Carril carril{c.minPareja[u], c.maxPareja[u], {}};
            const int a = i / 3, b = i % 3;
            for (int ultimo = 0; ultimo < 3; ++ultimo) {
                carril.tablas.push_back(tabla([&](const SignosMitad& s) {
                    return Parejas(s, a, b) + (ultimo == a && s[0] == b ? 1 : 0);
                }));
            }
            parejas_.emplace_back(i, std::move(carril));
        }
    }
    if (casilla(kCasillaTrios)) {
        for (int i = 0; i < 27; ++i) {
            const auto u = static_cast<std::size_t>(i);
            if (c.minTrio[u] == 0 && c.maxTrio[u] >= SinLimiteTrio(i)) continue;
            Carril carril{c.minTrio[u], c.maxTrio[u], {}};
            const int a = i / 9, b = i / 3 % 3, d = i % 3;
            for (int par = 0; par < 9; ++par) {
                const int pen = par / 3, ult = par % 3;
                carril.tablas.push_back(tabla([&](const SignosMitad& s) {
                    return Trios(s, a, b, d) + (pen == a && ult == b && s[0] == d ? 1 : 0) +
                           (ult == a && s[0] == b && s[1] == d ? 1 : 0);
                }));
            }
            trios_.emplace_back(i, std::move(carril));
        }
    }
    if (casilla(kCasillaSumas)) {
        sumas_ = {c.sumaMinima,
                  c.sumaMaxima,
                  {tabla([&](const SignosMitad& s) { return Suma(s, kMitad, c); })}};
    }
    for (int g : filtro_.indiceGrupo_) {
        const Grupo& grupo = c.grupos[static_cast<std::size_t>(g)];
        std::array<Carril, 4> carriles;
        for (int k = 0; k < 4; ++k) {
            carriles[static_cast<std::size_t>(k)] = {
                grupo.min[static_cast<std::size_t>(k)],
                grupo.max[static_cast<std::size_t>(k)],
                {tabla([&](const SignosMitad& s) { return EnGrupo(s, kMitad, grupo, k); })}};
        }
        grupos_.push_back(std::move(carriles));
        indiceGrupo_.push_back(g);
    }
    for (int g : filtro_.indiceGrupoAc_) {
        const GrupoAciertos& grupo = c.gruposAc[static_cast<std::size_t>(g)];
        gruposAc_.push_back(
            {grupo.aciertosMin, grupo.aciertosMax, {tabla([&](const SignosMitad& s) {
                 return Aciertos(s, kMitad, grupo);
             })}});
        indiceGrupoAc_.push_back(g);
    }
    if (casilla(kCasillaComparaciones)) {
        for (const Comparacion& f : c.comparaciones) {
            if (f.activa == 0) continue;
            comparaciones_.push_back({f.signoIzq, f.listaIzq, f.signoDer, f.listaDer, f.operador,
                                      tabla([&](const SignosMitad& s) {
                                          return Celda(s, kMitad, c, f.signoIzq, f.listaIzq) -
                                                 Celda(s, kMitad, c, f.signoDer, f.listaDer);
                                      })});
        }
    }
}

template <typename Contador>
void FiltroPorBloques::Anotar(const std::uint64_t* fallan, std::uint64_t* rechazadas,
                              Contador& contador) {
    std::int64_t nuevas = 0;
    for (std::size_t w = 0; w < palabras_; ++w) {
        nuevas += std::popcount(fallan[w] & ~rechazadas[w] & validas_[w]);
        rechazadas[w] |= fallan[w];
    }
    contador += static_cast<Contador>(nuevas);
}

const std::vector<std::uint64_t>& FiltroPorBloques::EnCache(
    std::unordered_map<std::uint64_t, std::vector<std::uint64_t>>& cache, std::uint64_t clave,
    const Mascaras& primera, bool (Filtro::*falla)(const Mascaras&) const) {
    auto [it, nueva] = cache.try_emplace(clave);
    if (nueva) {
        it->second.assign(palabras_, 0);
        for (std::size_t i = 0; i < segundas_.size(); ++i) {
            Mascaras m;
            for (std::size_t k = 0; k < 3; ++k) {
                m.m[k] = static_cast<std::uint16_t>(primera.m[k] | mascarasSegundas_[i].m[k]);
            }
            if ((filtro_.*falla)(m)) it->second[i / 64] |= std::uint64_t{1} << (i % 64);
        }
    }
    return it->second;
}

void FiltroPorBloques::Filtrar(const SignosMitad& a, std::size_t n, std::uint64_t* pasan,
                               Rechazos& r) {
    const SetCondiciones& c = c_;
    auto casilla = [&](Casilla k) { return c.casilla[static_cast<std::size_t>(k)]; };
    // Solo cuentan las n primeras segundas mitades.
    std::vector<std::uint64_t> todas = validas_;
    if (n < segundas_.size()) {
        for (std::size_t w = 0; w < palabras_; ++w) {
            const std::size_t desde = w * 64;
            validas_[w] = n <= desde        ? 0
                          : n >= desde + 64 ? ~std::uint64_t{0}
                                            : (std::uint64_t{1} << (n - desde)) - 1;
            validas_[w] &= todas[w];
        }
    }
    std::uint64_t* rech = rechazadas_.data();
    std::fill(rechazadas_.begin(), rechazadas_.end(), 0);
    auto limpiar = [&] { std::fill(fallan_.begin(), fallan_.end(), 0); };
    auto completas = [&] {
        for (std::size_t w = 0; w < palabras_; ++w) {
            if ((validas_[w] & ~rech[w]) != 0) return false;
        }
        return true;
    };
    const Mascaras mascaras = MascarasMitad(a, 0);
    const std::uint8_t ultimo = a[kM - 1];
    const std::uint8_t penultimo = a[kM - 2];

    // 1. Interrupciones.
    if (casilla(kCasillaInterrupciones)) {
        limpiar();
        const int p = Cambios(a);
        Fuera(inter_.tablas[ultimo], inter_.min - p, inter_.max - p, fallan_.data());
        Anotar(fallan_.data(), rech, r.porCondicion[2]);
    }
    // 2. Interrupciones consecutivas: resumen (racha mayor, racha final, último signo).
    if (casilla(kCasillaInterConsecutivas) && !completas()) {
        std::array<bool, kM> cambio{};
        for (std::size_t i = 0; i + 1 < kM; ++i) cambio[i] = a[i] != a[i + 1];
        const auto [mayor, final] = Rachas(cambio, kM - 1);
        const auto clave = static_cast<std::uint64_t>(mayor | final << 4 | ultimo << 8);
        const auto& f = EnCache(cacheInterCons_, clave, mascaras, &Filtro::FallaInterConsecutivas);
        Anotar(f.data(), rech, r.porCondicion[3]);
    }
    // 3. Generales.
    if (!generales_.empty() && !completas()) {
        limpiar();
        for (std::size_t i = 0; i < generales_.size(); ++i) {
            const int clase = claseGenerales_[i];
            const int p = clase == kVariantes ? kMitad - Cuantos(a, 0) : Cuantos(a, clase);
            Fuera(generales_[i].tablas[0], generales_[i].min - p, generales_[i].max - p,
                  fallan_.data());
        }
        Anotar(fallan_.data(), rech, r.porCondicion[0]);
    }
    // 4. Seguidos: por clase, racha mayor y final de la primera mitad.
    if (casilla(kCasillaSeguidos) && !completas()) {
        std::uint64_t clave = 0;
        for (int k = 0; k < 4; ++k) {
            std::array<bool, kM> marca{};
            for (std::size_t i = 0; i < kM; ++i) marca[i] = k == kVariantes ? a[i] != 0 : a[i] == k;
            const auto [mayor, final] = Rachas(marca);
            clave |= static_cast<std::uint64_t>(mayor | final << 3) << (6 * k);
        }
        const auto& f = EnCache(cacheSeguidos_, clave, mascaras, &Filtro::FallaSeguidos);
        Anotar(f.data(), rech, r.porCondicion[1]);
    }
    // 5 y 6. Parejas y Tríos.
    if (!parejas_.empty() && !completas()) {
        limpiar();
        for (const auto& [i, carril] : parejas_) {
            const int p = Parejas(a, i / 3, i % 3);
            Fuera(carril.tablas[ultimo], carril.min - p, carril.max - p, fallan_.data());
        }
        Anotar(fallan_.data(), rech, r.porCondicion[4]);
    }
    if (!trios_.empty() && !completas()) {
        limpiar();
        for (const auto& [i, carril] : trios_) {
            const int p = Trios(a, i / 9, i / 3 % 3, i % 3);
            Fuera(carril.tablas[penultimo * 3U + ultimo], carril.min - p, carril.max - p,
                  fallan_.data());
        }
        Anotar(fallan_.data(), rech, r.porCondicion[5]);
    }
    // 7. Sumas.
    if (casilla(kCasillaSumas) && !completas()) {
        limpiar();
        const int p = Suma(a, 0, c);
        Fuera(sumas_.tablas[0], sumas_.min - p, sumas_.max - p, fallan_.data());
        Anotar(fallan_.data(), rech, r.porCondicion[6]);
    }
    // 8 y 9. Grupos y Grupos de Aciertos, con su tolerancia.
    auto grupos = [&](std::size_t cuantos, auto&& fallaGrupo, int tolerancia, auto& porGrupo,
                      const std::vector<int>& indice, std::int32_t& porTolerancia) {
        if (cuantos == 0 || completas()) return;
        if (tolerancia == 0) {
            for (std::size_t g = 0; g < cuantos; ++g) {
                limpiar();
                fallaGrupo(g, fallan_.data());
                Anotar(fallan_.data(), rech, porGrupo[static_cast<std::size_t>(indice[g])]);
            }
            return;
        }
        // Cuenta de Grupos fallados por columna, en bits por planos.
        for (auto& plano : planos_) std::fill(plano.begin(), plano.end(), 0);
        for (std::size_t g = 0; g < cuantos; ++g) {
            limpiar();
            fallaGrupo(g, fallan_.data());
            for (std::size_t w = 0; w < palabras_; ++w) {
                std::uint64_t acarreo = fallan_[w];
                for (std::size_t b = 0; b < planos_.size() && acarreo != 0; ++b) {
                    const std::uint64_t nuevo = planos_[b][w] ^ acarreo;
                    acarreo &= planos_[b][w];
                    planos_[b][w] = nuevo;
                }
            }
        }
        // Fallados > tolerancia, comparando de la cifra alta a la baja.
        limpiar();
        for (std::size_t w = 0; w < palabras_; ++w) {
            std::uint64_t mayor = 0, igual = ~std::uint64_t{0};
            for (std::size_t b = planos_.size(); b-- > 0;) {
                if (((tolerancia >> b) & 1) == 0) {
                    mayor |= igual & planos_[b][w];
                    igual &= ~planos_[b][w];
                } else {
                    igual &= planos_[b][w];
                }
            }
            fallan_[w] = tolerancia >= (1 << planos_.size()) ? 0 : mayor;
        }
        Anotar(fallan_.data(), rech, porTolerancia);
    };
    grupos(
        grupos_.size(),
        [&](std::size_t g, std::uint64_t* fallan) {
            const Grupo& grupo = c.grupos[static_cast<std::size_t>(indiceGrupo_[g])];
            for (int k = 0; k < 4; ++k) {
                const Carril& carril = grupos_[g][static_cast<std::size_t>(k)];
                const int p = EnGrupo(a, 0, grupo, k);
                Fuera(carril.tablas[0], carril.min - p, carril.max - p, fallan);
            }
        },
        c.toleranciaGrupos, r.grupo, indiceGrupo_, r.tolGrupos);
    grupos(
        gruposAc_.size(),
        [&](std::size_t g, std::uint64_t* fallan) {
            const GrupoAciertos& grupo = c.gruposAc[static_cast<std::size_t>(indiceGrupoAc_[g])];
            const int p = Aciertos(a, 0, grupo);
            Fuera(gruposAc_[g].tablas[0], gruposAc_[g].min - p, gruposAc_[g].max - p, fallan);
        },
        c.toleranciaGruposAc, r.grupoAciertos, indiceGrupoAc_, r.tolGruposAciertos);
    // 10. Comparaciones: izq A + izq B op der A + der B, o sea (izq B - der B) op (der A - izq A).
    if (!comparaciones_.empty() && !completas()) {
        limpiar();
        for (const FilaComparacion& f : comparaciones_) {
            const int umbral =
                Celda(a, 0, c, f.signoDer, f.listaDer) - Celda(a, 0, c, f.signoIzq, f.listaIzq);
            // Pasan las que cumplen: d < u, d <= u, d == u, d >= u, d > u.
            switch (f.operador) {
                case 1:
                    Fuera(f.diferencia, -99, umbral - 1, fallan_.data());
                    break;
                case 2:
                    Fuera(f.diferencia, -99, umbral, fallan_.data());
                    break;
                case 3:
                    Fuera(f.diferencia, umbral, umbral, fallan_.data());
                    break;
                case 4:
                    Fuera(f.diferencia, umbral, 99, fallan_.data());
                    break;
                case 5:
                    Fuera(f.diferencia, umbral + 1, 99, fallan_.data());
                    break;
                default:
                    break;
            }
        }
        Anotar(fallan_.data(), rech, r.porCondicion[7]);
    }
    // 11. Repeticiones: por clase, las contadas en la primera mitad y la racha final.
    if (casilla(kCasillaRepeticiones) && !completas()) {
        std::uint64_t clave = 0;
        for (std::size_t k = 0; k < 4; ++k) {
            if (c.limiteRep[k] == 0) continue;
            const int largo = c.longRep[k];
            int cuenta = 0, racha = 0;
            for (std::size_t i = 0; i < kM; ++i) {
                const bool es = k == kVariantes ? a[i] != 0 : a[i] == k;
                if (es) {
                    ++racha;
                    continue;
                }
                // Variantes: cada "1" cierra la racha. Signos: una racha cerrada dentro.
                if (k == kVariantes ? racha == largo : (racha > 0 && racha == largo)) ++cuenta;
                racha = 0;
            }
            clave |= static_cast<std::uint64_t>(std::min(cuenta, 15) | racha << 4) << (8 * k);
        }
        const auto& f = EnCache(cacheRepeticiones_, clave, mascaras, &Filtro::FallaRepeticiones);
        Anotar(f.data(), rech, r.porCondicion[8]);
    }

    for (std::size_t w = 0; w < palabras_; ++w) pasan[w] = validas_[w] & ~rech[w];
    validas_ = std::move(todas);
}

}  // namespace quinteva::engine
