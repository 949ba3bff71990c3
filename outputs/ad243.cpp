#include "outputs/ad243.h"

#include <algorithm>

namespace quinteva::outputs {
namespace {

BoletoAD243 LeerBoleto(std::string_view registro) {
    BoletoAD243 boleto;
    for (std::size_t c = 0; c < boleto.columnas.size(); ++c) {
        const std::string_view signos =
            registro.substr(kPrimeraColumnaAD243 + c * engine::kPartidos, engine::kPartidos);
        std::copy(signos.begin(), signos.end(), boleto.columnas[c].begin());
    }
    boleto.pleno = {registro[kPlenoAD243], registro[kPlenoAD243 + 1]};
    return boleto;
}

}  // namespace

bool PareceAD243(std::string_view bytes) {
    return bytes.size() >= 6 && bytes[0] == 'C' && bytes.substr(3, 3) == "243";
}

std::variant<ArchivoAD243, FalloAD243> LeerAD243(std::string_view bytes) {
    if (bytes.size() % kLongitudAD243 != 0) return FalloAD243::Longitud;
    if (bytes.size() < kCabeceraLeidaAD243 || !PareceAD243(bytes)) return FalloAD243::Cabecera;
    ArchivoAD243 archivo;
    archivo.jornada = std::string(bytes.substr(6, 2));
    archivo.boletos.reserve(bytes.size() / kLongitudAD243 - 1);
    for (std::size_t desde = kLongitudAD243; desde < bytes.size(); desde += kLongitudAD243) {
        archivo.boletos.push_back(LeerBoleto(bytes.substr(desde, kLongitudAD243)));
    }
    return archivo;
}

std::string_view MensajeFalloAD243(FalloAD243 fallo) {
    return fallo == FalloAD243::Longitud ? kMsgNoAD243 : kMsgNoAD243Cabecera;
}

}  // namespace quinteva::outputs
