#include "syndicates/pena_hits.h"

#include "base/record_files.h"
#include "outputs/hit_check.h"
#include "syndicates/pena_files.h"

namespace quinteva::syndicates {

bool CopiarAPena(const std::filesystem::path& carpetaTrabajo, int jornada,
                 const outputs::TablaAciertos& tabla, base::Dialogo& dialogo) {
    try {
        if (dialogo.PreguntaSiNo(kPreguntaAPena, base::Respuesta::No) != base::Respuesta::Si) {
            return false;
        }
        const auto penas = carpetaTrabajo / kCarpetaPenas;
        const auto nmp = dialogo.ArchivoParaAbrir(
            "", kFiltroPena, std::filesystem::is_directory(penas) ? penas : carpetaTrabajo);
        if (!nmp || nmp->empty()) return false;
        base::ArchivoDe<RegJornadaPena> jrn(
            std::filesystem::path(*nmp).replace_extension(kExtJornadas));
        RegJornadaPena registro = jrn.Leer(jornada);
        for (std::size_t i = 0; i < registro.acertadas.size(); ++i) {
            registro.acertadas[i] = tabla.cuentas[i];
        }
        jrn.Escribir(jornada, registro);
        jrn.Cerrar();
    } catch (const std::exception& e) {
        outputs::MostrarError(dialogo, e);
        return false;
    }
    dialogo.Mensaje(kMsgDatosCopiados);
    return true;
}

}  // namespace quinteva::syndicates
