#include <cstdlib>
#include <iostream>

#include "base/dates.h"
#include "base/error.h"
#include "base/formats.h"
#include "base/text1252.h"
#include "cli/answering_dialog.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "seasons/league.h"
#include "seasons/pools.h"
#include "seasons/season_folder.h"

namespace quinteva::cli {
namespace {

constexpr std::string_view kUsoQuiniela = "quiniela --jornada N [--json]";
constexpr std::string_view kUsoQuinielaResultados =
    "quiniela-resultados --jornada N --signos 1X2... (14) --pleno L-V";

void PartidoJson(const seasons::RegPartidoQuin& q, std::ostream& salida) {
    salida << "{\"Jornada\": " << q.jornada
           << ", \"Fecha\": " << TextoJson(seasons::FechaCorta(q.fecha))
           << ", \"Partido\": " << q.partido
           << ", \"Temporada\": " << TextoJson(base::Recortar(q.temporada))
           << ", \"JornadaDiv1\": " << q.jornadaDiv1 << ", \"JornadaDiv2\": " << q.jornadaDiv2
           << ", \"Division\": " << q.division
           << ", \"Local\": " << TextoJson(base::Recortar(q.local))
           << ", \"Visitante\": " << TextoJson(base::Recortar(q.visitante))
           << ", \"Signo\": " << TextoJson(base::Recortar(q.signo)) << '}';
}

int Jornada(const Argumentos& argumentos, std::string_view uso) {
    const int jornada = std::atoi(argumentos.Exigir("jornada", uso).c_str());
    if (jornada < 1 || jornada > 255) throw ErrorDeUso{"Uso: quinteva-cli " + std::string(uso)};
    return jornada;
}

}  // namespace

int Quiniela(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, kUsoQuiniela);
    const int jornada = Jornada(argumentos, kUsoQuiniela);
    const auto partidos = seasons::PartidosDeQuiniela(
        seasons::CarpetaTemporadaEnCurso(argumentos.CarpetaTrabajo()), jornada);
    if (partidos.empty()) {
        throw base::Error("No hay partidos de la Jornada " + std::to_string(jornada));
    }
    if (argumentos.Json()) {
        salida << '[';
        for (std::size_t i = 0; i < partidos.size(); ++i) {
            salida << (i == 0 ? "" : ", ");
            PartidoJson(partidos[i], salida);
        }
        salida << "]\n";
        return 0;
    }
    salida << "JORNADA " << jornada << ",  Fecha " << seasons::FechaCorta(partidos.front().fecha)
           << '\n';
    for (const auto& q : partidos) {
        salida << q.partido << '\t' << base::Recortar(q.local) << '\t'
               << base::Recortar(q.visitante) << '\t' << q.division << '\t'
               << base::Recortar(q.signo) << '\n';
    }
    return 0;
}

int QuinielaResultados(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, kUsoQuinielaResultados);
    const int jornada = Jornada(argumentos, kUsoQuinielaResultados);
    const std::string signos = argumentos.Exigir("signos", kUsoQuinielaResultados);
    const std::string pleno = argumentos.Exigir("pleno", kUsoQuinielaResultados);
    const auto carpeta = seasons::CarpetaTemporadaEnCurso(argumentos.CarpetaTrabajo());
    DialogoDeOrdenes dialogo(std::cerr);
    seasons::VentanaResultadosQuiniela v(
        carpeta, seasons::TemporadaDeCarpeta(carpeta.filename().string()), dialogo);
    v.ElegirJornada(jornada);
    for (int p = 0; p < seasons::kPartidosBoleto - 1; ++p) {
        const std::string signo = p < static_cast<int>(signos.size())
                                      ? signos.substr(static_cast<std::size_t>(p), 1)
                                      : std::string();
        if (!v.EscribirSigno(p, signo == "-" ? "" : signo)) {
            throw base::Error("Los signos son 1, X o 2: " + signos);
        }
    }
    if (signos.size() > seasons::kPartidosBoleto - 1 ||
        !v.EscribirSigno(seasons::kPartidosBoleto - 1, pleno)) {
        throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUsoQuinielaResultados)};
    }
    if (!v.Guardar()) return 1;
    salida << "Resultados de la Jornada " << jornada << " de Quinielas guardados\n";
    return 0;
}

}  // namespace quinteva::cli
