#include <cstdlib>
#include <iostream>

#include "base/error.h"
#include "base/settings_ini.h"
#include "cli/commands.h"
#include "cli/json_output.h"
#include "seasons/season_folder.h"
#include "seasons/statistics.h"

namespace quinteva::cli {
namespace {

constexpr std::string_view kUsoEstadisticas =
    "estadisticas --tipo signos|rachas|parejas|trios|grupos [--posiciones P1,P2,...] [--n N] "
    "[--temporada aa/aa|Todas] [--json]";
constexpr std::string_view kUsoHistorico =
    "historico --equipo E | --equipos E1,E2 | --temporada aa/aa --division 1|2 --jornada N "
    "[--json]";

template <typename Cifras>
void Serie(std::ostream& salida, const Cifras& cifras, bool json) {
    for (std::size_t i = 0; i < cifras.size(); ++i) {
        salida << (i == 0 ? "" : json ? ", " : "\t") << cifras[i];
    }
}

// Las cifras de los tres signos: "signos" (15 posiciones) o "rachas" (n de 2 a 14).
template <typename Cuenta>
void PorSigno(std::ostream& salida, bool json, Cuenta&& cuenta) {
    salida << (json ? "{" : "");
    for (char signo : {'1', 'X', '2'}) {
        if (json) {
            salida << (signo == '1' ? "" : ", ") << '"' << signo << "\": [";
            Serie(salida, cuenta(signo), true);
            salida << ']';
        } else {
            salida << signo << '\t';
            Serie(salida, cuenta(signo), false);
            salida << '\n';
        }
    }
    salida << (json ? "}\n" : "");
}

std::vector<int> Posiciones(const Argumentos& argumentos, std::size_t cuantas) {
    std::vector<int> posiciones;
    for (const auto& p : SepararPorComas(argumentos.Exigir("posiciones", kUsoEstadisticas))) {
        const int posicion = std::atoi(p.c_str());
        if (posicion < 1 || posicion > 14) {
            throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUsoEstadisticas)};
        }
        posiciones.push_back(posicion);
    }
    if (posiciones.size() != cuantas) {
        throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUsoEstadisticas)};
    }
    return posiciones;
}

void Combinaciones(std::ostream& salida, bool json,
                   const std::vector<seasons::RegJornadaQuin>& columnas,
                   const std::vector<int>& posiciones) {
    const auto combinaciones = seasons::CombinacionesEnPosiciones(columnas, posiciones);
    if (!json) salida << seasons::EtiquetaCombinacion(posiciones) << '\n';
    salida << (json ? "{\"Etiqueta\": " + TextoJson(seasons::EtiquetaCombinacion(posiciones)) +
                          ", \"Combinaciones\": ["
                    : "");
    for (std::size_t i = 0; i < combinaciones.size(); ++i) {
        const auto& c = combinaciones[i];
        if (json) {
            salida << (i == 0 ? "" : ", ") << "{\"Signos\": " << TextoJson(c.signos)
                   << ", \"Veces\": " << c.veces << '}';
        } else {
            salida << c.signos << '\t' << c.veces << '\n';
        }
    }
    salida << (json ? "]}\n" : "");
}

seasons::BusquedaHistorico Busqueda(const Argumentos& argumentos) {
    if (const auto equipo = argumentos.Valor("equipo")) {
        return seasons::BusquedaHistorico::DeEquipo(*equipo);
    }
    if (const auto equipos = argumentos.Valor("equipos")) {
        auto dos = SepararPorComas(*equipos);
        dos.resize(2);
        return seasons::BusquedaHistorico::DePartidos(dos[0], dos[1]);
    }
    return seasons::BusquedaHistorico::DeJornada(
        argumentos.Valor("temporada").value_or(""),
        std::atoi(argumentos.Valor("division").value_or("0").c_str()),
        std::atoi(argumentos.Valor("jornada").value_or("0").c_str()));
}

}  // namespace

int Estadisticas(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, kUsoEstadisticas);
    const std::string tipo = argumentos.Exigir("tipo", kUsoEstadisticas);
    const auto carpeta = seasons::CarpetaTemporadaEnCurso(argumentos.CarpetaTrabajo());
    const auto selector = seasons::TemporadasDeJornadas(carpeta);
    const std::string temporada =
        argumentos.Valor("temporada")
            .value_or(selector.entradas[static_cast<std::size_t>(selector.elegida)]);
    const auto columnas = seasons::ColumnasDeTemporada(carpeta, temporada);
    const bool json = argumentos.Json();
    if (tipo == "signos") {
        PorSigno(salida, json, [&](char s) { return seasons::SignosPorPosicion(columnas, s); });
    } else if (tipo == "rachas") {
        PorSigno(salida, json, [&](char s) { return seasons::Rachas(columnas, s); });
    } else if (tipo == "parejas" || tipo == "trios" || tipo == "grupos") {
        const std::size_t cuantas =
            tipo == "parejas" ? 2
            : tipo == "trios" ? 3
                              : static_cast<std::size_t>(
                                    std::atoi(argumentos.Exigir("n", kUsoEstadisticas).c_str()));
        Combinaciones(salida, json, columnas, Posiciones(argumentos, cuantas));
    } else {
        throw ErrorDeUso{"Uso: quinteva-cli " + std::string(kUsoEstadisticas)};
    }
    return 0;
}

int Historico(const Argumentos& argumentos, std::ostream& salida) {
    argumentos.ExigirPosicionales(0, kUsoHistorico);
    const auto carpetaTrabajo = argumentos.CarpetaTrabajo();
    const base::AjustesIni ajustes(carpetaTrabajo);
    const auto carpeta = seasons::CarpetaTemporadaEnCurso(carpetaTrabajo);
    const auto filas = seasons::BuscarEnHistorico(
        carpetaTrabajo, Busqueda(argumentos),
        seasons::TemporadaDeCarpeta(carpeta.filename().string()), ajustes);
    const bool json = argumentos.Json();
    salida << (json ? "[" : "");
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const auto& f = filas[i];
        if (json) {
            salida << (i == 0 ? "" : ", ") << "{\"Fecha\": " << TextoJson(f.fecha)
                   << ", \"Local\": " << TextoJson(f.local)
                   << ", \"Visitante\": " << TextoJson(f.visitante)
                   << ", \"GolesLocal\": " << f.golesLocal
                   << ", \"GolesVisitante\": " << f.golesVisitante
                   << ", \"Signo\": " << TextoJson(f.signo) << '}';
        } else {
            salida << f.fecha << '\t' << f.local << '\t' << f.visitante << '\t' << f.golesLocal
                   << '\t' << f.golesVisitante << '\t' << f.signo << '\n';
        }
    }
    salida << (json ? "]\n" : "");
    return 0;
}

}  // namespace quinteva::cli
