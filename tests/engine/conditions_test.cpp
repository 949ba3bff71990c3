#include "engine/conditions.h"

#include <gtest/gtest.h>

namespace quinteva::engine {
namespace {

QuinielaBase BaseDe(const char* const (&signos)[14]) {
    QuinielaBase base;
    for (int p = 1; p <= 14; ++p) {
        for (const char* s = signos[p - 1]; *s != '\0'; ++s) base.Elegir(p, IndiceSigno(*s), true);
    }
    base.PonerGoles("0", "1");
    return base;
}

TEST(NumeroDeCondiciones, CuentaCondicionesNoFamilias) {
    SetCondiciones c;
    EXPECT_EQ(NumeroDeCondiciones(c), 0);
    for (auto& g : c.grupos) g.activo = true;
    EXPECT_EQ(NumeroDeCondiciones(c), 50);
    c.gruposAc[7].activo = true;
    c.casilla = {true, true, true, true, true, true, true, true, true, true, true};
    // Las casillas 5 y 6 no cuentan: solo muestran el Grupo en pantalla.
    EXPECT_EQ(NumeroDeCondiciones(c), 50 + 1 + 9);
    EXPECT_EQ(MaxGr(c), 49);
    EXPECT_EQ(MaxAGr(c), 7);
}

TEST(CondicionesIniciales, PosiblesDeLaBase) {
    const QuinielaBase base =
        BaseDe({"1", "1", "X", "2", "1X", "1X2", "X2", "1", "1", "1", "12", "X", "X", "X"});
    const SetCondiciones c = CondicionesIniciales(base);
    // Variantes: mínimo, partidos sin "1" (3, 4, 7, 12, 13, 14); máximo, 14 menos los de "1" solo.
    EXPECT_EQ(c.posMinVariantes, 6);
    EXPECT_EQ(c.posMaxVariantes, 14 - 5);
    EXPECT_EQ(c.posMinEquis, 4);
    EXPECT_EQ(c.posMaxEquis, 7);
    EXPECT_EQ(c.posMinDoses, 1);
    EXPECT_EQ(c.posMaxDoses, 4);
    EXPECT_EQ(c.minEquis, c.posMinEquis);
    EXPECT_EQ(c.maxDoses, c.posMaxDoses);
    // Seguidos de "1": obligado en 1-2 y 8-10 (racha 3); permitido en 5-6 y 8-11 (racha 4).
    EXPECT_EQ(c.posMinSeg[kUno], 3);
    EXPECT_EQ(c.posMaxSeg[kUno], 4);
    EXPECT_EQ(c.posMinSeg[kEquis], 3);
    EXPECT_EQ(c.posMaxSeg[kEquis], 3);
    EXPECT_EQ(c.posMaxSeg[kVariantes], 5);  // partidos 3 a 7 admiten "X" o "2"
    EXPECT_EQ(c.maxPareja, (std::array<std::uint8_t, 9>{13, 7, 7, 7, 13, 7, 7, 7, 13}));
    EXPECT_EQ(c.maxTrio[0], 12);
    EXPECT_EQ(c.maxTrio[1], 6);
    EXPECT_EQ(c.maxTrio[13], 12);
    EXPECT_EQ(c.maxTrio[26], 12);
    EXPECT_EQ(c.maxInter, 13);
    EXPECT_EQ(c.grupos[0].max, (std::array<std::uint8_t, 4>{14, 14, 14, 14}));
}

TEST(Reinicios, ParejasTriosInterrupciones) {
    const QuinielaBase base = BaseDe({"1X2", "1X2", "1X2", "1X2", "1X2", "1X2", "1X2", "1X2", "1X2",
                                      "1X2", "1X2", "1X2", "1X2", "1X2"});
    SetCondiciones c = CondicionesIniciales(base);
    const SetCondiciones inicial = c;
    c.casilla[kCasillaParejas] = c.casilla[kCasillaTrios] = c.casilla[kCasillaInterrupciones] =
        true;
    c.minPareja[2] = 3;
    c.maxTrio[5] = 1;
    c.minInter = 4;
    ParejasACero(c);
    TriosACero(c);
    InterAcero(c);
    EXPECT_EQ(c.minPareja, inicial.minPareja);
    EXPECT_EQ(c.maxTrio, inicial.maxTrio);
    EXPECT_EQ(c.minInter, 0);
    EXPECT_FALSE(c.casilla[kCasillaParejas]);
    EXPECT_FALSE(c.casilla[kCasillaTrios]);
    c.casilla[kCasillaInterrupciones] = false;
    EXPECT_EQ(c, inicial);
    c.grupos[3].activo = true;
    c.ultimoGrupo = 3;
    ReiniciarFamilia(c, kCasillaGrupoMostrado, base);
    EXPECT_EQ(c, inicial);
}

}  // namespace
}  // namespace quinteva::engine
