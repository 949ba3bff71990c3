#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/dialog.h"
#include "base/network.h"
#include "base/settings.h"

namespace quinteva::seasons {

inline constexpr std::string_view kMsgSinDescarga = "No ha sido posible realizar la descarga.";
inline constexpr std::string_view kPaginaCarpeta = "/QVactualizar.asp";

// Los pasos de "Actualización de Resultados, Jornadas de Liga y de Quinielas", uno tras otro.
enum class PasoActualizacion { Descargando, Actualizando, Completa, SinConexion };
std::string_view TextoDelPaso(PasoActualizacion paso);

// La dirección del servidor del editor: un ajuste, vacío de fábrica. Sin ella no se pide nada a la
// red. Sin esquema se entiende https.
std::optional<std::string> ServidorDeActualizaciones(const base::Ajustes& ajustes);
void GuardarServidorDeActualizaciones(base::Ajustes& ajustes, std::string_view servidor);

// La ruta de un archivo publicado: carpeta & "/Quinteva/" & fichero.
std::string RutaEnServidor(std::string_view carpeta, std::string_view fichero);

// Trae un archivo publicado (nombre recortado) a la carpeta de trabajo: bien si la descarga da 0
// y el archivo está.
bool TraerArchivo(base::Red& red, std::string_view carpeta, std::string_view fichero,
                  const std::filesystem::path& carpetaTrabajo);

// El texto de un error de conexión del cliente: "Error: " & código & ":" & texto.
std::string TextoErrorDeConexion(const base::Pagina& pagina);

// La carpeta de las descargas según "/QVactualizar.asp". Un error de conexión se dice con su
// código y su texto; una respuesta sin código 1 no da carpeta y no se hace nada.
struct CarpetaDeDescarga {
    bool sinConexion = false;
    std::optional<std::string> carpeta;
};
CarpetaDeDescarga PedirCarpetaDeDescarga(base::Red& red, base::Dialogo& dialogo);

// Sustituye los archivos de la temporada por los del servidor: borra los cinco de la carpeta de
// trabajo, trae "Jlig2.rar", "Jquin.rar", "Jornadas.rar" y "Nomeq.rar" (el primero que falla
// detiene la actualización) y luego "Hist.rar" (su fallo no para), y copia los cuatro a la carpeta
// de la temporada. Devuelve si hay que recargar los datos al cerrar la ventana.
bool ActualizarTemporada(base::Red& red, base::Dialogo& dialogo,
                         const std::filesystem::path& carpetaTrabajo,
                         const std::filesystem::path& carpetaTemporada,
                         const std::function<void(PasoActualizacion)>& paso);

}  // namespace quinteva::seasons
