#pragma once

#include <filesystem>

namespace quinteva::ui {

// Dónde se abre un diálogo de archivos o de carpetas: en la carpeta de la ruta dada, si la trae y
// existe; si no, en la última que eligió el usuario, si existe; si no, en sus documentos. El
// nombre de archivo de la ruta dada, si lo trae, se conserva. Nunca en la carpeta actual, que es
// la del programa, donde no se deben guardar las combinaciones.
std::filesystem::path CarpetaDelDialogo(const std::filesystem::path& dada,
                                        const std::filesystem::path& ultima,
                                        const std::filesystem::path& documentos);

// Los documentos del usuario; su carpeta personal si no tiene la de documentos.
std::filesystem::path DocumentosDelUsuario();

}  // namespace quinteva::ui
