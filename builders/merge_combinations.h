#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/chance.h"
#include "base/dialog.h"
#include "builders/merge.h"

namespace quinteva::builders {

// "Refundir combinaciones": varias Combinaciones guardadas de una misma Jornada a un solo archivo
// de texto de columnas, sin repetidas.
inline constexpr std::string_view kTextoRefundir =
    "Esta utilidad le permite refundir varias combinaciones creadas con Quinteva, de una misma "
    "jornada, eliminando las apuestas repetidas.";
inline constexpr std::string_view kFiltroAscii = "Archivo ASCII (*.txt)|*.txt|";
inline constexpr std::string_view kFiltroCombinacion = "Combinación de Quinteva (*.uxd)|*.uxd|";
inline constexpr std::string_view kPreguntaSobrescribirRefundido =
    "Ese archivo ya existe, desea sobrescribirlo?";
inline constexpr std::string_view kMsgYaAnadida = "Esta combinación ya se ha añadido.";
inline constexpr std::string_view kMsgOtraJornada =
    "Esta combinación no es de la misma jornada que la primera añadida.";
inline constexpr std::string_view kMsgRefundirLargo =
    "Este proceso puede ser largo, en función del tamaño de las combinaciones de quinielas a "
    "refundir. El Pleno al 15 debe ser el mismo para todas las combinaciones, en todo caso se "
    "tomará el de la primera.";
inline constexpr std::string_view kMsgProcesoCancelado = "Proceso cancelado";
inline constexpr std::string_view kMsgProcesoAbortado = "Proceso abortado.";
std::string PreguntaPlenoRefundido(const engine::PlenoBase& pleno);

// Una fila de la rejilla: el nombre sin carpeta ni extensión, el archivo de columnas que se juega
// y la Jornada.
struct CombinacionARefundir {
    std::string nombre;
    std::filesystem::path columnas;
    int jornada = 0;
};

// "Nombre y dirección del Archivo a generar": la ruta elegida; si ya existe, la pregunta (No por
// defecto) y, con Sí, se borra. Nada si el usuario lo deja.
std::optional<std::filesystem::path> ElegirArchivoRefundido(base::Dialogo& dialogo,
                                                            const std::filesystem::path& carpeta);

// Las comprobaciones de una Combinación que se añade (ya añadida, sin conjunto jugado, otra
// Jornada); la fila, o nada con su mensaje.
std::optional<CombinacionARefundir> ComprobarParaRefundir(
    const std::filesystem::path& uxd, const std::vector<CombinacionARefundir>& filas,
    base::Dialogo& dialogo);

// "Añadir las combinaciones a refundir": pide el ".uxd" y lo comprueba.
std::optional<CombinacionARefundir> AnadirParaRefundir(
    const std::vector<CombinacionARefundir>& filas, const std::filesystem::path& carpeta,
    base::Dialogo& dialogo);

struct Refusion {
    std::int32_t columnas = 0;
    std::int32_t repetidas = 0;
    std::int32_t agregadas = 0;
};
std::string MsgRefundido(const Refusion& refusion);

// "Refundir": las activas de cada fila en su orden con el Pleno de la primera (que se pregunta),
// sin las repetidas (por los 14 signos), una al azar si el último boleto quedaría con una sola, y
// el archivo en la estructura elegida; con el mensaje final. Nada si se canceló o falló ("Proceso
// abortado."); lo ya escrito queda.
std::optional<Refusion> Refundir(const std::vector<CombinacionARefundir>& filas,
                                 const std::filesystem::path& salida,
                                 EstructuraRefundido estructura, base::Azar& azar,
                                 base::Dialogo& dialogo);

}  // namespace quinteva::builders
