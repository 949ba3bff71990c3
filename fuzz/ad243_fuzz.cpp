// Objetivo de libFuzzer del lector de archivos AD243: cualquier contenido se lee o se rechaza con
// uno de sus dos fallos, sin caer, y lo leído tiene un Boleto por registro tras la cabecera.
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <variant>

#include "outputs/ad243.h"
#include "outputs/hit_count.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    using namespace quinteva::outputs;
    const std::string_view bytes(reinterpret_cast<const char*>(datos), tamano);
    const auto leido = LeerAD243(bytes);
    if (const auto* archivo = std::get_if<ArchivoAD243>(&leido)) {
        if (archivo->boletos.size() != tamano / kLongitudAD243 - 1) std::abort();
        const Comparador comparador("1X21X21X21X21X1M");
        TablaAciertos tabla;
        std::int32_t numero = 0;
        for (const BoletoAD243& boleto : archivo->boletos) {
            for (const auto& columna : boleto.columnas) {
                comparador.Anotar(columna.data(), {boleto.pleno.data(), 2}, ++numero, tabla);
            }
        }
    } else if (MensajeFalloAD243(std::get<FalloAD243>(leido)).empty()) {
        std::abort();
    }
    return 0;
}
