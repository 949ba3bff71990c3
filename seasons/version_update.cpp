#include "seasons/version_update.h"

#include <fstream>
#include <iterator>
#include <optional>
#include <string>

#include "base/error.h"
#include "base/text1252.h"
#include "seasons/server_reply.h"
#include "seasons/update.h"

namespace quinteva::seasons {

namespace {

constexpr std::string_view kSeccion = "Opciones";
constexpr std::string_view kClaveNoActualizar = "NoActualizar";
constexpr std::string_view kListaVersiones = "VersionQVPr.txt";
constexpr std::string_view kCambios = "CambiosQVPr.txt";

std::string LeerTexto1252(const std::filesystem::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(f)), std::istreambuf_iterator<char>());
    return base::DeWindows1252(bytes);
}

// Trae los archivos de la versión nueva; falso si alguno no llega.
bool TraerArchivos(base::Red& red, base::Dialogo& dialogo, base::ExpansorZip& expansor,
                   std::string_view carpeta, const ListaDeVersiones& lista,
                   const std::filesystem::path& carpetaTrabajo) {
    for (const RegVersion& archivo : lista.aTraer) {
        if (!TraerArchivo(red, carpeta, archivo.fichero, carpetaTrabajo)) {
            dialogo.Mensaje(kMsgSinDescargaVersion, base::Icono::Error);
            return false;
        }
        if (!EsZip(archivo.fichero)) continue;
        const auto fallo =
            expansor.Expandir(carpetaTrabajo / base::Recortar(archivo.fichero), carpetaTrabajo);
        if (fallo) dialogo.Mensaje(*fallo, base::Icono::Error);
    }
    return true;
}

}  // namespace

void GuardarVersionDelPrograma(base::Ajustes& ajustes) {
    ajustes.Guardar(base::kAplicacionPrograma, "Program", "NVers",
                    std::to_string(kVersionPrograma));
}

std::string NoActualizar(const base::Ajustes& ajustes) {
    return ajustes.Leer(base::kAplicacion, kSeccion, kClaveNoActualizar, "101000");
}

bool ComprobarVersionAlArrancar(base::Red& red, base::Dialogo& dialogo,
                                const base::Ajustes& ajustes, std::int32_t versionPrograma) {
    const base::Pagina pagina = red.Pedir("/VersionActual.asp", {{"a", "c"}, {"PP", "Quint"}});
    if (pagina.error != 0) return false;
    std::optional<long> version;
    try {
        version = VersionDelServidor(pagina.html);
    } catch (const base::Error& e) {
        dialogo.Mensaje(e.what(), base::Icono::Error);
        return false;
    }
    if (!version || *version <= versionPrograma ||
        std::to_string(*version) == NoActualizar(ajustes))
        return false;
    return dialogo.PreguntaSiNo(kPreguntaVersionAlArrancar) == base::Respuesta::Si;
}

ResultadoVersion ActualizarVersion(base::Red& red, base::Dialogo& dialogo, base::Ajustes& ajustes,
                                   base::ExpansorZip& expansor, const PeticionVersion& peticion,
                                   const VerCambios& verCambios) {
    const auto carpeta = PedirCarpetaDeDescarga(red, dialogo).carpeta;
    if (!carpeta) return {};
    const auto& trabajo = peticion.carpetaTrabajo;
    if (!TraerArchivo(red, *carpeta, kListaVersiones, trabajo) ||
        !TraerArchivo(red, *carpeta, kCambios, trabajo)) {
        dialogo.Mensaje(kMsgSinDescargaVersion, base::Icono::Error);
        return {};
    }
    const ListaDeVersiones lista =
        LeerListaDeVersiones(trabajo / kListaVersiones, peticion.versionPrograma);
    const ResultadoVersion sinTraspaso{lista.ultima, false};
    if (lista.ultima <= peticion.versionPrograma) return sinTraspaso;

    if (dialogo.PreguntaSiNo(kPreguntaVerCambios) == base::Respuesta::Si &&
        verCambios(LeerTexto1252(trabajo / kCambios)) == EleccionCambios::NoActualizar) {
        ajustes.Guardar(base::kAplicacion, kSeccion, kClaveNoActualizar,
                        std::to_string(lista.ultima));
        return sinTraspaso;
    }
    if (peticion.instalacion == Instalacion::GestorDePaquetes) {
        dialogo.Mensaje(kMsgGestorDePaquetes);
        return sinTraspaso;
    }
    if (dialogo.AceptarCancelar(kAvisoInstalacion) != base::Respuesta::Aceptar) return sinTraspaso;
    return {lista.ultima, TraerArchivos(red, dialogo, expansor, *carpeta, lista, trabajo)};
}

}  // namespace quinteva::seasons
