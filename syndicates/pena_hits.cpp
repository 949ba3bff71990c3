#include "syndicates/pena_hits.h"

#include "outputs/hit_check.h"
#include "syndicates/pena_files.h"
#include "syndicates/pena_store.h"

namespace quinteva::syndicates {

namespace {

// Donde se elige la Peña: la carpeta de Peñas de la temporada en curso, si no la de todas las
// Peñas, si no la carpeta de trabajo.
std::filesystem::path CarpetaParaElegir(const std::filesystem::path& carpetaTrabajo) {
    try {
        const auto temporada = CarpetaDePenas(carpetaTrabajo);
        if (std::filesystem::is_directory(temporada)) return temporada;
    } catch (const std::exception&) {
        // Sin temporada en curso, la carpeta de todas.
    }
    const auto penas = carpetaTrabajo / kCarpetaPenas;
    return std::filesystem::is_directory(penas) ? penas : carpetaTrabajo;
}

}  // namespace

bool CopiarAPena(const std::filesystem::path& carpetaTrabajo, int jornada,
                 const outputs::TablaAciertos& tabla, base::Dialogo& dialogo) {
    try {
        if (dialogo.PreguntaSiNo(kPreguntaAPena, base::Respuesta::No) != base::Respuesta::Si) {
            return false;
        }
        const auto nmp =
            dialogo.ArchivoParaAbrir("", kFiltroPena, CarpetaParaElegir(carpetaTrabajo));
        if (!nmp || nmp->empty()) return false;
        const ArchivosPena pena(std::filesystem::path(*nmp).replace_extension());
        RegJornadaPena registro = pena.LeerJornada(jornada);
        for (std::size_t i = 0; i < registro.acertadas.size(); ++i) {
            registro.acertadas[i] = tabla.cuentas[i];
        }
        pena.GuardarJornada(jornada, registro);
    } catch (const std::exception& e) {
        outputs::MostrarError(dialogo, e);
        return false;
    }
    dialogo.Mensaje(kMsgDatosCopiados);
    return true;
}

}  // namespace quinteva::syndicates
