#include "engine/quiniela_base.h"

#include <utility>

#include "base/error.h"

namespace quinteva::engine {
namespace {

constexpr std::array<std::string_view, 3> kSinElegir = {"1", "x", "2"};
constexpr std::string_view kElegido = "X";

bool GolValido(std::string_view gol) {
    return gol.empty() || gol == "0" || gol == "1" || gol == "2" || gol == "M";
}

void ComprobarPartido(int partido, int signo) {
    if (partido < 1 || partido > kPartidos || signo < 0 || signo > 2) {
        throw base::Error("Partido o signo fuera de la Quiniela Base");
    }
}

}  // namespace

QuinielaBase::QuinielaBase() {
    for (int fila = 1; fila <= kFilas; ++fila) {
        CeldaMutable(fila, 0) = std::to_string(fila);
        if (fila == kFilas) continue;
        for (int signo = 0; signo < 3; ++signo) {
            CeldaMutable(fila, 2 + signo) = kSinElegir[static_cast<std::size_t>(signo)];
        }
    }
}

const std::string& QuinielaBase::Celda(int fila, int columna) const {
    if (fila < 1 || fila > kFilas || columna < 0 || columna >= kColumnas) {
        throw base::Error("Celda fuera de la Quiniela Base");
    }
    return celdas_[static_cast<std::size_t>(fila - 1)][static_cast<std::size_t>(columna)];
}

std::string& QuinielaBase::CeldaMutable(int fila, int columna) {
    return const_cast<std::string&>(std::as_const(*this).Celda(fila, columna));
}

bool QuinielaBase::Elegido(int partido, int signo) const {
    ComprobarPartido(partido, signo);
    return Celda(partido, 2 + signo) == kElegido;
}

void QuinielaBase::Elegir(int partido, int signo, bool elegido) {
    ComprobarPartido(partido, signo);
    CeldaMutable(partido, 2 + signo) =
        elegido ? kElegido : kSinElegir[static_cast<std::size_t>(signo)];
}

int QuinielaBase::SignosElegidos(int partido) const {
    return int{Elegido(partido, 0)} + int{Elegido(partido, 1)} + int{Elegido(partido, 2)};
}

void QuinielaBase::PonerEquipos(int fila, std::string_view localVisitante) {
    CeldaMutable(fila, 1) = localVisitante;
}

void QuinielaBase::PonerGoles(std::string_view local, std::string_view visitante) {
    if (!GolValido(local) || !GolValido(visitante)) {
        throw base::Error("Los goles del Pleno al 15 son 0, 1, 2 o M");
    }
    CeldaMutable(kFilas, 2) = local;
    CeldaMutable(kFilas, 4) = visitante;
}

PlenoBase QuinielaBase::Pleno() const {
    const std::string l = GolesLocal();
    const std::string v = GolesVisitante();
    return {l.empty() ? ' ' : l[0], v.empty() ? ' ' : v[0]};
}

float QuinielaBase::Columnas() const {
    float columnas = 1.0F;
    for (int p = 1; p <= kPartidos; ++p) columnas *= static_cast<float>(SignosElegidos(p));
    return columnas;
}

int QuinielaBase::PartidosConSignos(int signos) const {
    int n = 0;
    for (int p = 1; p <= kPartidos; ++p) n += SignosElegidos(p) == signos ? 1 : 0;
    return n;
}

int QuinielaBase::Dobles() const { return PartidosConSignos(2); }
int QuinielaBase::Triples() const { return PartidosConSignos(3); }

bool QuinielaBase::Completa() const {
    return PartidosConSignos(0) == 0 && !GolesLocal().empty() && !GolesVisitante().empty();
}

}  // namespace quinteva::engine
