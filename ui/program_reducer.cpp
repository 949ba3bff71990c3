#include "ui/program_reducer.h"

#include "base/formats.h"
#include "builders/reduce.h"
#include "builders/reduction_display.h"

namespace quinteva::ui {

std::string ReductorDelPrograma::Reducir(engine::Combinacion& combinacion,
                                         const PeticionReduccion& peticion,
                                         const std::filesystem::path& carpetaTrabajo,
                                         base::Progreso& progreso, const base::Ajustes& ajustes) {
    builders::SeleccionPartidos seleccion;
    if (peticion.haySeleccion) seleccion = peticion.seleccion;
    std::optional<engine::OpcionesOptimizada> optimizada;
    if (peticion.optimizada) optimizada.emplace();
    const auto r = builders::Reducir(combinacion, carpetaTrabajo, peticion.nivel, seleccion,
                                     clases_, progreso, ajustes, optimizada);
    return r.optimizada ? engine::MensajeOptimizada(*r.optimizada) : std::string();
}

std::vector<FilaTablaReducciones> ReductorDelPrograma::TablaReducciones() const {
    std::vector<FilaTablaReducciones> filas;
    for (const auto& f : builders::TablaReducciones()) {
        FilaTablaReducciones fila{std::string(f.etiqueta), {}, f.triples, f.dobles};
        for (std::size_t i = 0; i < fila.niveles.size(); ++i) {
            fila.niveles[i] = {std::string(f.cifras[i].texto), f.cifras[i].negrita};
        }
        filas.push_back(std::move(fila));
    }
    return filas;
}

InformeReduccion ReductorDelPrograma::Informe(std::int32_t reducidas, double totalApuestas) const {
    const double porcentaje = totalApuestas > 0 ? 100.0 * reducidas / totalApuestas : 0.0;
    return {base::Formato(100.0 - porcentaje, "0.#0") + "%",
            base::Formato(porcentaje, "0.#0") + "%",
            {}};
}

}  // namespace quinteva::ui
