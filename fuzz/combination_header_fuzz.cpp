// Objetivo de libFuzzer de la cabecera de una Combinación (".uxd"): cualquier contenido de 5.189
// bytes se lee sin caer, y lo leído se vuelve a escribir y a leer igual.
#include <cstdint>
#include <cstdlib>
#include <span>

#include "base/error.h"
#include "engine/combination_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    using quinteva::engine::RegistroCabecera;
    if (tamano < RegistroCabecera::kLongitud) return 0;
    const std::span<const std::uint8_t> bytes(datos, RegistroCabecera::kLongitud);
    try {
        const RegistroCabecera cabecera = RegistroCabecera::DeBytes(bytes);
        quinteva::engine::Combinacion combinacion;
        quinteva::engine::CargarCabecera(combinacion, cabecera);
        const auto escrita = cabecera.ABytes();
        if (RegistroCabecera::DeBytes(escrita).ABytes() != escrita) std::abort();
    } catch (const quinteva::base::Error&) {
        // Un valor fuera de rango es un error del sistema, no una caída.
    }
    return 0;
}
