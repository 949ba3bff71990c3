#pragma once

// Condicionar tal como lo cuenta el sistema, letra a letra sobre el texto de la columna, sin
// tablas ni máscaras: la referencia de la prueba diferencial del filtro rápido.

#include <algorithm>
#include <string>

#include "engine/combination.h"
#include "engine/conditions.h"

namespace quinteva::pruebas {

using engine::Rechazos;
using engine::SetCondiciones;

// InStr(inicio, texto, buscado) con posiciones desde 1; 0 si no está. El texto vacío está en
// inicio.
inline int InStr(int inicio, const std::string& texto, const std::string& buscado) {
    if (inicio < 1) inicio = 1;
    if (inicio > static_cast<int>(texto.size()) + 1) return 0;
    const auto p = texto.find(buscado, static_cast<std::size_t>(inicio - 1));
    return p == std::string::npos ? 0 : static_cast<int>(p) + 1;
}

// Mid$(texto, i, 1) con i desde 1.
inline char Mid(const std::string& t, int i) { return t[static_cast<std::size_t>(i - 1)]; }

// Las repeticiones de un signo, paso a paso; se para al pasar del límite.
inline int RepeticionesLiteral(const std::string& col, char signo, int largo, int limite) {
    if (largo == 0) return 0;
    const std::string sl(static_cast<std::size_t>(largo), signo);
    int n = 0;
    int pos = 1;
    while (pos <= 14) {
        const int f = InStr(pos, col, sl);
        if (f == 0) {
            ++pos;
            continue;
        }
        if (f + largo >= 14) {
            ++n;
            pos = 15;
        } else if (Mid(col, f + largo) != signo) {
            ++n;
            pos = f + largo + 1;
        } else {
            int fin = f + largo;
            while (fin <= 14 && Mid(col, fin) == signo) ++fin;
            pos = fin + 1;
        }
        if (n > limite) return n;
    }
    return n;
}

inline bool CondicionarLiteral(const std::string& col, const SetCondiciones& c, Rechazos& r) {
    auto rechazar = [&](int contador) {
        r.porCondicion[static_cast<std::size_t>(contador - 1)] += 1;
        return false;
    };
    // 1. Interrupciones.
    if (c.casilla[2]) {
        int n = 0;
        for (int i = 1; i <= 13; ++i) {
            if (Mid(col, i + 1) != Mid(col, i)) {
                ++n;
                if (n > c.maxInter) return rechazar(3);
            }
        }
        if (n < c.minInter) return rechazar(3);
    }
    // 2. Interrupciones consecutivas.
    if (c.casilla[10]) {
        int actual = 0, mayor = 0;
        for (int i = 1; i <= 13; ++i) {
            if (Mid(col, i + 1) != Mid(col, i)) {
                ++actual;
                if (actual > mayor) mayor = actual;
                if (mayor > c.maxInterCons) return rechazar(4);
            } else {
                actual = 0;
            }
        }
        if (mayor < c.minInterCons || mayor > c.maxInterCons) return rechazar(4);
    }
    // 3. Generales.
    if (c.casilla[0]) {
        if (!(c.minEquis == c.posMinEquis && c.maxEquis == c.posMaxEquis)) {
            int n = 0;
            for (int i = 1; i <= 14; ++i) {
                if (Mid(col, i) == 'X') {
                    ++n;
                    if (n > c.maxEquis) return rechazar(1);
                }
            }
            if (n < c.minEquis) return rechazar(1);
        }
        if (!(c.minDoses == c.posMinDoses && c.maxDoses == c.posMaxDoses)) {
            int n = 0;
            for (int i = 1; i <= 14; ++i) {
                if (Mid(col, i) == '2') {
                    ++n;
                    if (n > c.maxDoses) return rechazar(1);
                }
            }
            if (n < c.minDoses) return rechazar(1);
        }
        if (!(c.minVariantes == c.posMinVariantes && c.maxVariantes == c.posMaxVariantes)) {
            int unos = 0;
            for (int i = 1; i <= 14; ++i) unos += Mid(col, i) == '1' ? 1 : 0;
            const int v = 14 - unos;
            if (v > c.maxVariantes || v < c.minVariantes) return rechazar(1);
        }
    }
    // 4. Seguidos.
    if (c.casilla[1]) {
        const char signos[3] = {'1', 'X', '2'};
        for (int s = 0; s < 3; ++s) {
            const auto u = static_cast<std::size_t>(s);
            if (c.minSeg[u] == c.posMinSeg[u] && c.maxSeg[u] == c.posMaxSeg[u]) continue;
            const int desde = s == 2 ? 0 : 1;
            for (int k = desde; k <= c.maxSeg[u] + 1; ++k) {
                const std::string sk(static_cast<std::size_t>(k), signos[s]);
                if (InStr(1, col, sk) > 0) {
                    if (k > c.maxSeg[u]) return rechazar(2);
                    const std::string sk1(static_cast<std::size_t>(k + 1), signos[s]);
                    if (k < c.minSeg[u] && InStr(1, col, sk1) == 0) return rechazar(2);
                } else if (k < c.minSeg[u]) {
                    return rechazar(2);
                }
            }
        }
        if (!(c.minSeg[3] == c.posMinSeg[3] && c.maxSeg[3] == c.posMaxSeg[3])) {
            int actual = 0, mayor = 0;
            for (int i = 1; i <= 14; ++i) {
                if (Mid(col, i) != '1') {
                    ++actual;
                    mayor = std::max(mayor, actual);
                } else {
                    actual = 0;
                }
            }
            if (mayor < c.minSeg[3] || mayor > c.maxSeg[3]) return rechazar(2);
        }
    }
    // 5. Parejas.
    if (c.casilla[3]) {
        for (int i = 0; i < 9; ++i) {
            const auto u = static_cast<std::size_t>(i);
            const int sinLimite = (i == 0 || i == 4 || i == 8) ? 13 : 7;
            if (c.minPareja[u] == 0 && c.maxPareja[u] >= sinLimite) continue;
            const std::string par = engine::kTextoParejas[u];
            int n = 0;
            int p = InStr(1, col, par);
            while (p > 0) {
                ++n;
                if (n > c.maxPareja[u]) return rechazar(5);
                p = InStr(p + 1, col, par);
            }
            if (n < c.minPareja[u]) return rechazar(5);
        }
    }
    // 6. Tríos.
    if (c.casilla[4]) {
        for (int i = 0; i < 27; ++i) {
            const auto u = static_cast<std::size_t>(i);
            const int sinLimite = (i == 0 || i == 13 || i == 26) ? 12 : 6;
            if (c.minTrio[u] == 0 && c.maxTrio[u] >= sinLimite) continue;
            const std::string trio(engine::kTextoTrios[u].begin(), engine::kTextoTrios[u].end());
            int n = 0;
            int p = InStr(1, col, trio);
            while (p > 0 && p <= 12) {
                ++n;
                if (n > c.maxTrio[u]) return rechazar(6);
                p = InStr(p + 1, col, trio);
            }
            if (n < c.minTrio[u]) return rechazar(6);
        }
    }
    // 7. Sumas.
    if (c.casilla[7]) {
        int suma = 0;
        for (int i = 1; i <= 14; ++i) {
            const char s = Mid(col, i);
            const int fila = s == '1' ? 0 : s == 'X' ? 1 : 2;
            suma += c.sumasTabla[static_cast<std::size_t>(fila)][static_cast<std::size_t>(i - 1)];
        }
        if (suma < c.sumaMinima || suma > c.sumaMaxima) return rechazar(7);
    }
    // 8. Grupos.
    {
        int fallados = 0;
        for (int g = 0; g <= c.ultimoGrupo && g < 50; ++g) {
            const auto& grupo = c.grupos[static_cast<std::size_t>(g)];
            if (!grupo.activo) continue;
            int unos = 0, equis = 0, doses = 0;
            for (int i = 1; i <= 14; ++i) {
                if (!grupo.partidos[static_cast<std::size_t>(i - 1)]) continue;
                if (Mid(col, i) == '1') ++unos;
                if (Mid(col, i) == 'X') ++equis;
                if (Mid(col, i) == '2') ++doses;
            }
            const int v = equis + doses;
            const bool cumple = unos >= grupo.min[0] && unos <= grupo.max[0] &&
                                equis >= grupo.min[1] && equis <= grupo.max[1] &&
                                doses >= grupo.min[2] && doses <= grupo.max[2] &&
                                v >= grupo.min[3] && v <= grupo.max[3];
            if (cumple) continue;
            if (c.toleranciaGrupos == 0) {
                r.grupo[static_cast<std::size_t>(g)] += 1;
                return false;
            }
            ++fallados;
            if (fallados > c.toleranciaGrupos) {
                r.tolGrupos += 1;
                return false;
            }
        }
    }
    // 9. Grupos de Aciertos.
    {
        int fallados = 0;
        for (int g = 0; g <= c.ultimoGrupoAc && g < 50; ++g) {
            const auto& grupo = c.gruposAc[static_cast<std::size_t>(g)];
            if (!grupo.activo) continue;
            int aciertos = 0;
            for (int i = 1; i <= 14; ++i) {
                const auto& celda = grupo.signos[static_cast<std::size_t>(i - 1)];
                const std::string texto(celda.begin(), celda.end());
                if (texto == "   ") continue;
                if (InStr(1, texto, std::string(1, Mid(col, i))) > 0) ++aciertos;
            }
            if (aciertos >= grupo.aciertosMin && aciertos <= grupo.aciertosMax) continue;
            if (c.toleranciaGruposAc == 0) {
                r.grupoAciertos[static_cast<std::size_t>(g)] += 1;
                return false;
            }
            ++fallados;
            if (fallados > c.toleranciaGruposAc) {
                r.tolGruposAciertos += 1;
                return false;
            }
        }
    }
    // 10. Comparaciones.
    if (c.casilla[8]) {
        int tabla[4][5] = {};  // [signo 1..3][lista 1..4]
        for (int l = 1; l <= 4; ++l) {
            const auto ul = static_cast<std::size_t>(l - 1);
            for (int j = 1; j <= c.numListas[ul] && j <= 14; ++j) {
                const int partido = c.listas[ul][static_cast<std::size_t>(j)];
                if (partido < 1 || partido > 14) continue;
                const char s = Mid(col, partido);
                if (s == '1') ++tabla[1][l];
                if (s == 'X') ++tabla[2][l];
                if (s == '2') ++tabla[3][l];
            }
        }
        auto valor = [&](int signo, int lista) {
            return signo >= 1 && signo <= 3 && lista >= 1 && lista <= 4 ? tabla[signo][lista] : 0;
        };
        for (const auto& f : c.comparaciones) {
            if (f.activa == 0) continue;
            const int a = valor(f.signoIzq, f.listaIzq);
            const int b = valor(f.signoDer, f.listaDer);
            bool cumple = true;
            if (f.operador == 1) cumple = a < b;
            if (f.operador == 2) cumple = a <= b;
            if (f.operador == 3) cumple = a == b;
            if (f.operador == 4) cumple = a >= b;
            if (f.operador == 5) cumple = a > b;
            if (!cumple) return rechazar(8);
        }
    }
    // 11. Repeticiones.
    if (c.casilla[9]) {
        const char signos[3] = {'1', 'X', '2'};
        for (int s = 0; s < 3; ++s) {
            const auto u = static_cast<std::size_t>(s);
            if (c.limiteRep[u] == 0) continue;
            if (RepeticionesLiteral(col, signos[s], c.longRep[u], c.limiteRep[u]) >
                c.limiteRep[u]) {
                return rechazar(9);
            }
        }
        if (c.limiteRep[3] > 0) {
            int seguidas = 0, n = 0;
            for (int i = 1; i <= 14; ++i) {
                if (Mid(col, i) != '1') {
                    ++seguidas;
                } else {
                    if (seguidas == c.longRep[3]) {
                        ++n;
                        if (n > c.limiteRep[3]) return rechazar(9);
                    }
                    seguidas = 0;
                }
            }
        }
    }
    return true;
}

}  // namespace quinteva::pruebas
