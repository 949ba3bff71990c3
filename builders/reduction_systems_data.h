#pragma once

#include <string_view>

namespace quinteva::builders {

// El texto de data/sistemas_reducidos.txt, incrustado en el programa al compilar.
extern const std::string_view kTextoSistemas;

}  // namespace quinteva::builders
