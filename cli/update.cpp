#include <iostream>

#include "cli/answering_dialog.h"
#include "cli/commands.h"
#include "cli/http_network.h"
#include "seasons/season_folder.h"
#include "seasons/update.h"

namespace quinteva::cli {

int Actualizar(const Argumentos& argumentos, std::ostream&) {
    constexpr std::string_view kUso = "actualizar --servidor URL";
    argumentos.ExigirPosicionales(0, kUso);
    RedHttp red(argumentos.Exigir("servidor", kUso));
    DialogoDeOrdenes dialogo(std::cerr);
    const auto trabajo = argumentos.CarpetaTrabajo();
    const bool completa = seasons::ActualizarTemporada(
        red, dialogo, trabajo, seasons::CarpetaTemporadaEnCurso(trabajo),
        [](seasons::PasoActualizacion paso) { std::cerr << seasons::TextoDelPaso(paso) << '\n'; });
    return completa ? 0 : 1;
}

}  // namespace quinteva::cli
