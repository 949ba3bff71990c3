#include "builders/quick_basic.h"

#include <gtest/gtest.h>

#include "tests/builders/development.h"
#include "tests/support/scripted_dialog.h"

namespace quinteva::builders {
namespace {

using pruebas::DialogoGuionado;

// Las condiciones por defecto de una base de 3 triples y 4 dobles (324 columnas).
engine::SetCondiciones Condiciones() {
    return engine::CondicionesIniciales(pruebas::Desarrollo(3, 4).combinacion.base);
}

TEST(RapidaBasica, ElNumeroVacioMayorQueLasPosiblesODeUnaSolaEnElUltimo) {
    DialogoGuionado dialogo;
    const LimitesBasica ninguno{};
    EXPECT_FALSE(ComprobarBasica("", 324, ninguno, dialogo));
    EXPECT_FALSE(ComprobarBasica("325", 324, ninguno, dialogo));
    EXPECT_FALSE(ComprobarBasica("9", 324, ninguno, dialogo));
    EXPECT_EQ(ComprobarBasica("324", 324, ninguno, dialogo), 324);
    EXPECT_EQ(ComprobarBasica("16", 324, ninguno, dialogo), 16);
    EXPECT_EQ(dialogo.Textos(),
              (std::vector<std::string>{
                  std::string(kMsgSinNumeroBasica), std::string(kMsgMasQuePosibles),
                  "No es posible ajustar la combinación a 9 apuestas porque el último boleto "
                  "tendría una sola columna. Modifique el número de apuestas que desea."}));
}

TEST(RapidaBasica, UnMinimoPorEncimaDelMaximoSeDiceConElNombreDeSuFila) {
    DialogoGuionado dialogo;
    LimitesBasica limites{};
    limites[6] = {5, 3};
    limites[7] = {6, 2};
    EXPECT_FALSE(ComprobarBasica("16", 324, limites, dialogo));
    EXPECT_EQ(dialogo.Textos(),
              std::vector<std::string>{
                  "El número máximo de Equis seguidas no puede ser menor que el mínimo de Equis "
                  "seguidas"});
    EXPECT_EQ(MsgMaximoMenorQueMinimo(4),
              "El número máximo de Interrupciones consecutivas no puede ser menor que el mínimo "
              "de Interrupciones consecutivas");
}

TEST(RapidaBasica, SinFilasMarcadasNingunaCondicionYLosLimitesDeLaBase) {
    engine::SetCondiciones c = Condiciones();
    const auto antes = c;
    EXPECT_EQ(PonerLimitesBasica(c, LimitesBasica{}), 0);
    EXPECT_EQ(c.minEquis, antes.posMinEquis);
    EXPECT_EQ(c.maxDoses, antes.posMaxDoses);
    EXPECT_EQ(c.maxSeg[2], antes.posMaxSeg[2]);
    EXPECT_EQ(c.minInter, 0);
    EXPECT_EQ(c.maxInter, 14);
    EXPECT_EQ(c.maxInterCons, 14);
    for (int f : {0, 1, 2, 10}) EXPECT_FALSE(c.casilla[static_cast<std::size_t>(f)]);
}

TEST(RapidaBasica, SoloElMinimoDeInterrupcionesDejaElMaximoEn14) {
    DialogoGuionado dialogo;
    LimitesBasica limites{};
    limites[3].minimo = 12;
    EXPECT_EQ(ComprobarBasica("16", 324, limites, dialogo), 16);
    engine::SetCondiciones c = Condiciones();
    EXPECT_EQ(PonerLimitesBasica(c, limites), 1);
    EXPECT_EQ(c.minInter, 12);
    EXPECT_EQ(c.maxInter, 14);
    EXPECT_TRUE(c.casilla[2]);
    EXPECT_FALSE(c.casilla[0]);
}

TEST(RapidaBasica, LasFamiliasYNumCondicionesPorLasFilasMarcadas) {
    engine::SetCondiciones c = Condiciones();
    LimitesBasica limites{};
    limites[0] = {2, 5};
    limites[2].maximo = 9;
    limites[4] = {1, 3};
    limites[5].minimo = 1;
    EXPECT_EQ(PonerLimitesBasica(c, limites), 3);
    EXPECT_EQ(c.minEquis, 2);
    EXPECT_EQ(c.maxEquis, 5);
    EXPECT_EQ(c.maxVariantes, 9);
    EXPECT_EQ(c.minInterCons, 1);
    EXPECT_EQ(c.minSeg[0], 1);
    EXPECT_TRUE(c.casilla[0]);
    EXPECT_TRUE(c.casilla[1]);
    EXPECT_FALSE(c.casilla[2]);
    EXPECT_TRUE(c.casilla[10]);
}

TEST(RapidaBasica, DesmarcarUnaFilaDevuelveSuParAlDeLaTablaYNoTocaLasDemas) {
    engine::SetCondiciones c = Condiciones();
    LimitesBasica limites{};
    limites[1] = {1, 2};
    limites[3] = {4, 6};
    PonerLimitesBasica(c, limites);
    SoltarFilaBasica(c, 3);
    EXPECT_EQ(c.minInter, 0);
    EXPECT_EQ(c.maxInter, 14);
    EXPECT_EQ(c.minDoses, 1);
    SoltarFilaBasica(c, 1);
    EXPECT_EQ(c.minDoses, c.posMinDoses);
    EXPECT_EQ(c.maxDoses, c.posMaxDoses);
}

TEST(RapidaBasica, LoQueOfreceCadaFila) {
    const engine::SetCondiciones c = Condiciones();
    EXPECT_EQ(RangoDeFila(c, 0), (std::pair<int, int>{c.posMinEquis, c.posMaxEquis}));
    EXPECT_EQ(RangoDeFila(c, 3), (std::pair<int, int>{0, 13}));
    EXPECT_EQ(RangoDeFila(c, 4), (std::pair<int, int>{0, 13}));
    EXPECT_EQ(RangoDeFila(c, 7), (std::pair<int, int>{c.posMinSeg[2], c.posMaxSeg[2]}));
    EXPECT_EQ(kRotulosBasica[4], "Nº de Interrupciones consecutivas");
}

}  // namespace
}  // namespace quinteva::builders
