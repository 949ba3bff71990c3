#include "seasons/league_table.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "base/error.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/league.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"

namespace quinteva::seasons {
namespace fs = std::filesystem;

namespace {

// Todos los registros de un archivo, de una lectura (si falta, se crea vacío, como al abrirlo).
template <typename Registro>
std::vector<Registro> Registros(const fs::path& ruta) {
    if (!fs::exists(ruta)) base::ArchivoDe<Registro>{ruta}.Cerrar();
    return base::LeerTodos<Registro>(ruta);
}

std::vector<RegPartidoLiga> Partidos(const fs::path& carpetaTemporada) {
    auto partidos = Registros<RegPartidoLiga>(carpetaTemporada / kJlig2);
    for (auto& p : partidos) {
        p.local = base::Recortar(p.local);
        p.visitante = base::Recortar(p.visitante);
    }
    return partidos;
}

// El valor numérico de una columna de la rejilla: vacía, 0.
long Numero(const std::string& texto) { return std::strtol(texto.c_str(), nullptr, 10); }

// Lo que un partido suma a uno de sus equipos.
void Sumar(RegEquipo& e, int propios, int ajenos, bool enCasa) {
    e.golesFavor += propios;
    e.golesContra += ajenos;
    e.diferencia += propios - ajenos;
    e.jugados += 1;
    int& puntosLado = enCasa ? e.puntosCasa : e.puntosFuera;
    if (propios > ajenos) {
        e.puntos += kPuntosVictoria;
        e.ganados += 1;
        puntosLado += kPuntosVictoria;
        (enCasa ? e.ganadosCasa : e.ganadosFuera) += 1;
    } else if (propios == ajenos) {
        e.puntos += kPuntosEmpate;
        e.empatados += 1;
        puntosLado += kPuntosEmpate;
        (enCasa ? e.empatadosCasa : e.empatadosFuera) += 1;
    } else {
        e.perdidos += 1;
        (enCasa ? e.perdidosCasa : e.perdidosFuera) += 1;
    }
}

// Ordena las filas por las columnas dadas, de mayor a menor por su valor numérico; las filas
// iguales en todas quedan en el orden que tenían.
template <std::size_t N>
void Ordenar(std::vector<Clasificacion::Fila>& tabla,
             std::array<std::string Clasificacion::Fila::*, N> columnas) {
    std::stable_sort(tabla.begin(), tabla.end(), [&](const auto& a, const auto& b) {
        for (auto columna : columnas) {
            const long x = Numero(a.*columna);
            const long y = Numero(b.*columna);
            if (x != y) return x > y;
        }
        return false;
    });
}

}  // namespace

Clasificacion::Clasificacion(fs::path carpetaTemporada, int division)
    : carpetaTemporada_(std::move(carpetaTemporada)), division_(division) {}

bool Clasificacion::Clasifica(int jornada) {
    const std::vector<RegPartidoLiga> partidos = Partidos(carpetaTemporada_);
    const bool jugada = std::any_of(partidos.begin(), partidos.end(), [&](const auto& p) {
        return p.jornada == jornada && p.division == division_ &&
               (p.golesLocal > 0 || p.golesVisitante > 0);
    });
    if (!jugada) return false;

    // "Nomeq.rar" se lee una vez; cada registro cambiado se escribe en el acto, así que un
    // Desbordamiento deja escritos los anteriores.
    std::vector<RegEquipo> equipos = Registros<RegEquipo>(carpetaTemporada_ / kNomeq);
    base::ArchivoDe<RegEquipo> nomeq(carpetaTemporada_ / kNomeq);
    tabla_.resize(static_cast<std::size_t>(std::count_if(
        equipos.begin(), equipos.end(), [&](const auto& e) { return e.division == division_; })));
    std::size_t r = 0;
    for (std::size_t n = 0; n < equipos.size(); ++n) {
        RegEquipo& e = equipos[n];
        if (e.division != division_) continue;
        const std::string nombre(base::Recortar(e.nombre));
        const auto partido = std::find_if(partidos.begin(), partidos.end(), [&](const auto& p) {
            return p.jornada == jornada && (p.local == nombre || p.visitante == nombre);
        });
        if (partido == partidos.end()) continue;
        const bool enCasa = partido->local == nombre;
        Sumar(e, enCasa ? partido->golesLocal : partido->golesVisitante,
              enCasa ? partido->golesVisitante : partido->golesLocal, enCasa);
        nomeq.Escribir(static_cast<std::int32_t>(n + 1), e);
        Fila& fila = tabla_[r++];
        fila.nombre = nombre;
        fila.puntos = std::to_string(e.puntos);
        fila.diferencia = std::to_string(e.diferencia);
    }

    Ordenar<1>(tabla_, {&Fila::puntos});
    const Enfrentamientos enfrentamientos(tabla_, partidos);
    // El recorrido de los empates tal como es: pasado el primero, cada paso de b llama a
    // SubClasifica sobre dos filas o más, y un empate que llega a la última fila no se ve.
    const std::size_t ultima = tabla_.size();
    for (std::size_t a = 1; a <= ultima; ++a) {
        for (std::size_t b = a; b <= ultima; ++b) {
            if (tabla_[a - 1].puntos == tabla_[b - 1].puntos) continue;
            if (b - a <= 1) break;
            SubClasifica(a, b - 1, enfrentamientos);
            a = b - 1;
        }
    }
    Ordenar<3>(tabla_, {&Fila::puntos, &Fila::enfrentamiento, &Fila::diferencia});

    for (std::size_t fila = 1; fila <= tabla_.size(); ++fila) {
        const auto e = std::find_if(equipos.begin(), equipos.end(), [&](const auto& x) {
            return base::Recortar(x.nombre) == tabla_[fila - 1].nombre;
        });
        if (e == equipos.end()) continue;
        if (jornada < 1 || jornada > static_cast<int>(RegEquipo::kJornadas)) {
            throw base::Error("Subíndice fuera del intervalo");
        }
        e->posicion = static_cast<int>(fila);
        e->posicionJornada[static_cast<std::size_t>(jornada - 1)] = static_cast<int>(fila);
        nomeq.Escribir(static_cast<std::int32_t>(e - equipos.begin() + 1), *e);
    }
    nomeq.Cerrar();
    return true;
}

Clasificacion::Enfrentamientos::Enfrentamientos(const std::vector<Fila>& tabla,
                                                const std::vector<RegPartidoLiga>& partidos) {
    for (const Fila& fila : tabla) indices_.try_emplace(fila.nombre, indices_.size());
    diferencia_.assign(indices_.size() * indices_.size(), 0);
    for (const auto& p : partidos) {
        const auto local = indices_.find(p.local);
        const auto visitante = indices_.find(p.visitante);
        if (local == indices_.end() || visitante == indices_.end()) continue;
        diferencia_[local->second * indices_.size() + visitante->second] +=
            p.golesLocal - p.golesVisitante;
    }
}

int Clasificacion::Enfrentamientos::Diferencia(const std::string& local,
                                               const std::string& visitante) const {
    return diferencia_[indices_.at(local) * indices_.size() + indices_.at(visitante)];
}

// Lo que x sacó de sus partidos con cada y de las filas, en casa y fuera, en el "Jlig2.rar" entero
// (sin mirar la Jornada: los partidos sin jugar suman 0).
void Clasificacion::SubClasifica(std::size_t primero, std::size_t ultimo,
                                 const Enfrentamientos& enfrentamientos) {
    std::vector<int> cifras;
    for (std::size_t x = primero; x <= ultimo; ++x) {
        int cifra = 0;
        for (std::size_t y = primero; y <= ultimo; ++y) {
            cifra += enfrentamientos.Diferencia(tabla_[x - 1].nombre, tabla_[y - 1].nombre) -
                     enfrentamientos.Diferencia(tabla_[y - 1].nombre, tabla_[x - 1].nombre);
        }
        cifras.push_back(cifra);
    }
    for (std::size_t x = primero; x <= ultimo; ++x) {
        tabla_[x - 1].enfrentamiento = std::to_string(cifras[x - primero]);
    }
}

void CifrasACero(const fs::path& carpetaTemporada, int division) {
    base::ArchivoDe<RegEquipo> equipos(carpetaTemporada / kNomeq);
    for (std::int32_t n = 1; n <= equipos.Cuenta(); ++n) {
        RegEquipo e = equipos.Leer(n);
        if (e.division != division) continue;
        e.jugados = e.puntos = e.ganados = e.empatados = e.perdidos = 0;
        e.golesFavor = e.golesContra = e.diferencia = 0;
        e.puntosCasa = e.ganadosCasa = e.empatadosCasa = e.perdidosCasa = 0;
        e.puntosFuera = e.ganadosFuera = e.empatadosFuera = e.perdidosFuera = 0;
        equipos.Escribir(n, e);
    }
    equipos.Cerrar();
}

bool Recalcular(const fs::path& carpetaTemporada, int division, const base::Ajustes& ajustes,
                base::Dialogo& dialogo) {
    if (dialogo.PreguntaSiNo(kPreguntaRecalcular, base::Respuesta::No) != base::Respuesta::Si) {
        return false;
    }
    CifrasACero(carpetaTemporada, division);
    const int ultima =
        std::atoi(ajustes.Leer(base::kAplicacion, "Valores", ClaveMaxJor(division), "0").c_str());
    Clasificacion clasificacion(carpetaTemporada, division);
    for (int j = 1; j <= ultima; ++j) clasificacion.Clasifica(j);
    return true;
}

std::vector<std::optional<PuestoClasificacion>> FilasClasificacion(const fs::path& carpetaTemporada,
                                                                   int division,
                                                                   const base::Ajustes& ajustes) {
    std::vector<std::optional<PuestoClasificacion>> tabla(
        static_cast<std::size_t>(std::max(0, EquiposDeLaDivision(ajustes, division))));
    base::ArchivoDe<RegEquipo> equipos(carpetaTemporada / kNomeq);
    for (std::int32_t n = 1; n <= equipos.Cuenta(); ++n) {
        const RegEquipo e = equipos.Leer(n);
        if (e.division != division || e.posicion <= 0) continue;
        if (static_cast<std::size_t>(e.posicion) > tabla.size()) {
            tabla.resize(static_cast<std::size_t>(e.posicion));
        }
        tabla[static_cast<std::size_t>(e.posicion - 1)] =
            PuestoClasificacion{e.posicion,    std::string(base::Recortar(e.nombre)),
                                e.puntos,      e.jugados,
                                e.ganados,     e.empatados,
                                e.perdidos,    e.golesFavor,
                                e.golesContra, e.diferencia};
    }
    return tabla;
}

ColorPuesto ColorDelPuesto(int division, int puesto) {
    const int verdes = division == 1 ? 4 : 2;
    const int rojos = division == 1 ? 18 : 19;
    if (puesto >= 1 && puesto <= verdes) return ColorPuesto::Verde;
    if (puesto > verdes && puesto <= 6) return ColorPuesto::Azul;
    if (puesto >= rojos) return ColorPuesto::Rojo;
    return ColorPuesto::Ninguno;
}

}  // namespace quinteva::seasons
