#include "verificacion.h"

#include <algorithm>
#include <cstdint>
#include <set>

namespace sistemas {

int RadioDeRecubrimiento(const Forma& forma, const std::vector<Palabra>& filas) {
    const std::int64_t n = forma.Palabras();
    if (filas.empty()) return -1;
    std::vector<std::int64_t> pesos(forma.Lugares());
    std::int64_t peso = 1;
    for (int i = forma.Lugares() - 1; i >= 0; --i) {
        pesos[i] = peso;
        peso *= forma.Base(i);
    }
    std::vector<std::int8_t> d(n, -1);
    std::vector<std::int64_t> frente, siguiente;
    for (const auto& f : filas) {
        const std::int64_t x = Indice(forma, f);
        if (d[x] < 0) {
            d[x] = 0;
            frente.push_back(x);
        }
    }
    int radio = 0;
    while (!frente.empty()) {
        siguiente.clear();
        for (std::int64_t x : frente) {
            for (int i = 0; i < forma.Lugares(); ++i) {
                const int cifra = static_cast<int>((x / pesos[i]) % forma.Base(i));
                for (int v = 0; v < forma.Base(i); ++v) {
                    if (v == cifra) continue;
                    const std::int64_t y = x + (v - cifra) * pesos[i];
                    if (d[y] < 0) {
                        d[y] = static_cast<std::int8_t>(d[x] + 1);
                        siguiente.push_back(y);
                    }
                }
            }
        }
        if (!siguiente.empty()) ++radio;
        frente.swap(siguiente);
    }
    return radio;
}

std::vector<std::string> Comprobar(const Codigo& codigo, int filasPedidas) {
    std::vector<std::string> fallos;
    if (static_cast<int>(codigo.filas.size()) != filasPedidas)
        fallos.push_back("tiene " + std::to_string(codigo.filas.size()) + " filas y no " +
                         std::to_string(filasPedidas));
    for (const auto& f : codigo.filas) {
        bool bien = static_cast<int>(f.size()) == codigo.forma.Lugares();
        for (int i = 0; bien && i < codigo.forma.Lugares(); ++i)
            bien = f[i] < codigo.forma.Base(i);
        if (!bien) {
            fallos.push_back("fila mal formada: " + ATexto(f));
            return fallos;
        }
    }
    std::set<Palabra> vistas(codigo.filas.begin(), codigo.filas.end());
    if (vistas.size() != codigo.filas.size()) fallos.push_back("hay filas repetidas");
    const int radio = RadioDeRecubrimiento(codigo.forma, codigo.filas);
    if (radio < 0 || radio > codigo.radio)
        fallos.push_back("radio de recubrimiento " + std::to_string(radio) + ", se pide " +
                         std::to_string(codigo.radio));
    return fallos;
}

}  // namespace sistemas
