#pragma once

// Casos fijos de generación: los usa la medición de bench/ y la prueba de firma.

#include <string>
#include <string_view>

#include "engine/conditions.h"
#include "engine/quiniela_base.h"

namespace quinteva::medicion {

// signos: 14 conjuntos separados por blancos, p. ej. "1X2 1 X2 ...".
inline engine::QuinielaBase BaseDe(std::string_view signos) {
    engine::QuinielaBase base;
    int partido = 1;
    for (char ch : signos) {
        if (ch == ' ') {
            ++partido;
            continue;
        }
        base.Elegir(partido, engine::IndiceSigno(ch), true);
    }
    base.PonerGoles("1", "0");
    return base;
}

inline engine::QuinielaBase CatorceTriples() {
    return BaseDe("1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2");
}

// Todas las familias activas y diez Grupos, con límites que dejan pasar una parte.
inline engine::SetCondiciones TodasLasFamilias(const engine::QuinielaBase& base) {
    using namespace engine;
    SetCondiciones c = CondicionesIniciales(base);
    for (int i : {0, 1, 2, 3, 4, 7, 8, 9, 10}) c.casilla[static_cast<std::size_t>(i)] = true;
    c.minInter = 5;
    c.maxInter = 12;
    c.minInterCons = 1;
    c.maxInterCons = 7;
    c.minEquis = 2, c.maxEquis = 7;
    c.minDoses = 1, c.maxDoses = 6;
    c.minVariantes = 4, c.maxVariantes = 11;
    c.minSeg = {1, 1, 0, 1};
    c.maxSeg = {5, 4, 4, 7};
    for (std::size_t i = 0; i < 9; ++i)
        c.maxPareja[i] = static_cast<std::uint8_t>(i % 4 == 0 ? 4 : 5);
    for (std::size_t i = 0; i < 27; ++i)
        c.maxTrio[i] = static_cast<std::uint8_t>(i % 13 == 0 ? 2 : 3);
    for (std::size_t p = 0; p < 14; ++p) {
        c.sumasTabla[0][p] = static_cast<std::uint8_t>(40 + p % 3 * 5);
        c.sumasTabla[1][p] = static_cast<std::uint8_t>(30 - p % 3 * 5);
        c.sumasTabla[2][p] = 30;
    }
    c.sumaMinima = 380;
    c.sumaMaxima = 520;
    for (int g = 0; g < 10; ++g) {
        Grupo& grupo = c.grupos[static_cast<std::size_t>(g)];
        grupo.activo = true;
        for (int k = 0; k < 4; ++k)
            grupo.partidos[static_cast<std::size_t>((g + k * 3) % 14)] = true;
        grupo.min = {0, 0, 0, 1};
        grupo.max = {3, 3, 3, 4};
        CalcularPosiblesGrupo(grupo, base);
    }
    c.ultimoGrupo = 9;
    c.toleranciaGrupos = 1;
    for (int g = 0; g < 2; ++g) {
        GrupoAciertos& ac = c.gruposAc[static_cast<std::size_t>(g)];
        ac.activo = true;
        for (int p = 0; p < 6; ++p)
            ac.signos[static_cast<std::size_t>(p + g * 6)] = {'1', 'X', ' '};
        ac.numPartidos = 6;
        ac.aciertosMin = 2;
        ac.aciertosMax = 6;
        ac.fallosMin = 0;
        ac.fallosMax = 4;
    }
    c.ultimoGrupoAc = 1;
    c.numListas = {3, 3, 0, 0};
    c.listas[0] = {0, 1, 2, 3};
    c.listas[1] = {0, 12, 13, 14};
    c.comparaciones[0] = {1, 1, 1, 4, 1, 2};  // unos de A >= unos de B - sin más
    c.comparaciones[0].operador = 2;          // "<="
    c.comparaciones[0].listaDer = 2;
    c.longRep = {2, 2, 2, 3};
    c.limiteRep = {2, 2, 2, 1};
    return c;
}

}  // namespace quinteva::medicion
