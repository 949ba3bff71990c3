#include "builders/conditions_history.h"

#include <algorithm>
#include <functional>
#include <set>
#include <utility>

#include "base/record_files.h"
#include "engine/analysis.h"
#include "engine/filter.h"
#include "seasons/season_folder.h"

namespace quinteva::builders {

namespace {

using engine::SetCondiciones;

bool DeSignos(const std::string& signos) {
    return signos.size() >= engine::kPartidos &&
           std::all_of(signos.begin(), signos.begin() + engine::kPartidos,
                       [](char c) { return engine::IndiceSigno(c) >= 0; });
}

// Las condiciones sin ninguna familia activa.
SetCondiciones SinFamilias(SetCondiciones c) {
    c.casilla.fill(false);
    for (auto& g : c.grupos) g.activo = false;
    for (auto& g : c.gruposAc) g.activo = false;
    return c;
}

bool AlgunGrupo(const auto& grupos) {
    return std::any_of(grupos.begin(), grupos.end(), [](const auto& g) { return g.activo; });
}

// Una familia: su nombre, si está activa y las condiciones con solo ella.
struct Familia {
    std::string nombre;
    std::function<bool(const SetCondiciones&)> activa;
    std::function<void(const SetCondiciones& todas, SetCondiciones& sola)> poner;
};

Familia DeCasilla(std::string nombre, int casilla) {
    const auto i = static_cast<std::size_t>(casilla);
    return {std::move(nombre), [i](const SetCondiciones& c) { return c.casilla[i]; },
            [i](const SetCondiciones&, SetCondiciones& sola) { sola.casilla[i] = true; }};
}

// Las familias en el orden de las pruebas de Condicionar.
std::vector<Familia> Familias() {
    using namespace engine;
    return {
        DeCasilla("Interrupciones", kCasillaInterrupciones),
        DeCasilla("Interrupciones consecutivas", kCasillaInterConsecutivas),
        DeCasilla("Condiciones Generales", kCasillaGenerales),
        DeCasilla("Seguidos", kCasillaSeguidos),
        DeCasilla("Parejas", kCasillaParejas),
        DeCasilla("Tríos", kCasillaTrios),
        DeCasilla("Sumas", kCasillaSumas),
        {"Grupos", [](const SetCondiciones& c) { return AlgunGrupo(c.grupos); },
         [](const SetCondiciones& todas, SetCondiciones& sola) { sola.grupos = todas.grupos; }},
        {"Grupos de Aciertos", [](const SetCondiciones& c) { return AlgunGrupo(c.gruposAc); },
         [](const SetCondiciones& todas, SetCondiciones& sola) { sola.gruposAc = todas.gruposAc; }},
        DeCasilla("Comparaciones", kCasillaComparaciones),
        DeCasilla("Repeticiones", kCasillaRepeticiones)};
}

bool EnLaBase(const engine::Columna& columna, const engine::QuinielaBase& base) {
    for (std::size_t p = 0; p < columna.size(); ++p) {
        if (!base.Elegido(static_cast<int>(p) + 1, engine::IndiceSigno(columna[p]))) return false;
    }
    return true;
}

// El nombre de la condición que rechazó, de los contadores de "Rechazadas".
std::string Rechazo(const engine::Rechazos& rechazos, const SetCondiciones& c) {
    return engine::FilasRechazadas(rechazos, c.toleranciaGrupos, c.toleranciaGruposAc)
        .front()
        .primera;
}

}  // namespace

std::vector<seasons::RegJornadaQuin> GanadorasGuardadas(
    const std::filesystem::path& carpetaTrabajo) {
    std::vector<std::filesystem::path> carpetas;
    if (const auto actual = seasons::TemporadaActual(carpetaTrabajo)) {
        carpetas.push_back(seasons::CarpetaTemporada(carpetaTrabajo, *actual));
    }
    std::error_code error;
    std::vector<std::filesystem::path> otras;
    for (const auto& e : std::filesystem::directory_iterator(carpetaTrabajo, error)) {
        if (e.is_directory() && !seasons::TemporadaDeCarpeta(e.path().filename().string()).empty())
            otras.push_back(e.path());
    }
    std::sort(otras.begin(), otras.end());
    carpetas.insert(carpetas.end(), otras.begin(), otras.end());

    std::vector<seasons::RegJornadaQuin> ganadoras;
    std::set<std::pair<std::string, int>> vistas;
    for (const auto& carpeta : carpetas) {
        const auto archivo = carpeta / seasons::kJornadas;
        if (!std::filesystem::exists(archivo)) continue;
        for (auto& r : base::LeerTodos<seasons::RegJornadaQuin>(archivo)) {
            if (!DeSignos(r.signos) || !vistas.insert({r.temporada, r.jornada}).second) continue;
            ganadoras.push_back(std::move(r));
        }
    }
    return ganadoras;
}

HistoricoCondiciones HistoricoDeCondiciones(const engine::Combinacion& comb,
                                            const std::vector<seasons::RegJornadaQuin>& ganadoras) {
    const SetCondiciones& todas = comb.condiciones;
    HistoricoCondiciones h;
    const engine::Filtro filtro(todas);
    std::vector<std::pair<FamiliaHistorica, engine::Filtro>> solas;
    for (const Familia& f : Familias()) {
        if (!f.activa(todas)) continue;
        SetCondiciones sola = SinFamilias(todas);
        f.poner(todas, sola);
        solas.emplace_back(FamiliaHistorica{f.nombre, 0}, engine::Filtro(sola));
    }
    for (const auto& g : ganadoras) {
        if (!DeSignos(g.signos)) continue;
        const engine::Columna columna =
            engine::ColumnaDeTexto(g.signos.substr(0, engine::kPartidos));
        JornadaHistorica j{g.temporada,
                           g.jornada,
                           g.signos.substr(0, engine::kPartidos),
                           EnLaBase(columna, comb.base),
                           {}};
        engine::Rechazos rechazos;
        if (filtro.Condicionar(columna, rechazos)) {
            ++h.pasan;
        } else {
            j.rechazo = Rechazo(rechazos, todas);
        }
        for (auto& [familia, filtroSolo] : solas) {
            engine::Rechazos ignorados;
            familia.pasan += filtroSolo.Condicionar(columna, ignorados) ? 1 : 0;
        }
        ++h.ganadoras;
        h.enLaBase += j.enLaBase ? 1 : 0;
        h.jornadas.push_back(std::move(j));
    }
    for (auto& [familia, filtroSolo] : solas) h.familias.push_back(familia);
    return h;
}

}  // namespace quinteva::builders
