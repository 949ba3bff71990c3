#include "engine/analysis.h"

#include <algorithm>
#include <fstream>

#include "base/formats.h"
#include "engine/combination_files.h"
#include "engine/filter.h"

namespace quinteva::engine {
namespace {

std::string N(int v) { return std::to_string(v); }

int Contar(const Columna& c, char s) { return static_cast<int>(std::count(c.begin(), c.end(), s)); }

int RachaDe(const Columna& c, bool (*es)(char)) {
    int mayor = 0, actual = 0;
    for (char s : c) {
        actual = es(s) ? actual + 1 : 0;
        mayor = std::max(mayor, actual);
    }
    return mayor;
}

int ContarSolapadas(const Columna& c, std::string_view patron) {
    const std::string texto(c.begin(), c.end());
    int n = 0;
    for (auto p = texto.find(patron); p != std::string::npos; p = texto.find(patron, p + 1)) ++n;
    return n;
}

}  // namespace

std::vector<FilaInforme> Analisis(const Columna& col, const QuinielaBase& base,
                                  const SetCondiciones& c,
                                  const std::filesystem::path& archivoJugado) {
    std::vector<FilaInforme> filas;
    auto fila = [&](std::string a, std::string b) {
        filas.push_back({std::move(a), std::move(b)});
    };

    for (int p = 0; p < kPartidos; ++p) {
        const int s = IndiceSigno(col[static_cast<std::size_t>(p)]);
        if (s < 0 || !base.Elegido(p + 1, s)) {
            fila("Quiniela Base", "Fallo en pronóstico");
            break;
        }
    }

    int cambios = 0, seguidos = 0, mayorSeguidos = 0;
    for (std::size_t i = 0; i + 1 < kPartidos; ++i) {
        if (col[i + 1] != col[i]) {
            ++cambios;
            mayorSeguidos = std::max(mayorSeguidos, ++seguidos);
        } else {
            seguidos = 0;
        }
    }
    if (c.casilla[kCasillaInterrupciones]) {
        if (cambios > c.maxInter)
            fila("Interrupciones totales", "Más de " + N(c.maxInter) + " Interrupciones");
        if (cambios < c.minInter)
            fila("Interrupciones totales", "Menos de " + N(c.minInter) + " Interrupciones");
    }
    if (c.casilla[kCasillaInterConsecutivas]) {
        if (mayorSeguidos > c.maxInterCons) {
            fila("Interrupciones consecutivas",
                 "Más de " + N(c.maxInterCons) + " Interrupciones seguidas");
        }
        if (mayorSeguidos < c.minInterCons) {
            fila("Interrupciones consecutivas",
                 "Menos de " + N(c.minInterCons) + " Interrupciones seguidas");
        }
    }

    if (c.casilla[kCasillaGenerales]) {
        auto limites = [&](bool probar, int v, int min, int max, const char* nombre) {
            if (!probar) return;
            if (v > max) fila("Cond. Generales", "Más de " + N(max) + nombre);
            if (v < min) fila("Cond. Generales", "Menos de " + N(min) + nombre);
        };
        limites(!(c.minEquis == c.posMinEquis && c.maxEquis == c.posMaxEquis), Contar(col, 'X'),
                c.minEquis, c.maxEquis, " Equis");
        limites(!(c.minDoses == c.posMinDoses && c.maxDoses == c.posMaxDoses), Contar(col, '2'),
                c.minDoses, c.maxDoses, " Doses");
        limites(!(c.minVariantes == c.posMinVariantes && c.maxVariantes == c.posMaxVariantes),
                kPartidos - Contar(col, '1'), c.minVariantes, c.maxVariantes, " Variantes");
    }

    if (c.casilla[kCasillaSeguidos]) {
        static constexpr const char* kNombres[4] = {" Unos seguidos", " Equis seguidas",
                                                    " Doses seguidos", " Variantes seguidas"};
        for (std::size_t k = 0; k < 4; ++k) {
            if (c.minSeg[k] == c.posMinSeg[k] && c.maxSeg[k] == c.posMaxSeg[k]) continue;
            const int racha = k < 3 ? RachaMasLarga(MascarasDe(col).m[k])
                                    : RachaDe(col, [](char s) { return s != '1'; });
            if (k == kVariantes) {
                if (racha > c.maxSeg[k]) fila("Seguidos", "Más de " + N(c.maxSeg[k]) + kNombres[k]);
                if (racha < c.minSeg[k]) fila("Seguidos", "No hay " + N(c.minSeg[k]) + kNombres[k]);
                continue;
            }
            // El mismo recorrido de k que el filtro: S(k) aparece si k <= racha.
            for (int n = k == kDos ? 0 : 1; n <= c.maxSeg[k] + 1; ++n) {
                if (n <= racha && n > c.maxSeg[k]) {
                    fila("Seguidos", "Más de " + N(c.maxSeg[k]) + kNombres[k]);
                    break;
                }
                if (n < c.minSeg[k] && (n > racha || n + 1 > racha)) {
                    fila("Seguidos", "No hay " + N(c.minSeg[k]) + kNombres[k]);
                    break;
                }
            }
        }
    }

    if (c.casilla[kCasillaParejas]) {
        for (int i = 0; i < 9; ++i) {
            const auto u = static_cast<std::size_t>(i);
            if (c.minPareja[u] == 0 && c.maxPareja[u] >= SinLimitePareja(i)) continue;
            const int n = ContarSolapadas(col, kTextoParejas[u]);
            if (n > c.maxPareja[u])
                fila("Parejas", "Más de " + N(c.maxPareja[u]) + " Parejas  " + kTextoParejas[u]);
            if (n < c.minPareja[u])
                fila("Parejas", "Menos de " + N(c.minPareja[u]) + " Parejas  " + kTextoParejas[u]);
        }
    }
    if (c.casilla[kCasillaTrios]) {
        for (int i = 0; i < 27; ++i) {
            const auto u = static_cast<std::size_t>(i);
            if (c.minTrio[u] == 0 && c.maxTrio[u] >= SinLimiteTrio(i)) continue;
            const std::string trio(kTextoTrios[u].begin(), kTextoTrios[u].end());
            const int n = ContarSolapadas(col, trio);
            if (n > c.maxTrio[u]) fila("Tríos", "Más de " + N(c.maxTrio[u]) + " Tríos  " + trio);
            if (n < c.minTrio[u]) fila("Tríos", "Menos de " + N(c.minTrio[u]) + " Tríos  " + trio);
        }
    }

    if (c.casilla[kCasillaSumas]) {
        int suma = 0;
        for (std::size_t p = 0; p < kPartidos; ++p) {
            const int s = IndiceSigno(col[p]);
            suma += c.sumasTabla[static_cast<std::size_t>(s < 0 ? 2 : s)][p];
        }
        if (suma < c.sumaMinima) fila("Sumas", "La Suma es inferior a " + N(c.sumaMinima));
        if (suma > c.sumaMaxima) fila("Sumas", "La Suma es superior a " + N(c.sumaMaxima));
    }

    {
        static constexpr const char* kClases[4] = {" Unos", " Equis", " Doses", " Variantes"};
        int fallados = 0;
        for (int g = 0; g <= c.ultimoGrupo && g < kGrupos; ++g) {
            const Grupo& grupo = c.grupos[static_cast<std::size_t>(g)];
            if (!grupo.activo) continue;
            std::array<int, 4> n{};
            for (std::size_t p = 0; p < kPartidos; ++p) {
                if (!grupo.partidos[p]) continue;
                const int s = IndiceSigno(col[p]);
                if (s >= 0) ++n[static_cast<std::size_t>(s)];
            }
            n[kVariantes] = n[kEquis] + n[kDos];
            bool falla = false;
            for (std::size_t k = 0; k < 4; ++k) {
                const std::string titulo = "Grupo nº " + N(g + 1);
                if (n[k] < grupo.min[k]) {
                    falla = true;
                    if (c.toleranciaGrupos == 0)
                        fila(titulo, "Menos de " + N(grupo.min[k]) + kClases[k]);
                }
                if (n[k] > grupo.max[k]) {
                    falla = true;
                    if (c.toleranciaGrupos == 0)
                        fila(titulo, "Más de " + N(grupo.max[k]) + kClases[k]);
                }
            }
            fallados += falla ? 1 : 0;
        }
        if (c.toleranciaGrupos > 0 && fallados > c.toleranciaGrupos) {
            fila("Grupos", "Más de " + N(c.toleranciaGrupos) + " Grupos fallados");
        }
    }
    {
        int fallados = 0;
        for (int g = 0; g <= c.ultimoGrupoAc && g < kGrupos; ++g) {
            const GrupoAciertos& grupo = c.gruposAc[static_cast<std::size_t>(g)];
            if (!grupo.activo) continue;
            int aciertos = 0;
            for (int p = 0; p < kPartidos; ++p) {
                if (!grupo.EsDelGrupo(p)) continue;
                const auto& celda = grupo.signos[static_cast<std::size_t>(p)];
                if (std::find(celda.begin(), celda.end(), col[static_cast<std::size_t>(p)]) !=
                    celda.end())
                    ++aciertos;
            }
            const std::string titulo = "Aciertos nº " + N(g + 1);
            if (aciertos < grupo.aciertosMin || aciertos > grupo.aciertosMax) ++fallados;
            if (c.toleranciaGruposAc != 0) continue;
            if (aciertos < grupo.aciertosMin)
                fila(titulo, "Más de " + N(grupo.aciertosMax) + " Errores");
            if (aciertos > grupo.aciertosMax)
                fila(titulo, "Menos de " + N(grupo.aciertosMin) + " Errores");
        }
        if (c.toleranciaGruposAc > 0 && fallados > c.toleranciaGruposAc) {
            fila("Grupos de Aciertos", "Más de " + N(c.toleranciaGruposAc) + " Grupos fallados");
        }
    }

    if (c.casilla[kCasillaComparaciones]) {
        SetCondiciones solo;
        solo.casilla[kCasillaComparaciones] = true;
        solo.listas = c.listas;
        solo.numListas = c.numListas;
        for (const Comparacion& f : c.comparaciones) {
            if (f.activa == 0) continue;
            solo.comparaciones = {};
            solo.comparaciones[0] = f;
            Rechazos r;
            if (!Filtro(solo).Condicionar(col, r)) fila("Comparaciones", "No se cumple");
        }
    }

    if (c.casilla[kCasillaRepeticiones]) {
        static constexpr const char* kNombres[4] = {
            "Unos repetidos no se cumple", "Equis repetidas no se cumple",
            "Doses repetidos no se cumple", "Variantes repetidas no se cumple"};
        const Mascaras m = MascarasDe(col);
        for (std::size_t k = 0; k < 4; ++k) {
            if (c.limiteRep[k] == 0) continue;
            const int n = k == kVariantes ? RepeticionesVariantes(m.m[0], c.longRep[k])
                                          : RepeticionesSigno(m.m[k], c.longRep[k]);
            if (n > c.limiteRep[k]) fila("Repeticiones", kNombres[k]);
        }
    }

    if (!archivoJugado.empty() && std::filesystem::exists(archivoJugado)) {
        std::ifstream f(archivoJugado, std::ios::binary);
        std::array<char, RegistroColumna::kLongitud> r{};
        while (f.read(r.data(), r.size())) {
            if (std::equal(col.begin(), col.end(), r.begin()) && r[16] == kEliminada) {
                fila("Eliminadas", "Apuesta eliminada manualmente");
                break;
            }
        }
    }
    return filas;
}

std::filesystem::path ArchivoJugado(const Combinacion& comb) {
    if (comb.ruta.empty()) return {};
    return RutaHermana(comb.ruta, comb.jugada == "red" ? ".red" : ".cnd");
}

std::vector<FilaInforme> FilasRechazadas(const Rechazos& r, int toleranciaGrupos,
                                         int toleranciaGruposAc) {
    std::vector<FilaInforme> filas;
    std::int32_t total = 0;
    auto fila = [&](std::string texto, double n) {
        if (n <= 0) return;
        filas.push_back({std::move(texto), base::Formato(n, "#,##0")});
        total += static_cast<std::int32_t>(n);
    };
    fila("Condiciones Generales", r.porCondicion[0]);
    fila("Seguidos", r.porCondicion[1]);
    fila("Interrupciones", r.porCondicion[2]);
    fila("Interrupciones consecutivas", r.porCondicion[3]);
    fila("Parejas", r.porCondicion[4]);
    fila("Tríos", r.porCondicion[5]);
    for (std::size_t g = 0; g < 50; ++g) fila("Grupo nº " + N(static_cast<int>(g + 1)), r.grupo[g]);
    fila("Más de " + N(toleranciaGrupos) + " Grupos fallados", r.tolGrupos);
    for (std::size_t g = 0; g < 50; ++g)
        fila("Aciertos nº " + N(static_cast<int>(g + 1)), r.grupoAciertos[g]);
    fila("Más de " + N(toleranciaGruposAc) + " Grupos de Ac. fallados", r.tolGruposAciertos);
    fila("Sumas", r.porCondicion[6]);
    fila("Comparaciones", r.porCondicion[7]);
    fila("Repeticiones", r.porCondicion[8]);
    filas.push_back({"Total rechazadas", base::Formato(total, "#,##0")});
    return filas;
}

}  // namespace quinteva::engine
