#pragma once

#include "base/zip_expander.h"

namespace quinteva::ui {

// Expande los ".zip" de la actualización del programa con QuaZip. Una entrada que saldría de la
// carpeta (ruta absoluta o con "..") no se escribe: es un archivo mal hecho o malintencionado.
class ExpansorQuaZip final : public base::ExpansorZip {
  public:
    std::optional<std::string> Expandir(const std::filesystem::path& zip,
                                        const std::filesystem::path& carpeta) override;
};

}  // namespace quinteva::ui
