#include "seasons/league.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/error.h"
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
using pruebas::AjustesEnMemoria;
using pruebas::CarpetaTemporal;
using pruebas::DialogoGuionado;

std::string Leer(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

// Una 1ª de cuatro equipos (dos partidos por Jornada, seis Jornadas en el selector).
struct Calendario {
    CarpetaTemporal carpeta;
    AjustesEnMemoria ajustes;
    DialogoGuionado dialogo;
    VentanaJornadasLiga ventana;

    explicit Calendario(int equipos = 4) : ventana(carpeta.Ruta(), "23/24", ajustes, dialogo) {
        ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", std::to_string(equipos));
        base::ArchivoDe<RegEquipo> nomeq(carpeta / kNomeq);
        for (const char* nombre : {"Girona", "Betis", "Cádiz", "Celta", "Getafe"}) {
            RegEquipo e;
            e.nombre = nombre;
            e.division = 1;
            nomeq.Anadir(e);
        }
        nomeq.Cerrar();
        ventana.ElegirDivision(1);
    }
    void Poner(std::initializer_list<const char*> equipos, const char* fecha) {
        for (const char* e : equipos) ventana.Agregar(e);
        ventana.EscribirFecha(fecha);
    }
};

TEST(JornadasLiga, ElSelectorYLaRejillaSiguenAlNumeroDeEquipos) {
    Calendario c;
    EXPECT_EQ(c.ventana.Jornadas(), 6);
    EXPECT_EQ(c.ventana.Rejilla().size(), 2U);
    EXPECT_EQ(c.ventana.Equipos().size(), 5U);
    // Con un número impar, la parte entera: uno descansa.
    c.ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", "5");
    c.ventana.ElegirDivision(1);
    EXPECT_EQ(c.ventana.Jornadas(), 8);
    EXPECT_EQ(c.ventana.Rejilla().size(), 2U);
    c.ajustes.Guardar(base::kAplicacion, "Valores", "NEq1", "19");
    c.ventana.ElegirDivision(1);
    EXPECT_EQ(c.ventana.Jornadas(), 36);
    EXPECT_EQ(c.ventana.Rejilla().size(), 9U);
}

TEST(JornadasLiga, AgregarLlenaElPrimerHuecoYNoRepite) {
    Calendario c;
    EXPECT_TRUE(c.ventana.Agregar("Girona"));
    EXPECT_TRUE(c.ventana.Agregar("Betis"));
    EXPECT_TRUE(c.ventana.Agregar("Cádiz"));
    EXPECT_FALSE(c.ventana.Agregar("Betis"));
    EXPECT_EQ(c.dialogo.Textos(), (std::vector<std::string>{std::string(kMsgEquipoYaIntroducido)}));
    EXPECT_EQ(c.ventana.Elegida(), (Celda{0, 1}));
    EXPECT_EQ(c.ventana.Rejilla()[1][0], "Cádiz");
    EXPECT_TRUE(c.ventana.HayCambios());
    c.ventana.ElegirCelda({1, 0});
    c.ventana.Vaciar();
    EXPECT_EQ(c.ventana.Rejilla()[1][0], "");
}

TEST(JornadasLiga, LaFechaSoloConCifrasYBarra) {
    Calendario c;
    EXPECT_TRUE(c.ventana.TeclaFecha('2'));
    EXPECT_TRUE(c.ventana.TeclaFecha('/'));
    EXPECT_FALSE(c.ventana.TeclaFecha('-'));
    EXPECT_EQ(c.dialogo.Textos(), (std::vector<std::string>{std::string(kMsgTeclaFecha)}));
}

// Una Jornada nueva: un registro por fila, byte a byte, y el selector pasa a la siguiente.
TEST(JornadasLiga, UnaJornadaNuevaEscribeSusPartidos) {
    Calendario c;
    c.Poner({"Girona", "Betis"}, "");
    EXPECT_FALSE(c.ventana.Guardar());
    c.ventana.EscribirFecha("27/01/24");
    EXPECT_FALSE(c.ventana.Guardar());
    EXPECT_EQ(c.dialogo.Textos(), (std::vector<std::string>{std::string(kMsgFaltaFecha),
                                                            std::string(kMsgFaltanEquipos)}));
    EXPECT_FALSE(fs::exists(c.carpeta / kJlig2) && fs::file_size(c.carpeta / kJlig2) > 0);
    c.Poner({"Cádiz", "Celta"}, "27/01/24");
    EXPECT_TRUE(c.ventana.Guardar());
    const auto registro = [](char partido, std::string local, std::string visitante) {
        local = base::AWindows1252(local);
        visitante = base::AWindows1252(visitante);
        local.resize(15, ' ');
        visitante.resize(15, ' ');
        // 27/01/2024 son 45318 días desde el 30/12/1899.
        return std::string{'\x01', '2', '0'} + std::string("\0\0\0\0\xC0\x20\xE6\x40", 8) +
               "23/24" + '\x01' + partido + local + visitante + std::string(2, '\0') + " ";
    };
    EXPECT_EQ(Leer(c.carpeta / kJlig2),
              registro(1, "Girona", "Betis") + registro(2, "Cádiz", "Celta"));
    EXPECT_EQ(c.ventana.Jornada(), 2);
    EXPECT_EQ(c.ventana.Fecha(), "");
    c.ventana.ElegirJornada(1);
    EXPECT_TRUE(c.ventana.JornadaExiste());
    EXPECT_EQ(c.ventana.Fecha(), "27/01/24");
    EXPECT_EQ(c.ventana.Rejilla()[1][1], "Celta");
}

TEST(JornadasLiga, TrasLaUltimaJornadaVuelveALaPrimera) {
    Calendario c;
    c.ventana.ElegirJornada(6);
    c.Poner({"Girona", "Betis", "Cádiz", "Celta"}, "01/06/24");
    EXPECT_TRUE(c.ventana.Guardar());
    EXPECT_EQ(c.ventana.Jornada(), 1);
}

// Cambiar una Jornada reescribe sus registros en su sitio, con los goles que tenían; cambiar solo
// la fecha la pone en todos.
TEST(JornadasLiga, UnaJornadaCambiadaConservaLosGoles) {
    Calendario c;
    c.Poner({"Girona", "Betis", "Cádiz", "Celta"}, "27/01/24");
    ASSERT_TRUE(c.ventana.Guardar());
    {
        base::ArchivoDe<RegPartidoLiga> liga(c.carpeta / kJlig2);
        RegPartidoLiga p = liga.Leer(2);
        p.golesLocal = 3;
        p.golesVisitante = 1;
        liga.Escribir(2, p);
    }
    c.ventana.ElegirJornada(1);
    c.ventana.ElegirCelda({1, 1});
    c.ventana.Reemplazar("Getafe");
    ASSERT_TRUE(c.ventana.Guardar());
    base::ArchivoDe<RegPartidoLiga> liga(c.carpeta / kJlig2);
    ASSERT_EQ(liga.Cuenta(), 2);
    EXPECT_EQ(base::Recortar(liga.Leer(2).visitante), "Getafe");
    EXPECT_EQ(liga.Leer(2).golesLocal, 3);

    c.ventana.EscribirFecha("28/01/24");
    EXPECT_FALSE(c.ventana.HayCambios());
    ASSERT_TRUE(c.ventana.Guardar());
    EXPECT_EQ(liga.Leer(1).fecha, SerieDeFecha("28/01/24"));
    EXPECT_EQ(liga.Leer(2).fecha, SerieDeFecha("28/01/24"));
    EXPECT_EQ(liga.Cuenta(), 2);
}

TEST(JornadasLiga, UnaFechaImposibleEsUnError) {
    EXPECT_EQ(SerieDeFecha("27/01/24"), 45318.0);
    EXPECT_EQ(SerieDeFecha("29/02/24"), 45351.0);
    for (const char* mala : {"29/02/23", "32/01/24", "01/13/24", "1/1/24", "aa/bb/cc"}) {
        EXPECT_THROW(SerieDeFecha(mala), base::Error) << mala;
    }
}

}  // namespace
}  // namespace quinteva::seasons
