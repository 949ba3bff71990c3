// probabilidades: la de cada premio para las columnas que se juegan de una Combinación.
#include "base/formats.h"
#include "cli/commands.h"
#include "engine/column_code.h"
#include "engine/combination_files.h"
#include "engine/prize_odds.h"
#include "outputs/played_set.h"

namespace quinteva::cli {

namespace {

constexpr std::string_view kUso =
    "probabilidades RUTA.uxd [--jugadas condicionadas|reducidas] [--json]";

// Las columnas: las que se piden; si no, el conjunto elegido en Boletos; si no, las reducidas si
// las hay y si no las condicionadas.
std::filesystem::path ArchivoJugado(const Argumentos& a, const engine::Combinacion& comb) {
    const auto cnd = engine::RutaHermana(comb.ruta, ".cnd");
    const auto red = engine::RutaHermana(comb.ruta, ".red");
    if (const auto jugadas = a.Valor("jugadas")) {
        if (*jugadas == "condicionadas") return cnd;
        if (*jugadas == "reducidas") return red;
        throw ErrorDeUso{"--jugadas es condicionadas o reducidas"};
    }
    if (comb.jugada == "cnd") return cnd;
    if (comb.jugada == "red" || std::filesystem::exists(red)) return red;
    return cnd;
}

std::string Porcentaje(double p) { return base::Formato(100.0 * p, "0.000000") + " %"; }

}  // namespace

int ProbabilidadesCmd(const Argumentos& a, std::ostream& salida) {
    a.ExigirPosicionales(1, kUso);
    engine::Combinacion comb;
    comb.ruta = a.Posicionales()[0];
    engine::CargarCabecera(comb, engine::LeerCabecera(comb.ruta));
    std::vector<std::int32_t> jugadas;
    for (const auto& r : outputs::LeerColumnas(ArchivoJugado(a, comb), true)) {
        const std::int32_t codigo = engine::CodigoColumna(r.columna);
        if (codigo >= 0) jugadas.push_back(codigo);
    }
    const auto p = engine::Probabilidades(jugadas, engine::ProbabilidadesDeLaCombinacion(comb));
    if (a.Json()) {
        salida << engine::ProbabilidadesJson(p) << '\n';
        return 0;
    }
    static constexpr const char* kNombres[6] = {"14 aciertos", "13 aciertos", "12 aciertos",
                                                "11 aciertos", "10 aciertos", "Menos de 10"};
    for (std::size_t i = 0; i < p.aciertos.size(); ++i) {
        salida << kNombres[i] << ": " << Porcentaje(p.aciertos[i]) << '\n';
    }
    salida << "Pleno al 15: " << Porcentaje(p.pleno) << '\n';
    return 0;
}

}  // namespace quinteva::cli
