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
// Lo mismo sin distinguir mayúsculas de minúsculas, también en las letras acentuadas y la eñe.
bool MismoTextoSinMayusculas(std::string_view a, std::string_view b);
// La clave de ese orden: el texto recortado, en Windows-1252 y en minúsculas.
std::string ClaveSinMayusculas(std::string_view texto);

}  // namespace quinteva::base
