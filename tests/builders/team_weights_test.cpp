#include "builders/team_weights.h"

#include <gtest/gtest.h>

namespace quinteva::builders {
namespace {

TEST(PonderarEquipos, CadaMarcaSumaSuPesoAlIrseDelPartido) {
    PesosEquipos pesos;
    Ponderacion p(pesos);
    EXPECT_EQ(p.Partido(), 1);
    p.Marcar(0, true);             // local: bajas importantes
    p.Marcar(3, true);             // local: el árbitro no le favorece
    p.Marcar(11, true);            // visitante: circunstancias favorables
    EXPECT_EQ(pesos.local[0], 0);  // aún no se ha fijado
    p.IrA(2);
    EXPECT_EQ(pesos.local[0], -12);
    EXPECT_EQ(pesos.visitante[0], 8);
    EXPECT_EQ(p.Partido(), 2);
    EXPECT_EQ(p.Marcas(), MarcasDelPartido{});
    // Al volver se ven las marcas guardadas del partido.
    p.IrA(1);
    MarcasDelPartido esperadas{};
    esperadas[0] = esperadas[3] = esperadas[11] = true;
    EXPECT_EQ(p.Marcas(), esperadas);
}

TEST(PonderarEquipos, LosPesosVanDeMenosTreintaAMasOcho) {
    PesosEquipos pesos;
    Ponderacion p(pesos);
    for (int i = 0; i < 5; ++i) p.Marcar(i, true);
    p.Marcar(11, true);
    p.IrA(14);
    EXPECT_EQ(pesos.local[0], -30);
    EXPECT_EQ(pesos.visitante[0], 8);
    // Las seis del visitante: cinco desfavorables y la favorable.
    for (int i = 6; i < 12; ++i) p.Marcar(i, true);
    p.IrA(13);
    EXPECT_EQ(pesos.visitante[13], -22);
    EXPECT_EQ(pesos.local[13], 0);
}

TEST(PonderarEquipos, UnaCircunstanciaNoVaALosDosEquipos) {
    PesosEquipos pesos;
    Ponderacion p(pesos);
    p.Marcar(2, true);
    p.Marcar(8, true);
    EXPECT_FALSE(p.Marcas()[2]);
    EXPECT_TRUE(p.Marcas()[8]);
    p.Marcar(2, true);
    EXPECT_TRUE(p.Marcas()[2]);
    EXPECT_FALSE(p.Marcas()[8]);
    p.Marcar(2, false);
    EXPECT_FALSE(p.Marcas()[2]);
}

TEST(PonderarEquipos, NoSePasaDelUnoNiDelCatorce) {
    PesosEquipos pesos;
    Ponderacion p(pesos);
    p.IrA(0);
    EXPECT_EQ(p.Partido(), 1);
    p.IrA(14);
    p.IrA(15);
    EXPECT_EQ(p.Partido(), 14);
}

TEST(PonderarEquipos, TerminarFijaYBorraLasMarcasPeroNoLosPesos) {
    PesosEquipos pesos;
    Ponderacion p(pesos);
    p.IrA(5);
    p.Marcar(5, true);
    p.Terminar();
    EXPECT_EQ(pesos.local[4], 8);
    EXPECT_EQ(p.Marcas(), MarcasDelPartido{});
    p.IrA(6);
    p.IrA(5);
    EXPECT_EQ(p.Marcas(), MarcasDelPartido{});
    // Al irse del partido 5 sin marcas, su peso vuelve a cero.
    p.IrA(6);
    EXPECT_EQ(pesos.local[4], 0);
}

TEST(PonderarEquipos, LosEquiposSeParteEnElGuion) {
    EXPECT_EQ(EquiposDelPartido("Betis - Sevilla"),
              (std::pair<std::string, std::string>{"Betis", "Sevilla"}));
    EXPECT_EQ(EquiposDelPartido("At. Madrid -Real Madrid"),
              (std::pair<std::string, std::string>{"At. Madrid", "Real Madrid"}));
    EXPECT_EQ(EquiposDelPartido(""), (std::pair<std::string, std::string>{"", ""}));
    EXPECT_EQ(PesoDeCircunstancia(0), -6);
    EXPECT_EQ(PesoDeCircunstancia(5), 8);
}

}  // namespace
}  // namespace quinteva::builders
