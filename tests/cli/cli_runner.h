#pragma once

#include <string>

namespace quinteva::pruebas {

// Lo que devolvió una ejecución de quinteva-cli.
struct Salida {
    int codigo = 0;
    std::string salida;
    std::string errores;
};

// Ejecuta quinteva-cli con los argumentos dados (ya entrecomillados para la shell), con las
// asignaciones de entorno "VAR='valor'" que se indiquen delante.
Salida EjecutarCli(const std::string& argumentos, const std::string& entorno = "");

}  // namespace quinteva::pruebas
