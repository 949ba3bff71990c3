#include "base/working_folder.h"

#include <cstdlib>
#include <system_error>

#include "base/error.h"

namespace quinteva::base {
namespace {

std::optional<std::filesystem::path> Variable(const char* nombre) {
    const char* valor = std::getenv(nombre);
    if (valor == nullptr || *valor == '\0') return std::nullopt;
    return std::filesystem::path(valor);
}

}  // namespace

std::filesystem::path CarpetaDatosUsuario() {
#ifdef _WIN32
    const auto datos = Variable("APPDATA").value_or(".");
#else
    const auto datos =
        Variable("XDG_DATA_HOME").value_or(Variable("HOME").value_or(".") / ".local" / "share");
#endif
    return datos / "Quinteva";
}

std::filesystem::path ResolverCarpetaTrabajo(const std::optional<std::filesystem::path>& indicada) {
    if (indicada) return *indicada;
    return Variable(kVariableCarpeta).value_or(CarpetaDatosUsuario());
}

void AsegurarCarpeta(const std::filesystem::path& carpeta) {
    std::error_code error;
    std::filesystem::create_directories(carpeta, error);
    if (error || !std::filesystem::is_directory(carpeta)) {
        throw Error("No se pudo crear el directorio de trabajo");
    }
}

}  // namespace quinteva::base
