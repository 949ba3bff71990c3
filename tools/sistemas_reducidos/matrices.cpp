#include "matrices.h"

#include <algorithm>

#include "azar.h"
#include "grupo.h"

namespace sistemas {

namespace {

std::vector<int> BasesSindrome(const Matriz& m) {
    std::vector<int> bases(m.filasTernarias, 3);
    bases.insert(bases.end(), m.filasBinarias, 2);
    return bases;
}

// Columna de un lugar como palabra del grupo de síndromes.
Palabra ColumnaEnGrupo(const Forma& forma, const Matriz& m, int lugar) {
    Palabra p(m.filasTernarias + m.filasBinarias, 0);
    const Palabra& c = m.columnas[lugar];
    const int desde = lugar < forma.triples ? 0 : m.filasTernarias;
    for (std::size_t i = 0; i < c.size(); ++i) p[desde + i] = c[i];
    return p;
}

// Dos columnas ternarias no nulas son "la misma" si una es múltiplo de la otra.
Palabra Normalizada(Palabra c, int base) {
    for (auto v : c) {
        if (v != 0) {
            if (v == 2 && base == 3)
                for (auto& x : c) x = static_cast<std::uint8_t>((2 * x) % 3);
            break;
        }
    }
    return c;
}

// Con pocas clases se prueban todas: la primera en el cero (el problema no
// cambia al trasladar) y cada siguiente entre las que cubren el primer
// síndrome aún descubierto.
bool Completar(const Grupo& g, const std::vector<int>& bola, const std::vector<std::uint8_t>& dist,
               int radio, int quedan, std::vector<int>& elegidos,
               const std::vector<int>& descubiertos) {
    if (descubiertos.empty()) return true;
    if (quedan == 0 || descubiertos.size() > static_cast<std::size_t>(quedan) * bola.size())
        return false;
    const int x = descubiertos.front();
    std::vector<int> resto;
    for (int o : bola) {
        const int s = g.Resta(x, o);
        if (quedan == 1) {
            bool todos = true;
            for (int y : descubiertos) {
                if (dist[g.Resta(y, s)] > radio) {
                    todos = false;
                    break;
                }
            }
            if (todos) {
                elegidos.push_back(s);
                return true;
            }
            continue;
        }
        resto.clear();
        for (int y : descubiertos)
            if (dist[g.Resta(y, s)] > radio) resto.push_back(y);
        elegidos.push_back(s);
        if (Completar(g, bola, dist, radio, quedan - 1, elegidos, resto)) return true;
        elegidos.pop_back();
    }
    return false;
}

}  // namespace

Matriz MatrizAlAzar(const Forma& forma, int filasTernarias, int filasBinarias, Azar& azar) {
    Matriz m;
    m.filasTernarias = filasTernarias;
    m.filasBinarias = filasBinarias;
    for (int parte = 0; parte < 2; ++parte) {
        const int filas = parte == 0 ? filasTernarias : filasBinarias;
        const int lugares = parte == 0 ? forma.triples : forma.dobles;
        const int base = parte == 0 ? 3 : 2;
        std::vector<Palabra> usadas;
        for (int j = 0; j < lugares; ++j) {
            Palabra c(filas, 0);
            if (j < filas) {
                c[j] = 1;  // parte identidad: asegura el rango
            } else {
                // Columna nueva si es posible; si ya no quedan, cualquiera no nula.
                for (int prueba = 0; prueba < 200; ++prueba) {
                    for (auto& x : c) x = static_cast<std::uint8_t>(azar.Menor(base));
                    if (std::all_of(c.begin(), c.end(), [](auto x) { return x == 0; })) continue;
                    if (std::find(usadas.begin(), usadas.end(), Normalizada(c, base)) ==
                        usadas.end())
                        break;
                }
                if (filas > 0 && std::all_of(c.begin(), c.end(), [](auto x) { return x == 0; }))
                    c[0] = 1;
            }
            usadas.push_back(Normalizada(c, base));
            m.columnas.push_back(c);
        }
    }
    return m;
}

std::optional<std::vector<Palabra>> BuscarPorMatriz(const Forma& forma, int radio, int tamano,
                                                    const Matriz& matriz,
                                                    const Presupuesto& presupuesto) {
    const Grupo sindromes(BasesSindrome(matriz));
    const std::int64_t nucleo = forma.Palabras() / sindromes.Elementos();
    const int clases = static_cast<int>(tamano / nucleo);
    if (clases < 1) return std::nullopt;
    std::vector<int> generadores;
    for (int j = 0; j < forma.Lugares(); ++j) {
        const int g = sindromes.Codificar(ColumnaEnGrupo(forma, matriz, j));
        if (g != 0) generadores.push_back(g);
    }
    std::optional<std::vector<int>> elegidos;
    if (clases <= 3) {
        std::vector<int> cerrados;
        for (int g : generadores) {
            cerrados.push_back(g);
            cerrados.push_back(sindromes.Opuesto(g));
        }
        const auto dist = sindromes.Distancias(cerrados);
        if (std::any_of(dist.begin(), dist.end(), [](std::uint8_t d) { return d == 255; }))
            return std::nullopt;
        std::vector<int> descubiertos, bola;
        for (int x = 0; x < sindromes.Elementos(); ++x)
            (dist[x] > radio ? descubiertos : bola).push_back(x);
        std::vector<int> s{0};
        if (Completar(sindromes, bola, dist, radio, clases - 1, s, descubiertos)) elegidos = s;
    } else {
        elegidos = CubrirGrupo(sindromes, generadores, radio, clases, presupuesto);
    }
    if (!elegidos) return std::nullopt;
    std::vector<char> dentro(sindromes.Elementos(), 0);
    for (int s : *elegidos) dentro[s] = 1;
    // Recorre todas las palabras y se queda con las de síndrome elegido.
    std::vector<int> columnas;
    for (int j = 0; j < forma.Lugares(); ++j)
        columnas.push_back(sindromes.Codificar(ColumnaEnGrupo(forma, matriz, j)));
    std::vector<Palabra> filas;
    for (std::int64_t i = 0; i < forma.Palabras(); ++i) {
        const Palabra p = PalabraDeIndice(forma, i);
        int s = 0;
        for (int j = 0; j < forma.Lugares(); ++j)
            for (int v = 0; v < p[j]; ++v) s = sindromes.Suma(s, columnas[j]);
        if (dentro[s]) filas.push_back(p);
    }
    return filas;
}

std::optional<std::vector<Palabra>> BuscarEnEspacio(const Forma& forma, int radio, int tamano,
                                                    const Presupuesto& presupuesto) {
    const Grupo espacio(forma.Bases());
    std::vector<int> generadores;
    for (int j = 0; j < forma.Lugares(); ++j) {
        Palabra p(forma.Lugares(), 0);
        p[j] = 1;
        generadores.push_back(espacio.Codificar(p));
    }
    auto centros = CubrirGrupo(espacio, generadores, radio, tamano, presupuesto);
    if (!centros) return std::nullopt;
    std::vector<Palabra> filas;
    for (int x : *centros) filas.push_back(espacio.Decodificar(x));
    return filas;
}

}  // namespace sistemas
