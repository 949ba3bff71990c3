#pragma once

#include <string>
#include <string_view>

namespace quinteva::base {

// El programa trabaja en UTF-8 y los archivos guardan texto en Windows-1252, un byte por carácter.
// Un carácter que no está en la página de códigos se guarda como "?": nunca es un fallo.
std::string AWindows1252(std::string_view utf8);
std::string DeWindows1252(std::string_view bytes);

// Quita los blancos de los dos lados, como hacen los lectores de los campos text(n).
std::string_view Recortar(std::string_view texto);

// Los campos text(n) se comparan recortados.
bool MismoTexto(std::string_view a, std::string_view b);

}  // namespace quinteva::base
