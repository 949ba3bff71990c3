// Objetivo de libFuzzer para lo que llega del servidor del editor: las páginas ".asp" y los
// registros de "VersionQVPr.txt". Nada de lo que llegue ha de hacer fallar al programa; la
// versión "2" es el único Error, y es el mensaje de la ventana.
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "base/error.h"
#include "seasons/server_reply.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    const std::string_view html(reinterpret_cast<const char*>(datos), tamano);
    (void)quinteva::seasons::CarpetaDeActualizacion(html);
    try {
        (void)quinteva::seasons::VersionDelServidor(html);
    } catch (const quinteva::base::Error&) {
    }
    const std::span<const std::uint8_t> bytes(datos, tamano);
    for (std::size_t i = 0; i + quinteva::seasons::RegVersion::kLongitud <= bytes.size();
         i += quinteva::seasons::RegVersion::kLongitud) {
        const auto r = quinteva::seasons::RegVersion::DeBytes(
            bytes.subspan(i, quinteva::seasons::RegVersion::kLongitud));
        (void)quinteva::seasons::EsZip(r.fichero);
    }
    return 0;
}
