#include "cli/private_folder.h"

#include <unistd.h>

#include <chrono>
#include <system_error>

#include "base/working_folder.h"

namespace quinteva::cli {

CarpetaPrivada::CarpetaPrivada(const std::optional<std::string>& indicada) : propia_(!indicada) {
    if (indicada) {
        ruta_ = *indicada;
    } else {
        const auto marca = std::chrono::steady_clock::now().time_since_epoch().count();
        ruta_ = std::filesystem::temp_directory_path() /
                ("quinteva-cli-" + std::to_string(::getpid()) + "-" + std::to_string(marca));
    }
    base::AsegurarCarpeta(ruta_);
}

CarpetaPrivada::~CarpetaPrivada() {
    if (!propia_) return;
    std::error_code ignorado;
    std::filesystem::remove_all(ruta_, ignorado);
}

}  // namespace quinteva::cli
