#include "cli/answering_dialog.h"

#include "base/error.h"

namespace quinteva::cli {

void DialogoDeOrdenes::Mensaje(std::string_view texto, base::Icono) { mensajes_ << texto << '\n'; }

base::Respuesta DialogoDeOrdenes::PreguntaSiNo(std::string_view, base::Respuesta) {
    return base::Respuesta::Si;
}

base::Respuesta DialogoDeOrdenes::PreguntaSiNoCancelar(std::string_view, base::Respuesta) {
    return base::Respuesta::Si;
}

base::Respuesta DialogoDeOrdenes::AceptarCancelar(std::string_view, base::Respuesta) {
    return base::Respuesta::Aceptar;
}

std::optional<std::string> DialogoDeOrdenes::PedirTexto(std::string_view texto, std::string_view,
                                                        std::string_view) {
    if (textos_.empty()) throw base::Error("Respuesta no admitida a: " + std::string(texto));
    std::string respuesta = std::move(textos_.front());
    textos_.pop_front();
    return respuesta;
}

std::optional<std::filesystem::path> DialogoDeOrdenes::ArchivoParaAbrir(
    std::string_view, std::string_view, const std::filesystem::path&) {
    return ruta_;
}

std::optional<std::filesystem::path> DialogoDeOrdenes::ArchivoParaGuardar(
    std::string_view, std::string_view, const std::filesystem::path&) {
    return ruta_;
}

std::optional<std::filesystem::path> DialogoDeOrdenes::Carpeta(std::string_view,
                                                               const std::filesystem::path&) {
    return ruta_;
}

}  // namespace quinteva::cli
