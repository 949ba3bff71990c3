#include "seasons/update.h"

#include <system_error>

#include "base/atomic_write.h"
#include "base/error.h"
#include "base/text1252.h"
#include "seasons/season_folder.h"
#include "seasons/server_reply.h"

namespace quinteva::seasons {

namespace {

constexpr std::string_view kSeccion = "Opciones";
constexpr std::string_view kClaveServidor = "ServidorActualizaciones";

// Copia encima sin dejar a medias la de la temporada: primero junto a ella, luego se renombra.
void CopiarEncima(const std::filesystem::path& origen, const std::filesystem::path& destino) {
    try {
        base::CopiarAtomico(origen, destino, std::filesystem::file_size(origen));
    } catch (const std::exception&) {
        throw base::Error("No se pudo copiar " + origen.filename().string() + " a " +
                          destino.parent_path().string());
    }
}

}  // namespace

std::string_view TextoDelPaso(PasoActualizacion paso) {
    switch (paso) {
        case PasoActualizacion::Descargando:
            return "Descargando...";
        case PasoActualizacion::Actualizando:
            return "Actualizando...";
        case PasoActualizacion::Completa:
            return "Actualización completa !!";
        case PasoActualizacion::SinConexion:
            break;
    }
    return "Error: No se ha podido realizar la actualización";
}

std::optional<std::string> ServidorDeActualizaciones(const base::Ajustes& ajustes) {
    const std::string servidor(
        base::Recortar(ajustes.Leer(base::kAplicacion, kSeccion, kClaveServidor, "")));
    if (servidor.empty()) return std::nullopt;
    if (servidor.find("://") == std::string::npos) return "https://" + servidor;
    return servidor;
}

void GuardarServidorDeActualizaciones(base::Ajustes& ajustes, std::string_view servidor) {
    ajustes.Guardar(base::kAplicacion, kSeccion, kClaveServidor, base::Recortar(servidor));
}

std::string RutaEnServidor(std::string_view carpeta, std::string_view fichero) {
    if (carpeta.starts_with('/')) carpeta.remove_prefix(1);
    std::string ruta = "/";
    if (!carpeta.empty()) ruta.append(carpeta).append("/");
    ruta.append("Quinteva/");
    ruta.append(base::Recortar(fichero));
    return ruta;
}

bool TraerArchivo(base::Red& red, std::string_view carpeta, std::string_view fichero,
                  const std::filesystem::path& carpetaTrabajo) {
    const auto destino = carpetaTrabajo / base::Recortar(fichero);
    std::error_code error;
    return red.Descargar(RutaEnServidor(carpeta, fichero), destino) == 0 &&
           std::filesystem::exists(destino, error);
}

std::string TextoErrorDeConexion(const base::Pagina& pagina) {
    return "Error: " + std::to_string(pagina.error) + ":" + pagina.textoError;
}

CarpetaDeDescarga PedirCarpetaDeDescarga(base::Red& red, base::Dialogo& dialogo) {
    const base::Pagina pagina = red.Pedir(kPaginaCarpeta, {{"a", "c"}});
    if (pagina.error != 0) {
        dialogo.Mensaje(TextoErrorDeConexion(pagina), base::Icono::Error);
        return {true, std::nullopt};
    }
    return {false, CarpetaDeActualizacion(pagina.html)};
}

bool ActualizarTemporada(base::Red& red, base::Dialogo& dialogo,
                         const std::filesystem::path& carpetaTrabajo,
                         const std::filesystem::path& carpetaTemporada,
                         const std::function<void(PasoActualizacion)>& paso) {
    const auto [sinConexion, carpeta] = PedirCarpetaDeDescarga(red, dialogo);
    if (sinConexion) paso(PasoActualizacion::SinConexion);
    if (!carpeta) return false;

    paso(PasoActualizacion::Descargando);
    for (const std::string_view nombre : {kJlig2, kJquin, kJornadas, kNomeq, kHist}) {
        base::BorrarArchivo(carpetaTrabajo / nombre);
    }
    for (const std::string_view nombre : {kJlig2, kJquin, kJornadas, kNomeq}) {
        if (!TraerArchivo(red, *carpeta, nombre, carpetaTrabajo)) {
            dialogo.Mensaje(kMsgSinDescarga, base::Icono::Error);
            return false;
        }
    }
    // "Hist.rar" vive en la carpeta de trabajo: si no llega, se sigue sin él.
    TraerArchivo(red, *carpeta, kHist, carpetaTrabajo);

    paso(PasoActualizacion::Actualizando);
    for (const std::string_view nombre : {kJlig2, kJquin, kJornadas, kNomeq}) {
        CopiarEncima(carpetaTrabajo / nombre, carpetaTemporada / nombre);
    }
    paso(PasoActualizacion::Completa);
    return true;
}

}  // namespace quinteva::seasons
