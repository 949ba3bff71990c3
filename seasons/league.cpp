#include "seasons/league.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "base/dates.h"
#include "base/error.h"
#include "base/formats.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "seasons/teams.h"

namespace quinteva::seasons {
namespace fs = std::filesystem;

namespace {

constexpr std::string_view kSiglo = "20";

bool DeLaJornada(const RegPartidoLiga& p, int jornada, int division) {
    return p.jornada == jornada && p.division == division && base::Recortar(p.siglo) == kSiglo;
}

}  // namespace

int EquiposDeLaDivision(const base::Ajustes& ajustes, int division) {
    return std::atoi(ajustes
                         .Leer(base::kAplicacion, "Valores", division == 1 ? "NEq1" : "NEq2",
                               division == 1 ? "20" : "22")
                         .c_str());
}

double SerieDeFecha(std::string_view fecha) {
    const auto cifras = [&](std::size_t desde) {
        const std::string_view dos = fecha.substr(desde, 2);
        if (!std::all_of(dos.begin(), dos.end(), [](char c) { return std::isdigit(c) != 0; }))
            return -1;
        return (dos[0] - '0') * 10 + (dos[1] - '0');
    };
    if (fecha.size() != 8 || fecha[2] != '/' || fecha[5] != '/') {
        throw base::Error("No coinciden los tipos");
    }
    const int dia = cifras(0);
    const int mes = cifras(3);
    const int anio = cifras(6);
    constexpr std::array<int, 12> kDias = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool bisiesto = anio % 4 == 0;
    if (anio < 0 || mes < 1 || mes > 12 || dia < 1 ||
        dia > kDias[static_cast<std::size_t>(mes - 1)] || (mes == 2 && dia == 29 && !bisiesto)) {
        throw base::Error("No coinciden los tipos");
    }
    return base::FechaASerie({2000 + anio, mes, dia});
}

std::string FechaCorta(double serie) {
    return base::FormatoFecha(base::SerieAFecha(serie), "dd/MM/yy");
}

VentanaJornadasLiga::VentanaJornadasLiga(fs::path carpetaTemporada, std::string temporada,
                                         const base::Ajustes& ajustes, base::Dialogo& dialogo)
    : carpetaTemporada_(std::move(carpetaTemporada)),
      temporada_(std::move(temporada)),
      ajustes_(ajustes),
      dialogo_(dialogo) {}

void VentanaJornadasLiga::ElegirDivision(int division) {
    division_ = division;
    equipos_ = EquiposDeLaDivision(ajustes_, division);
    lista_ = NombresDeLaDivision(carpetaTemporada_, division);
    ElegirJornada(1);
}

void VentanaJornadasLiga::ElegirJornada(int jornada) {
    jornada_ = jornada;
    hayCambios_ = jornadaExiste_ = fechaCambiada_ = false;
    rejilla_.assign(static_cast<std::size_t>(std::max(0, equipos_ / 2)), {});
    fecha_.clear();
    elegida_ = {};
    base::ArchivoDe<RegPartidoLiga> liga(carpetaTemporada_ / kJlig2);
    std::size_t fila = 0;
    for (std::int32_t n = 1; n <= liga.Cuenta() && fila < rejilla_.size(); ++n) {
        const RegPartidoLiga p = liga.Leer(n);
        if (!DeLaJornada(p, jornada, division_)) continue;
        rejilla_[fila++] = {std::string(base::Recortar(p.local)),
                            std::string(base::Recortar(p.visitante))};
        jornadaExiste_ = true;
        if (fila == rejilla_.size()) fecha_ = FechaCorta(p.fecha);
    }
}

bool VentanaJornadasLiga::Agregar(std::string_view equipo) {
    for (std::size_t f = 0; f < rejilla_.size(); ++f) {
        for (std::size_t c = 0; c < 2; ++c) {
            if (rejilla_[f][c] == equipo) {
                dialogo_.Mensaje(kMsgEquipoYaIntroducido);
                elegida_ = {static_cast<int>(f), static_cast<int>(c)};
                return false;
            }
            if (rejilla_[f][c].empty()) {
                rejilla_[f][c] = equipo;
                hayCambios_ = true;
                return true;
            }
        }
    }
    return false;
}

void VentanaJornadasLiga::Reemplazar(std::string_view equipo) {
    rejilla_.at(static_cast<std::size_t>(elegida_.fila))
        .at(static_cast<std::size_t>(elegida_.columna)) = equipo;
    hayCambios_ = true;
}

void VentanaJornadasLiga::Vaciar() { Reemplazar(""); }

bool TeclaDeFecha(char tecla, base::Dialogo& dialogo) {
    if (std::isdigit(static_cast<unsigned char>(tecla)) != 0 || tecla == '/') return true;
    dialogo.Mensaje(kMsgTeclaFecha);
    return false;
}

bool VentanaJornadasLiga::TeclaFecha(char tecla) { return TeclaDeFecha(tecla, dialogo_); }

void VentanaJornadasLiga::EscribirFecha(std::string_view fecha) {
    fecha_ = fecha;
    fechaCambiada_ = true;
}

bool VentanaJornadasLiga::RejillaCompleta() {
    const bool completa = std::all_of(rejilla_.begin(), rejilla_.end(), [](const auto& fila) {
        return !fila[0].empty() && !fila[1].empty();
    });
    if (!completa) dialogo_.Mensaje(kMsgFaltanEquipos);
    return completa;
}

bool VentanaJornadasLiga::Guardar() {
    if (fecha_.empty()) {
        dialogo_.Mensaje(kMsgFaltaFecha);
        return false;
    }
    const double fecha = SerieDeFecha(fecha_);
    if (!hayCambios_) {
        GuardarFecha(fecha);
        ElegirJornada(jornada_);
        return true;
    }
    if (!RejillaCompleta()) return false;
    if (jornadaExiste_) {
        GuardarCambiada(fecha);
        ElegirJornada(jornada_);
    } else {
        GuardarNueva(fecha);
        ElegirJornada(jornada_ >= Jornadas() ? 1 : jornada_ + 1);
    }
    return true;
}

void VentanaJornadasLiga::GuardarFecha(double fecha) {
    base::ArchivoDe<RegPartidoLiga> liga(carpetaTemporada_ / kJlig2);
    for (std::int32_t n = 1; n <= liga.Cuenta(); ++n) {
        RegPartidoLiga p = liga.Leer(n);
        if (p.jornada != jornada_ || p.division != division_) continue;
        p.fecha = fecha;
        liga.Escribir(n, p);
    }
    liga.Cerrar();
}

void VentanaJornadasLiga::GuardarNueva(double fecha) {
    base::ArchivoDe<RegPartidoLiga> liga(carpetaTemporada_ / kJlig2);
    for (std::size_t f = 0; f < rejilla_.size(); ++f) {
        RegPartidoLiga p;
        p.division = division_;
        p.temporada = temporada_;
        p.jornada = jornada_;
        p.fecha = fecha;
        p.siglo = kSiglo;
        p.partido = static_cast<int>(f + 1);
        p.local = rejilla_[f][0];
        p.visitante = rejilla_[f][1];
        liga.Anadir(p);
    }
    liga.Cerrar();
}

// Los registros de la Jornada, por su Partido desde 1, con los equipos nuevos y la fecha; los
// goles se quedan. Pasado el Partido 15 el recorrido termina.
void VentanaJornadasLiga::GuardarCambiada(double fecha) {
    base::ArchivoDe<RegPartidoLiga> liga(carpetaTemporada_ / kJlig2);
    for (std::int32_t n = 1; n <= liga.Cuenta(); ++n) {
        RegPartidoLiga p = liga.Leer(n);
        if (p.jornada != jornada_ || p.division != division_) continue;
        if (p.partido > 15) break;
        if (p.partido >= 1 && p.partido <= static_cast<int>(rejilla_.size())) {
            p.local = rejilla_[static_cast<std::size_t>(p.partido - 1)][0];
            p.visitante = rejilla_[static_cast<std::size_t>(p.partido - 1)][1];
        }
        p.fecha = fecha;
        liga.Escribir(n, p);
    }
    liga.Cerrar();
}

}  // namespace quinteva::seasons
