#include "seasons/statistics.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <random>

#include "base/error.h"
#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/support/memory_settings.h"
#include "tests/support/temp_folder.h"

namespace quinteva::seasons {
namespace {

namespace fs = std::filesystem;
using pruebas::AjustesEnMemoria;
using pruebas::CarpetaTemporal;

std::string Leer(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

// "Jornadas.rar" con tres temporadas: 12/13 sin letra, 22/23 y 23/24 con columnas al azar (la 23/24
// con una en blanco) escritas por la prueba.
struct Columnas {
    CarpetaTemporal carpeta;
    std::map<std::string, std::vector<std::string>> escritas;

    Columnas() {
        std::mt19937 azar(1314);
        std::uniform_int_distribution<int> signo(0, 2);
        std::uniform_int_distribution<int> letra(0, 15);
        base::ArchivoDe<RegJornadaQuin> jornadas(carpeta / kJornadas);
        jornadas.Anadir({"12/13", 2, "1X21X21X21X21X1"});
        for (const char* temporada : {"22/23", "23/24"}) {
            for (int j = 30; j >= 1; --j) {
                std::string s;
                for (int p = 0; p < 14; ++p) s += "1X2"[signo(azar)];
                s += static_cast<char>('A' + letra(azar));
                jornadas.Anadir({temporada, j, s});
                escritas[temporada].push_back(s);
            }
        }
        jornadas.Anadir({"23/24", 31, std::string(15, ' ')});
    }
    std::vector<std::string> De(const std::string& temporada) const {
        return escritas.at(temporada);
    }
};

TEST(Estadisticas, ElSelectorDeTemporadasYLaElegidaAlAbrir) {
    Columnas c;
    const SelectorTemporadas s = TemporadasDeJornadas(c.carpeta.Ruta());
    EXPECT_EQ(s.entradas, (std::vector<std::string>{"12/13", "22/23", "23/24", "Todas"}));
    EXPECT_EQ(s.elegida, 1);
    CarpetaTemporal vacia;
    EXPECT_EQ(TemporadasDeJornadas(vacia.Ruta()).entradas, (std::vector<std::string>{"Todas"}));
    EXPECT_FALSE(fs::exists(vacia / kJornadas));
}

TEST(Estadisticas, SignosPorPosicionComoLosCuentaLaPrueba) {
    Columnas c;
    const auto columnas = ColumnasDeTemporada(c.carpeta.Ruta(), "23/24");
    ASSERT_EQ(columnas.size(), 30U);
    for (char signo : {'1', 'X', '2'}) {
        std::array<int, 15> esperado{};
        for (const auto& s : c.De("23/24")) {
            for (std::size_t p = 0; p < 15; ++p) esperado[p] += s[p] == signo;
        }
        EXPECT_EQ(SignosPorPosicion(columnas, signo), esperado) << signo;
    }
    EXPECT_EQ(ColumnasDeTemporada(c.carpeta.Ruta(), "Todas").size(), 61U);
}

TEST(Estadisticas, RachasComoLasCuentaLaPrueba) {
    Columnas c;
    const auto columnas = ColumnasDeTemporada(c.carpeta.Ruta(), "22/23");
    for (char signo : {'1', 'X', '2'}) {
        std::array<int, 13> esperado{};
        for (const auto& s : c.De("22/23")) {
            int mayor = 0;
            for (int p = 0, racha = 0; p < 14; ++p) {
                racha = s[static_cast<std::size_t>(p)] == signo ? racha + 1 : 0;
                mayor = std::max(mayor, racha);
            }
            for (int n = 2; n <= mayor; ++n) ++esperado[static_cast<std::size_t>(n - 2)];
        }
        EXPECT_EQ(Rachas(columnas, signo), esperado) << signo;
    }
}

TEST(Estadisticas, ParejasTriosYGrupos) {
    Columnas c;
    const auto columnas = ColumnasDeTemporada(c.carpeta.Ruta(), "23/24");
    const std::vector<int> posiciones = {2, 5, 14};
    const auto combinaciones = CombinacionesEnPosiciones(columnas, posiciones);
    ASSERT_EQ(combinaciones.size(), 27U);
    EXPECT_EQ(combinaciones[0].signos, "111");
    EXPECT_EQ(combinaciones[1].signos, "11X");
    EXPECT_EQ(combinaciones[26].signos, "222");
    std::map<std::string, int> esperado;
    for (const auto& s : c.De("23/24")) ++esperado[std::string{s[1], s[4], s[13]}];
    int total = 0;
    for (const auto& comb : combinaciones) {
        EXPECT_EQ(comb.veces, esperado[comb.signos]) << comb.signos;
        total += comb.veces;
    }
    EXPECT_EQ(total, 30);
    EXPECT_EQ(EtiquetaCombinacion({2, 5}), "Pareja 2-5");
    EXPECT_EQ(EtiquetaCombinacion(posiciones), "Trío 2-5-14");
    EXPECT_EQ(EtiquetaCombinacion({1, 2, 3, 4}), "Grupos de 1-2-3-4");
}

TEST(Estadisticas, UnaTemporadaSinResultadosDaUnGraficoVacio) {
    Columnas c;
    const auto columnas = ColumnasDeTemporada(c.carpeta.Ruta(), "99/00");
    EXPECT_TRUE(columnas.empty());
    EXPECT_EQ(SignosPorPosicion(columnas, '1'), (std::array<int, 15>{}));
    EXPECT_EQ(Rachas(columnas, 'X'), (std::array<int, 13>{}));
}

TEST(ColumnasGanadoras, PorJornadaConElPlenoDesdeLaTemporada13) {
    Columnas c;
    const auto filas = ColumnasGanadoras(c.carpeta.Ruta(), "23/24");
    ASSERT_EQ(filas.size(), 31U);
    EXPECT_EQ(filas[0].jornada, 1);
    const std::string primera = c.De("23/24").back();
    const std::string par = std::string(1, "012M"[(primera[14] - 'A') / 4]) + "-" +
                            std::string(1, "012M"[(primera[14] - 'A') % 4]);
    EXPECT_EQ(filas[0].columna, primera.substr(0, 14) + "/" + par);
    EXPECT_EQ(filas[30].columna, std::string(15, ' '));
    // Antes de la 13, tal cual.
    EXPECT_EQ(ColumnasGanadoras(c.carpeta.Ruta(), "12/13")[0].columna, "1X21X21X21X21X1");
    // Una letra desconocida: sin goles.
    base::ArchivoDe<RegJornadaQuin>(c.carpeta / kJornadas).Anadir({"24/25", 1, "1111111111111XZ"});
    EXPECT_EQ(ColumnasGanadoras(c.carpeta.Ruta(), "24/25")[0].columna, "1111111111111X");
}

RegPartidoLiga Partido(const char* temporada, int division, int jornada, const char* local,
                       const char* visitante, int gl, int gv) {
    RegPartidoLiga p;
    p.temporada = temporada;
    p.division = division;
    p.jornada = jornada;
    p.fecha = 45'200 + jornada;
    p.partido = 1;
    p.local = local;
    p.visitante = visitante;
    p.golesLocal = gl;
    p.golesVisitante = gv;
    return p;
}

struct Historia {
    CarpetaTemporal trabajo;
    AjustesEnMemoria ajustes;
    Historia() {
        base::ArchivoDe<RegPartidoLiga> hist(trabajo / kHist);
        hist.Anadir(Partido("22/23", 1, 5, "Betis", "Sevilla", 2, 1));
        hist.Anadir(Partido("22/23", 1, 24, "Sevilla", "Betis", 0, 0));
        hist.Anadir(Partido("23/24", 1, 3, "Betis", "Girona", 1, 3));
        hist.Anadir(Partido("23/24", 1, 9, "Sevilla", "Betis", 0, 0));
        hist.Anadir(Partido("23/24", 2, 3, "Racing", "Eibar", 1, 1));
        ajustes.Guardar(base::kAplicacion, "Valores", "MaxJor1ª", "4");
    }
    std::vector<FilaHistorico> Buscar(const BusquedaHistorico& b) {
        return BuscarEnHistorico(trabajo.Ruta(), b, "23/24", ajustes);
    }
};

TEST(Historico, EquiposPartidosYJornadas) {
    Historia h;
    const auto betis = h.Buscar(BusquedaHistorico::DeEquipo("Betis"));
    // De la temporada en curso solo hasta MaxJor1ª (4): la Jornada 9 no sale.
    ASSERT_EQ(betis.size(), 3U);
    EXPECT_EQ(betis[0].fecha, "06/10/23");
    EXPECT_EQ(betis[0].signo, "1");
    EXPECT_EQ(betis[1].signo, "X");
    EXPECT_EQ(betis[2].signo, "2");
    EXPECT_EQ(h.Buscar(BusquedaHistorico::DePartidos("Betis", "Sevilla")).size(), 2U);
    const auto jornada = h.Buscar(BusquedaHistorico::DeJornada("22/23", 1, 24));
    ASSERT_EQ(jornada.size(), 1U);
    EXPECT_EQ(jornada[0].local, "Sevilla");
    // De 2ª, MaxJor2ª no está: 0, nada de la temporada en curso.
    EXPECT_TRUE(h.Buscar(BusquedaHistorico::DeEquipo("Racing")).empty());
}

TEST(Historico, LoQueFaltaLoDiceLaVentana) {
    Historia h;
    EXPECT_THROW(
        {
            try {
                h.Buscar(BusquedaHistorico::DeEquipo(""));
            } catch (const base::Error& e) {
                EXPECT_EQ(std::string(e.what()), kMsgEligeEquipo);
                throw;
            }
        },
        base::Error);
    try {
        h.Buscar(BusquedaHistorico::DePartidos("Betis", ""));
        ADD_FAILURE();
    } catch (const base::Error& e) {
        EXPECT_EQ(std::string(e.what()), kMsgEligeDosEquipos);
    }
    try {
        h.Buscar(BusquedaHistorico::DeJornada("22/23", 1, 0));
        ADD_FAILURE();
    } catch (const base::Error& e) {
        EXPECT_EQ(std::string(e.what()), kMsgEligeJornada);
    }
}

TEST(Historico, CambiarNombreNoTocaLaLigaNiLosEquipos) {
    Historia h;
    const fs::path temporada = h.trabajo / "Temporada2324";
    fs::create_directories(temporada);
    base::ArchivoDe<RegPartidoLiga>(temporada / kJlig2)
        .Anadir(Partido("23/24", 1, 3, "Betis", "Girona", 1, 3));
    RegEquipo betis;
    betis.nombre = "Betis";
    base::ArchivoDe<RegEquipo>(temporada / kNomeq).Anadir(betis);
    const std::string liga = Leer(temporada / kJlig2);
    const std::string equipos = Leer(temporada / kNomeq);
    EXPECT_EQ(CambiarNombreEnHistorico(h.trabajo.Ruta(), "Betis", "Real Betis"), 4);
    EXPECT_EQ(Leer(temporada / kJlig2), liga);
    EXPECT_EQ(Leer(temporada / kNomeq), equipos);
    EXPECT_TRUE(h.Buscar(BusquedaHistorico::DeEquipo("Betis")).empty());
    EXPECT_EQ(h.Buscar(BusquedaHistorico::DeEquipo("Real Betis")).size(), 3U);
}

TEST(Historico, SusTemporadasYLosSesentaYOchoNombres) {
    Historia h;
    EXPECT_EQ(TemporadasDeHistorico(h.trabajo.Ruta()),
              (std::vector<std::string>{"22/23", "23/24"}));
    const auto nombres = NombresDelHistorico(QUINTEVA_DATOS);
    ASSERT_EQ(nombres.size(), 68U);
    EXPECT_EQ(nombres.front(), "Real Madrid");
    EXPECT_THROW(NombresDelHistorico(h.trabajo.Ruta()), base::Error);
}

TEST(Historico, AnadirElJlig2DeLaCarpetaDeTrabajo) {
    Historia h;
    {
        base::ArchivoDe<RegPartidoLiga> liga(h.trabajo / kJlig2);
        liga.Anadir(Partido("21/22", 1, 1, "Elche", "Getafe", 3, 0));
        liga.Anadir(Partido("21/22", 1, 2, "Getafe", "Elche", 0, 1));
    }
    EXPECT_EQ(AnadirJlig2AHistorico(h.trabajo.Ruta()), 2);
    EXPECT_EQ(base::CuentaRegistros(h.trabajo / kHist, RegPartidoLiga::kLongitud), 7);
    EXPECT_EQ(h.Buscar(BusquedaHistorico::DePartidos("Elche", "Getafe")).size(), 2U);
}

}  // namespace
}  // namespace quinteva::seasons
