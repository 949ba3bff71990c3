#include "seasons/pools.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/league.h"
#include "seasons/league_results.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::seasons {
namespace {

namespace fs = std::filesystem;
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

// Una temporada 23/24 con cuatro equipos de 1ª y cuatro de 2ª y la ventana del boleto abierta.
struct Boleto {
    CarpetaTemporal carpeta;
    DialogoGuionado dialogo;

    Boleto() {
        base::ArchivoDe<RegEquipo> nomeq(carpeta / kNomeq);
        for (const char* nombre : {"Girona", "Betis", "Cádiz", "Celta"})
            nomeq.Anadir(Equipo(nombre, 1));
        for (const char* nombre : {"Eibar", "Elche", "Huesca", "Leganés"})
            nomeq.Anadir(Equipo(nombre, 2));
        nomeq.Cerrar();
    }
    static RegEquipo Equipo(const char* nombre, int division) {
        RegEquipo e;
        e.temporada = "23/24";
        e.nombre = nombre;
        e.division = division;
        return e;
    }
    VentanaJornadasQuiniela Ventana() {
        return VentanaJornadasQuiniela(carpeta.Ruta(), "Temporada 23/24", dialogo);
    }
    // Un boleto entero de 1ª: el par i es (equipo i % 4, equipo (i + 1) % 4).
    static void Llenar(VentanaJornadasQuiniela& v, int division = 1) {
        const std::array<const char*, 4> equipos =
            division == 1 ? std::array<const char*, 4>{"Girona", "Betis", "Cádiz", "Celta"}
                          : std::array<const char*, 4>{"Eibar", "Elche", "Huesca", "Leganés"};
        for (int i = 0; i < 2 * kPartidosBoleto; ++i) {
            ASSERT_TRUE(v.Agregar(equipos[static_cast<std::size_t>(i % 4)], division));
        }
    }
};

TEST(JornadasQuiniela, SinFechaLaListaNoAgrega) {
    Boleto b;
    auto v = b.Ventana();
    EXPECT_FALSE(v.Agregar("Girona", 1));
    v.ElegirJornada(7);
    EXPECT_FALSE(v.Agregar("Girona", 1));
    v.EscribirFecha("01/10/23");
    EXPECT_FALSE(v.Agregar("Girona", 1));
    EXPECT_FALSE(v.Agregar("Eibar", 2));
    EXPECT_TRUE(v.Agregar("Real Unión", kOtrosEquipos));
    EXPECT_EQ(b.dialogo.Textos(),
              (std::vector<std::string>{
                  std::string(kMsgAntesDeEquipos), std::string(kMsgAntesDeEquipos),
                  std::string(kMsgFaltaJornadaLiga1), std::string(kMsgFaltaJornadaLiga2)}));
    v.EscribirJornadaLiga(1, "8");
    EXPECT_TRUE(v.Agregar("Girona", 1));
    EXPECT_EQ(v.Rejilla()[0], (FilaBoleto{"Real Unión", "Girona", 1}));
}

TEST(JornadasQuiniela, LosCamposDeLigaSoloTomanCifrasYLaFechaSusSignos) {
    Boleto b;
    auto v = b.Ventana();
    EXPECT_TRUE(v.TeclaJornadaLiga('3'));
    EXPECT_FALSE(v.TeclaJornadaLiga('a'));
    EXPECT_TRUE(v.TeclaFecha('/'));
    EXPECT_FALSE(v.TeclaFecha('-'));
    EXPECT_EQ(b.dialogo.Textos(), (std::vector<std::string>{std::string(kMsgSoloNumeroJornadaLiga),
                                                            std::string(kMsgTeclaFecha)}));
}

TEST(JornadasQuiniela, UnBoletoSoloDePrimeraPideSoloSuJornada) {
    Boleto b;
    auto v = b.Ventana();
    v.ElegirJornada(7);
    v.EscribirFecha("01/10/23");
    v.EscribirJornadaLiga(1, "8");
    Boleto::Llenar(v);
    EXPECT_TRUE(v.Guardar());
    EXPECT_TRUE(b.dialogo.Registro().empty());
    EXPECT_EQ(v.JornadaNueva(), 7);
}

TEST(JornadasQuiniela, GuardarPideFechaYLaJornadaDeCadaDivision) {
    Boleto b;
    auto v = b.Ventana();
    v.ElegirJornada(7);
    EXPECT_FALSE(v.Guardar());
    v.EscribirFecha("01/10/23");
    v.EscribirJornadaLiga(1, "8");
    v.EscribirJornadaLiga(2, "9");
    ASSERT_TRUE(v.Agregar("Eibar", 2));
    ASSERT_TRUE(v.Agregar("Elche", 2));
    ASSERT_TRUE(v.Agregar("Girona", 1));
    v.EscribirJornadaLiga(2, "");
    EXPECT_FALSE(v.Guardar());
    v.EscribirJornadaLiga(2, "9");
    v.EscribirJornadaLiga(1, "");
    EXPECT_FALSE(v.Guardar());
    v.EscribirJornadaLiga(1, "8");
    EXPECT_FALSE(v.Guardar());
    EXPECT_EQ(b.dialogo.Textos(),
              (std::vector<std::string>{
                  std::string(kMsgFaltaFecha), std::string(kMsgConsignarJornada2),
                  std::string(kMsgConsignarJornada1), std::string(kMsgFaltanEquipos)}));
    EXPECT_FALSE(fs::exists(b.carpeta / kJquin) && fs::file_size(b.carpeta / kJquin) > 0);
}

// Los 15 registros de un boleto nuevo byte a byte, y el registro de "Jornadas.rar" en blanco
// entero.
TEST(JornadasQuiniela, UnBoletoNuevoEnLosArchivos) {
    Boleto b;
    auto v = b.Ventana();
    v.ElegirJornada(7);
    v.EscribirFecha("01/10/23");
    v.EscribirJornadaLiga(1, "8");
    v.EscribirJornadaLiga(2, "12");
    for (int i = 0; i < 28; ++i) ASSERT_TRUE(v.Agregar(i % 2 == 0 ? "Girona" : "Betis", 1));
    ASSERT_TRUE(v.Agregar("Eibar", 2));
    ASSERT_TRUE(v.Agregar("Elche", 2));
    ASSERT_TRUE(v.Guardar());

    std::string esperado;
    for (int partido = 1; partido <= 15; ++partido) {
        std::string r(51, ' ');
        r[0] = 7;
        r.replace(1, 2, "20");
        const double fecha = 45'200;
        r.replace(3, 8, std::string(reinterpret_cast<const char*>(&fecha), 8));
        r[11] = static_cast<char>(partido);
        r.replace(12, 5, "23/24");
        r[17] = 8;
        r[18] = 12;
        r[19] = static_cast<char>(partido == 15 ? 2 : 1);
        r.replace(20, 6, partido == 15 ? "Eibar " : "Girona");
        r.replace(35, 5, partido == 15 ? "Elche" : "Betis");
        esperado += r;
    }
    EXPECT_EQ(Leer(b.carpeta / kJquin), esperado);
    EXPECT_EQ(Leer(b.carpeta / kJornadas),
              std::string(5, ' ') + std::string(2, '\0') + std::string(15, ' '));

    // La ventana queda vacía, sin Jornada elegida, con la 7 en su selector.
    EXPECT_EQ(v.Jornadas(), (std::vector<int>{7}));
    EXPECT_FALSE(v.Jornada());
    EXPECT_EQ(v.Fecha(), "");
    EXPECT_EQ(v.Rejilla()[0], FilaBoleto{});
}

TEST(JornadasQuiniela, UnaJornadaQueExisteSeReescribeConSusSignos) {
    Boleto b;
    {
        auto v = b.Ventana();
        v.ElegirJornada(7);
        v.EscribirFecha("01/10/23");
        v.EscribirJornadaLiga(1, "8");
        Boleto::Llenar(v);
        ASSERT_TRUE(v.Guardar());
    }
    {
        base::ArchivoDe<RegPartidoQuin> jquin(b.carpeta / kJquin);
        RegPartidoQuin q = jquin.Leer(3);
        q.signo = "X";
        jquin.Escribir(3, q);
    }
    auto v = b.Ventana();
    EXPECT_EQ(v.Jornadas(), (std::vector<int>{7}));
    v.ElegirJornada(7);
    EXPECT_TRUE(v.JornadaExiste());
    EXPECT_EQ(v.Fecha(), "01/10/23");
    EXPECT_EQ(v.JornadaLiga(1), "8");
    EXPECT_EQ(v.JornadaLiga(2), "");
    EXPECT_EQ(v.Rejilla()[0], (FilaBoleto{"Girona", "Betis", 1}));
    v.Vaciar(0, 1);
    v.EscribirJornadaLiga(2, "5");
    ASSERT_TRUE(v.Agregar("Leganés", 2));
    v.EscribirFecha("02/10/23");
    ASSERT_TRUE(v.Guardar());
    const auto quin = Registros<RegPartidoQuin>(b.carpeta / kJquin);
    ASSERT_EQ(quin.size(), 15U);
    EXPECT_EQ(base::Recortar(quin[0].visitante), "Leganés");
    EXPECT_EQ(quin[0].division, 2);
    EXPECT_EQ(quin[5].jornadaDiv2, 5);
    EXPECT_EQ(quin[5].fecha, 45'201);
    EXPECT_EQ(quin[2].signo, "X");
    EXPECT_EQ(Registros<RegJornadaQuin>(b.carpeta / kJornadas).size(), 1U);
}

// Los signos y la fecha de la Jornada 7, en "Jquin.rar" y en "Jornadas.rar" (esta temporada y la
// anterior, con la misma Jornada).
struct Resultados : Boleto {
    Resultados() {
        auto v = VentanaBoleto();
        v.ElegirJornada(7);
        v.EscribirFecha("01/10/23");
        v.EscribirJornadaLiga(1, "8");
        Llenar(v);
        EXPECT_TRUE(v.Guardar());
        base::ArchivoDe<RegJornadaQuin> columnas(carpeta / kJornadas);
        columnas.Escribir(1, {"22/23", 7, "1X21X21X21X21XA"});
        columnas.Anadir({"23/24", 7, std::string(15, ' ')});
    }
    VentanaResultadosQuiniela Ventana() {
        return VentanaResultadosQuiniela(carpeta.Ruta(), "23/24", dialogo);
    }
    VentanaJornadasQuiniela VentanaBoleto() { return Boleto::Ventana(); }
    static void Signos(VentanaResultadosQuiniela& v, std::string_view catorce,
                       std::string_view pleno) {
        for (int p = 0; p < 14; ++p)
            ASSERT_TRUE(v.EscribirSigno(p, catorce.substr(static_cast<std::size_t>(p), 1)));
        ASSERT_TRUE(v.EscribirSigno(14, pleno));
    }
};

TEST(ResultadosQuiniela, LaColumnaVaAJquinYALaTemporadaDeJornadas) {
    Resultados r;
    auto v = r.Ventana();
    EXPECT_EQ(v.Jornadas(), (std::vector<int>{7}));
    v.ElegirJornada(7);
    EXPECT_EQ(v.Fecha(), "01/10/23");
    EXPECT_EQ(v.Rejilla()[0], (FilaSigno{"Girona", "Betis", ""}));
    Resultados::Signos(v, "1x2111111111X2", "2m");
    ASSERT_TRUE(v.Guardar());
    const auto quin = Registros<RegPartidoQuin>(r.carpeta / kJquin);
    EXPECT_EQ(quin[1].signo, "X");
    EXPECT_EQ(quin[14].signo, "L");
    const auto columnas = Registros<RegJornadaQuin>(r.carpeta / kJornadas);
    EXPECT_EQ(columnas[0].signos, "1X21X21X21X21XA");
    EXPECT_EQ(columnas[1].signos, "1X2111111111X2L");
    v.ElegirJornada(7);
    EXPECT_EQ(v.Rejilla()[14].signo, "2-M");
    EXPECT_EQ(v.Rejilla()[1].signo, "X");
}

TEST(ResultadosQuiniela, UnTresEnElPlenoDejaLaLetraVacia) {
    Resultados r;
    auto v = r.Ventana();
    v.ElegirJornada(7);
    Resultados::Signos(v, "11111111111111", "3-0");
    ASSERT_TRUE(v.Guardar());
    EXPECT_EQ(Registros<RegPartidoQuin>(r.carpeta / kJquin)[14].signo, " ");
    EXPECT_EQ(Registros<RegJornadaQuin>(r.carpeta / kJornadas)[1].signos, "11111111111111 ");
    ASSERT_TRUE(v.EscribirSigno(14, "m-0"));
    ASSERT_TRUE(v.Guardar());
    EXPECT_EQ(Registros<RegPartidoQuin>(r.carpeta / kJquin)[14].signo, "M");
}

TEST(ResultadosQuiniela, LosMensajesDeGuardar) {
    Resultados r;
    auto v = r.Ventana();
    EXPECT_FALSE(v.Guardar());
    v.ElegirJornada(7);
    Resultados::Signos(v, "1111111111111", "");
    EXPECT_FALSE(v.Guardar());
    Resultados::Signos(v, "11111111111111", "1");
    EXPECT_FALSE(v.Guardar());
    EXPECT_FALSE(v.EscribirSigno(0, "3"));
    EXPECT_FALSE(v.EscribirSigno(0, "1X"));
    EXPECT_FALSE(v.EscribirSigno(14, "1--2"));
    EXPECT_EQ(r.dialogo.Textos(),
              (std::vector<std::string>{std::string(kMsgSeleccionarJornadaQuiniela),
                                        std::string(kMsgFaltanSignos),
                                        std::string(kMsgPlenoDosDigitos)}));
}

// Tras un resultado de Liga, el boleto tiene parte de sus signos y la ventana los muestra.
TEST(ResultadosQuiniela, LosSignosQueTraeLaLiga) {
    Resultados r;
    AjustesEnMemoria ajustes;
    ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", "4");
    {
        base::ArchivoDe<RegPartidoLiga> liga(r.carpeta / kJlig2);
        for (int p = 1; p <= 2; ++p) {
            RegPartidoLiga partido;
            partido.jornada = 8;
            partido.division = 1;
            partido.partido = p;
            partido.temporada = "23/24";
            partido.local = p == 1 ? "Girona" : "Cádiz";
            partido.visitante = p == 1 ? "Betis" : "Celta";
            liga.Anadir(partido);
        }
    }
    VentanaResultadosLiga liga(r.carpeta.Ruta(), r.carpeta.Ruta(), "23/24", ajustes, r.dialogo);
    liga.ElegirDivision(1);
    liga.ElegirJornada(8);
    ASSERT_TRUE(liga.PonerGoles(0, "0", "2"));
    ASSERT_TRUE(liga.PonerGoles(1, "4", "4"));
    ASSERT_TRUE(liga.Guardar());
    auto v = r.Ventana();
    v.ElegirJornada(7);
    // El par de cada partido de Liga está en varias filas: solo la primera lleva su signo.
    EXPECT_EQ(v.Rejilla()[0].signo, "2");
    EXPECT_EQ(v.Rejilla()[1].signo, "X");
    EXPECT_EQ(v.Rejilla()[2].signo, "");
    EXPECT_EQ(v.Rejilla()[14].signo, "");
    EXPECT_EQ(Registros<RegJornadaQuin>(r.carpeta / kJornadas)[1].signos, "2X             ");
}

TEST(OtrosEquipos, LosDeLasQuinielasQueNoSonDeNingunaDivision) {
    Boleto b;
    auto v = b.Ventana();
    v.ElegirJornada(3);
    v.EscribirFecha("01/10/23");
    for (int i = 0; i < 30; ++i) {
        const char* equipo = i % 3 == 0 ? "Real Unión" : i % 3 == 1 ? "Girona" : "Ourense";
        ASSERT_TRUE(v.Agregar(equipo, kOtrosEquipos));
    }
    ASSERT_TRUE(v.Guardar());
    EXPECT_EQ(OtrosEquipos(b.carpeta.Ruta()), (std::vector<std::string>{"Real Unión", "Ourense"}));
}

}  // namespace
}  // namespace quinteva::seasons
