#include <array>
#include <iostream>

#include "builders/team_weights.h"
#include "cli/commands.h"

namespace quinteva::cli {

namespace {

// Las marcas de la ventana como opciones: el equipo y la circunstancia.
constexpr std::array<std::string_view, builders::kFactores> kMarcas = {
    "bajas-importantes",      "contrario-se-le-da-mal", "campo-le-perjudica",
    "arbitro-no-le-favorece", "otras-desfavorables",    "favorables",
};

}  // namespace

OpcionesAdmitidas OpcionesPonderar() {
    OpcionesAdmitidas opciones;
    for (const auto equipo : {"local-", "visitante-"}) {
        for (const auto marca : kMarcas) opciones.marcas.insert(equipo + std::string(marca));
    }
    return opciones;
}

int Ponderar(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, "ponderar [--local-MARCA ...] [--visitante-MARCA ...]");
    builders::PesosEquipos pesos;
    builders::Ponderacion ponderacion(pesos);
    for (int i = 0; i < 2 * builders::kFactores; ++i) {
        const std::string opcion =
            std::string(i < builders::kFactores ? "local-" : "visitante-") +
            std::string(kMarcas[static_cast<std::size_t>(i % builders::kFactores)]);
        if (argumentos.Marca(opcion)) ponderacion.Marcar(i, true);
    }
    ponderacion.Terminar();
    if (argumentos.Json()) {
        salida << "{\"PesoLocal\": " << pesos.local[0]
               << ", \"PesoVisitante\": " << pesos.visitante[0] << "}\n";
        return 0;
    }
    salida << "Local: " << pesos.local[0] << "\nVisitante: " << pesos.visitante[0] << '\n';
    return 0;
}

}  // namespace quinteva::cli
