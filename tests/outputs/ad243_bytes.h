#pragma once

#include <string>
#include <vector>

#include "engine/columns.h"
#include "outputs/ad243.h"

namespace quinteva::pruebas {

// Un AD243 como lo dejaría el programa de la administración: cabecera "C..243" con la Jornada y
// un registro de 8 columnas por Boleto con su Pleno.
inline std::string BytesAD243(const std::vector<engine::RegistroColumna>& columnas,
                              const std::string& jornada = "07") {
    std::string bytes(outputs::kLongitudAD243, ' ');
    bytes.replace(0, 8, "C01243" + jornada);
    for (std::size_t desde = 0; desde < columnas.size(); desde += 8) {
        std::string registro(outputs::kLongitudAD243, ' ');
        registro.replace(0, 10, "0000000010");
        for (std::size_t c = 0; c < 8 && desde + c < columnas.size(); ++c) {
            registro.replace(10 + 14 * c, 14, engine::TextoDeColumna(columnas[desde + c].columna));
        }
        registro.replace(122, 2, engine::TextoDePleno(columnas[desde].pleno));
        bytes += registro;
    }
    return bytes;
}

}  // namespace quinteva::pruebas
