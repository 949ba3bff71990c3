#include "builders/automatic_percent.h"

#include <cmath>
#include <cstdlib>

#include "base/formats.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "builders/match_info.h"
#include "seasons/season_folder.h"

namespace quinteva::builders {
namespace {

// Al entero más cercano; en los empates, al par.
int Entero(double valor) { return static_cast<int>(std::nearbyint(valor)); }

// Con el formato "##0": la mitad se aleja del cero.
int Formato0(double valor) { return std::stoi(base::Formato(valor, "##0")); }

int MaxJornada(const base::Ajustes& ajustes, int division) {
    try {
        return std::stoi(ajustes.Leer(base::kAplicacion, "Valores",
                                      division == 1 ? "MaxJor1ª" : "MaxJor2ª", "0"));
    } catch (const std::exception&) {
        return 0;
    }
}

// Un equipo que no está en "Nomeq.rar" cuenta con todas sus cifras a cero.
seasons::RegEquipo Ficha(const std::vector<seasons::RegEquipo>& equipos, std::string_view nombre) {
    for (const auto& e : equipos) {
        if (base::MismoTexto(e.nombre, nombre)) return e;
    }
    return {};
}

// Sin crear el archivo si falta.
template <typename Registro>
std::vector<Registro> Todos(const std::filesystem::path& ruta) {
    std::vector<Registro> registros;
    if (base::CuentaRegistros(ruta, Registro::kLongitud) == 0) return registros;
    const base::ArchivoDe<Registro> archivo(ruta);
    for (std::int32_t n = 1; n <= archivo.Cuenta(); ++n) registros.push_back(archivo.Leer(n));
    return registros;
}

}  // namespace

int Forma(const std::vector<seasons::RegPartidoLiga>& liga, std::string_view equipo, int division,
          int maxJornada) {
    int forma = 0;
    for (const auto& p : liga) {
        if (p.division != division || p.jornada > maxJornada || p.jornada < maxJornada - 2) {
            continue;
        }
        const int diferencia = p.golesLocal - p.golesVisitante;
        if (base::MismoTexto(p.local, equipo)) {
            forma += diferencia > 0 ? 2 : diferencia == 0 ? 1 : 0;
        } else if (base::MismoTexto(p.visitante, equipo)) {
            forma += diferencia < 0 ? 2 : diferencia == 0 ? 1 : 0;
        }
    }
    return forma;
}

Porcentajes PorcentajesDePartido(const seasons::RegEquipo& local, int formaLocal,
                                 const seasons::RegEquipo& visitante, int formaVisitante) {
    const int h =
        Entero(0.5 * local.puntos + local.valoracion + 3 * formaLocal + local.puntosCasa + 5);
    const int a = Entero(0.5 * visitante.puntos + visitante.valoracion + 3 * formaVisitante +
                         2 * visitante.puntosFuera);
    // Sin fuerza en ninguno de los dos (cifras negativas en los archivos) no hay favorito.
    const int p = h + a == 0 ? 50 : Formato0(h * 100.0 / (h + a));
    const int q = 100 - p;
    const int x = Entero((100 - std::abs(p - q)) / 2.3);
    const int uno = Formato0((100 - x) / 100.0 * p);
    return {uno, x, 100 - x - uno};
}

std::array<Porcentajes, engine::kPartidos> PorcentajesAutomaticos(
    const std::filesystem::path& carpetaTemporada,
    const std::array<std::string, engine::kPartidos>& partidos,
    const std::array<int, engine::kPartidos>& divisiones, const base::Ajustes& ajustes) {
    const auto equipos = Todos<seasons::RegEquipo>(carpetaTemporada / seasons::kNomeq);
    const auto liga = Todos<seasons::RegPartidoLiga>(carpetaTemporada / seasons::kJlig2);
    std::array<Porcentajes, engine::kPartidos> tabla{};
    for (std::size_t i = 0; i < tabla.size(); ++i) {
        const int division = divisiones[i];
        if (division <= 0) {
            tabla[i] = kPorcentajesSinDivision;
            continue;
        }
        const Enfrentamiento e = DividirPartido(partidos[i]);
        const int jornada = MaxJornada(ajustes, division);
        tabla[i] = PorcentajesDePartido(
            Ficha(equipos, e.local), Forma(liga, e.local, division, jornada),
            Ficha(equipos, e.visitante), Forma(liga, e.visitante, division, jornada));
    }
    return tabla;
}

}  // namespace quinteva::builders
