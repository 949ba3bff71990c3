#include "engine/editing_rules.h"

#include <gtest/gtest.h>

#include "tests/support/scripted_dialog.h"

namespace quinteva::engine {
namespace {

Combinacion Triples() {
    Combinacion c;
    for (int p = 1; p <= kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) c.base.Elegir(p, s, true);
    }
    c.base.PonerGoles("0", "0");
    c.condiciones = CondicionesIniciales(c.base);
    return c;
}

TEST(QuinComp, LimitesTocadosUnSoloMensaje) {
    Combinacion c = Triples();
    c.condiciones.minEquis = 9;  // filas verdes 9 a 14 de X
    c.condiciones.maxEquis = 14;
    c.condiciones.minDoses = 12;
    c.condiciones.maxDoses = 14;
    const QuinielaBase antes = c.base;
    // Sin X ni 2 en los partidos 1 a 4: el máximo posible de X y de 2 baja a 10.
    for (int p = 1; p <= 4; ++p) {
        c.base.Elegir(p, 1, false);
        c.base.Elegir(p, 2, false);
    }
    pruebas::DialogoGuionado d;
    EXPECT_TRUE(QuinComp(c, antes, d));
    EXPECT_EQ(d.Textos(), (std::vector<std::string>{std::string(kMsgGeneralesTocados)}));
    EXPECT_EQ(c.condiciones.posMaxEquis, 10);
    EXPECT_EQ(c.condiciones.minEquis, 9);
    EXPECT_EQ(c.condiciones.maxEquis, 10);
    // Las verdes de 2 (12 a 14) quedan todas fuera: vuelve al posible.
    EXPECT_EQ(c.condiciones.minDoses, 0);
    EXPECT_EQ(c.condiciones.maxDoses, 10);
}

TEST(QuinComp, ValorIgualAlNuevoPosibleSinMensaje) {
    Combinacion c = Triples();
    c.condiciones.minEquis = 0;
    c.condiciones.maxEquis = 13;  // verde 0 a 13; el nuevo máximo posible será 13
    const QuinielaBase antes = c.base;
    c.base.Elegir(1, 1, false);
    pruebas::DialogoGuionado d;
    QuinComp(c, antes, d);
    EXPECT_TRUE(d.Textos().empty());
    EXPECT_EQ(c.condiciones.maxEquis, 13);
}

TEST(QuinComp, LoRecortadoNoVuelve) {
    Combinacion c = Triples();
    c.condiciones.maxSeg[kUno] = 10;  // elegido en la lista
    const QuinielaBase antes = c.base;
    for (int p = 1; p <= 14; p += 2) c.base.Elegir(p, 0, false);  // rachas de "1" de 1
    pruebas::DialogoGuionado d;
    QuinComp(c, antes, d);
    EXPECT_EQ(c.condiciones.maxSeg[kUno], 1);
    EXPECT_EQ(d.Textos(), (std::vector<std::string>{std::string(kMsgSeguidosTocados)}));
    const QuinielaBase medio = c.base;
    for (int p = 1; p <= 14; p += 2) c.base.Elegir(p, 0, true);
    pruebas::DialogoGuionado d2;
    QuinComp(c, medio, d2);
    EXPECT_EQ(c.condiciones.posMaxSeg[kUno], 14);
    // El 10 elegido no vuelve: recortado al posible, el valor sigue al posible desde entonces.
    EXPECT_EQ(c.condiciones.maxSeg[kUno], 14);
    EXPECT_TRUE(d2.Textos().empty());
}

TEST(QuinComp, GruposAciertosYComparaciones) {
    Combinacion c = Triples();
    c.condiciones.grupos[2].activo = true;
    c.condiciones.grupos[2].partidos[0] = true;
    c.condiciones.grupos[2].max = {14, 14, 14, 14};
    c.condiciones.gruposAc[0].activo = true;
    c.condiciones.gruposAc[0].signos[0] = {'1', 'X', ' '};
    c.condiciones.gruposAc[0].signos[5] = {'1', ' ', ' '};
    c.condiciones.gruposAc[0].numPartidos = 2;
    c.condiciones.gruposAc[0].aciertosMax = 2;
    c.condiciones.gruposAc[0].fallosMax = 2;
    AlternarPartidoLista(c.condiciones, 1, 1);
    AlternarPartidoLista(c.condiciones, 2, 3);
    pruebas::DialogoGuionado d0;
    ASSERT_TRUE(ActivarComparacion(c, 0, {0, 1, 1, 3, 1, 2}, d0));
    const QuinielaBase antes = c.base;
    c.base.Elegir(1, 1, false);  // el partido 1 pierde la X
    pruebas::DialogoGuionado d;
    QuinComp(c, antes, d);
    EXPECT_EQ(d.Textos(),
              (std::vector<std::string>{"Ha quedado modificado el Grupo número 3.",
                                        "Ha quedado modificado el Grupo de Aciertos número 1.",
                                        std::string(kMsgComparacionesTocadas)}));
    EXPECT_EQ(c.condiciones.grupos[2].max[kEquis], 0);
    EXPECT_EQ(c.condiciones.gruposAc[0].signos[0][1], ' ');
    EXPECT_EQ(c.condiciones.comparaciones[0].activa, 0);
    EXPECT_FALSE(c.condiciones.casilla[kCasillaComparaciones]);
}

TEST(QuinComp, BaseIncompleta) {
    Combinacion c = Triples();
    const QuinielaBase antes = c.base;
    for (int s = 0; s < 3; ++s) c.base.Elegir(5, s, false);
    pruebas::DialogoGuionado d;
    EXPECT_FALSE(QuinComp(c, antes, d));
    EXPECT_FALSE(c.panel.alDirecto.has_value());
}

TEST(Limites, MinimoYMaximo) {
    Combinacion c = Triples();
    c.panel.condicionada = 5;
    pruebas::DialogoGuionado d;
    auto& cond = c.condiciones;
    EXPECT_FALSE(
        CambiarLimite(c, kCasillaParejas, cond.minPareja[0], cond.maxPareja[0], true, 14, d));
    EXPECT_FALSE(
        CambiarLimite(c, kCasillaParejas, cond.minPareja[0], cond.maxPareja[0], false, -1, d));
    EXPECT_EQ(d.Textos(), (std::vector<std::string>{std::string(kMsgMinimoMayor),
                                                    std::string(kMsgMaximoMenor)}));
    EXPECT_TRUE(c.panel.condicionada.has_value());
    EXPECT_TRUE(
        CambiarLimite(c, kCasillaParejas, cond.minPareja[0], cond.maxPareja[0], true, 2, d));
    EXPECT_EQ(cond.minPareja[0], 2);
    EXPECT_TRUE(cond.casilla[kCasillaParejas]);
    EXPECT_FALSE(c.panel.condicionada.has_value());
    EXPECT_FALSE(c.panel.guardada);
}

TEST(Tolerancias, SinGruposActivosPuedeSerUno) {
    SetCondiciones c;
    pruebas::DialogoGuionado d;
    EXPECT_EQ(MaxGr(c), 0);
    EXPECT_EQ(FijarToleranciaGrupos(c, 1, d), 1);
    EXPECT_TRUE(d.Textos().empty());
    EXPECT_EQ(FijarToleranciaGrupos(c, 3, d), 1);
    EXPECT_EQ(FijarToleranciaGruposAc(c, 2, d), 1);
    EXPECT_EQ(d.Textos(), (std::vector<std::string>{std::string(kMsgToleranciaGrupos),
                                                    std::string(kMsgToleranciaGruposAc)}));
}

TEST(Comparaciones, Validacion) {
    Combinacion c = Triples();
    c.base.Elegir(2, 1, false);
    AlternarPartidoLista(c.condiciones, 1, 2);
    pruebas::DialogoGuionado d;
    EXPECT_FALSE(ActivarComparacion(c, 0, {0, 1, 1, 0, 1, 2}, d));
    EXPECT_FALSE(ActivarComparacion(c, 0, {0, 1, 1, 3, 1, 1}, d));
    EXPECT_FALSE(ActivarComparacion(c, 0, {0, 2, 1, 3, 1, 2}, d));
    EXPECT_EQ(d.Textos(), (std::vector<std::string>{std::string(kMsgComparacionIncompleta),
                                                    std::string(kMsgComparacionMismaColumna),
                                                    "En la columna A no hay 'X'."}));
    EXPECT_TRUE(ActivarComparacion(c, 0, {0, 1, 1, 3, 1, 2}, d));
    EXPECT_TRUE(c.condiciones.casilla[kCasillaComparaciones]);
    DesactivarComparacion(c, 0);
    EXPECT_FALSE(c.condiciones.casilla[kCasillaComparaciones]);
}

TEST(Repeticiones, LargoBorraLimite) {
    Combinacion c = Triples();
    EXPECT_FALSE(ElegirLimiteRepeticion(c, 0, 2));
    ElegirLargoRepeticion(c, 0, 3);
    EXPECT_TRUE(ElegirLimiteRepeticion(c, 0, 2));
    EXPECT_TRUE(c.condiciones.casilla[kCasillaRepeticiones]);
    ElegirLargoRepeticion(c, 0, 2);
    EXPECT_EQ(c.condiciones.limiteRep[0], 0);
}

TEST(Sumas, SumaCienYConSumas) {
    FilaSumas f = {70, 30, 20};  // se escribió 70 en la primera: sobra 20, sale de la siguiente
    SumaCien(f, 0);
    EXPECT_EQ(f, (FilaSumas{70, 10, 20}));
    f = {90, 5, 20};
    SumaCien(f, 0);  // la siguiente no llega: 0, y la otra 10
    EXPECT_EQ(f, (FilaSumas{90, 0, 10}));
    f = {40, 30, 20};
    SumaCien(f, 0);
    EXPECT_EQ(f, (FilaSumas{40, 40, 20}));
    f = {50, 30, 20};
    SumaCien(f, 2);  // la siguiente de la tercera es la primera
    EXPECT_EQ(f, (FilaSumas{50, 30, 20}));

    std::array<FilaSumas, kPartidos> rejilla;
    rejilla.fill({50, 30, 20});
    EXPECT_EQ(ConSumas(rejilla), (std::pair{280, 700}));
    Combinacion c = Triples();
    pruebas::DialogoGuionado d;
    EXPECT_FALSE(ActivarSumas(c, rejilla, 100, 200, d));
    EXPECT_EQ(d.Textos().back(), kMsgSumasFuera);
    EXPECT_TRUE(ActivarSumas(c, rejilla, 300, 500, d));
    EXPECT_EQ(c.condiciones.sumasTabla[1][3], 30);
    rejilla[3][1].reset();
    EXPECT_FALSE(ConSumas(rejilla).has_value());
}

}  // namespace
}  // namespace quinteva::engine
