#include <iostream>

#include "cli/commands.h"
#include "cli/json_output.h"
#include "cli/private_folder.h"
#include "engine/columns.h"
#include "outputs/import_list.h"

namespace quinteva::cli {

namespace {

constexpr std::string_view kUso = "importar F.json|F.txt [--sin-pleno] [--json]";

std::string Pleno(const engine::PlenoBase& pleno) { return {pleno[0], '-', pleno[1]}; }

}  // namespace

int Importar(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(1, kUso);
    const std::filesystem::path archivo = argumentos.Posicionales()[0];
    const CarpetaDeAlmacenes almacenes(argumentos);
    const bool json = archivo.extension() == ".json";
    const outputs::ListaImportada lista =
        json ? outputs::ImportarJson(archivo, almacenes.Ruta())
             : outputs::ImportarTexto(archivo, !argumentos.Marca("sin-pleno"), almacenes.Ruta());
    const auto columnas = outputs::LeerImportadas(almacenes.Ruta());
    if (argumentos.Json()) {
        salida << "{\"Columnas\": " << columnas.size()
               << ", \"Boletos\": " << outputs::BoletosImportados(lista) << ", \"Lista\": [";
        for (std::size_t n = 0; n < columnas.size(); ++n) {
            salida << (n == 0 ? "" : ", ") << "{\"Columna\": " << n + 1
                   << ", \"Signos\": " << TextoJson(engine::TextoDeColumna(columnas[n].columna))
                   << ", \"Pleno\": " << TextoJson(Pleno(columnas[n].pleno)) << '}';
        }
        salida << "]}\n";
        return 0;
    }
    salida << "Columnas importadas: " << columnas.size()
           << "\nBoletos: " << outputs::BoletosImportados(lista) << '\n';
    for (std::size_t n = 0; n < columnas.size(); ++n) {
        salida << n + 1 << '\t' << engine::TextoDeColumna(columnas[n].columna) << '\t'
               << Pleno(columnas[n].pleno) << '\n';
    }
    return 0;
}

}  // namespace quinteva::cli
