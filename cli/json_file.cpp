#include <iostream>

#include "base/text1252.h"
#include "cli/answering_dialog.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "outputs/json_file.h"

namespace quinteva::cli {
namespace {

// Los rótulos de "Archivo JSON" y sus valores, sin los blancos de alineación.
std::vector<std::pair<std::string_view, std::string>> Filas(const outputs::CamposArchivoJson& c) {
    return {
        {"JORNADA", c.jornada},       {"AÑO", c.anio},
        {"RECEPTOR Nº", c.receptor},  {"HASH", c.hash},
        {"N.º APUESTAS", c.apuestas}, {"N.º BOLETOS", c.boletos},
        {"IMPORTE", c.importe},       {"Igual Pleno al 15 en todos los Boletos?", c.igualPleno}};
}

void Mostrar(const outputs::CamposArchivoJson& campos, bool json, std::ostream& salida) {
    std::string separador;
    if (json) salida << '{';
    for (const auto& [rotulo, valor] : Filas(campos)) {
        const std::string_view limpio = base::Recortar(valor);
        if (json) {
            salida << separador << TextoJson(rotulo) << ": " << TextoJson(limpio);
            separador = ", ";
        } else {
            salida << rotulo << ": " << limpio << '\n';
        }
    }
    if (json) salida << "}\n";
}

}  // namespace

int JsonLeer(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(1, "json-leer F.json [--json]");
    DialogoDeOrdenes dialogo(std::cerr);
    const auto archivo = outputs::AbrirArchivoJson(argumentos.Posicionales()[0], dialogo);
    Mostrar(archivo.campos, argumentos.Json(), salida);
    return 0;
}

int JsonModificar(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(
        1, "json-modificar F.json [--jornada N] [--anio AAAA] [--receptor NNNNN]");
    DialogoDeOrdenes dialogo(std::cerr);
    auto archivo = outputs::AbrirArchivoJson(argumentos.Posicionales()[0], dialogo);
    archivo.campos.jornada = argumentos.Valor("jornada").value_or(archivo.campos.jornada);
    archivo.campos.anio = argumentos.Valor("anio").value_or(archivo.campos.anio);
    archivo.campos.receptor = argumentos.Valor("receptor").value_or(archivo.campos.receptor);
    if (!outputs::Guardar(archivo, dialogo)) return 1;
    Mostrar(archivo.campos, argumentos.Json(), salida);
    return 0;
}

}  // namespace quinteva::cli
