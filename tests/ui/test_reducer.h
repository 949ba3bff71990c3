#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "base/record_files.h"
#include "engine/columns.h"
#include "ui/program_reducer.h"

namespace quinteva::pruebas {

// Reducción de prueba para la ventana: la cobertura voraz literal (la primera columna pendiente
// se queda y se llevan las que están a la distancia del nivel), sobre "Cmb.tmp" hacia "Red.tmp",
// sea cual sea la base; la tabla y el informe son los del programa.
class ReductorDePrueba : public ui::ReductorDelPrograma {
  public:
    std::string Reducir(engine::Combinacion& comb, const ui::PeticionReduccion& peticion,
                        const std::filesystem::path& carpeta, base::Progreso& progreso,
                        const base::Ajustes&) override {
        const int distancia = peticion.nivel + 1;
        const base::ArchivoDe<engine::RegistroColumna> cmb(carpeta / engine::kCmbTmp);
        std::vector<engine::Columna> pendientes;
        for (std::int32_t n = 1; n <= cmb.Cuenta(); ++n) pendientes.push_back(cmb.Leer(n).columna);
        std::vector<engine::Columna> guardadas;
        while (!pendientes.empty() && !progreso.Detenido()) {
            const engine::Columna elegida = pendientes.front();
            guardadas.push_back(elegida);
            std::vector<engine::Columna> quedan;
            for (const auto& c : pendientes) {
                int distintos = 0;
                for (std::size_t i = 0; i < c.size(); ++i) distintos += c[i] != elegida[i] ? 1 : 0;
                if (distintos > distancia) quedan.push_back(c);
            }
            pendientes = std::move(quedan);
            progreso.Avance(cmb.Cuenta() - static_cast<std::int64_t>(pendientes.size()),
                            cmb.Cuenta());
        }
        std::filesystem::remove(carpeta / engine::kRedTmp);
        base::ArchivoDe<engine::RegistroColumna> red(carpeta / engine::kRedTmp);
        for (const auto& c : guardadas) red.Anadir({c, comb.pleno, engine::kActiva});
        red.Cerrar();
        comb.totalReducidas = comb.activasReducidas = static_cast<std::int32_t>(guardadas.size());
        comb.panel.reducidas = {};
        comb.panel.reducidas[static_cast<std::size_t>(peticion.nivel)] = comb.activasReducidas;
        comb.nivelReducida = static_cast<std::uint8_t>(peticion.nivel);
        ++reducciones;
        return {};
    }

    int reducciones = 0;
};

}  // namespace quinteva::pruebas
