#include "engine/condition_grids.h"

#include <gtest/gtest.h>

namespace quinteva::engine {
namespace {

TEST(PulsarRango, FueraDeLoPosibleNoCambiaNada) {
    const RangoRejilla r{2, 10, 4, 6};
    EXPECT_EQ(PulsarRango(r, 1), r);
    EXPECT_EQ(PulsarRango(r, 11), r);
}

TEST(PulsarRango, FueraDelTramoLoAlargaHastaLaFila) {
    EXPECT_EQ(PulsarRango({2, 10, 4, 6}, 9), (RangoRejilla{2, 10, 4, 9}));
    EXPECT_EQ(PulsarRango({2, 10, 4, 6}, 2), (RangoRejilla{2, 10, 2, 6}));
}

TEST(PulsarRango, EnUnExtremoLoAcorta) {
    EXPECT_EQ(PulsarRango({0, 14, 4, 6}, 4), (RangoRejilla{0, 14, 5, 6}));
    EXPECT_EQ(PulsarRango({0, 14, 4, 6}, 6), (RangoRejilla{0, 14, 4, 5}));
}

TEST(PulsarRango, UnaSolaFilaElegidaNoSeQuedaVacia) {
    EXPECT_EQ(PulsarRango({0, 14, 5, 5}, 5), (RangoRejilla{0, 14, 5, 5}));
}

TEST(PulsarRango, DentroDelTramoEmpiezaEnLaFila) {
    EXPECT_EQ(PulsarRango({0, 14, 2, 9}, 5), (RangoRejilla{0, 14, 5, 9}));
}

GrupoAciertos DeSeisPartidos() {
    GrupoAciertos g;
    g.numPartidos = 6;
    g.aciertosMax = 6;
    g.fallosMax = 6;
    return g;
}

TEST(PulsarAciertosFallos, LosAciertosFijanLosFallos) {
    GrupoAciertos g = DeSeisPartidos();
    PulsarAciertosFallos(g, 0, 0);  // acorta por abajo: aciertos 1 a 6
    EXPECT_EQ(g.aciertosMin, 1);
    EXPECT_EQ(g.aciertosMax, 6);
    EXPECT_EQ(g.fallosMin, 0);
    EXPECT_EQ(g.fallosMax, 5);
}

TEST(PulsarAciertosFallos, LosFallosFijanLosAciertos) {
    GrupoAciertos g = DeSeisPartidos();
    PulsarAciertosFallos(g, 1, 6);  // fallos 0 a 5
    PulsarAciertosFallos(g, 1, 5);  // fallos 0 a 4
    EXPECT_EQ(g.fallosMin, 0);
    EXPECT_EQ(g.fallosMax, 4);
    EXPECT_EQ(g.aciertosMin, 2);
    EXPECT_EQ(g.aciertosMax, 6);
}

TEST(PulsarAciertosFallos, SinPartidosNoHayFilaPosibleMasQueLaCero) {
    GrupoAciertos g;
    PulsarAciertosFallos(g, 0, 3);
    EXPECT_EQ(g, GrupoAciertos{});
}

TEST(AlternarSignoGrupoAc, SoloLosSignosDeLaBaseYLosLimitesAbarcanTodo) {
    QuinielaBase base;
    base.Elegir(1, 0, true);
    base.Elegir(1, 1, true);
    base.Elegir(2, 2, true);
    GrupoAciertos g;
    EXPECT_FALSE(AlternarSignoGrupoAc(g, base, 0, 2));  // el "2" no está en el partido 1
    EXPECT_EQ(g, GrupoAciertos{});
    EXPECT_TRUE(AlternarSignoGrupoAc(g, base, 0, 0));
    EXPECT_TRUE(AlternarSignoGrupoAc(g, base, 0, 1));
    EXPECT_TRUE(AlternarSignoGrupoAc(g, base, 1, 2));
    EXPECT_EQ(g.signos[0], (std::array<char, 3>{'1', 'X', ' '}));
    EXPECT_EQ(g.signos[1], (std::array<char, 3>{' ', ' ', '2'}));
    EXPECT_EQ(g.numPartidos, 2);
    EXPECT_EQ(g.aciertosMax, 2);
    EXPECT_EQ(g.fallosMax, 2);
    g.aciertosMin = 1;
    g.fallosMax = 1;
    // Quitar los dos signos del partido 1 lo saca del grupo.
    EXPECT_TRUE(AlternarSignoGrupoAc(g, base, 0, 0));
    EXPECT_TRUE(AlternarSignoGrupoAc(g, base, 0, 1));
    EXPECT_EQ(g.numPartidos, 1);
    EXPECT_EQ(g.aciertosMin, 0);
    EXPECT_EQ(g.aciertosMax, 1);
    EXPECT_EQ(g.fallosMin, 0);
    EXPECT_EQ(g.fallosMax, 1);
    EXPECT_FALSE(AlternarSignoGrupoAc(g, base, 14, 0));
}

}  // namespace
}  // namespace quinteva::engine
