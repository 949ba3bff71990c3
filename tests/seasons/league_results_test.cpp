#include "seasons/league_results.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
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

template <typename Registro>
std::vector<Registro> Registros(const fs::path& ruta) {
    base::ArchivoDe<Registro> archivo(ruta);
    std::vector<Registro> todos;
    for (std::int32_t n = 1; n <= archivo.Cuenta(); ++n) todos.push_back(archivo.Leer(n));
    return todos;
}

constexpr double kFecha1 = 45'200;  // 01/10/23
constexpr double kFecha2 = 45'207;  // 08/10/23

// Una 1ª de cuatro equipos con dos Jornadas de calendario sin jugar, una Quiniela (la 7) con sus
// dos partidos de la Jornada 1 (el segundo en el Pleno al 15) y su columna en "Jornadas.rar",
// y la columna de la misma Jornada de otra temporada. La carpeta de trabajo y la de la
// temporada son la misma, como si "Hist.rar" viviera junto a los demás.
struct Resultados {
    CarpetaTemporal carpeta;
    AjustesEnMemoria ajustes;
    DialogoGuionado dialogo;
    VentanaResultadosLiga ventana;

    Resultados() : ventana(carpeta.Ruta() / "trabajo", carpeta.Ruta(), "23/24", ajustes, dialogo) {
        fs::create_directories(carpeta / "trabajo");
        ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", "4");
        base::ArchivoDe<RegEquipo> nomeq(carpeta / kNomeq);
        for (const char* nombre : {"Girona", "Betis", "Cádiz", "Celta"}) {
            RegEquipo e;
            e.temporada = "23/24";
            e.nombre = nombre;
            e.division = 1;
            nomeq.Anadir(e);
        }
        nomeq.Cerrar();
        Calendario(1, kFecha1, {"Girona", "Betis", "Cádiz", "Celta"});
        Calendario(2, kFecha2, {"Betis", "Cádiz", "Celta", "Girona"});
        Quiniela(7, {{"Girona", "Betis"}, {"Cádiz", "Celta"}});
        base::ArchivoDe<RegJornadaQuin> jornadas(carpeta / kJornadas);
        jornadas.Anadir({"22/23", 7, std::string(15, ' ')});
        jornadas.Anadir({"23/24", 7, std::string(15, ' ')});
        jornadas.Cerrar();
        ventana.ElegirDivision(1);
    }

    void Calendario(int jornada, double fecha, std::vector<std::string> equipos) {
        base::ArchivoDe<RegPartidoLiga> liga(carpeta / kJlig2);
        for (std::size_t f = 0; f < equipos.size() / 2; ++f) {
            RegPartidoLiga p;
            p.jornada = jornada;
            p.fecha = fecha;
            p.temporada = "23/24";
            p.division = 1;
            p.partido = static_cast<int>(f + 1);
            p.local = equipos[2 * f];
            p.visitante = equipos[2 * f + 1];
            liga.Anadir(p);
        }
        liga.Cerrar();
    }

    // Los pares van a los partidos 1 y 15 de la Quiniela; los demás, equipos de otros nombres.
    void Quiniela(int jornada, std::vector<std::pair<std::string, std::string>> pares) {
        base::ArchivoDe<RegPartidoQuin> jquin(carpeta / kJquin);
        for (int partido = 1; partido <= 15; ++partido) {
            RegPartidoQuin q;
            q.jornada = jornada;
            q.fecha = kFecha1;
            q.partido = partido;
            q.temporada = "23/24";
            q.jornadaDiv1 = 1;
            q.division = 1;
            const bool dePar = partido == 1 || partido == 15;
            const auto& par = pares[partido == 1 ? 0 : 1];
            q.local = dePar ? par.first : "Local " + std::to_string(partido);
            q.visitante = dePar ? par.second : "Visitante " + std::to_string(partido);
            jquin.Anadir(q);
        }
        jquin.Cerrar();
    }

    void Teclear(std::string_view teclas) {
        for (char t : teclas) ventana.Tecla(t);
    }
    RegEquipo Equipo(std::string_view nombre) const {
        for (const auto& e : Registros<RegEquipo>(carpeta / kNomeq)) {
            if (base::Recortar(e.nombre) == nombre) return e;
        }
        throw std::logic_error("no está " + std::string(nombre));
    }
    std::string Columna(std::size_t registro) const {
        return Registros<RegJornadaQuin>(carpeta / kJornadas).at(registro).signos;
    }
};

TEST(ResultadosLiga, LaRejillaMuestraCeroACeroLoQueNoSeJugoYLaFecha) {
    Resultados r;
    EXPECT_EQ(r.ventana.Jornadas(), 6);
    EXPECT_EQ(r.ventana.Rejilla(), (std::vector<FilaResultado>{{"Girona", "Betis", "0", "0"},
                                                               {"Cádiz", "Celta", "0", "0"}}));
    EXPECT_EQ(r.ventana.Fecha(), "01/10/23");
    EXPECT_FALSE(r.ventana.PuedeGuardar());
    r.ventana.ElegirJornada(3);
    EXPECT_EQ(r.ventana.Rejilla(), (std::vector<FilaResultado>(2)));
    EXPECT_EQ(r.ventana.Fecha(), "");
}

TEST(ResultadosLiga, ConEquiposImparesLaParteEnteraDeLaMitad) {
    Resultados r;
    for (const auto& [equipos, filas] : {std::pair{19, 9U}, {21, 10U}}) {
        r.ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", std::to_string(equipos));
        r.ventana.ElegirDivision(1);
        EXPECT_EQ(r.ventana.Rejilla().size(), filas);
        EXPECT_EQ(r.ventana.Jornadas(), 2 * (equipos - 1));
    }
}

TEST(ResultadosLiga, ElSelectorSigueAlNumeroDeEquiposDeLosAjustes) {
    Resultados r;
    EXPECT_EQ(r.ventana.Jornadas(), 6);
    r.ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", "20");
    EXPECT_EQ(r.ventana.Jornadas(), 38);
    r.ventana.ElegirDivision(2);
    EXPECT_EQ(r.ventana.Jornadas(), 42);
}

TEST(ResultadosLiga, AlAbrirVaALaJornadaDeLaFechaDeLaQuiniela) {
    Resultados r;
    EXPECT_TRUE(r.ventana.IrALaFecha(kFecha2));
    EXPECT_EQ(r.ventana.Jornada(), 2);
    EXPECT_EQ(r.ventana.Rejilla()[0].local, "Betis");
    EXPECT_FALSE(r.ventana.IrALaFecha(kFecha2 + 1));
    EXPECT_EQ(r.ventana.Jornada(), 2);
    r.ventana.ElegirDivision(2);
    EXPECT_FALSE(r.ventana.IrALaFecha(kFecha1));
    EXPECT_EQ(r.ventana.Jornada(), 1);
}

TEST(ResultadosLiga, UnaCifraOcupaLaCeldaYPasaALaSiguiente) {
    Resultados r;
    EXPECT_TRUE(r.ventana.Tecla('2'));
    EXPECT_EQ(r.ventana.Elegida(), (Celda{0, 1}));
    EXPECT_TRUE(r.ventana.PuedeGuardar());
    EXPECT_FALSE(r.ventana.Tecla('a'));
    EXPECT_FALSE(r.ventana.Tecla('-'));
    EXPECT_EQ(r.ventana.Elegida(), (Celda{0, 1}));
    r.Teclear("13");
    EXPECT_EQ(r.ventana.Elegida(), (Celda{1, 1}));
    r.Teclear("5");
    // En la última celda se queda.
    EXPECT_EQ(r.ventana.Elegida(), (Celda{1, 1}));
    EXPECT_EQ(r.ventana.Rejilla(), (std::vector<FilaResultado>{{"Girona", "Betis", "2", "1"},
                                                               {"Cádiz", "Celta", "3", "5"}}));
    r.ventana.ElegirCelda({0, 0});
    r.ventana.Borrar();
    EXPECT_EQ(r.ventana.Rejilla()[0].golesLocal, "");
    EXPECT_EQ(r.ventana.Elegida(), (Celda{0, 0}));
    EXPECT_FALSE(r.ventana.PonerGoles(1, "x", "1"));
    EXPECT_TRUE(r.ventana.PonerGoles(1, "10", "0"));
    EXPECT_EQ(r.ventana.Rejilla()[1].golesLocal, "10");
}

TEST(ResultadosLiga, GuardarEscribeGolesHistoriaSignoYColumna) {
    Resultados r;
    r.Teclear("2130");
    ASSERT_TRUE(r.ventana.Guardar());
    EXPECT_TRUE(r.dialogo.Registro().empty());

    const auto liga = Registros<RegPartidoLiga>(r.carpeta / kJlig2);
    EXPECT_EQ(liga[0].golesLocal, 2);
    EXPECT_EQ(liga[0].golesVisitante, 1);
    // Tres goles son 3 en la Liga y "M" solo en la letra del Pleno.
    EXPECT_EQ(liga[1].golesLocal, 3);
    EXPECT_EQ(liga[2].golesLocal, 0);

    const auto historia = Registros<RegPartidoLiga>(r.carpeta / "trabajo" / kHist);
    ASSERT_EQ(historia.size(), 2U);
    EXPECT_EQ(historia[0], liga[0]);
    EXPECT_EQ(historia[1], liga[1]);

    const auto quiniela = Registros<RegPartidoQuin>(r.carpeta / kJquin);
    EXPECT_EQ(quiniela[0].signo, "1");
    EXPECT_EQ(quiniela[14].signo, "M");
    EXPECT_EQ(quiniela[1].signo, " ");
    // El Pleno M-0 es la letra M; la columna de otra temporada no cambia.
    EXPECT_EQ(r.Columna(1), "1             M");
    EXPECT_EQ(r.Columna(0), std::string(15, ' '));
}

TEST(ResultadosLiga, ElPlenoLlevaLaLetraDelParDeGoles) {
    Resultados r;
    r.Teclear("0012");
    ASSERT_TRUE(r.ventana.Guardar());
    EXPECT_EQ(Registros<RegPartidoQuin>(r.carpeta / kJquin)[14].signo, "G");
    EXPECT_EQ(r.Columna(1), "X             G");
    r.ventana.ElegirCelda({0, 0});
    r.Teclear("0049");
    ASSERT_TRUE(r.ventana.Guardar());
    EXPECT_EQ(r.Columna(1), "X             P");
}

// Los bytes de "Jlig2.rar" tras guardar: solo cambian los dos goles (desplazamientos 48 y 49) de
// cada partido guardado.
TEST(ResultadosLiga, LosBytesDeLaLigaTrasGuardar) {
    Resultados r;
    std::string esperado = Leer(r.carpeta / kJlig2);
    r.Teclear("2130");
    ASSERT_TRUE(r.ventana.Guardar());
    esperado[48] = 2;
    esperado[49] = 1;
    esperado[51 + 48] = 3;
    esperado[51 + 49] = 0;
    EXPECT_EQ(Leer(r.carpeta / kJlig2), esperado);
    EXPECT_EQ(Leer(r.carpeta / "trabajo" / kHist), esperado.substr(0, 2 * 51));
}

TEST(ResultadosLiga, GuardarOtraVezSobreescribeLaHistoria) {
    Resultados r;
    r.Teclear("2130");
    ASSERT_TRUE(r.ventana.Guardar());
    r.ventana.ElegirJornada(1);
    r.Teclear("0");
    ASSERT_TRUE(r.ventana.Guardar());
    const auto historia = Registros<RegPartidoLiga>(r.carpeta / "trabajo" / kHist);
    ASSERT_EQ(historia.size(), 2U);
    EXPECT_EQ(historia[0].golesLocal, 0);
    EXPECT_EQ(historia[0].golesVisitante, 1);
    EXPECT_EQ(r.Columna(1), "2             M");
}

TEST(ResultadosLiga, UnaCeldaVaciaPreguntaYEsaFilaNoSeToca) {
    Resultados r;
    r.Teclear("21");
    r.ventana.ElegirCelda({1, 1});
    r.ventana.Borrar();
    const std::string antes = Leer(r.carpeta / kJlig2);
    r.dialogo.Responder(Respuesta::No).Responder(Respuesta::Si);
    EXPECT_FALSE(r.ventana.Guardar());
    EXPECT_EQ(Leer(r.carpeta / kJlig2), antes);
    EXPECT_FALSE(fs::exists(r.carpeta / "trabajo" / kHist));
    EXPECT_TRUE(r.ventana.Guardar());
    EXPECT_EQ(r.dialogo.Textos(),
              (std::vector<std::string>(2, std::string(kPreguntaFaltanResultados))));
    EXPECT_EQ(r.dialogo.PorDefecto(), (std::vector<Respuesta>(2, Respuesta::Si)));
    const auto liga = Registros<RegPartidoLiga>(r.carpeta / kJlig2);
    EXPECT_EQ(liga[0].golesLocal, 2);
    EXPECT_EQ(liga[1].golesLocal, 0);
    EXPECT_EQ(Registros<RegPartidoLiga>(r.carpeta / "trabajo" / kHist).size(), 1U);
    EXPECT_EQ(Registros<RegPartidoQuin>(r.carpeta / kJquin)[14].signo, " ");
    EXPECT_EQ(r.Columna(1), "1              ");
}

TEST(ResultadosLiga, UnParEnDosQuinielasDaSuSignoSoloALaPrimera) {
    Resultados r;
    r.Quiniela(8, {{"Girona", "Betis"}, {"Betis", "Girona"}});
    r.Teclear("0100");
    ASSERT_TRUE(r.ventana.Guardar());
    const auto quiniela = Registros<RegPartidoQuin>(r.carpeta / kJquin);
    EXPECT_EQ(quiniela[0].signo, "2");
    EXPECT_EQ(quiniela[15].signo, " ");
    EXPECT_EQ(quiniela[15].jornada, 8);
}

TEST(ResultadosLiga, UnEquipoQueNoEstaEnNingunaQuinielaNoDaSigno) {
    Resultados r;
    r.ventana.ElegirJornada(2);
    r.Teclear("1111");
    const std::string antes = Leer(r.carpeta / kJquin);
    ASSERT_TRUE(r.ventana.Guardar());
    EXPECT_EQ(Leer(r.carpeta / kJquin), antes);
    EXPECT_EQ(Registros<RegPartidoLiga>(r.carpeta / kJlig2)[3].golesLocal, 1);
}

TEST(ResultadosLiga, LaUltimaJornadaSeSumaYGuardadaDosVecesSeSumaDosVeces) {
    Resultados r;
    r.Teclear("2130");
    ASSERT_TRUE(r.ventana.Guardar());
    EXPECT_EQ(r.ajustes.Leer(base::kAplicacion, "Valores", "MaxJor1ª", ""), "1");
    EXPECT_EQ(r.Equipo("Girona").puntos, 3);
    EXPECT_EQ(r.Equipo("Cádiz").posicion, 1);
    EXPECT_EQ(r.Equipo("Girona").posicion, 2);
    EXPECT_EQ(r.Equipo("Celta").posicionJornada[0], 4);
    ASSERT_TRUE(r.ventana.Guardar());
    EXPECT_EQ(r.Equipo("Girona").puntos, 6);
    EXPECT_EQ(r.Equipo("Girona").jugados, 2);
    // "Recalcular" lo arregla.
    r.dialogo.Responder(Respuesta::Si);
    ASSERT_TRUE(Recalcular(r.carpeta.Ruta(), 1, r.ajustes, r.dialogo));
    EXPECT_EQ(r.Equipo("Girona").puntos, 3);
    EXPECT_EQ(r.Equipo("Girona").jugados, 1);
}

TEST(ResultadosLiga, CambiarUnaJornadaAnteriorRehaceLaClasificacion) {
    Resultados r;
    r.Teclear("2130");
    ASSERT_TRUE(r.ventana.Guardar());
    r.ventana.ElegirJornada(2);
    r.Teclear("1111");
    ASSERT_TRUE(r.ventana.Guardar());
    EXPECT_EQ(r.ajustes.Leer(base::kAplicacion, "Valores", "MaxJor1ª", ""), "2");
    EXPECT_EQ(r.Equipo("Girona").puntos, 4);
    // La Jornada 1 con otro resultado: de cero, la 1 y la 2; MaxJor se queda en 2.
    r.ventana.ElegirJornada(1);
    r.Teclear("02");
    ASSERT_TRUE(r.ventana.Guardar());
    EXPECT_EQ(r.ajustes.Leer(base::kAplicacion, "Valores", "MaxJor1ª", ""), "2");
    EXPECT_EQ(r.Equipo("Girona").puntos, 1);
    EXPECT_EQ(r.Equipo("Girona").jugados, 2);
    EXPECT_EQ(r.Equipo("Betis").puntos, 4);
    EXPECT_EQ(r.Equipo("Cádiz").puntos, 4);
    EXPECT_EQ(r.Equipo("Cádiz").posicion, 1);
}

TEST(ResultadosLiga, UnaJornadaDeCeroACeroNoCuentaPeroPasaASerLaUltima) {
    Resultados r;
    r.Teclear("0000");
    ASSERT_TRUE(r.ventana.Guardar());
    EXPECT_EQ(r.ajustes.Leer(base::kAplicacion, "Valores", "MaxJor1ª", ""), "1");
    EXPECT_EQ(r.Equipo("Girona").jugados, 0);
    EXPECT_EQ(r.Columna(1), "X             A");
}

TEST(ResultadosLiga, UnArchivoDeLigaCortoSeLeeHastaSuUltimoRegistroEntero) {
    Resultados r;
    {
        std::ofstream f(r.carpeta / kJlig2, std::ios::binary | std::ios::app);
        f << "basura";
    }
    r.ventana.ElegirJornada(2);
    EXPECT_EQ(r.ventana.Rejilla()[1].local, "Celta");
    r.Teclear("1021");
    ASSERT_TRUE(r.ventana.Guardar());
    EXPECT_EQ(Registros<RegPartidoLiga>(r.carpeta / kJlig2)[3].golesVisitante, 1);
}

}  // namespace
}  // namespace quinteva::seasons
