#include "tests/cli/cli_runner.h"

#include <sys/wait.h>

#include <cstdio>
#include <fstream>
#include <iterator>

#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {
namespace {

std::string Leer(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

}  // namespace

Salida EjecutarCli(const std::string& argumentos, const std::string& entorno) {
    const CarpetaTemporal capturas;
    const auto errores = capturas / "stderr";
    const std::string orden =
        entorno + " '" + QUINTEVA_CLI + "' " + argumentos + " 2>'" + errores.string() + "'";
    Salida resultado;
    std::FILE* tubo = ::popen(orden.c_str(), "r");
    if (tubo == nullptr) return {-1, "", "no se pudo ejecutar"};
    char bloque[4096];
    std::size_t leidos = 0;
    while ((leidos = std::fread(bloque, 1, sizeof bloque, tubo)) > 0) {
        resultado.salida.append(bloque, leidos);
    }
    const int estado = ::pclose(tubo);
    resultado.codigo = WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
    resultado.errores = Leer(errores);
    return resultado;
}

}  // namespace quinteva::pruebas
