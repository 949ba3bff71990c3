#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "outputs/hit_count.h"

namespace quinteva::outputs {

inline constexpr std::string_view kTituloLocalizadas = "Localización de Columnas acertadas";
inline constexpr std::array<std::string_view, 3> kCabecerasLocalizadas = {"Boleto", "Columna",
                                                                          "Aciertos"};

// Una fila de "Colu&mnas", con "#,##0" en Boleto y Columna.
struct FilaLocalizada {
    std::string boleto;
    std::string columna;
    std::string aciertos;
    friend bool operator==(const FilaLocalizada&, const FilaLocalizada&) = default;
};

// El Boleto de una columna (su número / 8 redondeado arriba) y su lugar en él, de 1 a 8.
std::int32_t BoletoDeColumna(std::int32_t numero);
std::int32_t LugarEnBoleto(std::int32_t numero);

// Las filas en el orden 15, 14, 13, 12, 11, 10 aciertos y dentro de cada uno por número: una
// columna de 15 aciertos sale dos veces, con "15" y con "14".
std::vector<FilaLocalizada> FilasLocalizadas(const TablaAciertos& tabla);

}  // namespace quinteva::outputs
