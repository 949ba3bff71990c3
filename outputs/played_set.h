#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "engine/columns.h"

namespace quinteva::outputs {

// Lo que el archivo oficial necesita de una Combinación guardada: su Jornada y el juego de
// columnas elegido en la página Boletos, que vive al lado del ".uxd".
struct JuegoJugado {
    std::uint8_t jornada = 0;
    // "cnd", "red" o blancos si no se eligió ninguno.
    std::string juego;
    // El ".cnd" si el juego es "cnd"; si no, el ".red".
    std::filesystem::path columnas;
};

// Lee la cabecera del ".uxd" como al abrirla: Error si falta, está vacío o es corto.
JuegoJugado LeerJuegoJugado(const std::filesystem::path& uxd);

// Los registros de 17 bytes de un archivo de columnas, en orden; con soloActivas, los que tienen
// "0" en el estado. Un archivo que falta no tiene columnas.
std::vector<engine::RegistroColumna> LeerColumnas(const std::filesystem::path& archivo,
                                                  bool soloActivas);

}  // namespace quinteva::outputs
