#include "outputs/print_range.h"

#include <cstdlib>
#include <string>

#include "base/text1252.h"
#include "outputs/slip_marks.h"

namespace quinteva::outputs {

std::optional<RangoDeColumnas> RangoDeImpresion(base::Dialogo& dialogo, bool todos,
                                                std::string_view desde, std::string_view hasta,
                                                std::int32_t ultimoBoleto) {
    std::int32_t primero = 1;
    std::int32_t ultimo = ultimoBoleto;
    if (!todos) {
        desde = base::Recortar(desde);
        hasta = base::Recortar(hasta);
        if (desde.empty() || hasta.empty()) {
            dialogo.Mensaje(kMsgDosLimites, base::Icono::Aviso);
            return std::nullopt;
        }
        primero = static_cast<std::int32_t>(std::atol(std::string(desde).c_str()));
        ultimo = static_cast<std::int32_t>(std::atol(std::string(hasta).c_str()));
        if (ultimo < primero) {
            dialogo.Mensaje(kMsgSegundoLimite, base::Icono::Aviso);
            return std::nullopt;
        }
    }
    return RangoDeColumnas{(primero - 1) * kColumnasPorBoleto + 1, ultimo * kColumnasPorBoleto};
}

}  // namespace quinteva::outputs
