#pragma once

#include <filesystem>
#include <string_view>

#include "base/dialog.h"
#include "outputs/print_list.h"

namespace quinteva::outputs {

inline constexpr std::string_view kFiltroPdf = "Archivo PDF (*.pdf)|*.pdf|";
inline constexpr std::string_view kPreguntaSobrescribir =
    "Ese archivo ya existe, desea sobrescribirlo?";

// "&Guardar PDF": pide el archivo; si ya existe, pregunta antes de sobrescribirlo. Devuelve si se
// guardó.
bool GuardarPdf(base::Dialogo& dialogo, const Impresion& impresion,
                const std::filesystem::path& inicial);

}  // namespace quinteva::outputs
