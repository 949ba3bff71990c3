#pragma once

// Bases y SetCondiciones al azar (con semilla fija) para las pruebas diferenciales: todas las
// familias, Grupos con tolerancias, Grupos de Aciertos, comparaciones y repeticiones, con límites
// cerca de los valores habituales para que cada familia rechace algo.

#include <random>
#include <string>

#include "engine/conditions.h"
#include "engine/quiniela_base.h"

namespace quinteva::pruebas {

class Sorteo {
  public:
    explicit Sorteo(std::uint64_t semilla) : motor_(semilla) {}
    int Entre(int desde, int hasta) {
        return std::uniform_int_distribution<int>(desde, hasta)(motor_);
    }
    bool Moneda(double p = 0.5) { return std::bernoulli_distribution(p)(motor_); }

  private:
    std::mt19937_64 motor_;
};

inline engine::QuinielaBase BaseAlAzar(Sorteo& s) {
    engine::QuinielaBase base;
    for (int p = 1; p <= 14; ++p) {
        const int forma = s.Entre(0, 9);
        if (forma < 4) {
            for (int k = 0; k < 3; ++k) base.Elegir(p, k, true);
        } else if (forma < 7) {
            const int fuera = s.Entre(0, 2);
            for (int k = 0; k < 3; ++k) base.Elegir(p, k, k != fuera);
        } else {
            base.Elegir(p, s.Entre(0, 2), true);
        }
    }
    base.PonerGoles("1", "M");
    return base;
}

inline std::string ColumnaDeBase(Sorteo& s, const engine::QuinielaBase& base) {
    std::string col;
    for (int p = 1; p <= 14; ++p) {
        int k = 0;
        do k = s.Entre(0, 2);
        while (!base.Elegido(p, k));
        col += engine::kSignos[static_cast<std::size_t>(k)];
    }
    return col;
}

inline std::uint8_t B(int v) { return static_cast<std::uint8_t>(v); }

inline engine::SetCondiciones CondicionesAlAzar(Sorteo& s, const engine::QuinielaBase& base) {
    using namespace engine;
    SetCondiciones c = CondicionesIniciales(base);
    for (std::size_t i = 0; i < c.casilla.size(); ++i) c.casilla[i] = s.Moneda(0.45);
    // 5 y 6 solo muestran la marca del Grupo en pantalla: no se guardan.
    c.casilla[kCasillaGrupoMostrado] = c.casilla[kCasillaGrupoAcMostrado] = false;

    c.minInter = static_cast<std::int16_t>(s.Entre(0, 8));
    c.maxInter = static_cast<std::int16_t>(s.Entre(c.minInter, 14));
    c.minInterCons = static_cast<std::int16_t>(s.Entre(0, 4));
    c.maxInterCons = static_cast<std::int16_t>(s.Entre(c.minInterCons, 13));

    auto elegir = [&](std::uint8_t pmin, std::uint8_t pmax, std::uint8_t& min, std::uint8_t& max) {
        if (s.Moneda(0.3)) return;  // igual que los posibles: se salta
        min = B(s.Entre(pmin, pmax));
        max = B(s.Entre(min, pmax));
        if (s.Moneda(0.1)) min = B(s.Entre(0, 14));  // archivo escrito a mano
    };
    elegir(c.posMinEquis, c.posMaxEquis, c.minEquis, c.maxEquis);
    elegir(c.posMinDoses, c.posMaxDoses, c.minDoses, c.maxDoses);
    elegir(c.posMinVariantes, c.posMaxVariantes, c.minVariantes, c.maxVariantes);
    for (std::size_t k = 0; k < 4; ++k)
        elegir(c.posMinSeg[k], c.posMaxSeg[k], c.minSeg[k], c.maxSeg[k]);

    for (int i = 0; i < 9; ++i) {
        if (s.Moneda(0.6)) continue;
        c.minPareja[static_cast<std::size_t>(i)] = B(s.Entre(0, 3));
        c.maxPareja[static_cast<std::size_t>(i)] = B(s.Entre(1, SinLimitePareja(i)));
    }
    for (int i = 0; i < 27; ++i) {
        if (s.Moneda(0.8)) continue;
        c.minTrio[static_cast<std::size_t>(i)] = B(s.Entre(0, 1));
        c.maxTrio[static_cast<std::size_t>(i)] = B(s.Entre(0, SinLimiteTrio(i)));
    }

    for (int p = 0; p < 14; ++p) {
        const int uno = s.Entre(0, 100);
        const int equis = s.Entre(0, 100 - uno);
        c.sumasTabla[0][static_cast<std::size_t>(p)] = B(uno);
        c.sumasTabla[1][static_cast<std::size_t>(p)] = B(equis);
        c.sumasTabla[2][static_cast<std::size_t>(p)] = B(100 - uno - equis);
    }
    c.sumaMinima = static_cast<std::int16_t>(s.Entre(200, 500));
    c.sumaMaxima = static_cast<std::int16_t>(s.Entre(c.sumaMinima, 1000));

    const int nGrupos = s.Entre(0, 12);
    for (int i = 0; i < nGrupos; ++i) {
        auto& g = c.grupos[static_cast<std::size_t>(s.Entre(0, 49))];
        g.activo = true;
        for (auto& p : g.partidos) p = s.Moneda(0.3);
        for (std::size_t k = 0; k < 4; ++k) {
            g.min[k] = B(s.Moneda(0.6) ? 0 : s.Entre(0, 3));
            g.max[k] = B(s.Moneda(0.5) ? 14 : s.Entre(g.min[k], 5));
        }
        CalcularPosiblesGrupo(g, base);
    }
    c.ultimoGrupo = s.Moneda(0.9) ? MaxGr(c) : static_cast<std::int16_t>(s.Entre(0, 60));
    c.toleranciaGrupos = static_cast<std::int16_t>(s.Moneda(0.5) ? 0 : s.Entre(1, 3));

    const int nAc = s.Entre(0, 6);
    for (int i = 0; i < nAc; ++i) {
        auto& g = c.gruposAc[static_cast<std::size_t>(s.Entre(0, 49))];
        g.activo = true;
        int n = 0;
        for (auto& celda : g.signos) {
            celda = {' ', ' ', ' '};
            if (s.Moneda(0.6)) continue;
            for (std::size_t k = 0; k < 3; ++k) {
                if (s.Moneda(0.4)) celda[k] = kSignos[k];
            }
            if (s.Moneda(0.05)) celda = {'x', ' ', ' '};
            ++n;
        }
        g.numPartidos = B(n);
        g.aciertosMin = B(s.Entre(0, n));
        g.aciertosMax = B(s.Entre(g.aciertosMin, n));
        g.fallosMin = B(n - g.aciertosMax);
        g.fallosMax = B(n - g.aciertosMin);
    }
    c.ultimoGrupoAc = MaxAGr(c);
    c.toleranciaGruposAc = static_cast<std::int16_t>(s.Moneda(0.5) ? 0 : s.Entre(1, 2));

    for (std::size_t l = 0; l < 4; ++l) {
        const int n = s.Entre(0, 6);
        c.numListas[l] = B(n);
        for (int j = 1; j <= n; ++j) {
            c.listas[l][static_cast<std::size_t>(j)] = B(s.Entre(s.Moneda(0.05) ? 0 : 1, 14));
        }
    }
    for (auto& f : c.comparaciones) {
        if (s.Moneda(0.6)) continue;
        f.activa = 1;
        f.signoIzq = B(s.Entre(1, 3));
        f.listaIzq = B(s.Entre(1, 4));
        f.operador = B(s.Entre(s.Moneda(0.05) ? 0 : 1, 5));
        f.signoDer = B(s.Entre(1, 3));
        f.listaDer = B(s.Entre(1, 4));
    }

    for (std::size_t k = 0; k < 4; ++k) {
        c.longRep[k] = B(s.Entre(0, 5));
        c.limiteRep[k] = B(s.Moneda(0.5) ? 0 : s.Entre(0, 2));
    }
    return c;
}

}  // namespace quinteva::pruebas
