#pragma once

#include "builders/reduction_tables.h"
#include "ui/reduction_seam.h"

namespace quinteva::ui {

// El reductor del programa: "&Reducir" por tablas sin condiciones y por recubrimiento con ellas,
// la "Tabla de reducciones" fija y las cifras de la ventana "Reducción".
class ReductorDelPrograma : public Reductor {
  public:
    std::string Reducir(engine::Combinacion& combinacion, const PeticionReduccion& peticion,
                        const std::filesystem::path& carpetaTrabajo, base::Progreso& progreso,
                        const base::Ajustes& ajustes) override;
    std::vector<FilaTablaReducciones> TablaReducciones() const override;
    InformeReduccion Informe(std::int32_t reducidas, double totalApuestas) const override;

  private:
    // ClaseBase: la clase de cada partido en la última reducción por tablas; no se borra.
    builders::ClaseBase clases_{};
};

}  // namespace quinteva::ui
