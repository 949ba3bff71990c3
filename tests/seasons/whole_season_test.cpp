// Una temporada pequeña jugada entera por las ventanas sin ventana, como la jugaría un usuario:
// los equipos en "Equipos", las 30 Jornadas de calendario en "Jornadas de Liga", un boleto en
// "Jornadas de Quinielas", los goles Jornada a Jornada en "Introducir o Ver Resultados" y la
// clasificación tras cada una, comparada con una cuenta hecha aquí desde los goles tecleados.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <random>

#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/league.h"
#include "seasons/league_results.h"
#include "seasons/league_table.h"
#include "seasons/pools.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "seasons/teams.h"
#include "tests/seasons/literal_table.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::seasons {
namespace {

namespace fs = std::filesystem;
using base::Respuesta;
using pruebas::AjustesEnMemoria;
using pruebas::CarpetaTemporal;
using pruebas::DialogoGuionado;

constexpr int kEquipos = 6;
constexpr int kJornadasLiga = 2 * (kEquipos - 1);
const std::array<std::string, kEquipos> kNombres = {"Alcorcón",  "Badajoz", "Cartagena",
                                                    "Deportivo", "Écija",   "Ferrol"};

std::string Leer(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

struct Partido {
    int local;
    int visitante;
    int golesLocal = 0;
    int golesVisitante = 0;
};

// Ida y vuelta por el método del círculo: tres partidos por Jornada.
std::vector<std::vector<Partido>> Calendario() {
    std::vector<int> ruedas(kEquipos);
    for (int i = 0; i < kEquipos; ++i) ruedas[static_cast<std::size_t>(i)] = i;
    std::vector<std::vector<Partido>> ida;
    for (int j = 0; j < kEquipos - 1; ++j) {
        std::vector<Partido> jornada;
        for (int k = 0; k < kEquipos / 2; ++k) {
            jornada.push_back({ruedas[static_cast<std::size_t>(k)],
                               ruedas[static_cast<std::size_t>(kEquipos - 1 - k)]});
        }
        ida.push_back(jornada);
        std::rotate(ruedas.begin() + 1, ruedas.end() - 1, ruedas.end());
    }
    auto todas = ida;
    for (const auto& jornada : ida) {
        std::vector<Partido> vuelta;
        for (const Partido& p : jornada) vuelta.push_back({p.visitante, p.local});
        todas.push_back(vuelta);
    }
    return todas;
}

// Las cifras de un equipo contadas aquí, partido a partido, desde los goles tecleados.
struct Cifras {
    int jugados = 0, puntos = 0, ganados = 0, empatados = 0, perdidos = 0;
    int golesFavor = 0, golesContra = 0;
    int puntosCasa = 0, puntosFuera = 0;

    void Sumar(int propios, int ajenos, bool enCasa) {
        ++jugados;
        golesFavor += propios;
        golesContra += ajenos;
        const int p = propios > ajenos ? 3 : propios == ajenos ? 1 : 0;
        puntos += p;
        (enCasa ? puntosCasa : puntosFuera) += p;
        ++(propios > ajenos ? ganados : propios == ajenos ? empatados : perdidos);
    }
    bool operator==(const RegEquipo& e) const {
        return jugados == e.jugados && puntos == e.puntos && ganados == e.ganados &&
               empatados == e.empatados && perdidos == e.perdidos && golesFavor == e.golesFavor &&
               golesContra == e.golesContra && golesFavor - golesContra == e.diferencia &&
               puntosCasa == e.puntosCasa && puntosFuera == e.puntosFuera;
    }
};

std::map<std::string, RegEquipo> Equipos(const fs::path& carpeta) {
    std::map<std::string, RegEquipo> equipos;
    base::ArchivoDe<RegEquipo> nomeq(carpeta / kNomeq);
    for (std::int32_t n = 1; n <= nomeq.Cuenta(); ++n) {
        const RegEquipo e = nomeq.Leer(n);
        equipos.emplace(base::Recortar(e.nombre), e);
    }
    return equipos;
}

struct Temporada {
    CarpetaTemporal trabajo;
    CarpetaTemporal referencia;  // la misma temporada para la clasificación literal
    fs::path carpeta;
    AjustesEnMemoria ajustes;
    DialogoGuionado dialogo;
    std::vector<std::vector<Partido>> calendario = Calendario();

    Temporada() {
        FijarTemporadaActual(trabajo.Ruta(), "Temporada2425");
        carpeta = trabajo / "Temporada2425";
        fs::create_directories(carpeta);
        ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", std::to_string(kEquipos));
    }

    void MeterEquipos() {
        VentanaEquipos v(trabajo.Ruta(), carpeta, ajustes, dialogo);
        v.Abrir();
        v.EscribirTemporada("24/25");
        for (int i = 0; i < kEquipos; ++i) {
            ASSERT_TRUE(v.IntroEnNombre(0, kNombres[static_cast<std::size_t>(i)],
                                        std::to_string(10 * (i + 1))));
        }
    }

    void MeterCalendario() {
        VentanaJornadasLiga v(carpeta, "24/25", ajustes, dialogo);
        v.ElegirDivision(1);
        ASSERT_EQ(v.Jornadas(), kJornadasLiga);
        for (int j = 1; j <= kJornadasLiga; ++j) {
            ASSERT_EQ(v.Jornada(), j);
            for (const Partido& p : calendario[static_cast<std::size_t>(j - 1)]) {
                ASSERT_TRUE(v.Agregar(kNombres[static_cast<std::size_t>(p.local)]));
                ASSERT_TRUE(v.Agregar(kNombres[static_cast<std::size_t>(p.visitante)]));
            }
            v.EscribirFecha(Fecha(j));
            ASSERT_TRUE(v.Guardar());
        }
        // Tras la última, el selector vuelve a la 1.
        EXPECT_EQ(v.Jornada(), 1);
    }

    static std::string Fecha(int jornada) {
        return (jornada < 5 ? "0" : "") + std::to_string(2 * jornada) + "/09/24";
    }

    // El boleto de la Jornada 1 de Quinielas: los tres partidos de la Jornada 1 de Liga en las
    // filas 1, 2 y 15 (el Pleno), las demás con equipos de fuera.
    void MeterBoleto() {
        VentanaJornadasQuiniela v(carpeta, "Temporada 24/25", dialogo);
        v.ElegirJornada(1);
        v.EscribirFecha(Fecha(1));
        v.EscribirJornadaLiga(1, "1");
        const auto& primera = calendario[0];
        for (std::size_t f = 0; f < kPartidosBoleto; ++f) {
            const Partido* p = f == 0    ? &primera[0]
                               : f == 1  ? &primera[1]
                               : f == 14 ? &primera[2]
                                         : nullptr;
            if (p != nullptr) {
                ASSERT_TRUE(v.Agregar(kNombres[static_cast<std::size_t>(p->local)], 1));
                ASSERT_TRUE(v.Agregar(kNombres[static_cast<std::size_t>(p->visitante)], 1));
            } else {
                ASSERT_TRUE(v.Agregar("Local " + std::to_string(f + 1), kOtrosEquipos));
                ASSERT_TRUE(v.Agregar("Visita " + std::to_string(f + 1), kOtrosEquipos));
            }
        }
        ASSERT_TRUE(v.Guardar());
    }
};

TEST(TemporadaEntera, CadaClasificacionComoLaCuentaLaPrueba) {
    Temporada t;
    t.MeterEquipos();
    t.MeterCalendario();
    t.MeterBoleto();
    ASSERT_EQ(base::CuentaRegistros(t.carpeta / kJlig2, RegPartidoLiga::kLongitud), 30);
    fs::copy_file(t.carpeta / kNomeq, t.referencia / kNomeq);
    pruebas::ClasificacionLiteral literal(t.referencia.Ruta(), 1);

    std::mt19937 azar(2425);
    std::uniform_int_distribution<int> gol(0, 4);
    std::map<std::string, Cifras> cuenta;
    VentanaResultadosLiga resultados(t.trabajo.Ruta(), t.carpeta, "24/25", t.ajustes, t.dialogo);
    resultados.ElegirDivision(1);
    for (int j = 1; j <= kJornadasLiga; ++j) {
        resultados.ElegirJornada(j);
        for (Partido& p : t.calendario[static_cast<std::size_t>(j - 1)]) {
            p.golesLocal = gol(azar);
            p.golesVisitante = gol(azar);
            // Cada gol con una tecla, como en la rejilla.
            ASSERT_TRUE(resultados.Tecla(static_cast<char>('0' + p.golesLocal)));
            ASSERT_TRUE(resultados.Tecla(static_cast<char>('0' + p.golesVisitante)));
            cuenta[kNombres[static_cast<std::size_t>(p.local)]].Sumar(p.golesLocal,
                                                                      p.golesVisitante, true);
            cuenta[kNombres[static_cast<std::size_t>(p.visitante)]].Sumar(p.golesVisitante,
                                                                          p.golesLocal, false);
        }
        ASSERT_TRUE(resultados.Guardar());
        fs::copy_file(t.carpeta / kJlig2, t.referencia / kJlig2,
                      fs::copy_options::overwrite_existing);
        literal.Clasifica(j);

        const auto equipos = Equipos(t.carpeta);
        for (const auto& nombre : kNombres) {
            EXPECT_TRUE(cuenta[nombre] == equipos.at(nombre)) << nombre << ", Jornada " << j;
        }
        // Los puestos, como los da la cuenta de la clasificación paso a paso sobre los archivos.
        EXPECT_EQ(Leer(t.carpeta / kNomeq), Leer(t.referencia / kNomeq)) << "Jornada " << j;
    }
    EXPECT_TRUE(t.dialogo.Registro().empty());

    // El boleto tiene los signos de sus tres partidos de Liga: el Pleno por su letra.
    const auto& primera = t.calendario[0];
    const auto signo = [](const Partido& p) {
        return SignoDeGoles(p.golesLocal, p.golesVisitante);
    };
    VentanaResultadosQuiniela boleto(t.carpeta, "24/25", t.dialogo);
    boleto.ElegirJornada(1);
    EXPECT_EQ(boleto.Rejilla()[0].signo, signo(primera[0]));
    EXPECT_EQ(boleto.Rejilla()[1].signo, signo(primera[1]));
    EXPECT_EQ(boleto.Rejilla()[2].signo, "");
    const std::string pleno =
        GolesDelPleno(primera[2].golesLocal) + "-" + GolesDelPleno(primera[2].golesVisitante);
    EXPECT_EQ(boleto.Rejilla()[14].signo, pleno);
    // El registro que el boleto nuevo dejó en "Jornadas.rar" va en blanco entero: ningún
    // resultado llega a él.
    base::ArchivoDe<RegJornadaQuin> columnas(t.carpeta / kJornadas);
    ASSERT_EQ(columnas.Cuenta(), 1);
    EXPECT_EQ(columnas.Leer(1), (RegJornadaQuin{"     ", 0, std::string(15, ' ')}));

    // Guardar una a una y "Recalcular" dan las mismas cifras.
    t.dialogo.Responder(Respuesta::Si);
    ASSERT_TRUE(Recalcular(t.carpeta, 1, t.ajustes, t.dialogo));
    for (const auto& nombre : kNombres) {
        EXPECT_TRUE(cuenta[nombre] == Equipos(t.carpeta).at(nombre)) << nombre;
    }

    // La última Jornada guardada otra vez se suma otra vez; "Recalcular" lo arregla.
    resultados.ElegirJornada(kJornadasLiga);
    ASSERT_TRUE(resultados.Guardar());
    const std::string& alguno = kNombres[0];
    EXPECT_EQ(Equipos(t.carpeta).at(alguno).jugados, kJornadasLiga + 1);
    t.dialogo.Responder(Respuesta::Si);
    ASSERT_TRUE(Recalcular(t.carpeta, 1, t.ajustes, t.dialogo));
    EXPECT_TRUE(cuenta[alguno] == Equipos(t.carpeta).at(alguno));
}

}  // namespace
}  // namespace quinteva::seasons
