#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/dialog.h"
#include "base/record_files.h"
#include "engine/combination.h"

namespace quinteva::builders {

// "Estructura Archivo resultante": la forma de cada columna en un archivo de texto, sin cabecera.
// El número es el código de la ventana "Quinteva [Tipo de archivo]" (0 es "&Cancelar").
enum class EstructuraRefundido {
    Separadores = 1,  // "Texto con separadores": 14 signos, 2 del Pleno y CR (17 bytes)
    Columna = 2,      // "Texto en columna": lo mismo y CR LF (18 bytes)
    Continuo = 3,     // "Texto continuo": 14 signos y 2 del Pleno, seguidos (16 bytes)
};

std::size_t LongitudRegistroTexto(EstructuraRefundido estructura);
// Una columna con su Pleno en la forma dada.
std::string RegistroTexto(const engine::Columna& columna, const engine::PlenoBase& pleno,
                          EstructuraRefundido estructura);

// La añade al final de un archivo de registros de texto de esa forma.
void AnadirRegistroTexto(base::AnexadorRegistros& destino, const engine::Columna& columna,
                         const engine::PlenoBase& pleno, EstructuraRefundido estructura);

inline constexpr std::string_view kFiltroTxt = "Archivo de texto (*.txt)|*.txt|";
inline constexpr std::string_view kPreguntaTxtExiste =
    "Ya existe en esa carpeta un archivo con el mismo nombre. Desea sobrescribirlo?";
inline constexpr std::string_view kMsgSinBoletos =
    "En esta combinación no se han generado los boletos. Debe abrir la combinación con Quinteva "
    "y entrar en el último botón verde, Boletos, marcando si se juega la combinación "
    "Condicionada o la Reducida.";

// Escribe en "salida" las columnas activas del archivo de columnas, en su orden, cada una con el
// Pleno dado; por un temporal que se renombra encima. Devuelve cuántas escribió.
std::int32_t EscribirArchivoTxt(const std::filesystem::path& columnas,
                                const engine::PlenoBase& pleno, EstructuraRefundido estructura,
                                const std::filesystem::path& salida);

// "Generar archivo txt" de la página Boletos, con el código ya elegido en la ventana del tipo
// (0 no hace nada): pide la ruta, pregunta si se sobrescribe y escribe las columnas activas del
// ".cnd" o del ".red" de la Combinación guardada, con su PlenoBase. Devuelve cuántas escribió, o
// nada si el usuario lo dejó.
std::optional<std::int32_t> GenerarArchivoTxt(const engine::Combinacion& combinacion, int codigo,
                                              base::Dialogo& dialogo);

}  // namespace quinteva::builders
