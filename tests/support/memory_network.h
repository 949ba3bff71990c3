#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "base/network.h"

namespace quinteva::pruebas {

// Un servidor del editor en memoria: páginas y archivos por ruta. Anota cada petición en orden
// ("Pedir /ruta?a=c" o "Descargar /ruta"); una ruta que no tiene da 404.
class RedEnMemoria : public base::Red {
  public:
    std::map<std::string, std::string> paginas;
    std::map<std::string, std::string> archivos;
    int errorDeConexion = 0;  // distinto de 0: ninguna petición llega
    std::vector<std::string> peticiones;

    base::Pagina Pedir(std::string_view ruta, const base::Consulta& consulta) override {
        std::string anotada(ruta);
        char separador = '?';
        for (const auto& [clave, valor] : consulta) {
            anotada += separador + clave + "=" + valor;
            separador = '&';
        }
        peticiones.push_back("Pedir " + anotada);
        if (errorDeConexion != 0) return {errorDeConexion, "Conexión rechazada", ""};
        const auto pagina = paginas.find(std::string(ruta));
        if (pagina == paginas.end()) return {404, "Not Found", ""};
        return {0, "", pagina->second};
    }

    int Descargar(std::string_view ruta, const std::filesystem::path& destino) override {
        peticiones.push_back("Descargar " + std::string(ruta));
        if (errorDeConexion != 0) return errorDeConexion;
        const auto archivo = archivos.find(std::string(ruta));
        if (archivo == archivos.end()) return 404;
        std::ofstream(destino, std::ios::binary) << archivo->second;
        return 0;
    }
};

}  // namespace quinteva::pruebas
