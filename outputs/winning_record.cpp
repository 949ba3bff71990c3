#include "outputs/winning_record.h"

#include "base/record_files.h"
#include "base/text1252.h"
#include "outputs/hit_check.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"

namespace quinteva::outputs {
namespace {

using seasons::RegJornadaQuin;
using seasons::RegPartidoQuin;

constexpr int kFilas = 15;

// El número del registro de la Jornada y la Temporada; 0 si no está.
std::int32_t BuscarJornada(const base::ArchivoDe<RegJornadaQuin>& jornadas,
                           std::string_view temporada, int jornada) {
    for (std::int32_t n = 1; n <= jornadas.Cuenta(); ++n) {
        const RegJornadaQuin r = jornadas.Leer(n);
        if (r.jornada == jornada && base::MismoTexto(r.temporada, temporada)) return n;
    }
    return 0;
}

void EscribirJornadas(const std::filesystem::path& carpetaTemporada, std::string_view temporada,
                      int jornada, const std::string& resultado) {
    base::ArchivoDe<RegJornadaQuin> jornadas(carpetaTemporada / seasons::kJornadas);
    const std::int32_t n = BuscarJornada(jornadas, temporada, jornada);
    const RegJornadaQuin registro{std::string(temporada), jornada, resultado};
    if (n == 0) {
        jornadas.Anadir(registro);
    } else {
        jornadas.Escribir(n, registro);
    }
    jornadas.Cerrar();
}

void EscribirPartidos(const std::filesystem::path& carpetaTemporada, int jornada,
                      const std::string& resultado) {
    base::ArchivoDe<RegPartidoQuin> jquin(carpetaTemporada / seasons::kJquin);
    for (std::int32_t n = 1; n <= jquin.Cuenta(); ++n) {
        RegPartidoQuin partido = jquin.Leer(n);
        if (partido.jornada != jornada || partido.partido < 1 || partido.partido > kFilas) {
            continue;
        }
        partido.signo = std::string(1, resultado[static_cast<std::size_t>(partido.partido - 1)]);
        jquin.Escribir(n, partido);
    }
    jquin.Cerrar();
}

}  // namespace

AperturaAciertos AbrirAciertos(const std::filesystem::path& carpetaTemporada,
                               std::string_view temporada, int jornada,
                               const std::filesystem::path& rutaCombinacion) {
    AperturaAciertos apertura;
    const auto ruta = carpetaTemporada / seasons::kJornadas;
    if (base::CuentaRegistros(ruta, RegJornadaQuin::kLongitud) == 0) return apertura;
    const base::ArchivoDe<RegJornadaQuin> jornadas(ruta);
    const std::int32_t n = BuscarJornada(jornadas, temporada, jornada);
    if (n == 0) return apertura;
    const std::string resultado = jornadas.Leer(n).signos;
    apertura.encontrada = apertura.aciertos = apertura.otras = apertura.avance = true;
    apertura.rejilla = RejillaDeResultado(resultado);
    apertura.ganadora = GanadoraDeResultado(resultado);
    if (ResultadoIncompleto(resultado)) {
        apertura.aciertos = apertura.otras = false;
        apertura.posibilidad = true;
    }
    if (rutaCombinacion.empty()) apertura.aciertos = false;
    return apertura;
}

std::optional<GanadoraGuardada> GuardarGanadora(const std::filesystem::path& carpetaTemporada,
                                                std::string_view temporada, int jornada,
                                                const RejillaGanadora& rejilla,
                                                base::Dialogo& dialogo) {
    try {
        const std::string resultado = ResultadoDeRejilla(rejilla);
        EscribirJornadas(carpetaTemporada, temporada, jornada, resultado);
        EscribirPartidos(carpetaTemporada, jornada, resultado);
        return GanadoraGuardada{GanadoraDeResultado(resultado), ResultadoIncompleto(resultado)};
    } catch (const std::exception& e) {
        MostrarError(dialogo, e);
        return std::nullopt;
    }
}

}  // namespace quinteva::outputs
