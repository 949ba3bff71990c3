// Objetivo de libFuzzer del lector JSON: ningún texto lo hace caer, colgarse ni salirse de sus
// errores, y lo que escribe lo vuelve a leer igual.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "outputs/json_bag.h"

namespace {

using quinteva::outputs::ErrorJson;
using quinteva::outputs::JsonBag;

void Probar(const std::string& texto, bool decimal) {
    JsonBag bolsa;
    bolsa.DecimalMode(decimal);
    try {
        bolsa.JSON(texto);
    } catch (const ErrorJson&) {
        // Queda lo leído hasta el fallo: también se escribe.
    }
    std::string escrito;
    try {
        escrito = bolsa.JSON();
    } catch (const ErrorJson&) {
        return;
    }
    JsonBag otra;
    otra.DecimalMode(decimal);
    otra.JSON(escrito);
    if (otra.JSON() != escrito) std::abort();
    bolsa.Whitespace = true;
    JsonBag espaciada;
    espaciada.DecimalMode(decimal);
    espaciada.JSON(bolsa.JSON());
    if (espaciada.JSON() != escrito) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    const std::string texto(datos, datos + tamano);
    Probar(texto, false);
    Probar(texto, true);
    return 0;
}
