#include "syndicates/pena_backup.h"

#include <array>

#include "outputs/hit_check.h"
#include "syndicates/pena_files.h"

namespace quinteva::syndicates {

bool CopiaSeguridad(const std::filesystem::path& rutaPena, std::string_view nombre,
                    base::Dialogo& dialogo) {
    const std::string pregunta =
        "Desea realizar copia de seguridad de los datos de " + std::string(nombre) + "?";
    if (dialogo.PreguntaSiNo(pregunta) != base::Respuesta::Si) return false;
    const auto carpeta = dialogo.Carpeta(kPideCarpetaCopia, rutaPena.parent_path());
    if (!carpeta || carpeta->empty()) {
        dialogo.Mensaje(kMsgSinCarpetaCopia, base::Icono::Aviso);
        return false;
    }
    try {
        const std::string archivo = rutaPena.filename().string();
        for (const std::string_view extension : {kExtJornadas, kExtApostantes, kExtPena}) {
            std::filesystem::copy_file(ArchivoPena(rutaPena, extension),
                                       ArchivoPena(*carpeta / archivo, extension),
                                       std::filesystem::copy_options::overwrite_existing);
        }
    } catch (const std::exception& e) {
        outputs::MostrarError(dialogo, e);
        return false;
    }
    dialogo.Mensaje(kMsgProcesoTerminado);
    return true;
}

}  // namespace quinteva::syndicates
