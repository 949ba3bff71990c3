#pragma once

#include <string>
#include <vector>

namespace quinteva::pruebas {

// El recubrimiento voraz tal como se describe, por rondas con listas de textos: la referencia con
// la que se compara la versión rápida (pruebas diferenciales y mediciones). pararTrasRondas < 0:
// sin parada.
inline std::vector<std::string> ReducirPorRondas(const std::vector<std::string>& generadas,
                                                 int distancia, long pararTrasRondas = -1) {
    const auto difierenMasDe = [](const std::string& a, const std::string& b, int limite) {
        int n = 0;
        for (std::size_t i = 0; i < 14; ++i) {
            if (a[i] != b[i]) ++n;
            if (n > limite) return true;
        }
        return false;
    };
    std::vector<std::string> pendientes = generadas;
    std::vector<std::string> guardadas;
    for (long ronda = 1;; ++ronda) {
        const std::string guardada = pendientes.front();
        guardadas.push_back(guardada);
        std::vector<std::string> nuevas;
        for (const auto& c : pendientes) {
            if (difierenMasDe(guardada, c, distancia)) nuevas.push_back(c);
        }
        if (pendientes.size() == 1) {
            if (pendientes.front() != guardadas.back()) guardadas.push_back(pendientes.front());
            break;
        }
        if (nuevas.empty()) break;
        pendientes = std::move(nuevas);
        if (ronda == pararTrasRondas) break;
    }
    return guardadas;
}

}  // namespace quinteva::pruebas
