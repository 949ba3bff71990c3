// probabilidades: la de cada premio para las columnas que se juegan de una Combinación.
#include "cli/commands.h"
#include "engine/combination_files.h"
#include "engine/prize_odds.h"

namespace quinteva::cli {

namespace {

constexpr std::string_view kUso =
    "probabilidades RUTA.uxd [--jugadas condicionadas|reducidas] [--pleno PORCENTAJE] [--json]";

// --pleno: la probabilidad, en tanto por ciento, del resultado jugado del Pleno al 15.
double ProbabilidadDelPleno(const Argumentos& a) {
    const auto texto = a.Valor("pleno");
    if (!texto) return engine::kPlenoUniforme;
    const auto valor = NumeroDecimal(*texto);
    if (valor && *valor >= 0 && *valor <= 100) return *valor / 100;
    throw ErrorDeUso{"--pleno es un tanto por ciento de 0 a 100: " + *texto};
}

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

}  // namespace

int ProbabilidadesCmd(const Argumentos& a, std::ostream& salida) {
    a.ExigirPosicionales(1, kUso);
    engine::Combinacion comb;
    comb.ruta = a.Posicionales()[0];
    engine::CargarCabecera(comb, engine::LeerCabecera(comb.ruta));
    auto p = engine::ProbabilidadesDeArchivo(comb, ArchivoJugado(a, comb));
    engine::PonerPleno(p, ProbabilidadDelPleno(a));
    if (a.Json()) {
        salida << engine::ProbabilidadesJson(p) << '\n';
        return 0;
    }
    for (const auto& [nombre, valor] : engine::FilasProbabilidades(p)) {
        salida << nombre << ": " << valor << '\n';
    }
    return 0;
}

}  // namespace quinteva::cli
