#include <gtest/gtest.h>

#include "base/record_files.h"
#include "outputs/winning_column.h"
#include "outputs/winning_record.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::outputs {
namespace {

using seasons::RegJornadaQuin;
using seasons::RegPartidoQuin;

TEST(ColumnaGanadora, LaLetraDelPlenoDaSusDosCaracteres) {
    const std::string letras = "ABCDEFGHIJKLMNOP";
    const std::array<std::string, 16> plenos = {"00", "01", "02", "0M", "10", "11", "12", "1M",
                                                "20", "21", "22", "2M", "M0", "M1", "M2", "MM"};
    for (std::size_t i = 0; i < letras.size(); ++i) {
        EXPECT_EQ(GanadoraDeResultado("1X21X21X21X21X" + letras.substr(i, 1)),
                  "1X21X21X21X21X" + plenos[i]);
    }
    // Otra letra (o un blanco) no da Pleno: la ganadora se queda en 14.
    EXPECT_EQ(GanadoraDeResultado("1X21X21X21X21XQ"), "1X21X21X21X21X");
    EXPECT_EQ(GanadoraDeResultado("1X2 X21X21X21X "), "1X2 X21X21X21X");
}

TEST(ColumnaGanadora, RejillaYResultadoIdaYVuelta) {
    const RejillaGanadora rejilla = RejillaDeResultado("1X2 X21X21X21XH");
    EXPECT_EQ(rejilla[0], "1");
    EXPECT_EQ(rejilla[3], "");
    EXPECT_EQ(rejilla[14], "1 M");
    EXPECT_EQ(ResultadoDeRejilla(rejilla), "1X2 X21X21X21XH");
    RejillaGanadora sinPleno = rejilla;
    sinPleno[14] = "";
    EXPECT_EQ(ResultadoDeRejilla(sinPleno), "1X2 X21X21X21X ");
    EXPECT_TRUE(ResultadoIncompleto("1X2 X21X21X21XH"));
    EXPECT_TRUE(ResultadoIncompleto("1X21X21X21X21X "));
    EXPECT_FALSE(ResultadoIncompleto("1X21X21X21X21XH"));
}

TEST(ColumnaGanadora, TeclasDeLasCeldas) {
    EXPECT_EQ(TeclaAdmitida(1, 'x'), 'X');
    EXPECT_EQ(TeclaAdmitida(14, '2'), '2');
    EXPECT_EQ(TeclaAdmitida(14, 'M'), std::nullopt);
    EXPECT_EQ(TeclaAdmitida(15, 'm'), 'M');
    EXPECT_EQ(TeclaAdmitida(15, '0'), '0');
    EXPECT_EQ(TeclaAdmitida(15, 'X'), std::nullopt);
    EXPECT_EQ(TeclaAdmitida(16, '1'), std::nullopt);
}

class VentanaDeAciertos : public ::testing::Test {
  protected:
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;

    void Jornada(const std::string& temporada, int jornada, const std::string& signos) {
        base::ArchivoDe<RegJornadaQuin> jornadas(carpeta / seasons::kJornadas);
        jornadas.Anadir({temporada, jornada, signos});
        jornadas.Cerrar();
    }
    void Partidos(int jornada) {
        base::ArchivoDe<RegPartidoQuin> jquin(carpeta / seasons::kJquin);
        for (int p = 1; p <= 15; ++p) {
            RegPartidoQuin r;
            r.jornada = jornada;
            r.partido = p;
            r.temporada = "23/24";
            r.local = "Local " + std::to_string(p);
            jquin.Anadir(r);
        }
        jquin.Cerrar();
    }
};

TEST_F(VentanaDeAciertos, AbrirConElResultadoCompleto) {
    Jornada("22/23", 7, "222222222222222");
    Jornada("23/24", 7, "1X21X21X21X21XH");
    const AperturaAciertos a = AbrirAciertos(carpeta.Ruta(), "23/24", 7, carpeta / "q.uxd");
    EXPECT_TRUE(a.encontrada && a.aciertos && a.otras && a.avance && !a.posibilidad);
    EXPECT_EQ(a.ganadora, "1X21X21X21X21X1M");
    EXPECT_EQ(a.rejilla[14], "1 M");
    // Sin Combinación guardada "&Aciertos" no se puede.
    EXPECT_FALSE(AbrirAciertos(carpeta.Ruta(), "23/24", 7, {}).aciertos);
    EXPECT_FALSE(AbrirAciertos(carpeta.Ruta(), "23/24", 8, carpeta / "q.uxd").encontrada);
}

TEST_F(VentanaDeAciertos, CeldasEnBlancoDejanSoloElAvance) {
    Jornada("23/24", 7, "1X21X          ");
    const AperturaAciertos a = AbrirAciertos(carpeta.Ruta(), "23/24", 7, carpeta / "q.uxd");
    EXPECT_TRUE(a.encontrada && a.avance && a.posibilidad);
    EXPECT_FALSE(a.aciertos || a.otras);
    EXPECT_EQ(a.ganadora, "1X21X         ");
}

TEST_F(VentanaDeAciertos, GuardarEscribeJornadasYPartidos) {
    Jornada("23/24", 7, std::string(15, ' '));
    Partidos(7);
    Partidos(8);
    RejillaGanadora rejilla = RejillaDeResultado("1X21X21X21X21X ");
    rejilla[14] = "2 0";
    const auto guardada = GuardarGanadora(carpeta.Ruta(), "23/24", 7, rejilla, dialogo);
    ASSERT_TRUE(guardada.has_value());
    EXPECT_EQ(guardada->ganadora, "1X21X21X21X21X20");
    EXPECT_FALSE(guardada->incompleta);
    const base::ArchivoDe<RegJornadaQuin> jornadas(carpeta / seasons::kJornadas);
    ASSERT_EQ(jornadas.Cuenta(), 1);
    EXPECT_EQ(jornadas.Leer(1).signos, "1X21X21X21X21XI");
    const base::ArchivoDe<RegPartidoQuin> jquin(carpeta / seasons::kJquin);
    EXPECT_EQ(jquin.Leer(1).signo, "1");
    EXPECT_EQ(jquin.Leer(2).signo, "X");
    EXPECT_EQ(jquin.Leer(15).signo, "I");
    EXPECT_EQ(jquin.Leer(16).signo, " ");  // la Jornada 8 no se toca

    rejilla[3] = "";
    const auto incompleta = GuardarGanadora(carpeta.Ruta(), "23/24", 9, rejilla, dialogo);
    ASSERT_TRUE(incompleta.has_value());
    EXPECT_TRUE(incompleta->incompleta);
    // La Jornada 9 no tenía registro: se añade.
    EXPECT_EQ(base::ArchivoDe<RegJornadaQuin>(carpeta / seasons::kJornadas).Leer(2),
              (RegJornadaQuin{"23/24", 9, "1X2 X21X21X21XI"}));
    EXPECT_TRUE(dialogo.Textos().empty());
}

TEST_F(VentanaDeAciertos, GuardarEnUnaCarpetaQueNoExisteVaPorElCaminoDeError) {
    EXPECT_FALSE(GuardarGanadora(carpeta / "no" / "hay", "23/24", 7, {}, dialogo).has_value());
    ASSERT_EQ(dialogo.Textos().size(), 1U);
    EXPECT_TRUE(dialogo.Textos()[0].starts_with("Error: "));
}

}  // namespace
}  // namespace quinteva::outputs
