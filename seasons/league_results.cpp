#include "seasons/league_results.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "base/dates.h"
#include "base/formats.h"
#include "base/pleno_letter.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/league.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"

namespace quinteva::seasons {
namespace fs = std::filesystem;

namespace {

constexpr int kPartidoPleno = 15;

bool SoloCifras(std::string_view texto) {
    return std::all_of(texto.begin(), texto.end(),
                       [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; });
}

// El partido en "Hist.rar", por Temporada, Jornada, División y Partido: encima del que había o al
// final.
void EnLaHistoria(base::ArchivoDe<RegPartidoLiga>& historia, const RegPartidoLiga& jugado) {
    for (std::int32_t n = 1; n <= historia.Cuenta(); ++n) {
        const RegPartidoLiga h = historia.Leer(n);
        if (base::Recortar(h.temporada) == base::Recortar(jugado.temporada) &&
            h.jornada == jugado.jornada && h.division == jugado.division &&
            h.partido == jugado.partido) {
            historia.Escribir(n, jugado);
            return;
        }
    }
    historia.Anadir(jugado);
}

// El signo en el primer partido de "Jquin.rar" con los mismos equipos: el 1X2, o en el Pleno al 15
// la letra del par de goles ("M" desde 3). Devuelve ese partido con su signo, si lo hay.
std::optional<RegPartidoQuin> SignoEnLaQuiniela(base::ArchivoDe<RegPartidoQuin>& quinielas,
                                                const RegPartidoLiga& jugado) {
    const std::string_view local = base::Recortar(jugado.local);
    const std::string_view visitante = base::Recortar(jugado.visitante);
    for (std::int32_t n = 1; n <= quinielas.Cuenta(); ++n) {
        RegPartidoQuin q = quinielas.Leer(n);
        if (base::Recortar(q.local) != local || base::Recortar(q.visitante) != visitante) continue;
        const std::string signo = q.partido < kPartidoPleno
                                      ? SignoDeGoles(jugado.golesLocal, jugado.golesVisitante)
                                      : base::PlenoALetra(GolesDelPleno(jugado.golesLocal),
                                                          GolesDelPleno(jugado.golesVisitante));
        q.signo = signo;
        quinielas.Escribir(n, q);
        return q;
    }
    return std::nullopt;
}

// El mismo signo en la posición del partido de la columna de su Jornada en "Jornadas.rar", la de
// la Temporada de la ventana principal.
void SignoEnLaColumna(base::ArchivoDe<RegJornadaQuin>& jornadas, std::string_view temporada,
                      const RegPartidoQuin& quiniela) {
    for (std::int32_t n = 1; n <= jornadas.Cuenta(); ++n) {
        RegJornadaQuin columna = jornadas.Leer(n);
        if (base::Recortar(columna.temporada) != base::Recortar(temporada) ||
            columna.jornada != quiniela.jornada) {
            continue;
        }
        if (quiniela.partido >= 1 && quiniela.partido <= static_cast<int>(columna.signos.size())) {
            columna.signos[static_cast<std::size_t>(quiniela.partido - 1)] = quiniela.signo[0];
        }
        jornadas.Escribir(n, columna);
        return;
    }
}

}  // namespace

std::string SignoDeGoles(int golesLocal, int golesVisitante) {
    if (golesLocal > golesVisitante) return "1";
    if (golesLocal < golesVisitante) return "2";
    return "X";
}

std::string GolesDelPleno(int goles) { return goles >= 3 ? "M" : std::to_string(goles); }

VentanaResultadosLiga::VentanaResultadosLiga(fs::path carpetaTrabajo, fs::path carpetaTemporada,
                                             std::string temporada, base::Ajustes& ajustes,
                                             base::Dialogo& dialogo)
    : carpetaTrabajo_(std::move(carpetaTrabajo)),
      carpetaTemporada_(std::move(carpetaTemporada)),
      temporada_(std::move(temporada)),
      ajustes_(ajustes),
      dialogo_(dialogo),
      clasificacion_(carpetaTemporada_, 1) {}

void VentanaResultadosLiga::ElegirDivision(int division) {
    division_ = division;
    clasificacion_.ElegirDivision(division);
    ElegirJornada(1);
}

void VentanaResultadosLiga::ElegirJornada(int jornada) {
    jornada_ = jornada;
    rejilla_.assign(
        static_cast<std::size_t>(std::max(0, EquiposDeLaDivision(ajustes_, division_) / 2)), {});
    fecha_.clear();
    elegida_ = {};
    golTecleado_ = false;
    base::ArchivoDe<RegPartidoLiga> liga(carpetaTemporada_ / kJlig2);
    std::size_t fila = 0;
    for (std::int32_t n = 1; n <= liga.Cuenta() && fila < rejilla_.size(); ++n) {
        const RegPartidoLiga p = liga.Leer(n);
        if (p.jornada != jornada || p.division != division_ || base::Recortar(p.siglo) != "20") {
            continue;
        }
        rejilla_[fila++] = {std::string(base::Recortar(p.local)),
                            std::string(base::Recortar(p.visitante)), std::to_string(p.golesLocal),
                            std::to_string(p.golesVisitante)};
        fecha_ = FechaCorta(p.fecha);
    }
}

bool VentanaResultadosLiga::IrALaFecha(double fechaQuiniela) {
    base::ArchivoDe<RegPartidoLiga> liga(carpetaTemporada_ / kJlig2);
    for (std::int32_t n = 1; n <= liga.Cuenta(); ++n) {
        const RegPartidoLiga p = liga.Leer(n);
        if (p.fecha == fechaQuiniela && p.division == division_) {
            liga.Cerrar();
            ElegirJornada(p.jornada);
            return true;
        }
    }
    return false;
}

bool VentanaResultadosLiga::Tecla(char tecla) {
    if (std::isdigit(static_cast<unsigned char>(tecla)) == 0 || rejilla_.empty()) return false;
    FilaResultado& fila = rejilla_.at(static_cast<std::size_t>(elegida_.fila));
    (elegida_.columna == 0 ? fila.golesLocal : fila.golesVisitante) = std::string(1, tecla);
    golTecleado_ = true;
    if (elegida_.columna == 0) {
        elegida_.columna = 1;
    } else if (elegida_.fila + 1 < static_cast<int>(rejilla_.size())) {
        elegida_ = {elegida_.fila + 1, 0};
    }
    return true;
}

void VentanaResultadosLiga::Borrar() {
    if (rejilla_.empty()) return;
    FilaResultado& fila = rejilla_.at(static_cast<std::size_t>(elegida_.fila));
    (elegida_.columna == 0 ? fila.golesLocal : fila.golesVisitante).clear();
}

bool VentanaResultadosLiga::PonerGoles(int fila, std::string_view golesLocal,
                                       std::string_view golesVisitante) {
    if (!SoloCifras(golesLocal) || !SoloCifras(golesVisitante)) return false;
    FilaResultado& f = rejilla_.at(static_cast<std::size_t>(fila));
    f.golesLocal = golesLocal;
    f.golesVisitante = golesVisitante;
    golTecleado_ = true;
    return true;
}

bool VentanaResultadosLiga::Guardar() {
    const bool faltan = std::any_of(rejilla_.begin(), rejilla_.end(), [](const auto& f) {
        return f.golesLocal.empty() || f.golesVisitante.empty();
    });
    if (faltan && dialogo_.PreguntaSiNo(kPreguntaFaltanResultados) != base::Respuesta::Si) {
        return false;
    }
    {
        ArchivosResultados archivos{base::ArchivoDe<RegPartidoLiga>(carpetaTemporada_ / kJlig2),
                                    base::ArchivoDe<RegPartidoLiga>(carpetaTrabajo_ / kHist),
                                    base::ArchivoDe<RegPartidoQuin>(carpetaTemporada_ / kJquin),
                                    base::ArchivoDe<RegJornadaQuin>(carpetaTemporada_ / kJornadas)};
        for (std::size_t f = 0; f < rejilla_.size(); ++f) {
            const FilaResultado& fila = rejilla_[f];
            if (fila.golesLocal.empty() || fila.golesVisitante.empty()) continue;
            GuardarFila(archivos, static_cast<int>(f + 1), std::atoi(fila.golesLocal.c_str()),
                        std::atoi(fila.golesVisitante.c_str()));
        }
    }
    ActualizarClasificacion();
    return true;
}

// Un partido en los cuatro archivos: sus goles en "Jlig2.rar", su copia en "Hist.rar", su signo en
// el primer partido de Quiniela con los mismos equipos y en la columna de esa Jornada.
void VentanaResultadosLiga::GuardarFila(ArchivosResultados& archivos, int partido, int golesLocal,
                                        int golesVisitante) {
    std::optional<RegPartidoLiga> jugado;
    for (std::int32_t n = 1; n <= archivos.liga.Cuenta() && !jugado; ++n) {
        RegPartidoLiga p = archivos.liga.Leer(n);
        if (p.jornada != jornada_ || p.division != division_ || p.partido != partido) continue;
        p.golesLocal = golesLocal;
        p.golesVisitante = golesVisitante;
        archivos.liga.Escribir(n, p);
        jugado = p;
    }
    if (!jugado) return;
    EnLaHistoria(archivos.historia, *jugado);
    const auto quiniela = SignoEnLaQuiniela(archivos.quinielas, *jugado);
    if (quiniela) SignoEnLaColumna(archivos.jornadas, temporada_, *quiniela);
}

// "MaxJor1ª" o "MaxJor2ª" por encima de la Jornada guardada: se cambió una anterior y la
// clasificación se rehace de la 1 a esa; si no, se suma la guardada (dos veces si se guarda dos
// veces) y pasa a ser la última.
void VentanaResultadosLiga::ActualizarClasificacion() {
    const std::string clave = ClaveMaxJor(division_);
    const int ultima = std::atoi(ajustes_.Leer(base::kAplicacion, "Valores", clave, "0").c_str());
    if (ultima > jornada_) {
        CifrasACero(carpetaTemporada_, division_);
        for (int j = 1; j <= ultima; ++j) clasificacion_.Clasifica(j);
        return;
    }
    clasificacion_.Clasifica(jornada_);
    ajustes_.Guardar(base::kAplicacion, "Valores", clave, std::to_string(jornada_));
}

}  // namespace quinteva::seasons
