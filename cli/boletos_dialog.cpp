#include "cli/boletos_dialog.h"

#include <algorithm>
#include <array>

#include "builders/boletos.h"
#include "builders/manual.h"

namespace quinteva::cli {
namespace {

// Las preguntas cuyo Sí abriría una ventana.
constexpr std::array<std::string_view, 3> kPideVentana = {builders::kPreguntaAnadirManual,
                                                          builders::kPreguntaOtraAMano,
                                                          builders::kPreguntaMantenerEliminada};

}  // namespace

base::Respuesta DialogoDeBoletos::Contestar(std::string_view texto, base::Respuesta siguiendo) {
    const bool ventana =
        std::find(kPideVentana.begin(), kPideVentana.end(), texto) != kPideVentana.end();
    const base::Respuesta respuesta = ventana ? base::Respuesta::No : siguiendo;
    mensajes_ << texto
              << (respuesta == base::Respuesta::No   ? " [No]"
                  : respuesta == base::Respuesta::Si ? " [Sí]"
                                                     : " [Aceptar]")
              << '\n';
    return respuesta;
}

base::Respuesta DialogoDeBoletos::PreguntaSiNo(std::string_view texto, base::Respuesta) {
    return Contestar(texto, base::Respuesta::Si);
}

base::Respuesta DialogoDeBoletos::PreguntaSiNoCancelar(std::string_view texto, base::Respuesta) {
    return Contestar(texto, base::Respuesta::Si);
}

base::Respuesta DialogoDeBoletos::AceptarCancelar(std::string_view texto, base::Respuesta) {
    return Contestar(texto, base::Respuesta::Aceptar);
}

}  // namespace quinteva::cli
