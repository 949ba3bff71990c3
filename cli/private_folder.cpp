#include "cli/private_folder.h"

#include <random>
#include <string>

#include "base/error.h"
#include "base/working_folder.h"

namespace quinteva::cli {

CarpetaDeAlmacenes::CarpetaDeAlmacenes(const Argumentos& argumentos) {
    if (argumentos.Valor("carpeta")) {
        ruta_ = argumentos.CarpetaTrabajo();
        base::AsegurarCarpeta(ruta_);
        return;
    }
    std::random_device azar;
    for (int intento = 0; intento < 100 && !privada_; ++intento) {
        ruta_ = std::filesystem::temp_directory_path() / ("quinteva-cli-" + std::to_string(azar()));
        privada_ = std::filesystem::create_directory(ruta_);
    }
    if (!privada_) throw base::Error("No se pudo crear el directorio de trabajo");
}

CarpetaDeAlmacenes::~CarpetaDeAlmacenes() {
    if (!privada_) return;
    std::error_code ignorado;
    std::filesystem::remove_all(ruta_, ignorado);
}

}  // namespace quinteva::cli
