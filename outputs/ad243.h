#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "engine/columns.h"

namespace quinteva::outputs {

// El archivo AD243: registros de 124 bytes de texto de 8 bits. El primero es la cabecera ("C" en
// el byte 0, "243" en los bytes 3 a 5 y la Jornada con "0#" en los bytes 6 y 7; de él solo se
// leen los 123 primeros bytes). Cada uno de los demás es un Boleto: 8 columnas de 14 signos desde
// el byte 10 y el Pleno del Boleto en los bytes 122 y 123. Los bytes 0 a 9 de un Boleto y el
// resto de la cabecera no se leen.
inline constexpr std::size_t kLongitudAD243 = 124;
inline constexpr std::size_t kCabeceraLeidaAD243 = 123;
inline constexpr std::size_t kPrimeraColumnaAD243 = 10;
inline constexpr std::size_t kPlenoAD243 = 122;
inline constexpr int kColumnasAD243 = 8;

inline constexpr std::string_view kMsgNoAD243 =
    "El archivo que se quiere importar no es un archivo AD243 o es erróneo.";
// El de una cabecera que no es de AD243: el mismo texto sin el punto final.
inline constexpr std::string_view kMsgNoAD243Cabecera =
    kMsgNoAD243.substr(0, kMsgNoAD243.size() - 1);

// Un Boleto: siempre cuenta como 8 columnas, sin mirar si alguna está en blanco.
struct BoletoAD243 {
    std::array<engine::Columna, kColumnasAD243> columnas{};
    engine::PlenoBase pleno{};
};

struct ArchivoAD243 {
    // Los dos caracteres de la Jornada de la cabecera.
    std::string jornada;
    std::vector<BoletoAD243> boletos;
};

// Por qué se rechaza un archivo: la longitud no es múltiplo de 124, o la cabecera no es "C...243".
enum class FalloAD243 { Longitud, Cabecera };

// Los primeros bytes dicen "C...243".
bool PareceAD243(std::string_view bytes);

std::variant<ArchivoAD243, FalloAD243> LeerAD243(std::string_view bytes);

// El texto de cada rechazo.
std::string_view MensajeFalloAD243(FalloAD243 fallo);

}  // namespace quinteva::outputs
