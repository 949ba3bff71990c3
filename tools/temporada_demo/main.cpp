// Escribe la temporada de demostración que instala el programa en su primer arranque: equipos de
// verdad (los primeros de data/equipos.txt) con resultados inventados por un sorteo de semilla
// fija, así que cada ejecución da los mismos bytes.
//
//   temporada_demo <equipos.txt> <carpeta de salida>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <string>
#include <vector>

#include "base/dates.h"
#include "base/error.h"
#include "base/pleno_letter.h"
#include "base/record_files.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"

namespace {

using namespace quinteva;
namespace fs = std::filesystem;

constexpr const char* kTemporada = "23/24";
constexpr int kEquipos1 = 20;
constexpr int kEquipos2 = 22;
// Jornadas de liga ya jugadas y Jornadas de Quiniela del calendario.
constexpr int kJugadas1 = 20;
constexpr int kJugadas2 = 22;
constexpr int kJornadasQuiniela = 26;
constexpr int kPartidosDe1 = 9;  // partidos 1 a 9 de 1ª, 10 a 14 de 2ª, el Pleno de 1ª

struct Partido {
    int jornada = 0;
    int partido = 0;
    int local = 0;
    int visitante = 0;
    int golesLocal = 0;
    int golesVisitante = 0;
    bool jugado = false;
};

struct Division {
    int numero = 0;
    std::vector<std::string> equipos;
    std::vector<Partido> partidos;
    int jugadas = 0;
};

std::vector<std::string> LeerEquipos(const fs::path& ruta) {
    std::ifstream f(ruta);
    std::vector<std::string> nombres;
    for (std::string linea; std::getline(f, linea);) {
        if (!linea.empty() && linea.back() == '\r') linea.pop_back();
        if (!linea.empty()) nombres.push_back(linea);
    }
    if (nombres.size() < kEquipos1 + kEquipos2)
        throw base::Error("Faltan equipos en " + ruta.string());
    return nombres;
}

double FechaJornada(int jornada) { return base::FechaASerie({2023, 8, 13}) + 7.0 * (jornada - 1); }

// Goles de un equipo: cuatro ocasiones que entran más a menudo cuanto más fuerte es.
int Goles(std::mt19937& azar, int fuerza) {
    int goles = 0;
    for (int ocasion = 0; ocasion < 4; ++ocasion)
        goles += static_cast<int>(azar() % 100) < 18 + 4 * fuerza ? 1 : 0;
    return goles;
}

int Fuerza(int indice, int equipos) { return 5 - 6 * indice / equipos; }

// Todos contra todos, ida y vuelta, por el método del círculo.
void Calendario(Division& d, std::mt19937& azar) {
    const int n = static_cast<int>(d.equipos.size());
    std::vector<int> rueda(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) rueda[static_cast<std::size_t>(i)] = i;
    for (int vuelta = 0; vuelta < 2; ++vuelta) {
        for (int r = 0; r < n - 1; ++r) {
            const int jornada = vuelta * (n - 1) + r + 1;
            for (int i = 0; i < n / 2; ++i) {
                int a = rueda[static_cast<std::size_t>(i)];
                int b = rueda[static_cast<std::size_t>(n - 1 - i)];
                if ((r + i + vuelta) % 2 == 1) std::swap(a, b);
                Partido p{jornada, i + 1, a, b, 0, 0, jornada <= d.jugadas};
                if (p.jugado) {
                    p.golesLocal = Goles(azar, Fuerza(a, n) + 1);
                    p.golesVisitante = Goles(azar, Fuerza(b, n));
                }
                d.partidos.push_back(p);
            }
            std::rotate(rueda.begin() + 1, rueda.end() - 1, rueda.end());
        }
    }
}

// La clasificación tras cada Jornada jugada, y las cifras finales.
std::vector<seasons::RegEquipo> Clasificacion(const Division& d) {
    const int n = static_cast<int>(d.equipos.size());
    std::vector<seasons::RegEquipo> eq(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) {
        auto& e = eq[static_cast<std::size_t>(i)];
        e.temporada = kTemporada;
        e.nombre = d.equipos[static_cast<std::size_t>(i)];
        e.division = d.numero;
        e.valoracion = Fuerza(i, n) + 3;
    }
    for (int j = 1; j <= d.jugadas; ++j) {
        for (const Partido& p : d.partidos) {
            if (p.jornada != j) continue;
            auto& l = eq[static_cast<std::size_t>(p.local)];
            auto& v = eq[static_cast<std::size_t>(p.visitante)];
            const int dif = p.golesLocal - p.golesVisitante;
            ++l.jugados;
            ++v.jugados;
            l.golesFavor += p.golesLocal;
            l.golesContra += p.golesVisitante;
            v.golesFavor += p.golesVisitante;
            v.golesContra += p.golesLocal;
            if (dif > 0) {
                ++l.ganados, ++l.ganadosCasa, ++v.perdidos, ++v.perdidosFuera;
                l.puntosCasa += 3;
            } else if (dif < 0) {
                ++v.ganados, ++v.ganadosFuera, ++l.perdidos, ++l.perdidosCasa;
                v.puntosFuera += 3;
            } else {
                ++l.empatados, ++l.empatadosCasa, ++v.empatados, ++v.empatadosFuera;
                ++l.puntosCasa, ++v.puntosFuera;
            }
        }
        std::vector<int> orden(static_cast<std::size_t>(n));
        for (int i = 0; i < n; ++i) {
            auto& e = eq[static_cast<std::size_t>(i)];
            e.puntos = e.puntosCasa + e.puntosFuera;
            e.diferencia = e.golesFavor - e.golesContra;
            orden[static_cast<std::size_t>(i)] = i;
        }
        std::stable_sort(orden.begin(), orden.end(), [&](int a, int b) {
            const auto& x = eq[static_cast<std::size_t>(a)];
            const auto& y = eq[static_cast<std::size_t>(b)];
            if (x.puntos != y.puntos) return x.puntos > y.puntos;
            if (x.diferencia != y.diferencia) return x.diferencia > y.diferencia;
            return x.golesFavor > y.golesFavor;
        });
        for (int puesto = 1; puesto <= n; ++puesto) {
            auto& e = eq[static_cast<std::size_t>(orden[static_cast<std::size_t>(puesto - 1)])];
            e.posicion = puesto;
            e.posicionJornada[static_cast<std::size_t>(j - 1)] = puesto;
        }
    }
    return eq;
}

seasons::RegPartidoLiga Liga(const Division& d, const Partido& p) {
    seasons::RegPartidoLiga r;
    r.jornada = p.jornada;
    r.fecha = FechaJornada(p.jornada);
    r.temporada = kTemporada;
    r.division = d.numero;
    r.partido = p.partido;
    r.local = d.equipos[static_cast<std::size_t>(p.local)];
    r.visitante = d.equipos[static_cast<std::size_t>(p.visitante)];
    r.golesLocal = p.golesLocal;
    r.golesVisitante = p.golesVisitante;
    return r;
}

std::string Signo(const Partido& p) {
    if (!p.jugado) return " ";
    return p.golesLocal > p.golesVisitante ? "1" : p.golesLocal < p.golesVisitante ? "2" : "X";
}

std::string GolPleno(int goles) { return goles > 2 ? "M" : std::to_string(goles); }

const Partido& PartidoDe(const Division& d, int jornada, int partido) {
    const auto p = std::find_if(d.partidos.begin(), d.partidos.end(), [&](const Partido& x) {
        return x.jornada == jornada && x.partido == partido;
    });
    if (p == d.partidos.end()) throw base::Error("No hay partido " + std::to_string(partido));
    return *p;
}

// Los 15 partidos de una Jornada de Quiniela y su columna ganadora.
void Quiniela(int q, const Division& d1, const Division& d2,
              base::ArchivoDe<seasons::RegPartidoQuin>& jquin,
              base::ArchivoDe<seasons::RegJornadaQuin>& jornadas) {
    seasons::RegJornadaQuin columna;
    columna.temporada = kTemporada;
    columna.jornada = q;
    for (int partido = 1; partido <= 15; ++partido) {
        const bool dePrimera = partido <= kPartidosDe1 || partido == 15;
        const Division& d = dePrimera ? d1 : d2;
        const int enJornada = partido <= kPartidosDe1 ? partido
                              : partido == 15         ? kPartidosDe1 + 1
                                                      : partido - kPartidosDe1;
        const Partido& p = PartidoDe(d, q, enJornada);
        seasons::RegPartidoQuin r;
        r.jornada = q;
        r.fecha = FechaJornada(q);
        r.partido = partido;
        r.temporada = kTemporada;
        r.jornadaDiv1 = q;
        r.jornadaDiv2 = q;
        r.division = d.numero;
        r.local = d.equipos[static_cast<std::size_t>(p.local)];
        r.visitante = d.equipos[static_cast<std::size_t>(p.visitante)];
        r.signo = partido < 15 ? Signo(p)
                  : p.jugado ? base::PlenoALetra(GolPleno(p.golesLocal), GolPleno(p.golesVisitante))
                             : " ";
        jquin.Anadir(r);
        columna.signos[static_cast<std::size_t>(partido - 1)] = r.signo[0];
    }
    jornadas.Anadir(columna);
}

void Escribir(const std::vector<std::string>& nombres, const fs::path& salida) {
    std::mt19937 azar(2324);
    const auto inicio = nombres.begin();
    Division d1{1, std::vector<std::string>(inicio, inicio + kEquipos1), {}, kJugadas1};
    Division d2{2,
                std::vector<std::string>(inicio + kEquipos1, inicio + kEquipos1 + kEquipos2),
                {},
                kJugadas2};
    Calendario(d1, azar);
    Calendario(d2, azar);

    fs::create_directories(salida);
    for (const auto& archivo : seasons::kArchivosTemporada) fs::remove(salida / archivo.nombre);
    seasons::FijarTemporadaActual(salida, seasons::NombreCarpetaTemporada(kTemporada));

    base::ArchivoDe<seasons::RegEquipo> nomeq(salida / seasons::kNomeq);
    base::ArchivoDe<seasons::RegPartidoLiga> jlig2(salida / seasons::kJlig2);
    base::ArchivoDe<seasons::RegPartidoLiga> hist(salida / seasons::kHist);
    for (const Division* d : {&d1, &d2}) {
        for (const auto& e : Clasificacion(*d)) nomeq.Anadir(e);
        for (const Partido& p : d->partidos) {
            jlig2.Anadir(Liga(*d, p));
            if (p.jugado) hist.Anadir(Liga(*d, p));
        }
    }
    base::ArchivoDe<seasons::RegPartidoQuin> jquin(salida / seasons::kJquin);
    base::ArchivoDe<seasons::RegJornadaQuin> jornadas(salida / seasons::kJornadas);
    for (int q = 1; q <= kJornadasQuiniela; ++q) Quiniela(q, d1, d2, jquin, jornadas);
    nomeq.Cerrar();
    jlig2.Cerrar();
    hist.Cerrar();
    jquin.Cerrar();
    jornadas.Cerrar();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "Uso: temporada_demo <equipos.txt> <carpeta de salida>\n";
        return 2;
    }
    try {
        Escribir(LeerEquipos(argv[1]), argv[2]);
    } catch (const std::exception& e) {
        std::cerr << "Error: " << e.what() << '\n';
        return 1;
    }
    return 0;
}
