#include <sstream>

#include "base/error.h"
#include "base/program_data.h"
#include "base/record_files.h"
#include "base/working_folder.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "seasons/demo_season.h"
#include "seasons/season_folder.h"

namespace quinteva::cli {

int Temporada(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, "temporada [--carpeta DIR] [--json]");
    const auto carpetaTrabajo = argumentos.CarpetaTrabajo();
    const auto actual = seasons::TemporadaActual(carpetaTrabajo);
    const auto carpeta =
        actual ? seasons::CarpetaTemporada(carpetaTrabajo, *actual) : std::filesystem::path();

    std::ostringstream archivos;
    for (const auto& archivo : seasons::kArchivosTemporada) {
        const bool sinCarpeta = !archivo.enCarpetaTrabajo && !actual;
        const auto cuenta = sinCarpeta ? 0
                                       : base::CuentaRegistros(
                                             seasons::RutaArchivo(archivo, carpetaTrabajo, carpeta),
                                             archivo.longitud);
        if (argumentos.Json()) {
            archivos << (archivos.tellp() > 0 ? ", " : "") << TextoJson(archivo.nombre) << ": "
                     << cuenta;
        } else {
            archivos << archivo.nombre << ": " << cuenta << " registros\n";
        }
    }

    if (argumentos.Json()) {
        salida << "{\"CarpetaTrabajo\": " << TextoJson(carpetaTrabajo.string())
               << ", \"TemporadaActual\": " << (actual ? TextoJson(*actual) : "null")
               << ", \"CarpetaTemporada\": " << (actual ? TextoJson(carpeta.string()) : "null")
               << ", \"Archivos\": {" << archivos.str() << "}}\n";
        return 0;
    }
    salida << "Carpeta de trabajo: " << carpetaTrabajo.string() << '\n';
    if (actual) {
        salida << "Temporada actual: " << *actual << '\n'
               << "Carpeta de la temporada: " << carpeta.string() << '\n';
    } else {
        salida << "Temporada actual: ninguna (no hay \"Tempor.rar\")\n";
    }
    salida << archivos.str();
    return 0;
}

int Demo(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, "demo [--carpeta DIR] [--json]");
    const auto carpetaTrabajo = argumentos.CarpetaTrabajo();
    const auto datos = base::CarpetaDatosPrograma(base::CarpetaEjecutable());
    if (!seasons::TemporadaActual(datos / seasons::kCarpetaDemo)) {
        throw base::Error("El programa no trae la temporada de demostración (se buscó en " +
                          (datos / seasons::kCarpetaDemo).string() + ")");
    }
    base::AsegurarCarpeta(carpetaTrabajo);
    const bool instalada = seasons::InstalarTemporadaDemo(datos, carpetaTrabajo);
    const auto actual = seasons::TemporadaActual(carpetaTrabajo);
    if (argumentos.Json()) {
        salida << "{\"Instalada\": " << (instalada ? "true" : "false")
               << ", \"CarpetaDatos\": " << TextoJson(datos.string())
               << ", \"TemporadaActual\": " << TextoJson(actual.value_or("")) << "}\n";
        return 0;
    }
    salida << (instalada ? "Instalada la temporada de demostración: "
                         : "La carpeta de trabajo ya tenía temporada: ")
           << actual.value_or("") << '\n';
    return 0;
}

}  // namespace quinteva::cli
