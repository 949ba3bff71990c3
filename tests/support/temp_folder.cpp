#include "tests/support/temp_folder.h"

#include <unistd.h>
#include <atomic>
#include <chrono>
#include <string>
#include <system_error>

namespace quinteva::pruebas {

CarpetaTemporal::CarpetaTemporal() {
    static std::atomic<int> contador{0};
    const auto marca = std::chrono::steady_clock::now().time_since_epoch().count();
    ruta_ = std::filesystem::temp_directory_path() /
            ("quinteva-prueba-" + std::to_string(::getpid()) + "-" + std::to_string(marca) + "-" +
             std::to_string(contador++));
    std::filesystem::create_directories(ruta_);
}

CarpetaTemporal::~CarpetaTemporal() {
    std::error_code ignorado;
    std::filesystem::remove_all(ruta_, ignorado);
}

}  // namespace quinteva::pruebas
