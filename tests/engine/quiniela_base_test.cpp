#include "engine/quiniela_base.h"

#include <gtest/gtest.h>

#include "base/error.h"

namespace quinteva::engine {
namespace {

QuinielaBase Con(int signosPorPartido) {
    QuinielaBase base;
    for (int p = 1; p <= kPartidos; ++p) {
        for (int s = 0; s < signosPorPartido; ++s) base.Elegir(p, s, true);
    }
    return base;
}

TEST(QuinielaBase, EmpiezaSinSignosConLasCeldasSinElegir) {
    const QuinielaBase base;
    EXPECT_EQ(base.Celda(1, 0), "1");
    EXPECT_EQ(base.Celda(15, 0), "15");
    EXPECT_EQ(base.Celda(3, 2), "1");
    EXPECT_EQ(base.Celda(3, 3), "x");
    EXPECT_EQ(base.Celda(3, 4), "2");
    EXPECT_EQ(base.Celda(15, 2), "");
    EXPECT_EQ(base.Columnas(), 0.0F);
    EXPECT_FALSE(base.Completa());
}

TEST(QuinielaBase, CatorceFijosDanUnaColumna) {
    const QuinielaBase base = Con(1);
    EXPECT_EQ(base.Columnas(), 1.0F);
    EXPECT_EQ(base.Dobles(), 0);
    EXPECT_EQ(base.Triples(), 0);
}

TEST(QuinielaBase, CatorceTriplesCabenExactosEnPrecisionSimple) {
    const QuinielaBase base = Con(3);
    EXPECT_EQ(base.Columnas(), 4782969.0F);
    EXPECT_EQ(static_cast<long>(base.Columnas()), 4782969L);
    EXPECT_EQ(base.Triples(), 14);
}

TEST(QuinielaBase, QuitarLaXDelMedioEscribeLaMinuscula) {
    QuinielaBase base = Con(3);
    base.Alternar(5, 1);
    EXPECT_EQ(base.Celda(5, 3), "x");
    EXPECT_FALSE(base.Elegido(5, 1));
    // Quien ignorase mayúsculas tomaría el partido por un triple.
    EXPECT_EQ(base.SignosElegidos(5), 2);
    EXPECT_EQ(base.Dobles(), 1);
    EXPECT_EQ(base.Triples(), 13);
    base.Alternar(5, 1);
    EXPECT_EQ(base.Celda(5, 3), "X");
}

TEST(QuinielaBase, CompletaConSignosEnTodosYLosDosGoles) {
    QuinielaBase base = Con(1);
    EXPECT_FALSE(base.Completa());
    base.PonerGoles("2", "");
    EXPECT_FALSE(base.Completa());
    base.PonerGoles("2", "M");
    EXPECT_TRUE(base.Completa());
    EXPECT_EQ(base.Pleno(), (PlenoBase{'2', 'M'}));
    base.Elegir(14, 0, false);
    EXPECT_FALSE(base.Completa());
}

TEST(QuinielaBase, GolesQueNoValen) {
    QuinielaBase base;
    EXPECT_THROW(base.PonerGoles("3", "0"), base::Error);
    EXPECT_THROW(base.PonerGoles("m", "0"), base::Error);
    EXPECT_EQ(base.GolesLocal(), "");
}

TEST(QuinielaBase, EquiposEnLaColumnaUno) {
    QuinielaBase base;
    base.PonerEquipos(1, "Betis - Sevilla");
    EXPECT_EQ(base.Equipos(1), "Betis - Sevilla");
    EXPECT_THROW(base.Celda(16, 0), base::Error);
    EXPECT_THROW(base.Elegir(15, 0, true), base::Error);
}

}  // namespace
}  // namespace quinteva::engine
