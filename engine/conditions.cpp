#include "engine/conditions.h"

#include <algorithm>

namespace quinteva::engine {
namespace {

std::array<std::array<char, 3>, 27> HacerTrios() {
    std::array<std::array<char, 3>, 27> trios{};
    for (int i = 0; i < 27; ++i) {
        trios[static_cast<std::size_t>(i)] = {kSignos[static_cast<std::size_t>(i / 9)],
                                              kSignos[static_cast<std::size_t>(i / 3 % 3)],
                                              kSignos[static_cast<std::size_t>(i % 3)]};
    }
    return trios;
}

// Racha más larga de marcas seguidas en 14 lugares.
std::uint8_t RachaMasLarga(const std::array<bool, kPartidos>& marcas) {
    int mejor = 0;
    int actual = 0;
    for (bool m : marcas) {
        actual = m ? actual + 1 : 0;
        mejor = std::max(mejor, actual);
    }
    return static_cast<std::uint8_t>(mejor);
}

}  // namespace

const std::array<std::array<char, 3>, 27> kTextoTrios = HacerTrios();

int SinLimitePareja(int pareja) { return pareja % 4 == 0 ? 13 : 7; }
int SinLimiteTrio(int trio) { return trio % 13 == 0 ? 12 : 6; }

bool GrupoAciertos::EsDelGrupo(int partido0) const {
    const auto& c = signos[static_cast<std::size_t>(partido0)];
    return !(c[0] == ' ' && c[1] == ' ' && c[2] == ' ');
}

SetCondiciones::SetCondiciones() {
    for (int t = 0; t < 27; ++t)
        maxTrio[static_cast<std::size_t>(t)] = static_cast<std::uint8_t>(SinLimiteTrio(t));
}

PosiblesGenerales CalcularPosiblesGenerales(const QuinielaBase& base) {
    int solo[3] = {0, 0, 0};
    int con[3] = {0, 0, 0};
    for (int p = 1; p <= kPartidos; ++p) {
        const int n = base.SignosElegidos(p);
        for (int s = 0; s < 3; ++s) {
            if (!base.Elegido(p, s)) continue;
            ++con[s];
            if (n == 1) ++solo[s];
        }
    }
    auto b = [](int v) { return static_cast<std::uint8_t>(v); };
    PosiblesGenerales g{};
    g.minUnos = b(solo[0]);
    g.maxUnos = b(con[0]);
    g.minEquis = b(solo[1]);
    g.maxEquis = b(con[1]);
    g.minDoses = b(solo[2]);
    g.maxDoses = b(con[2]);
    // Variantes: mínimo, los partidos sin "1"; máximo, 14 menos los que tienen "1" solo.
    g.minVariantes = b(kPartidos - con[0]);
    g.maxVariantes = b(kPartidos - solo[0]);
    return g;
}

PosiblesSeguidos CalcularPosiblesSeguidos(const QuinielaBase& base) {
    PosiblesSeguidos s{};
    for (int clase = 0; clase < 4; ++clase) {
        std::array<bool, kPartidos> permitido{};
        std::array<bool, kPartidos> obligado{};
        for (int p = 1; p <= kPartidos; ++p) {
            const auto i = static_cast<std::size_t>(p - 1);
            if (clase < 3) {
                permitido[i] = base.Elegido(p, clase);
                obligado[i] = permitido[i] && base.SignosElegidos(p) == 1;
            } else {
                permitido[i] = base.Elegido(p, 1) || base.Elegido(p, 2);
                obligado[i] = !base.Elegido(p, 0);
            }
        }
        s.max[static_cast<std::size_t>(clase)] = RachaMasLarga(permitido);
        s.min[static_cast<std::size_t>(clase)] = RachaMasLarga(obligado);
    }
    return s;
}

void CalcularPosiblesGrupo(Grupo& grupo, const QuinielaBase& base) {
    grupo.posMin = {};
    grupo.posMax = {};
    for (int p = 1; p <= kPartidos; ++p) {
        if (!grupo.partidos[static_cast<std::size_t>(p - 1)]) continue;
        const int n = base.SignosElegidos(p);
        for (int s = 0; s < 3; ++s) {
            if (!base.Elegido(p, s)) continue;
            ++grupo.posMax[static_cast<std::size_t>(s)];
            if (n == 1) ++grupo.posMin[static_cast<std::size_t>(s)];
        }
        if (base.Elegido(p, 1) || base.Elegido(p, 2)) ++grupo.posMax[kVariantes];
        if (!base.Elegido(p, 0)) ++grupo.posMin[kVariantes];
    }
}

namespace {

void GeneralesPorDefecto(SetCondiciones& c, const QuinielaBase& base) {
    const PosiblesGenerales g = CalcularPosiblesGenerales(base);
    c.posMinVariantes = c.minVariantes = g.minVariantes;
    c.posMaxVariantes = c.maxVariantes = g.maxVariantes;
    c.posMinUnos = g.minUnos;
    c.posMaxUnos = g.maxUnos;
    c.posMinEquis = c.minEquis = g.minEquis;
    c.posMaxEquis = c.maxEquis = g.maxEquis;
    c.posMinDoses = c.minDoses = g.minDoses;
    c.posMaxDoses = c.maxDoses = g.maxDoses;
}

void SeguidosPorDefecto(SetCondiciones& c, const QuinielaBase& base) {
    const PosiblesSeguidos s = CalcularPosiblesSeguidos(base);
    c.posMinSeg = c.minSeg = s.min;
    c.posMaxSeg = c.maxSeg = s.max;
}

}  // namespace

SetCondiciones CondicionesIniciales(const QuinielaBase& base) {
    SetCondiciones c;
    GeneralesPorDefecto(c, base);
    SeguidosPorDefecto(c, base);
    for (auto& g : c.grupos) CalcularPosiblesGrupo(g, base);
    return c;
}

std::int16_t NumeroDeCondiciones(const SetCondiciones& c) {
    int n = 0;
    for (int i = 0; i <= 4; ++i) n += c.casilla[static_cast<std::size_t>(i)] ? 1 : 0;
    for (const auto& g : c.grupos) n += g.activo ? 1 : 0;
    for (const auto& g : c.gruposAc) n += g.activo ? 1 : 0;
    for (int i = 7; i <= 10; ++i) n += c.casilla[static_cast<std::size_t>(i)] ? 1 : 0;
    return static_cast<std::int16_t>(n);
}

std::int16_t MaxGr(const SetCondiciones& c) {
    for (int g = kGrupos - 1; g >= 0; --g) {
        if (c.grupos[static_cast<std::size_t>(g)].activo) return static_cast<std::int16_t>(g);
    }
    return 0;
}

std::int16_t MaxAGr(const SetCondiciones& c) {
    for (int g = kGrupos - 1; g >= 0; --g) {
        if (c.gruposAc[static_cast<std::size_t>(g)].activo) return static_cast<std::int16_t>(g);
    }
    return 0;
}

void TriosACero(SetCondiciones& c) {
    const SetCondiciones defecto;
    c.minTrio = defecto.minTrio;
    c.maxTrio = defecto.maxTrio;
    c.casilla[kCasillaTrios] = false;
}

void ParejasACero(SetCondiciones& c) {
    const SetCondiciones defecto;
    c.minPareja = defecto.minPareja;
    c.maxPareja = defecto.maxPareja;
    c.casilla[kCasillaParejas] = false;
}

void InterAcero(SetCondiciones& c) {
    c.minInter = 0;
    c.maxInter = 13;
}

void DesactivarGrupos(SetCondiciones& c) {
    for (auto& g : c.grupos) g.activo = false;
    c.ultimoGrupo = 0;
}

void DesactivarGruposAc(SetCondiciones& c) {
    for (auto& g : c.gruposAc) g.activo = false;
    c.ultimoGrupoAc = 0;
}

void ReiniciarFamilia(SetCondiciones& c, Casilla familia, const QuinielaBase& base) {
    const SetCondiciones defecto;
    switch (familia) {
        case kCasillaGenerales:
            GeneralesPorDefecto(c, base);
            break;
        case kCasillaSeguidos:
            SeguidosPorDefecto(c, base);
            break;
        case kCasillaInterrupciones:
            InterAcero(c);
            break;
        case kCasillaParejas:
            ParejasACero(c);
            break;
        case kCasillaTrios:
            TriosACero(c);
            break;
        case kCasillaGrupoMostrado:
            c.grupos = defecto.grupos;
            for (auto& g : c.grupos) CalcularPosiblesGrupo(g, base);
            c.ultimoGrupo = 0;
            c.toleranciaGrupos = 0;
            break;
        case kCasillaGrupoAcMostrado:
            c.gruposAc = defecto.gruposAc;
            c.ultimoGrupoAc = 0;
            c.toleranciaGruposAc = 0;
            break;
        case kCasillaSumas:
            c.sumasTabla = defecto.sumasTabla;
            c.sumaMinima = 0;
            c.sumaMaxima = 0;
            break;
        case kCasillaComparaciones:
            c.listas = defecto.listas;
            c.numListas = defecto.numListas;
            c.comparaciones = defecto.comparaciones;
            break;
        case kCasillaRepeticiones:
            c.longRep = {};
            c.limiteRep = {};
            break;
        case kCasillaInterConsecutivas:
            c.minInterCons = 0;
            c.maxInterCons = 13;
            break;
    }
    c.casilla[static_cast<std::size_t>(familia)] = false;
}

}  // namespace quinteva::engine
