#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <span>
#include <string_view>

namespace quinteva::base {

// Pone los bytes en el archivo abierto; true si entraron todos. El de verdad es fwrite; las
// pruebas dan uno que falla a mitad, como un disco que se llena o un corte.
using Volcar = std::function<bool(std::FILE* archivo, std::string_view bytes)>;
bool VolcarEnDisco(std::FILE* archivo, std::string_view bytes);

// Escribe el archivo entero en uno temporal a su lado y lo renombra encima: si algo falla a
// mitad (disco lleno, corte), el archivo anterior del usuario sigue intacto.
void EscribirAtomico(const std::filesystem::path& ruta, std::string_view contenido,
                     const Volcar& volcar = VolcarEnDisco);

// Copia los primeros bytes de origen (que los tiene) a ruta de la misma manera: por un temporal a
// su lado, que el sistema copia sin pasar por la memoria del programa, y un renombrado.
void CopiarAtomico(const std::filesystem::path& origen, const std::filesystem::path& ruta,
                   std::uintmax_t bytes);

// Copia el archivo entero a ruta como CopiarAtomico, leyéndolo una sola vez por trozos: "ver"
// recibe cada trozo antes de que se escriba (para contar o resumir de paso).
using VerTrozo = std::function<void(std::span<const unsigned char> trozo)>;
void CopiarAtomicoViendo(const std::filesystem::path& origen, const std::filesystem::path& ruta,
                         const VerTrozo& ver);

// Borra el archivo si está; Error "No se pudo borrar ..." si no se pudo.
void BorrarArchivo(const std::filesystem::path& ruta);

// Ruta temporal al lado de la ruta dada, para quien escribe por su cuenta y renombra después.
std::filesystem::path RutaTemporalJunto(const std::filesystem::path& ruta);

// Renombra el temporal sobre el destino; lanza Error si no se pudo.
void Reemplazar(const std::filesystem::path& temporal, const std::filesystem::path& destino);

}  // namespace quinteva::base
