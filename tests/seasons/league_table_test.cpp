#include "seasons/league_table.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <set>

#include "base/error.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
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

std::string Leer(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

struct Resultado {
    int jornada;
    std::string local, visitante;
    int golesLocal, golesVisitante;
};

// Una carpeta de temporada con los equipos dados (en ese orden de archivo) de una división y los
// partidos dados en "Jlig2.rar".
struct Liga {
    CarpetaTemporal carpeta;

    Liga(const std::vector<std::string>& equipos, const std::vector<Resultado>& partidos,
         int division = 1) {
        base::ArchivoDe<RegEquipo> nomeq(carpeta / kNomeq);
        for (const auto& nombre : equipos) {
            RegEquipo e;
            e.temporada = "23/24";
            e.nombre = nombre;
            e.division = division;
            nomeq.Anadir(e);
        }
        nomeq.Cerrar();
        base::ArchivoDe<RegPartidoLiga> liga(carpeta / kJlig2);
        std::vector<int> partido(50, 0);
        for (const auto& r : partidos) {
            RegPartidoLiga p;
            p.jornada = r.jornada;
            p.division = division;
            p.partido = ++partido[static_cast<std::size_t>(r.jornada)];
            p.temporada = "23/24";
            p.local = r.local;
            p.visitante = r.visitante;
            p.golesLocal = r.golesLocal;
            p.golesVisitante = r.golesVisitante;
            liga.Anadir(p);
        }
        liga.Cerrar();
    }

    RegEquipo Equipo(std::string_view nombre) const {
        base::ArchivoDe<RegEquipo> nomeq(carpeta / kNomeq);
        for (int n = 1; n <= nomeq.Cuenta(); ++n) {
            const RegEquipo e = nomeq.Leer(n);
            if (base::Recortar(e.nombre) == nombre) return e;
        }
        throw std::logic_error("no está " + std::string(nombre));
    }

    // Los nombres por su puesto.
    std::vector<std::string> Orden(int jornada) const {
        base::ArchivoDe<RegEquipo> nomeq(carpeta / kNomeq);
        std::vector<std::pair<int, std::string>> puestos;
        for (int n = 1; n <= nomeq.Cuenta(); ++n) {
            const RegEquipo e = nomeq.Leer(n);
            puestos.emplace_back(e.posicionJornada[static_cast<std::size_t>(jornada - 1)],
                                 std::string(base::Recortar(e.nombre)));
        }
        std::sort(puestos.begin(), puestos.end());
        std::vector<std::string> orden;
        for (const auto& [puesto, nombre] : puestos) {
            if (puesto > 0) orden.push_back(nombre);
        }
        return orden;
    }
};

TEST(Clasifica, TresPuntosLaVictoriaUnoElEmpateEnCasaYFuera) {
    Liga l({"A", "B", "C", "D"},
           {{1, "A", "B", 2, 0}, {1, "C", "D", 1, 1}, {2, "B", "C", 0, 3}, {2, "D", "A", 1, 2}});
    Clasificacion c(l.carpeta.Ruta(), 1);
    EXPECT_TRUE(c.Clasifica(1));
    EXPECT_TRUE(c.Clasifica(2));
    const RegEquipo a = l.Equipo("A");
    EXPECT_EQ(a.puntos, 6);
    EXPECT_EQ(a.puntosCasa, 3);
    EXPECT_EQ(a.ganadosCasa, 1);
    EXPECT_EQ(a.puntosFuera, 3);
    EXPECT_EQ(a.ganadosFuera, 1);
    EXPECT_EQ(a.jugados, 2);
    const RegEquipo b = l.Equipo("B");
    EXPECT_EQ(b.puntos, 0);
    EXPECT_EQ(b.perdidosFuera, 1);
    EXPECT_EQ(b.perdidosCasa, 1);
    EXPECT_EQ(b.golesFavor, 0);
    EXPECT_EQ(b.golesContra, 5);
    EXPECT_EQ(b.diferencia, -5);
    const RegEquipo cc = l.Equipo("C");
    EXPECT_EQ(cc.puntos, 4);
    EXPECT_EQ(cc.empatadosCasa, 1);
    EXPECT_EQ(cc.puntosFuera, 3);
    EXPECT_EQ(cc.ganadosFuera, 1);
    EXPECT_EQ(l.Equipo("D").puntos, 1);
    EXPECT_EQ(l.Orden(2), (std::vector<std::string>{"A", "C", "D", "B"}));
    EXPECT_EQ(l.Equipo("C").posicion, 2);
}

TEST(Clasifica, UnaJornadaDeCeroACeroNoSeHaJugado) {
    Liga l({"A", "B", "C", "D"}, {{1, "A", "B", 0, 0}, {1, "C", "D", 0, 0}});
    const std::string antes = Leer(l.carpeta / kNomeq);
    Clasificacion c(l.carpeta.Ruta(), 1);
    EXPECT_FALSE(c.Clasifica(1));
    EXPECT_EQ(Leer(l.carpeta / kNomeq), antes);
    EXPECT_TRUE(c.Tabla().empty());
}

TEST(Clasifica, UnEquipoSinPartidoNoTieneFilaYConservaSuPuesto) {
    Liga l({"A", "B", "C"}, {{1, "A", "B", 1, 0}});
    {
        base::ArchivoDe<RegEquipo> nomeq(l.carpeta / kNomeq);
        RegEquipo c = nomeq.Leer(3);
        c.posicion = 7;
        nomeq.Escribir(3, c);
    }
    Clasificacion c(l.carpeta.Ruta(), 1);
    EXPECT_TRUE(c.Clasifica(1));
    EXPECT_EQ(l.Equipo("C").posicion, 7);
    EXPECT_EQ(l.Equipo("C").jugados, 0);
    EXPECT_EQ(l.Equipo("C").posicionJornada[0], 0);
    // Tres filas, una sin escribir; vacía, vale 0 puntos y 0 de diferencia, y pasa por delante de
    // B (-1).
    ASSERT_EQ(c.Tabla().size(), 3U);
    EXPECT_EQ(c.Tabla()[1], Clasificacion::Fila{});
    EXPECT_EQ(l.Equipo("A").posicion, 1);
    EXPECT_EQ(l.Equipo("B").posicion, 3);
}

TEST(Clasifica, DosVecesLaMismaJornadaDoblaSusCifrasYUnByteDesbordaEn255) {
    Liga l({"A", "B"}, {{1, "A", "B", 60, 0}});
    Clasificacion c(l.carpeta.Ruta(), 1);
    for (int vez = 1; vez <= 4; ++vez) EXPECT_TRUE(c.Clasifica(1));
    EXPECT_EQ(l.Equipo("A").puntos, 12);
    EXPECT_EQ(l.Equipo("A").golesFavor, 240);
    EXPECT_EQ(l.Equipo("A").jugados, 4);
    const std::string antes = Leer(l.carpeta / kNomeq);
    EXPECT_THROW(c.Clasifica(1), base::Desbordamiento);
    EXPECT_EQ(Leer(l.carpeta / kNomeq), antes);
}

// A y B, con 4 puntos tras C, empataron 1-1: los ordena la diferencia de goles (A +2, B +1),
// aunque B vaya antes en el archivo.
TEST(Clasifica, IgualesAPuntosYEnElEnfrentamientoLosOrdenaLaDiferencia) {
    Liga l({"B", "A", "C", "D"}, {{1, "A", "B", 1, 1},
                                  {1, "C", "D", 2, 0},
                                  {2, "A", "C", 0, 1},
                                  {2, "B", "D", 2, 0},
                                  {3, "A", "D", 3, 0},
                                  {3, "B", "C", 0, 1}});
    Clasificacion c(l.carpeta.Ruta(), 1);
    for (int j = 1; j <= 3; ++j) EXPECT_TRUE(c.Clasifica(j));
    EXPECT_EQ(l.Equipo("A").puntos, 4);
    EXPECT_EQ(l.Equipo("B").puntos, 4);
    EXPECT_EQ(l.Orden(3), (std::vector<std::string>{"C", "A", "B", "D"}));
    EXPECT_EQ(c.Tabla()[1].enfrentamiento, "0");
    EXPECT_EQ(c.Tabla()[2].enfrentamiento, "0");
}

// El enfrentamiento manda sobre la diferencia: B ganó a A 1-0 y A tiene mejor diferencia.
TEST(Clasifica, ElEnfrentamientoDirectoVaAntesQueLaDiferencia) {
    Liga l({"A", "B", "C", "D"}, {{1, "B", "A", 1, 0},
                                  {1, "C", "D", 0, 0},
                                  {2, "A", "C", 5, 0},
                                  {2, "B", "D", 0, 1},
                                  {3, "A", "D", 1, 1},
                                  {3, "B", "C", 1, 1}});
    Clasificacion c(l.carpeta.Ruta(), 1);
    for (int j = 1; j <= 3; ++j) EXPECT_TRUE(c.Clasifica(j));
    EXPECT_EQ(l.Equipo("A").puntos, l.Equipo("B").puntos);
    EXPECT_GT(l.Equipo("A").diferencia, l.Equipo("B").diferencia);
    EXPECT_EQ(l.Orden(3), (std::vector<std::string>{"D", "B", "A", "C"}));
}

// Un empate que llega a la última fila no se ve: B y C (1 punto) los ordena lo que su fila aún
// guarda del enfrentamiento de otra Jornada (la de B, el 1 que D sacó de B en la anterior), y no
// la diferencia (B -4, C -3).
TEST(Clasifica, UnEmpateAlFinalLoOrdenaLaCifraQueQuedabaEnLaFila) {
    Liga l({"A", "B", "C", "D"}, {{1, "A", "B", 3, 0},
                                  {1, "C", "D", 0, 1},
                                  {2, "A", "C", 2, 0},
                                  {2, "B", "D", 0, 1},
                                  {3, "B", "C", 1, 1},
                                  {3, "D", "A", 0, 4}});
    Clasificacion c(l.carpeta.Ruta(), 1);
    for (int j = 1; j <= 3; ++j) EXPECT_TRUE(c.Clasifica(j));
    EXPECT_EQ(l.Equipo("B").diferencia, -4);
    EXPECT_EQ(l.Equipo("C").diferencia, -3);
    EXPECT_EQ(l.Orden(3), (std::vector<std::string>{"A", "D", "B", "C"}));
    EXPECT_EQ(c.Tabla()[2], (Clasificacion::Fila{"B", "1", "1", "-4"}));
    EXPECT_EQ(c.Tabla()[3], (Clasificacion::Fila{"C", "1", "", "-3"}));
}

// Pasado el primer empate, cada paso llama a SubClasifica con dos filas aunque sus puntos
// difieran: B, con 4 como A, recibe la cifra de su partido con D.
TEST(Clasifica, PasadoElPrimerEmpateSubClasificaSigueConFilasDistintas) {
    Liga l({"A", "B", "C", "D"},
           {{1, "A", "B", 1, 1}, {1, "C", "D", 0, 1}, {2, "A", "C", 3, 0}, {2, "B", "D", 1, 0}});
    Clasificacion c(l.carpeta.Ruta(), 1);
    EXPECT_TRUE(c.Clasifica(1));
    EXPECT_TRUE(c.Clasifica(2));
    EXPECT_EQ(l.Orden(2), (std::vector<std::string>{"B", "A", "D", "C"}));
    EXPECT_EQ(c.Tabla()[0].nombre, "B");
    EXPECT_EQ(c.Tabla()[0].enfrentamiento, "1");
    EXPECT_EQ(c.Tabla()[1].enfrentamiento, "0");
    EXPECT_EQ(c.Tabla()[2].enfrentamiento, "-1");
}

TEST(Recalcular, PreguntaConNoPorDefectoYRehaceLaTabla) {
    Liga l({"A", "B", "C", "D"},
           {{1, "A", "B", 2, 0}, {1, "C", "D", 1, 1}, {2, "B", "C", 0, 3}, {2, "D", "A", 2, 2}});
    AjustesEnMemoria ajustes;
    ajustes.Guardar(base::kAplicacion, "Valores", "MaxJor1ª", "2");
    // La última Jornada guardada dos veces: sus cifras, dos veces.
    Clasificacion c(l.carpeta.Ruta(), 1);
    c.Clasifica(1);
    c.Clasifica(2);
    c.Clasifica(2);
    EXPECT_EQ(l.Equipo("C").jugados, 3);
    DialogoGuionado dialogo;
    dialogo.Responder(Respuesta::No).Responder(Respuesta::Si);
    EXPECT_FALSE(Recalcular(l.carpeta.Ruta(), 1, ajustes, dialogo));
    EXPECT_EQ(l.Equipo("C").jugados, 3);
    EXPECT_TRUE(Recalcular(l.carpeta.Ruta(), 1, ajustes, dialogo));
    EXPECT_EQ(dialogo.Textos(), (std::vector<std::string>(2, std::string(kPreguntaRecalcular))));
    EXPECT_EQ(dialogo.PorDefecto(), (std::vector<Respuesta>(2, Respuesta::No)));
    EXPECT_EQ(l.Equipo("C").jugados, 2);
    EXPECT_EQ(l.Equipo("C").puntos, 4);
    EXPECT_EQ(l.Equipo("A").puntos, 4);
}

// Una temporada al azar: n equipos a una vuelta por el método del círculo, goles de 0 a 3 (con
// 0-0 a menudo).
std::vector<Resultado> Temporada(int equipos, std::mt19937& azar,
                                 std::vector<std::string>& nombres) {
    nombres.clear();
    for (int i = 0; i < equipos; ++i) nombres.push_back("Equipo " + std::to_string(i + 1));
    std::vector<int> ruedas(static_cast<std::size_t>(equipos % 2 == 0 ? equipos : equipos + 1));
    for (std::size_t i = 0; i < ruedas.size(); ++i) ruedas[i] = static_cast<int>(i);
    std::uniform_int_distribution<int> gol(0, 3);
    std::vector<Resultado> partidos;
    for (int j = 1; j < static_cast<int>(ruedas.size()); ++j) {
        for (std::size_t k = 0; k < ruedas.size() / 2; ++k) {
            const int x = ruedas[k];
            const int y = ruedas[ruedas.size() - 1 - k];
            if (x >= equipos || y >= equipos) continue;
            partidos.push_back({j, nombres[static_cast<std::size_t>(x)],
                                nombres[static_cast<std::size_t>(y)], gol(azar), gol(azar)});
        }
        std::rotate(ruedas.begin() + 1, ruedas.end() - 1, ruedas.end());
    }
    return partidos;
}

// La misma temporada con la clasificación de la prueba, que recorre los archivos en cada
// consulta, y con la del programa: los mismos "Nomeq.rar" byte a byte y las mismas tablas de
// trabajo tras cada Jornada, también con una Jornada guardada dos veces.
TEST(Clasifica, IgualQueElRecorridoLiteralDeLosArchivos) {
    std::mt19937 azar(20'240'127);
    for (int prueba = 0; prueba < 40; ++prueba) {
        std::vector<std::string> nombres;
        const int equipos = 4 + prueba % 6;
        const auto partidos = Temporada(equipos, azar, nombres);
        std::shuffle(nombres.begin(), nombres.end(), azar);
        Liga programa(nombres, partidos);
        Liga literal(nombres, partidos);
        Clasificacion c(programa.carpeta.Ruta(), 1);
        pruebas::ClasificacionLiteral r(literal.carpeta.Ruta(), 1);
        const int jornadas = equipos % 2 == 0 ? equipos - 1 : equipos;
        for (int j = 1; j <= jornadas; ++j) {
            const int veces = j == jornadas / 2 ? 2 : 1;
            for (int v = 0; v < veces; ++v) ASSERT_EQ(c.Clasifica(j), r.Clasifica(j));
            ASSERT_EQ(c.Tabla(), r.Tabla()) << "prueba " << prueba << ", Jornada " << j;
            ASSERT_EQ(Leer(programa.carpeta / kNomeq), Leer(literal.carpeta / kNomeq))
                << "prueba " << prueba << ", Jornada " << j;
        }
    }
}

// Guardar las Jornadas una a una, cada una desde una ventana nueva, y "Recalcular" dan las mismas
// cifras; los puestos pueden diferir solo por la cifra del enfrentamiento que se queda en la
// tabla de trabajo, así que sin empates a puntos al final el puesto coincide también.
TEST(Recalcular, LasMismasCifrasQueGuardarUnaAUna) {
    std::mt19937 azar(77);
    for (int prueba = 0; prueba < 20; ++prueba) {
        std::vector<std::string> nombres;
        const auto partidos = Temporada(6, azar, nombres);
        Liga l(nombres, partidos);
        for (int j = 1; j <= 5; ++j) Clasificacion(l.carpeta.Ruta(), 1).Clasifica(j);
        std::vector<RegEquipo> unaAUna;
        std::set<int> puntos;
        for (const auto& n : nombres) {
            unaAUna.push_back(l.Equipo(n));
            puntos.insert(unaAUna.back().puntos);
        }
        AjustesEnMemoria ajustes;
        ajustes.Guardar(base::kAplicacion, "Valores", "MaxJor1ª", "5");
        DialogoGuionado dialogo;
        dialogo.Responder(Respuesta::Si);
        ASSERT_TRUE(Recalcular(l.carpeta.Ruta(), 1, ajustes, dialogo));
        for (std::size_t i = 0; i < nombres.size(); ++i) {
            const RegEquipo e = l.Equipo(nombres[i]);
            RegEquipo esperado = unaAUna[i];
            esperado.posicionJornada = e.posicionJornada;
            if (puntos.size() < nombres.size()) esperado.posicion = e.posicion;
            EXPECT_EQ(e, esperado) << nombres[i];
        }
    }
}

TEST(FilasClasificacion, CadaEquipoEnLaFilaDeSuPuesto) {
    Liga l({"A", "B", "C", "D"}, {{1, "A", "B", 0, 2}, {1, "C", "D", 0, 0}});
    Clasificacion(l.carpeta.Ruta(), 1).Clasifica(1);
    AjustesEnMemoria ajustes;
    const auto filas = FilasClasificacion(l.carpeta.Ruta(), 1, ajustes);
    ASSERT_EQ(filas.size(), 20U);
    ASSERT_TRUE(filas[0].has_value());
    EXPECT_EQ(filas[0]->nombre, "B");
    EXPECT_EQ(filas[0]->puntos, 3);
    EXPECT_EQ(filas[0]->golesFavor, 2);
    EXPECT_EQ(filas[1]->nombre, "C");
    EXPECT_EQ(filas[3]->nombre, "A");
    EXPECT_EQ(filas[3]->diferencia, -2);
    EXPECT_FALSE(filas[4].has_value());
    ajustes.Guardar(base::kAplicacion, "Valores", "NEq2", "21");
    EXPECT_EQ(FilasClasificacion(l.carpeta.Ruta(), 2, ajustes).size(), 21U);
}

TEST(FilasClasificacion, LosColoresPorBandasFijas) {
    using enum ColorPuesto;
    std::vector<ColorPuesto> primera, segunda;
    for (int puesto = 1; puesto <= 22; ++puesto) {
        primera.push_back(ColorDelPuesto(1, puesto));
        segunda.push_back(ColorDelPuesto(2, puesto));
    }
    EXPECT_EQ(primera, (std::vector<ColorPuesto>{
                           Verde,   Verde,   Verde,   Verde,   Azul,    Azul,    Ninguno, Ninguno,
                           Ninguno, Ninguno, Ninguno, Ninguno, Ninguno, Ninguno, Ninguno, Ninguno,
                           Ninguno, Rojo,    Rojo,    Rojo,    Rojo,    Rojo}));
    EXPECT_EQ(segunda, (std::vector<ColorPuesto>{
                           Verde,   Verde,   Azul,    Azul,    Azul,    Azul,    Ninguno, Ninguno,
                           Ninguno, Ninguno, Ninguno, Ninguno, Ninguno, Ninguno, Ninguno, Ninguno,
                           Ninguno, Ninguno, Rojo,    Rojo,    Rojo,    Rojo}));
}

}  // namespace
}  // namespace quinteva::seasons
