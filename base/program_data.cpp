#include "base/program_data.h"

#include <system_error>

namespace quinteva::base {

std::filesystem::path CarpetaDatosPrograma(const std::filesystem::path& carpetaEjecutable) {
    return (carpetaEjecutable / kDatosJuntoAlPrograma).lexically_normal();
}

std::filesystem::path CarpetaEjecutable() {
    std::error_code error;
    const auto ejecutable = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) return std::filesystem::current_path();
    return ejecutable.parent_path();
}

}  // namespace quinteva::base
