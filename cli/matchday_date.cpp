#include "cli/matchday_date.h"

#include "base/error.h"
#include "seasons/league.h"
#include "seasons/pools.h"
#include "seasons/season_folder.h"

namespace quinteva::cli {

std::string FechaDeJornada(const std::filesystem::path& carpetaTrabajo, int jornada) {
    try {
        const auto partidos =
            seasons::PartidosDeQuiniela(seasons::CarpetaTemporadaEnCurso(carpetaTrabajo), jornada);
        return partidos.empty() ? std::string() : seasons::FechaCorta(partidos.front().fecha);
    } catch (const base::Error&) {
        return {};
    }
}

}  // namespace quinteva::cli
