#include "builders/match_info.h"

#include <algorithm>

#include "base/formats.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"

namespace quinteva::builders {
namespace {

int LeerEntero(const base::Ajustes& ajustes, std::string_view clave) {
    try {
        return std::stoi(ajustes.Leer(base::kAplicacion, "Valores", clave, "0"));
    } catch (const std::exception&) {
        return 0;
    }
}

void Rellenar(FichaEquipo& ficha, const seasons::RegEquipo& equipo, int equipos) {
    ficha.encontrado = true;
    ficha.posicion = equipo.posicion;
    ficha.puntos = equipo.puntos;
    ficha.valoracion = equipo.valoracion;
    const auto puntos = static_cast<std::size_t>(
        std::clamp(2 * equipos - 2, 0, static_cast<int>(seasons::RegEquipo::kJornadas)));
    ficha.puestos.assign(equipo.posicionJornada.begin(),
                         equipo.posicionJornada.begin() + static_cast<std::ptrdiff_t>(puntos));
}

void LeerEquipos(InfoPartido& info, const std::filesystem::path& carpetaTemporada) {
    const base::ArchivoDe<seasons::RegEquipo> nomeq(carpetaTemporada / seasons::kNomeq);
    for (std::int32_t n = 1; n <= nomeq.Cuenta(); ++n) {
        const seasons::RegEquipo e = nomeq.Leer(n);
        if (base::MismoTexto(e.nombre, info.local.nombre)) Rellenar(info.local, e, info.equipos);
        if (base::MismoTexto(e.nombre, info.visitante.nombre)) {
            Rellenar(info.visitante, e, info.equipos);
        }
        if (e.division == info.division) {
            info.clasificacion.push_back({e.posicion, e.puntos, e.puntosCasa, e.puntosFuera,
                                          std::string(base::Recortar(e.nombre))});
        }
    }
    std::stable_sort(info.clasificacion.begin(), info.clasificacion.end(),
                     [](const auto& a, const auto& b) { return a.posicion < b.posicion; });
}

bool Juega(const seasons::RegPartidoLiga& p, const std::string& equipo) {
    return base::MismoTexto(p.local, equipo) || base::MismoTexto(p.visitante, equipo);
}

PartidoReciente Reciente(const seasons::RegPartidoLiga& p) {
    return {base::FormatoFecha(base::SerieAFecha(p.fecha), "dd/MM/yy"),
            std::string(base::Recortar(p.local)), std::string(base::Recortar(p.visitante)),
            p.golesLocal, p.golesVisitante};
}

// Los partidos de la división hasta la última Jornada jugada, de la última hacia atrás.
void LeerRecientes(InfoPartido& info, const std::filesystem::path& carpetaTemporada,
                   int maxJornada) {
    const base::ArchivoDe<seasons::RegPartidoLiga> liga(carpetaTemporada / seasons::kJlig2);
    std::vector<seasons::RegPartidoLiga> jugados;
    for (std::int32_t n = 1; n <= liga.Cuenta(); ++n) {
        seasons::RegPartidoLiga p = liga.Leer(n);
        if (p.division == info.division && p.jornada <= maxJornada) jugados.push_back(std::move(p));
    }
    std::stable_sort(jugados.begin(), jugados.end(),
                     [](const auto& a, const auto& b) { return a.jornada > b.jornada; });
    for (FichaEquipo* ficha : {&info.local, &info.visitante}) {
        for (const auto& p : jugados) {
            if (ficha->recientes.size() == kPartidosRecientes) break;
            if (Juega(p, ficha->nombre)) ficha->recientes.push_back(Reciente(p));
        }
    }
}

}  // namespace

Enfrentamiento DividirPartido(std::string_view partido) {
    const auto guion = partido.find('-');
    if (guion == std::string_view::npos) return {std::string(base::Recortar(partido)), {}};
    const std::string_view local = partido.substr(0, guion == 0 ? 0 : guion - 1);
    const std::string_view visitante =
        guion + 2 <= partido.size() ? partido.substr(guion + 2) : std::string_view{};
    return {std::string(base::Recortar(local)), std::string(base::Recortar(visitante))};
}

InfoPartido Info(const std::filesystem::path& carpetaTemporada, std::string_view partido,
                 int division, const base::Ajustes& ajustes) {
    InfoPartido info;
    info.division = division;
    if (division != 1 && division != 2) return info;
    info.equipos = LeerEntero(ajustes, division == 1 ? "NEq1" : "NEq2");
    if (info.equipos <= 0) return info;
    const Enfrentamiento e = DividirPartido(partido);
    info.local.nombre = e.local;
    info.visitante.nombre = e.visitante;
    LeerEquipos(info, carpetaTemporada);
    LeerRecientes(info, carpetaTemporada,
                  LeerEntero(ajustes, division == 1 ? "MaxJor1ª" : "MaxJor2ª"));
    return info;
}

}  // namespace quinteva::builders
