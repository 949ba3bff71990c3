#include "seasons/league_cleanup.h"

#include <string>

#include "base/atomic_write.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"

namespace quinteva::seasons {

int DepurarLiga(const std::filesystem::path& carpetaTemporada, std::string_view temporada) {
    const auto ruta = carpetaTemporada / kJlig2;
    std::string depurado;
    int quitados = 0;
    {
        base::LectorRegistros lector(ruta, RegPartidoLiga::kLongitud);
        for (auto bytes = lector.Siguiente(); !bytes.empty(); bytes = lector.Siguiente()) {
            const RegPartidoLiga p = RegPartidoLiga::DeBytes(bytes);
            if (base::Recortar(p.temporada) != base::Recortar(temporada)) {
                ++quitados;
                continue;
            }
            depurado.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        }
    }
    base::EscribirAtomico(carpetaTemporada / kJlig2Bak, depurado);
    base::EscribirAtomico(ruta, depurado);
    return quitados;
}

}  // namespace quinteva::seasons
