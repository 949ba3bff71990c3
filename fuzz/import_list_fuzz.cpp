// Objetivo de libFuzzer de "Importar archivo": cualquier texto (el primer byte dice si lleva el
// Pleno) se importa a "Arimp.tmp" o se rechaza con un base::Error, y lo importado se ve boleto a
// boleto sin caer. Los archivos oficiales JSON ya los cubre fuzz_json_bag.
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "base/error.h"
#include "outputs/import_list.h"

namespace {

namespace fs = std::filesystem;
using namespace quinteva;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    if (tamano == 0) return 0;
    static const fs::path carpeta =
        fs::temp_directory_path() / ("quinteva-fuzz-importar-" + std::to_string(getpid()));
    fs::create_directories(carpeta);
    const fs::path archivo = carpeta / "lista.txt";
    std::ofstream(archivo, std::ios::binary)
        .write(reinterpret_cast<const char*>(datos + 1), static_cast<std::streamsize>(tamano - 1));
    try {
        const auto lista = outputs::ImportarTexto(archivo, (datos[0] & 1) != 0, carpeta);
        for (int boleto = 1; boleto <= outputs::BoletosImportados(lista); ++boleto) {
            outputs::EscrolImportado(lista, carpeta, boleto);
        }
    } catch (const base::Error&) {
    }
    return 0;
}
