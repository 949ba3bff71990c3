#include "cli/cli_dialog.h"

#include <algorithm>
#include <array>

#include "base/error.h"
#include "builders/boletos.h"
#include "builders/manual.h"

namespace quinteva::cli {
namespace {

// Las preguntas cuyo Sí abriría una ventana.
constexpr std::array<std::string_view, 3> kPideVentana = {builders::kPreguntaAnadirManual,
                                                          builders::kPreguntaOtraAMano,
                                                          builders::kPreguntaMantenerEliminada};

}  // namespace

base::Respuesta DialogoLineaOrdenes::Contestar(std::string_view texto, base::Respuesta si) {
    const bool no =
        std::find(kPideVentana.begin(), kPideVentana.end(), texto) != kPideVentana.end();
    textos_.push_back(std::string(texto) + (no                          ? " [No]"
                                            : si == base::Respuesta::Si ? " [Sí]"
                                                                        : " [Aceptar]"));
    return no ? base::Respuesta::No : si;
}

void DialogoLineaOrdenes::Mensaje(std::string_view texto, base::Icono) {
    ultimoMensaje_ = texto;
    textos_.emplace_back(texto);
}

base::Respuesta DialogoLineaOrdenes::PreguntaSiNo(std::string_view texto, base::Respuesta) {
    return Contestar(texto, base::Respuesta::Si);
}

base::Respuesta DialogoLineaOrdenes::PreguntaSiNoCancelar(std::string_view texto, base::Respuesta) {
    return Contestar(texto, base::Respuesta::Si);
}

base::Respuesta DialogoLineaOrdenes::AceptarCancelar(std::string_view texto) {
    return Contestar(texto, base::Respuesta::Aceptar);
}

std::optional<std::string> DialogoLineaOrdenes::PedirTexto(std::string_view texto, std::string_view,
                                                           std::string_view) {
    throw base::Error("La línea de órdenes no puede contestar: " + std::string(texto));
}

std::optional<std::filesystem::path> DialogoLineaOrdenes::ArchivoParaAbrir(
    std::string_view titulo, std::string_view, const std::filesystem::path&) {
    throw base::Error("La línea de órdenes no puede contestar: " + std::string(titulo));
}

std::optional<std::filesystem::path> DialogoLineaOrdenes::ArchivoParaGuardar(
    std::string_view titulo, std::string_view, const std::filesystem::path&) {
    if (!salida_)
        throw base::Error("La línea de órdenes no puede contestar: " + std::string(titulo));
    return salida_;
}

std::optional<std::filesystem::path> DialogoLineaOrdenes::Carpeta(std::string_view titulo,
                                                                  const std::filesystem::path&) {
    throw base::Error("La línea de órdenes no puede contestar: " + std::string(titulo));
}

}  // namespace quinteva::cli
