#include "seasons/startup.h"

#include <algorithm>
#include <system_error>

#include "base/atomic_write.h"
#include "base/error.h"
#include "base/formats.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/league.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"

namespace quinteva::seasons {
namespace {

void CopiarSiFalta(const std::filesystem::path& origen, const std::filesystem::path& destino) {
    std::error_code error;
    if (!std::filesystem::exists(origen) || std::filesystem::exists(destino)) return;
    std::filesystem::copy_file(origen, destino, error);
    if (error)
        throw base::Error("No se pudo copiar " + origen.filename().string() + " a " +
                          destino.parent_path().string());
}

}  // namespace

void MoverArchivosDescargados(const std::filesystem::path& carpetaPrograma,
                              const std::filesystem::path& carpetaTrabajo,
                              const std::filesystem::path& carpetaTemporada) {
    for (const std::string_view nombre : {kJlig2, kJquin, kJornadas, kNomeq}) {
        CopiarSiFalta(carpetaPrograma / nombre, carpetaTemporada / nombre);
        // "Jlig2.rar" se queda en la carpeta del programa: se borra el de la carpeta de trabajo.
        base::BorrarArchivo(nombre == kJlig2 ? carpetaTrabajo / nombre : carpetaPrograma / nombre);
    }
}

std::pair<int, int> ContarEquipos(const std::filesystem::path& carpetaTemporada,
                                  base::Ajustes& ajustes) {
    const base::ArchivoDe<RegEquipo> nomeq(carpetaTemporada / kNomeq);
    int primera = 0;
    int segunda = 0;
    for (std::int32_t n = 1; n <= nomeq.Cuenta(); ++n) {
        const int division = nomeq.Leer(n).division;
        primera += division == 1 ? 1 : 0;
        segunda += division == 2 ? 1 : 0;
    }
    ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", std::to_string(primera));
    ajustes.Guardar(base::kAplicacion, "Valores", "NEq2", std::to_string(segunda));
    return {primera, segunda};
}

std::vector<int> ListaJornadas(const std::filesystem::path& carpetaTemporada) {
    const base::ArchivoDe<RegPartidoQuin> jquin(carpetaTemporada / kJquin);
    std::array<bool, kUltimaJornadaLista + 1> hay{};
    for (std::int32_t n = 1; n <= jquin.Cuenta(); ++n) {
        const int jornada = jquin.Leer(n).jornada;
        if (jornada >= kPrimeraJornadaLista && jornada <= kUltimaJornadaLista) {
            hay[static_cast<std::size_t>(jornada)] = true;
        }
    }
    std::vector<int> jornadas;
    for (int j = kPrimeraJornadaLista; j <= kUltimaJornadaLista; ++j) {
        if (hay[static_cast<std::size_t>(j)]) jornadas.push_back(j);
    }
    return jornadas;
}

JornadaQuiniela LeerJornadaQuiniela(const std::filesystem::path& carpetaTemporada, int jornada) {
    const base::ArchivoDe<RegPartidoQuin> jquin(carpetaTemporada / kJquin);
    JornadaQuiniela j;
    j.jornada = jornada;
    for (std::int32_t n = 1; n <= jquin.Cuenta(); ++n) {
        const RegPartidoQuin r = jquin.Leer(n);
        if (r.jornada != jornada || r.partido < 1 || r.partido > 15) continue;
        auto& partido = j.partidos[static_cast<std::size_t>(r.partido - 1)];
        partido.equipos =
            std::string(base::Recortar(r.local)) + " - " + std::string(base::Recortar(r.visitante));
        partido.division = r.division;
        j.fecha = FechaCorta(r.fecha);
    }
    return j;
}

TemporadaPreparada PrepararTemporada(const std::filesystem::path& carpetaPrograma,
                                     const std::filesystem::path& carpetaTrabajo,
                                     base::Ajustes& ajustes) {
    TemporadaPreparada t;
    t.carpetaTemporada = CarpetaTemporadaEnCurso(carpetaTrabajo);
    t.temporadaActual = t.carpetaTemporada.filename().string();
    std::error_code error;
    std::filesystem::create_directories(t.carpetaTemporada, error);
    if (error) throw base::Error("No se pudo crear la carpeta " + t.carpetaTemporada.string());
    MoverArchivosDescargados(carpetaPrograma, carpetaTrabajo, t.carpetaTemporada);
    std::tie(t.equipos1, t.equipos2) = ContarEquipos(t.carpetaTemporada, ajustes);
    const MaximasJornadas maximas = MaxJornada(t.carpetaTemporada, ajustes);
    t.maxJornada1 = maximas.primera;
    t.maxJornada2 = maximas.segunda;
    t.jornadas = ListaJornadas(t.carpetaTemporada);
    return t;
}

}  // namespace quinteva::seasons
