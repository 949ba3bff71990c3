#include "seasons/pools.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <set>

#include "base/dates.h"
#include "base/error.h"
#include "base/formats.h"
#include "base/pleno_letter.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/league.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "seasons/startup.h"
#include "seasons/teams.h"

namespace quinteva::seasons {
namespace fs = std::filesystem;

namespace {

constexpr std::string_view kSiglo = "20";

// Los registros de "Jquin.rar" de una Jornada con Siglo "20", uno por fila del boleto (desde
// Partido 1), hasta quince.
template <typename Fila>
std::size_t PorPartido(const fs::path& carpetaTemporada, int jornada, Fila&& fila) {
    const base::ArchivoDe<RegPartidoQuin> jquin(carpetaTemporada / kJquin);
    std::size_t vistos = 0;
    for (std::int32_t n = 1; n <= jquin.Cuenta() && vistos < kPartidosBoleto; ++n) {
        const RegPartidoQuin q = jquin.Leer(n);
        if (q.jornada != jornada || base::Recortar(q.siglo) != kSiglo) continue;
        ++vistos;
        if (q.partido >= 1 && q.partido <= kPartidosBoleto) fila(q);
    }
    return vistos;
}

}  // namespace

std::vector<RegPartidoQuin> PartidosDeQuiniela(const fs::path& carpetaTemporada, int jornada) {
    std::vector<RegPartidoQuin> partidos;
    PorPartido(carpetaTemporada, jornada, [&](const RegPartidoQuin& q) { partidos.push_back(q); });
    return partidos;
}

std::vector<std::string> OtrosEquipos(const fs::path& carpetaTemporada) {
    std::set<std::string, std::less<>> deDivision;
    const base::ArchivoDe<RegEquipo> nomeq(carpetaTemporada / kNomeq);
    for (std::int32_t n = 1; n <= nomeq.Cuenta(); ++n) {
        deDivision.emplace(base::Recortar(nomeq.Leer(n).nombre));
    }
    std::vector<std::string> otros;
    const base::ArchivoDe<RegPartidoQuin> jquin(carpetaTemporada / kJquin);
    for (std::int32_t n = 1; n <= jquin.Cuenta(); ++n) {
        const RegPartidoQuin q = jquin.Leer(n);
        for (std::string_view nombre : {base::Recortar(q.local), base::Recortar(q.visitante)}) {
            if (nombre.empty() || deDivision.contains(nombre)) continue;
            if (std::find(otros.begin(), otros.end(), nombre) == otros.end()) {
                otros.emplace_back(nombre);
            }
        }
    }
    return otros;
}

// ---------------------------------------------------------------------------------------------
// "Jornadas de Quinielas"

VentanaJornadasQuiniela::VentanaJornadasQuiniela(fs::path carpetaTemporada, std::string cabecera,
                                                 base::Dialogo& dialogo)
    : carpetaTemporada_(std::move(carpetaTemporada)),
      cabecera_(std::move(cabecera)),
      dialogo_(dialogo),
      jornadas_(ListaJornadas(carpetaTemporada_)) {}

std::vector<std::string> VentanaJornadasQuiniela::Lista(int division) const {
    return division == kOtrosEquipos ? OtrosEquipos(carpetaTemporada_)
                                     : NombresDeLaDivision(carpetaTemporada_, division);
}

void VentanaJornadasQuiniela::ElegirJornada(int jornada) {
    jornada_ = jornada;
    existe_ = false;
    nueva_.reset();
    rejilla_ = {};
    fecha_.clear();
    jornadasLiga_ = {};
    PorPartido(carpetaTemporada_, jornada, [&](const RegPartidoQuin& q) {
        rejilla_[static_cast<std::size_t>(q.partido - 1)] = {
            std::string(base::Recortar(q.local)), std::string(base::Recortar(q.visitante)),
            q.division};
        jornadasLiga_ = {q.jornadaDiv1 == 0 ? "" : std::to_string(q.jornadaDiv1),
                         q.jornadaDiv2 == 0 ? "" : std::to_string(q.jornadaDiv2)};
        fecha_ = FechaCorta(q.fecha);
        existe_ = true;
    });
}

bool VentanaJornadasQuiniela::TeclaFecha(char tecla) { return TeclaDeFecha(tecla, dialogo_); }

const std::string& VentanaJornadasQuiniela::JornadaLiga(int division) const {
    return jornadasLiga_.at(static_cast<std::size_t>(division - 1));
}

bool VentanaJornadasQuiniela::TeclaJornadaLiga(char tecla) {
    if (std::isdigit(static_cast<unsigned char>(tecla)) != 0) return true;
    dialogo_.Mensaje(kMsgSoloNumeroJornadaLiga);
    return false;
}

void VentanaJornadasQuiniela::EscribirJornadaLiga(int division, std::string_view jornada) {
    jornadasLiga_.at(static_cast<std::size_t>(division - 1)) = jornada;
}

int VentanaJornadasQuiniela::NumeroJornadaLiga(int division) const {
    return std::atoi(JornadaLiga(division).c_str());
}

bool VentanaJornadasQuiniela::Agregar(std::string_view equipo, int division) {
    if (!jornada_ || fecha_.empty()) {
        dialogo_.Mensaje(kMsgAntesDeEquipos);
        return false;
    }
    if (division == 1 && JornadaLiga(1).empty()) {
        dialogo_.Mensaje(kMsgFaltaJornadaLiga1);
        return false;
    }
    if (division == 2 && JornadaLiga(2).empty()) {
        dialogo_.Mensaje(kMsgFaltaJornadaLiga2);
        return false;
    }
    for (FilaBoleto& fila : rejilla_) {
        for (std::string* celda : {&fila.local, &fila.visitante}) {
            if (!celda->empty()) continue;
            *celda = equipo;
            fila.division = division;
            return true;
        }
    }
    return false;
}

void VentanaJornadasQuiniela::Vaciar(int fila, int columna) {
    FilaBoleto& f = rejilla_.at(static_cast<std::size_t>(fila));
    (columna == 0 ? f.local : f.visitante).clear();
}

// Fila a fila, mientras no se hayan visto las dos divisiones: cada una pide su Jornada de Liga.
bool VentanaJornadasQuiniela::DivisionesConsignadas() {
    std::array<bool, 2> vista{};
    for (const FilaBoleto& fila : rejilla_) {
        if (vista[0] && vista[1]) break;
        if (fila.division != 1 && fila.division != 2) continue;
        vista[static_cast<std::size_t>(fila.division - 1)] = true;
        if (JornadaLiga(fila.division).empty()) {
            dialogo_.Mensaje(fila.division == 1 ? kMsgConsignarJornada1 : kMsgConsignarJornada2);
            return false;
        }
    }
    return true;
}

bool VentanaJornadasQuiniela::Guardar() {
    nueva_.reset();
    if (fecha_.empty()) {
        dialogo_.Mensaje(kMsgFaltaFecha);
        return false;
    }
    if (!DivisionesConsignadas()) return false;
    if (!jornada_) {
        dialogo_.Mensaje(kMsgAntesDeEquipos);
        return false;
    }
    const double fecha = SerieDeFecha(fecha_);
    if (existe_) {
        GuardarExistente(fecha);
        return true;
    }
    const bool completa = std::all_of(rejilla_.begin(), rejilla_.end(), [](const FilaBoleto& f) {
        return !f.local.empty() && !f.visitante.empty();
    });
    if (!completa) {
        dialogo_.Mensaje(kMsgFaltanEquipos);
        return false;
    }
    GuardarNueva(fecha);
    return true;
}

void VentanaJornadasQuiniela::GuardarExistente(double fecha) {
    base::ArchivoDe<RegPartidoQuin> jquin(carpetaTemporada_ / kJquin);
    for (std::int32_t n = 1; n <= jquin.Cuenta(); ++n) {
        RegPartidoQuin q = jquin.Leer(n);
        if (q.jornada != *jornada_ || q.partido < 1 || q.partido > kPartidosBoleto) continue;
        const FilaBoleto& fila = rejilla_[static_cast<std::size_t>(q.partido - 1)];
        q.siglo = kSiglo;
        q.fecha = fecha;
        q.division = fila.division;
        q.local = fila.local;
        q.visitante = fila.visitante;
        q.jornadaDiv1 = NumeroJornadaLiga(1);
        q.jornadaDiv2 = NumeroJornadaLiga(2);
        jquin.Escribir(n, q);
    }
    jquin.Cerrar();
}

// Los 15 partidos al final de "Jquin.rar" y un registro de "Jornadas.rar" en blanco entero (su
// Temporada y su Jornada también); luego el boleto vacío y la Jornada en el selector, sin elegir.
void VentanaJornadasQuiniela::GuardarNueva(double fecha) {
    base::ArchivoDe<RegPartidoQuin> jquin(carpetaTemporada_ / kJquin);
    const std::string temporada =
        cabecera_.substr(cabecera_.size() - std::min<std::size_t>(5, cabecera_.size()));
    for (int partido = 1; partido <= kPartidosBoleto; ++partido) {
        const FilaBoleto& fila = rejilla_[static_cast<std::size_t>(partido - 1)];
        RegPartidoQuin q;
        q.jornada = *jornada_;
        q.siglo = kSiglo;
        q.fecha = fecha;
        q.partido = partido;
        q.temporada = temporada;
        q.jornadaDiv1 = NumeroJornadaLiga(1);
        q.jornadaDiv2 = NumeroJornadaLiga(2);
        q.division = fila.division;
        q.local = fila.local;
        q.visitante = fila.visitante;
        jquin.Anadir(q);
    }
    jquin.Cerrar();
    base::ArchivoDe<RegJornadaQuin> columnas(carpetaTemporada_ / kJornadas);
    columnas.Anadir(RegJornadaQuin{std::string(5, ' '), 0, std::string(15, ' ')});
    columnas.Cerrar();

    nueva_ = *jornada_;
    if (std::find(jornadas_.begin(), jornadas_.end(), *jornada_) == jornadas_.end()) {
        jornadas_.insert(std::upper_bound(jornadas_.begin(), jornadas_.end(), *jornada_),
                         *jornada_);
    }
    jornada_.reset();
    rejilla_ = {};
    fecha_.clear();
    jornadasLiga_ = {};
}

// ---------------------------------------------------------------------------------------------
// "Introducir o Ver Resultados" de Quinielas

VentanaResultadosQuiniela::VentanaResultadosQuiniela(fs::path carpetaTemporada,
                                                     std::string temporada, base::Dialogo& dialogo)
    : carpetaTemporada_(std::move(carpetaTemporada)),
      temporada_(std::move(temporada)),
      dialogo_(dialogo),
      jornadas_(ListaJornadas(carpetaTemporada_)) {}

void VentanaResultadosQuiniela::ElegirJornada(int jornada) {
    jornada_ = jornada;
    rejilla_ = {};
    fecha_.clear();
    PorPartido(carpetaTemporada_, jornada, [&](const RegPartidoQuin& q) {
        std::string signo(base::Recortar(q.signo));
        if (q.partido == kPartidosBoleto) {
            const std::string par = base::LetraAPleno(signo);
            signo = par.empty() ? "" : par.substr(0, 1) + "-" + par.substr(1, 1);
        }
        rejilla_[static_cast<std::size_t>(q.partido - 1)] = {
            std::string(base::Recortar(q.local)), std::string(base::Recortar(q.visitante)), signo};
        fecha_ = FechaCorta(q.fecha);
    });
}

bool VentanaResultadosQuiniela::EscribirSigno(int fila, std::string_view signo) {
    std::string texto(signo);
    std::transform(texto.begin(), texto.end(), texto.begin(), [](char c) {
        return c == 'x' ? 'X' : c == 'm' ? 'M' : c;
    });
    const bool pleno = fila == kPartidosBoleto - 1;
    const bool valido =
        pleno ? texto.size() <= 3 : texto.empty() || texto == "1" || texto == "X" || texto == "2";
    if (!valido) return false;
    rejilla_.at(static_cast<std::size_t>(fila)).signo = texto;
    return true;
}

std::string ColumnaDeResultados(const std::array<FilaSigno, kPartidosBoleto>& rejilla) {
    std::string columna;
    for (int p = 0; p < kPartidosBoleto - 1; ++p)
        columna += rejilla[static_cast<std::size_t>(p)].signo;
    const std::string& pleno = rejilla.back().signo;
    if (!pleno.empty()) {
        columna += base::PlenoALetra(pleno.substr(0, 1), pleno.substr(pleno.size() - 1));
    }
    return columna;
}

bool VentanaResultadosQuiniela::Guardar() {
    if (!jornada_) {
        dialogo_.Mensaje(kMsgSeleccionarJornadaQuiniela);
        return false;
    }
    if (std::any_of(rejilla_.begin(), rejilla_.end(),
                    [](const FilaSigno& f) { return f.signo.empty(); })) {
        dialogo_.Mensaje(kMsgFaltanSignos);
        return false;
    }
    if (rejilla_.back().signo.size() < 2) {
        dialogo_.Mensaje(kMsgPlenoDosDigitos);
        return false;
    }
    std::string columna = ColumnaDeResultados(rejilla_);
    columna.resize(kPartidosBoleto, ' ');

    base::ArchivoDe<RegPartidoQuin> jquin(carpetaTemporada_ / kJquin);
    for (std::int32_t n = 1; n <= jquin.Cuenta(); ++n) {
        RegPartidoQuin q = jquin.Leer(n);
        if (q.jornada != *jornada_ || q.partido < 1 || q.partido > kPartidosBoleto) continue;
        q.signo = std::string(1, columna[static_cast<std::size_t>(q.partido - 1)]);
        jquin.Escribir(n, q);
    }
    jquin.Cerrar();
    base::ArchivoDe<RegJornadaQuin> columnas(carpetaTemporada_ / kJornadas);
    for (std::int32_t n = 1; n <= columnas.Cuenta(); ++n) {
        RegJornadaQuin r = columnas.Leer(n);
        if (r.jornada != *jornada_ || base::Recortar(r.temporada) != base::Recortar(temporada_)) {
            continue;
        }
        r.signos = columna;
        columnas.Escribir(n, r);
        break;
    }
    columnas.Cerrar();
    return true;
}

std::string FechaDeJornadaEnCurso(const std::filesystem::path& carpetaTrabajo, int jornada) {
    try {
        const auto partidos = PartidosDeQuiniela(CarpetaTemporadaEnCurso(carpetaTrabajo), jornada);
        return partidos.empty() ? std::string() : FechaCorta(partidos.front().fecha);
    } catch (const base::Error&) {
        return {};
    }
}

}  // namespace quinteva::seasons
