#include "seasons/statistics.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>

#include "base/dates.h"
#include "base/error.h"
#include "base/formats.h"
#include "base/pleno_letter.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/league.h"
#include "seasons/league_results.h"
#include "seasons/season_folder.h"

namespace quinteva::seasons {
namespace fs = std::filesystem;

namespace {

constexpr std::string_view kSignos = "1X2";
constexpr std::size_t kSignosColumna = 14;

bool EnBlanco(const RegJornadaQuin& r) { return base::Recortar(r.signos).empty(); }

// Las dos primeras cifras de la Temporada ("13/14" da 13).
int AnioDeTemporada(std::string_view temporada) {
    return std::atoi(std::string(base::Recortar(temporada).substr(0, 2)).c_str());
}

bool Juega(const RegPartidoLiga& p, std::string_view equipo) {
    return base::Recortar(p.local) == equipo || base::Recortar(p.visitante) == equipo;
}

bool Buscado(const RegPartidoLiga& p, const BusquedaHistorico& b) {
    switch (b.modo) {
        case BusquedaHistorico::Modo::Equipos:
            return Juega(p, b.equipo1);
        case BusquedaHistorico::Modo::Partidos:
            return Juega(p, b.equipo1) && Juega(p, b.equipo2) && b.equipo1 != b.equipo2;
        case BusquedaHistorico::Modo::Jornadas:
            return base::Recortar(p.temporada) == b.temporada && p.division == b.division &&
                   p.jornada == b.jornada;
    }
    return false;
}

void ExigirBusqueda(const BusquedaHistorico& b) {
    switch (b.modo) {
        case BusquedaHistorico::Modo::Equipos:
            if (b.equipo1.empty()) throw base::Error(std::string(kMsgEligeEquipo));
            break;
        case BusquedaHistorico::Modo::Partidos:
            if (b.equipo1.empty() || b.equipo2.empty()) {
                throw base::Error(std::string(kMsgEligeDosEquipos));
            }
            break;
        case BusquedaHistorico::Modo::Jornadas:
            if (b.temporada.empty() || b.division == 0 || b.jornada == 0) {
                throw base::Error(std::string(kMsgEligeJornada));
            }
            break;
    }
}

}  // namespace

SelectorTemporadas TemporadasDeJornadas(const fs::path& carpetaTemporada) {
    SelectorTemporadas selector;
    for (const auto& r : base::LeerTodos<RegJornadaQuin>(carpetaTemporada / kJornadas)) {
        const std::string temporada(base::Recortar(r.temporada));
        if (temporada.empty()) continue;
        if (std::find(selector.entradas.begin(), selector.entradas.end(), temporada) ==
            selector.entradas.end()) {
            selector.entradas.push_back(temporada);
        }
    }
    selector.entradas.emplace_back(kTodas);
    selector.elegida = std::max(0, static_cast<int>(selector.entradas.size()) - 3);
    return selector;
}

std::vector<RegJornadaQuin> ColumnasDeTemporada(const fs::path& carpetaTemporada,
                                                std::string_view temporada) {
    std::vector<RegJornadaQuin> columnas;
    for (const auto& r : base::LeerTodos<RegJornadaQuin>(carpetaTemporada / kJornadas)) {
        if (EnBlanco(r)) continue;
        if (temporada != kTodas && base::Recortar(r.temporada) != base::Recortar(temporada)) {
            continue;
        }
        columnas.push_back(r);
    }
    return columnas;
}

std::array<int, 15> SignosPorPosicion(const std::vector<RegJornadaQuin>& columnas, char signo) {
    std::array<int, 15> veces{};
    for (const auto& r : columnas) {
        for (std::size_t p = 0; p < veces.size() && p < r.signos.size(); ++p) {
            if (r.signos[p] == signo) ++veces[p];
        }
    }
    return veces;
}

std::array<int, 13> Rachas(const std::vector<RegJornadaQuin>& columnas, char signo) {
    const std::string fijo(kSignosColumna, signo);
    std::array<int, 13> veces{};
    for (const auto& r : columnas) {
        const std::string_view catorce = std::string_view(r.signos).substr(0, kSignosColumna);
        for (std::size_t n = 2; n <= kSignosColumna; ++n) {
            if (catorce.find(std::string_view(fijo).substr(0, n)) != std::string_view::npos) {
                ++veces[n - 2];
            }
        }
    }
    return veces;
}

std::vector<Combinacion> CombinacionesEnPosiciones(const std::vector<RegJornadaQuin>& columnas,
                                                   const std::vector<int>& posiciones) {
    std::vector<Combinacion> combinaciones;
    std::size_t total = 1;
    for (std::size_t i = 0; i < posiciones.size(); ++i) total *= kSignos.size();
    for (std::size_t c = 0; c < total; ++c) {
        std::string signos(posiciones.size(), ' ');
        for (std::size_t i = posiciones.size(), resto = c; i-- > 0; resto /= kSignos.size()) {
            signos[i] = kSignos[resto % kSignos.size()];
        }
        combinaciones.push_back({signos, 0});
    }
    for (const auto& r : columnas) {
        std::size_t indice = 0;
        bool valida = true;
        for (int posicion : posiciones) {
            const auto p = static_cast<std::size_t>(posicion - 1);
            const std::size_t s = p < r.signos.size() ? kSignos.find(r.signos[p]) : kSignos.npos;
            valida = valida && s != kSignos.npos;
            indice = indice * kSignos.size() + (s == kSignos.npos ? 0 : s);
        }
        if (valida) ++combinaciones[indice].veces;
    }
    return combinaciones;
}

std::string EtiquetaCombinacion(const std::vector<int>& posiciones) {
    std::string etiqueta = posiciones.size() == 2   ? "Pareja "
                           : posiciones.size() == 3 ? "Trío "
                                                    : "Grupos de ";
    for (std::size_t i = 0; i < posiciones.size(); ++i) {
        etiqueta += (i == 0 ? "" : "-") + std::to_string(posiciones[i]);
    }
    return etiqueta;
}

std::vector<FilaGanadora> ColumnasGanadoras(const fs::path& carpetaTemporada,
                                            std::string_view temporada) {
    std::vector<FilaGanadora> filas;
    for (const auto& r : base::LeerTodos<RegJornadaQuin>(carpetaTemporada / kJornadas)) {
        if (base::Recortar(r.temporada) != base::Recortar(temporada)) continue;
        const char letra = r.signos.size() > kSignosColumna ? r.signos[kSignosColumna] : ' ';
        std::string columna = r.signos;
        if (AnioDeTemporada(r.temporada) >= 13 && std::isalpha(static_cast<unsigned char>(letra))) {
            const std::string par = base::LetraAPleno(std::string(1, letra));
            columna = r.signos.substr(0, kSignosColumna) +
                      (par.empty() ? "" : "/" + par.substr(0, 1) + "-" + par.substr(1, 1));
        }
        filas.push_back({r.jornada, columna});
    }
    std::stable_sort(filas.begin(), filas.end(),
                     [](const auto& a, const auto& b) { return a.jornada < b.jornada; });
    return filas;
}

std::vector<FilaHistorico> BuscarEnHistorico(const fs::path& carpetaTrabajo,
                                             const BusquedaHistorico& busqueda,
                                             std::string_view temporadaEnCurso,
                                             const base::Ajustes& ajustes) {
    ExigirBusqueda(busqueda);
    const std::array<int, 2> ultima = {
        std::atoi(ajustes.Leer(base::kAplicacion, "Valores", ClaveMaxJor(1), "0").c_str()),
        std::atoi(ajustes.Leer(base::kAplicacion, "Valores", ClaveMaxJor(2), "0").c_str())};
    std::vector<FilaHistorico> filas;
    for (const auto& p : base::LeerTodos<RegPartidoLiga>(carpetaTrabajo / kHist)) {
        if (!Buscado(p, busqueda)) continue;
        const bool enCurso = base::Recortar(p.temporada) == base::Recortar(temporadaEnCurso);
        if (enCurso && (p.division == 1 || p.division == 2) &&
            p.jornada > ultima[static_cast<std::size_t>(p.division - 1)]) {
            continue;
        }
        filas.push_back({FechaCorta(p.fecha), std::string(base::Recortar(p.local)),
                         std::string(base::Recortar(p.visitante)), p.golesLocal, p.golesVisitante,
                         SignoDeGoles(p.golesLocal, p.golesVisitante)});
    }
    return filas;
}

std::vector<std::string> TemporadasDeHistorico(const fs::path& carpetaTrabajo) {
    std::vector<std::string> temporadas;
    for (const auto& p : base::LeerTodos<RegPartidoLiga>(carpetaTrabajo / kHist)) {
        const std::string temporada(base::Recortar(p.temporada));
        if (!temporada.empty() &&
            std::find(temporadas.begin(), temporadas.end(), temporada) == temporadas.end()) {
            temporadas.push_back(temporada);
        }
    }
    return temporadas;
}

std::vector<std::string> NombresDelHistorico(const fs::path& carpetaDatos) {
    const fs::path ruta = carpetaDatos / "equipos.txt";
    std::ifstream archivo(ruta);
    if (!archivo) throw base::Error("No se encontró la ruta de acceso: " + ruta.string());
    std::vector<std::string> nombres;
    for (std::string linea; std::getline(archivo, linea);) {
        const std::string_view nombre = base::Recortar(linea);
        if (!nombre.empty()) nombres.emplace_back(nombre);
    }
    return nombres;
}

int AnadirJlig2AHistorico(const fs::path& carpetaTrabajo) {
    const auto partidos = base::LeerTodos<RegPartidoLiga>(carpetaTrabajo / kJlig2);
    base::AnexadorRegistros historia(carpetaTrabajo / kHist, RegPartidoLiga::kLongitud);
    for (const auto& p : partidos) historia.Anadir(p.ABytes());
    historia.Cerrar();
    return static_cast<int>(partidos.size());
}

int CambiarNombreEnHistorico(const fs::path& carpetaTrabajo, std::string_view existente,
                             std::string_view nuevo) {
    base::ArchivoDe<RegPartidoLiga> historia(carpetaTrabajo / kHist);
    int cambiados = 0;
    for (std::int32_t n = 1; n <= historia.Cuenta(); ++n) {
        RegPartidoLiga p = historia.Leer(n);
        const bool local = base::Recortar(p.local) == base::Recortar(existente);
        const bool visitante = base::Recortar(p.visitante) == base::Recortar(existente);
        if (!local && !visitante) continue;
        if (local) p.local = nuevo;
        if (visitante) p.visitante = nuevo;
        historia.Escribir(n, p);
        ++cambiados;
    }
    historia.Cerrar();
    return cambiados;
}

}  // namespace quinteva::seasons
