#include "engine/editing_rules.h"

#include <algorithm>

namespace quinteva::engine {
namespace {

bool MismosSignos(const QuinielaBase& a, const QuinielaBase& b, int partido) {
    for (int s = 0; s < 3; ++s) {
        if (a.Elegido(partido, s) != b.Elegido(partido, s)) return false;
    }
    return true;
}

// Un par de Generales: sin filas verdes (elegido igual al posible) sigue al posible; con filas
// verdes que quedan fuera del nuevo rango, se queda con las verdes que siguen dentro (o con el
// posible si no queda ninguna) y avisa.
bool AjustarGenerales(std::uint8_t antesMin, std::uint8_t antesMax, std::uint8_t nuevoMin,
                      std::uint8_t nuevoMax, std::uint8_t& min, std::uint8_t& max) {
    if (min == antesMin && max == antesMax) {
        min = nuevoMin;
        max = nuevoMax;
        return false;
    }
    if (min >= nuevoMin && max <= nuevoMax) return false;
    const int desde = std::max(min, nuevoMin);
    const int hasta = std::min(max, nuevoMax);
    if (desde > hasta) {
        min = nuevoMin;
        max = nuevoMax;
    } else {
        min = static_cast<std::uint8_t>(desde);
        max = static_cast<std::uint8_t>(hasta);
    }
    return true;
}

// Un valor de Seguidos: sin elegir (igual al posible) sigue al posible; elegido y dentro del
// nuevo rango se queda; fuera se recorta al límite y avisa.
bool AjustarSeguido(std::uint8_t antes, std::uint8_t nuevo, std::uint8_t nuevoMin,
                    std::uint8_t nuevoMax, std::uint8_t& valor) {
    if (valor == antes) {
        valor = nuevo;
        return false;
    }
    if (valor >= nuevoMin && valor <= nuevoMax) return false;
    valor = std::clamp(valor, nuevoMin, nuevoMax);
    return true;
}

}  // namespace

void AnularResultados(Combinacion& c) {
    c.panel.condicionada.reset();
    c.panel.reducidas = {};
    c.panel.precio.reset();
    c.panel.guardada = false;
}

bool QuinComp(Combinacion& comb, const QuinielaBase& anterior, base::Dialogo& dialogo) {
    const QuinielaBase& base = comb.base;
    SetCondiciones& c = comb.condiciones;
    if (!base.Completa()) {
        comb.panel.alDirecto.reset();
        comb.panel.dobles.reset();
        comb.panel.triples.reset();
        return false;
    }
    comb.pleno = base.Pleno();
    comb.panel.alDirecto = base.Columnas();
    comb.panel.dobles = base.Dobles();
    comb.panel.triples = base.Triples();

    const PosiblesGenerales g = CalcularPosiblesGenerales(base);
    bool tocados = false;
    tocados |= AjustarGenerales(c.posMinVariantes, c.posMaxVariantes, g.minVariantes,
                                g.maxVariantes, c.minVariantes, c.maxVariantes);
    tocados |= AjustarGenerales(c.posMinEquis, c.posMaxEquis, g.minEquis, g.maxEquis, c.minEquis,
                                c.maxEquis);
    tocados |= AjustarGenerales(c.posMinDoses, c.posMaxDoses, g.minDoses, g.maxDoses, c.minDoses,
                                c.maxDoses);
    c.posMinVariantes = g.minVariantes, c.posMaxVariantes = g.maxVariantes;
    c.posMinUnos = g.minUnos, c.posMaxUnos = g.maxUnos;
    c.posMinEquis = g.minEquis, c.posMaxEquis = g.maxEquis;
    c.posMinDoses = g.minDoses, c.posMaxDoses = g.maxDoses;
    if (tocados) dialogo.Mensaje(kMsgGeneralesTocados);

    const PosiblesSeguidos s = CalcularPosiblesSeguidos(base);
    bool seguidos = false;
    for (std::size_t k = 0; k < 4; ++k) {
        seguidos |= AjustarSeguido(c.posMinSeg[k], s.min[k], s.min[k], s.max[k], c.minSeg[k]);
        seguidos |= AjustarSeguido(c.posMaxSeg[k], s.max[k], s.min[k], s.max[k], c.maxSeg[k]);
        c.posMinSeg[k] = s.min[k];
        c.posMaxSeg[k] = s.max[k];
    }
    if (seguidos) dialogo.Mensaje(kMsgSeguidosTocados);

    std::array<bool, kPartidos> cambiado{};
    for (int p = 1; p <= kPartidos; ++p) {
        cambiado[static_cast<std::size_t>(p - 1)] = !MismosSignos(anterior, base, p);
    }
    for (std::size_t i = 0; i < kGrupos; ++i) {
        Grupo& grupo = c.grupos[i];
        if (!grupo.activo) continue;
        bool tocado = false;
        for (std::size_t p = 0; p < kPartidos; ++p) tocado |= grupo.partidos[p] && cambiado[p];
        if (!tocado) continue;
        CalcularPosiblesGrupo(grupo, base);
        for (std::size_t k = 0; k < 4; ++k) {
            grupo.max[k] = std::min(grupo.max[k], grupo.posMax[k]);
            grupo.min[k] = std::max(grupo.min[k], grupo.posMin[k]);
        }
        dialogo.Mensaje("Ha quedado modificado el Grupo número " + std::to_string(i + 1) + ".");
    }
    for (std::size_t i = 0; i < kGrupos; ++i) {
        GrupoAciertos& ac = c.gruposAc[i];
        if (!ac.activo) continue;
        bool tocado = false;
        for (int p = 0; p < kPartidos; ++p) {
            for (auto& signo : ac.signos[static_cast<std::size_t>(p)]) {
                const int k = IndiceSigno(signo);
                if (k >= 0 && !base.Elegido(p + 1, k)) {
                    signo = ' ';
                    tocado = true;
                }
            }
        }
        if (!tocado) continue;
        int n = 0;
        for (int p = 0; p < kPartidos; ++p) n += ac.EsDelGrupo(p) ? 1 : 0;
        ac.numPartidos = static_cast<std::uint8_t>(n);
        ac.fallosMax = std::min<std::uint8_t>(ac.fallosMax, ac.numPartidos);
        ac.fallosMin = std::min<std::uint8_t>(ac.fallosMin, ac.fallosMax);
        ac.aciertosMin = static_cast<std::uint8_t>(n - ac.fallosMax);
        ac.aciertosMax = static_cast<std::uint8_t>(n - ac.fallosMin);
        dialogo.Mensaje("Ha quedado modificado el Grupo de Aciertos número " +
                        std::to_string(i + 1) + ".");
    }
    bool comparaciones = false;
    for (std::size_t l = 0; l < 4; ++l) {
        for (int j = 1; j <= std::min<int>(c.numListas[l], kPartidos); ++j) {
            const int partido = c.listas[l][static_cast<std::size_t>(j)];
            if (partido >= 1 && partido <= kPartidos &&
                cambiado[static_cast<std::size_t>(partido - 1)]) {
                comparaciones = true;
            }
        }
    }
    if (comparaciones) {
        for (auto& fila : c.comparaciones) fila.activa = 0;
        c.casilla[kCasillaComparaciones] = false;
        dialogo.Mensaje(kMsgComparacionesTocadas);
    }
    return true;
}

int FijarToleranciaGrupos(SetCondiciones& c, int valor, base::Dialogo& dialogo) {
    const int tope = c.ultimoGrupo + 1;
    if (valor > tope) {
        valor = tope;
        dialogo.Mensaje(kMsgToleranciaGrupos);
    }
    c.toleranciaGrupos = static_cast<std::int16_t>(std::max(valor, 0));
    return c.toleranciaGrupos;
}

int FijarToleranciaGruposAc(SetCondiciones& c, int valor, base::Dialogo& dialogo) {
    const int tope = c.ultimoGrupoAc + 1;
    if (valor > tope) {
        valor = tope;
        dialogo.Mensaje(kMsgToleranciaGruposAc);
    }
    c.toleranciaGruposAc = static_cast<std::int16_t>(std::max(valor, 0));
    return c.toleranciaGruposAc;
}

void AlternarPartidoLista(SetCondiciones& c, int lista, int partido) {
    if (lista < 1 || lista > 4 || partido < 1 || partido > kPartidos) return;
    auto& l = c.listas[static_cast<std::size_t>(lista - 1)];
    auto& n = c.numListas[static_cast<std::size_t>(lista - 1)];
    std::array<bool, kPartidos + 1> esta{};
    for (int i = 1; i <= std::min<int>(n, kPartidos); ++i) {
        const int p = l[static_cast<std::size_t>(i)];
        if (p >= 1 && p <= kPartidos) esta[static_cast<std::size_t>(p)] = true;
    }
    esta[static_cast<std::size_t>(partido)] = !esta[static_cast<std::size_t>(partido)];
    l = {};
    n = 0;
    for (int p = 1; p <= kPartidos; ++p) {
        if (esta[static_cast<std::size_t>(p)]) l[++n] = static_cast<std::uint8_t>(p);
    }
}

bool ActivarComparacion(Combinacion& comb, int fila, const Comparacion& d, base::Dialogo& dialogo) {
    if (fila < 0 || fila >= kComparacionesFilas) return false;
    const bool completo = d.signoIzq >= 1 && d.signoIzq <= 3 && d.listaIzq >= 1 &&
                          d.listaIzq <= 4 && d.operador >= 1 && d.operador <= 5 &&
                          d.signoDer >= 1 && d.signoDer <= 3 && d.listaDer >= 1 && d.listaDer <= 4;
    if (!completo) {
        dialogo.Mensaje(kMsgComparacionIncompleta, base::Icono::Aviso);
        return false;
    }
    if (d.listaIzq == d.listaDer) {
        dialogo.Mensaje(kMsgComparacionMismaColumna, base::Icono::Aviso);
        return false;
    }
    SetCondiciones& c = comb.condiciones;
    const auto l = static_cast<std::size_t>(d.listaIzq - 1);
    bool hay = false;
    for (int i = 1; i <= std::min<int>(c.numListas[l], kPartidos); ++i) {
        const int p = c.listas[l][static_cast<std::size_t>(i)];
        if (p >= 1 && p <= kPartidos) hay |= comb.base.Elegido(p, d.signoIzq - 1);
    }
    if (!hay) {
        dialogo.Mensaje(std::string("En la columna ") + static_cast<char>('A' + d.listaIzq - 1) +
                            " no hay '" + kSignos[static_cast<std::size_t>(d.signoIzq - 1)] + "'.",
                        base::Icono::Aviso);
        return false;
    }
    Comparacion& f = c.comparaciones[static_cast<std::size_t>(fila)];
    f = d;
    f.activa = 1;
    c.casilla[kCasillaComparaciones] = true;
    AnularResultados(comb);
    return true;
}

void DesactivarComparacion(Combinacion& comb, int fila) {
    if (fila < 0 || fila >= kComparacionesFilas) return;
    SetCondiciones& c = comb.condiciones;
    c.comparaciones[static_cast<std::size_t>(fila)].activa = 0;
    if (std::none_of(c.comparaciones.begin(), c.comparaciones.end(),
                     [](const Comparacion& f) { return f.activa != 0; })) {
        c.casilla[kCasillaComparaciones] = false;
    }
    AnularResultados(comb);
}

void ElegirLargoRepeticion(Combinacion& comb, int clase, int largo) {
    if (clase < 0 || clase > 3) return;
    comb.condiciones.longRep[static_cast<std::size_t>(clase)] = static_cast<std::uint8_t>(largo);
    comb.condiciones.limiteRep[static_cast<std::size_t>(clase)] = 0;
    AnularResultados(comb);
}

bool ElegirLimiteRepeticion(Combinacion& comb, int clase, int limite) {
    if (clase < 0 || clase > 3 || comb.condiciones.longRep[static_cast<std::size_t>(clase)] == 0) {
        return false;
    }
    comb.condiciones.limiteRep[static_cast<std::size_t>(clase)] = static_cast<std::uint8_t>(limite);
    comb.condiciones.casilla[kCasillaRepeticiones] = true;
    AnularResultados(comb);
    return true;
}

void SumaCien(FilaSumas& fila, int columna) {
    if (columna < 0 || columna > 2) return;
    const auto escrita = static_cast<std::size_t>(columna);
    const auto siguiente = static_cast<std::size_t>((columna + 1) % 3);
    const auto otra = static_cast<std::size_t>((columna + 2) % 3);
    fila[escrita] = std::clamp(fila[escrita].value_or(0), 0, 100);
    const int suma = *fila[escrita] + fila[siguiente].value_or(0) + fila[otra].value_or(0);
    if (suma > 100) {
        if (fila[siguiente].value_or(0) >= suma - 100) {
            fila[siguiente] = fila[siguiente].value_or(0) - (suma - 100);
            fila[otra] = fila[otra].value_or(0);
        } else {
            fila[siguiente] = 0;
            fila[otra] = 100 - *fila[escrita];
        }
    } else if (suma < 100) {
        fila[siguiente] = fila[siguiente].value_or(0) + (100 - suma);
        fila[otra] = 100 - *fila[escrita] - *fila[siguiente];
    } else {
        fila[siguiente] = fila[siguiente].value_or(0);
        fila[otra] = fila[otra].value_or(0);
    }
}

std::optional<std::pair<int, int>> ConSumas(const std::array<FilaSumas, kPartidos>& rejilla) {
    int minima = 0, maxima = 0;
    for (const FilaSumas& f : rejilla) {
        if (!f[0] || !f[1] || !f[2]) return std::nullopt;
        minima += std::min({*f[0], *f[1], *f[2]});
        maxima += std::max({*f[0], *f[1], *f[2]});
    }
    return std::pair{minima, maxima};
}

bool ActivarSumas(Combinacion& comb, const std::array<FilaSumas, kPartidos>& rejilla,
                  std::optional<int> minima, std::optional<int> maxima, base::Dialogo& dialogo) {
    SetCondiciones& c = comb.condiciones;
    const auto limites = ConSumas(rejilla);
    if (!limites || !minima || !maxima || *minima < limites->first || *maxima > limites->second ||
        *minima > *maxima) {
        c.casilla[kCasillaSumas] = false;
        if (limites) dialogo.Mensaje(kMsgSumasFuera, base::Icono::Aviso);
        return false;
    }
    for (std::size_t p = 0; p < kPartidos; ++p) {
        for (std::size_t s = 0; s < 3; ++s)
            c.sumasTabla[s][p] = static_cast<std::uint8_t>(*rejilla[p][s]);
    }
    c.sumaMinima = static_cast<std::int16_t>(*minima);
    c.sumaMaxima = static_cast<std::int16_t>(*maxima);
    c.casilla[kCasillaSumas] = true;
    AnularResultados(comb);
    return true;
}

}  // namespace quinteva::engine
