#include "builders/very_reduced.h"

#include <gtest/gtest.h>

#include "builders/reduction_display.h"
#include "engine/conditions.h"
#include "tests/support/scripted_dialog.h"

namespace quinteva::builders {
namespace {

using pruebas::DialogoGuionado;

// Una base con tantos triples y dobles, los triples primero, y "1" en lo demás.
engine::QuinielaBase Base(int triples, int dobles) {
    engine::QuinielaBase base;
    for (int p = 1; p <= engine::kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) base.Elegir(p, s, false);
        base.Elegir(p, 0, true);
        if (p <= triples + dobles) base.Elegir(p, 1, true);
        if (p <= triples) base.Elegir(p, 2, true);
    }
    return base;
}

TEST(MuyReducida, CadaFilaDeLaTablaSeEncuentraPorLaFormaDeLaBase) {
    const auto& filas = TablaReducciones();
    ASSERT_EQ(filas.size(), 73U);
    for (std::size_t f = 0; f < filas.size(); ++f) {
        EXPECT_EQ(FilaDeLaBase(Base(filas[f].triples, filas[f].dobles)), f) << filas[f].etiqueta;
    }
}

TEST(MuyReducida, SinDoblesNiTriplesOConCuatroDoblesNoHayFila) {
    EXPECT_FALSE(FilaDeLaBase(Base(0, 0)));
    EXPECT_FALSE(FilaDeLaBase(Base(0, 4)));
}

TEST(MuyReducida, ConCondicionesSeRehusa) {
    engine::Combinacion c;
    c.base = Base(0, 3);
    c.condiciones = engine::CondicionesIniciales(c.base);
    DialogoGuionado dialogo;
    EXPECT_TRUE(EmpezarMuyReducida(c, dialogo));
    c.condiciones.casilla[0] = true;
    ASSERT_GT(engine::NumeroDeCondiciones(c.condiciones), 0);
    EXPECT_FALSE(EmpezarMuyReducida(c, dialogo));
    EXPECT_EQ(dialogo.Textos(), std::vector<std::string>{std::string(kMsgHayCondiciones)});
}

TEST(MuyReducida, CienMilYCuarentaMilNoCuentanComoPorEncima) {
    DialogoGuionado dialogo;
    EXPECT_TRUE(AvisarPorColumnas(40000, dialogo));
    EXPECT_TRUE(dialogo.Registro().empty());
    EXPECT_TRUE(AvisarPorColumnas(40001, dialogo));
    EXPECT_TRUE(AvisarPorColumnas(100000, dialogo));
    EXPECT_EQ(dialogo.Textos(), (std::vector<std::string>(2, std::string(kMsgCiertoTiempo))));
    dialogo.Responder(base::Respuesta::No).Responder(base::Respuesta::Si);
    EXPECT_FALSE(AvisarPorColumnas(100001, dialogo));
    EXPECT_TRUE(AvisarPorColumnas(177147, dialogo));
    EXPECT_EQ(dialogo.Textos().back(), kPreguntaProcesoLargo);
    EXPECT_EQ(dialogo.PorDefecto(), (std::vector{base::Respuesta::Si, base::Respuesta::Si}));
}

}  // namespace
}  // namespace quinteva::builders
