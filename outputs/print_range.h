#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "base/dialog.h"

namespace quinteva::outputs {

inline constexpr std::string_view kMsgDosLimites =
    "Tiene que indicar los dos límites de impresión.";
inline constexpr std::string_view kMsgSegundoLimite =
    "El segundo límite de impresión tiene que ser mayor o igual que el primero.";

// Las columnas que se imprimen, por su número desde 1.
struct RangoDeColumnas {
    std::int32_t desde = 1;
    std::int32_t hasta = 0;

    friend bool operator==(const RangoDeColumnas&, const RangoDeColumnas&) = default;
};

// "&Aceptar" de "Selección de Impresión": con "Todos los boletos", del 1 al último; con "Desde
// boleto", los dos campos, llenos y en orden. Los boletos pasan a columnas: de la primera del
// primero a la última del último. Nada si un límite falla (con su mensaje).
std::optional<RangoDeColumnas> RangoDeImpresion(base::Dialogo& dialogo, bool todos,
                                                std::string_view desde, std::string_view hasta,
                                                std::int32_t ultimoBoleto);

}  // namespace quinteva::outputs
