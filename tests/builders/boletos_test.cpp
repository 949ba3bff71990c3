// La regla del Boleto, el precio, la elección del conjunto jugado y las columnas al azar.
#include "builders/boletos.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "base/error.h"
#include "engine/pricing.h"
#include "tests/builders/boletos_fixture.h"
#include "tests/support/file_bytes.h"

namespace quinteva::builders {
namespace {

using pruebas::BancoBoletos;
using pruebas::LeerRegistros;
using pruebas::Registro;

TEST(ReglaBoleto, RechazaLosTotalesQueDejanUnaSolaColumnaEnElUltimo) {
    for (int t : {1, 9, 17, 25, 801}) EXPECT_TRUE(UnaSolaEnElUltimoBoleto(t)) << t;
    for (int t : {0, 8, 10, 16, 24, 26, 800}) EXPECT_FALSE(UnaSolaEnElUltimoBoleto(t)) << t;
}

TEST(Precio, PrecioApu15EnPrecisionSimpleConComaOPunto) {
    pruebas::AjustesEnMemoria ajustes;
    EXPECT_EQ(engine::PrecioColumna(ajustes), 0.75F);
    ajustes.Guardar(base::kAplicacion, "Opciones", "PrecioApu15", "1,1");
    EXPECT_EQ(engine::PrecioColumna(ajustes), 1.1F);
    EXPECT_EQ(engine::Importe(3, ajustes), 3.0 * static_cast<double>(1.1F));
    ajustes.Guardar(base::kAplicacion, "Opciones", "PrecioApu15", "0.5");
    EXPECT_EQ(engine::Importe(16, ajustes), 8.0);
}

TEST(Precio, PrecioCombMuestraLaCondicionadaYBorraLasReducidas) {
    engine::Combinacion c;
    pruebas::AjustesEnMemoria ajustes;
    c.panel.reducidas = {std::nullopt, 40, std::nullopt, 30};
    c.panel.precio = 1.0;
    engine::PrecioComb(c, ajustes);
    EXPECT_FALSE(c.panel.precio) << "sin columnas generadas el precio queda en blanco";
    EXPECT_TRUE(c.panel.reducidas[1]);

    c.totalGeneradas = 20;
    c.activasGeneradas = 16;
    engine::PrecioComb(c, ajustes);
    EXPECT_EQ(c.panel.condicionada, 16);
    EXPECT_EQ(c.panel.precio, 12.0);
    for (const auto& r : c.panel.reducidas) EXPECT_FALSE(r);

    c.activasReducidas = 24;
    c.nivelReducida = 2;
    PrecioRed(c, ajustes);
    EXPECT_EQ(c.panel.reducidas[2], 24);
    EXPECT_EQ(c.panel.precio, 18.0);
}

TEST(ElegirJugada, EscribeElCampoDeLaCabeceraYNadaMas) {
    BancoBoletos b;
    b.Generadas(8);
    b.EscribirJugada("");
    const std::string antes = pruebas::BytesDeArchivo(b.comb.ruta);
    ElegirJugada(b.comb, Jugada::Condicionada, b.Entorno(), [] { return false; });
    const std::string despues = pruebas::BytesDeArchivo(b.comb.ruta);
    ASSERT_EQ(despues.size(), 5189U);
    EXPECT_EQ(despues.substr(16, 3), "cnd");
    EXPECT_EQ(despues.substr(0, 16), antes.substr(0, 16));
    EXPECT_EQ(despues.substr(19), antes.substr(19));
    EXPECT_EQ(b.comb.jugada, "cnd");
    EXPECT_TRUE(b.dialogo.Registro().empty()) << "8 columnas: ninguna pregunta";
    EXPECT_EQ(ApuestasJugadas(b.comb, Jugada::Condicionada), 8);
    EXPECT_EQ(b.comb.panel.precio, 6.0);
}

TEST(ElegirJugada, ConNueveActivasPreguntaYConNoAnadeUnaAlAzar) {
    BancoBoletos b;
    b.Generadas(9, "2M");
    b.dialogo.Responder(base::Respuesta::No);
    bool abierta = false;
    ElegirJugada(b.comb, Jugada::Condicionada, b.Entorno(), [&] { return abierta = true; });
    EXPECT_FALSE(abierta);
    EXPECT_EQ(b.dialogo.Textos(), (std::vector<std::string>{std::string(kPreguntaAnadirManual),
                                                            std::string(kMsgAleatoria)}));
    EXPECT_EQ(b.comb.totalGeneradas, 10);
    EXPECT_EQ(b.comb.activasGeneradas, 10);
    EXPECT_EQ(b.comb.panel.condicionada, 10);
    EXPECT_EQ(b.comb.panel.precio, 7.5);
}

TEST(ElegirJugada, ConSiAbreLaVentanaYSiVuelveSinAnadirAnadeAlAzar) {
    for (const bool anade : {false, true}) {
        BancoBoletos b;
        b.Generadas(17);
        b.dialogo.Responder(base::Respuesta::Si);
        int abierta = 0;
        ElegirJugada(b.comb, Jugada::Condicionada, b.Entorno(), [&] {
            ++abierta;
            return anade;
        });
        EXPECT_EQ(abierta, 1);
        EXPECT_EQ(b.comb.activasGeneradas, anade ? 17 : 18);
        EXPECT_EQ(b.dialogo.Textos().size(), anade ? 1U : 2U);
    }
}

TEST(Aleatoria, ElArchivoLlevaElPlenoDeSuUltimoRegistroYElAlmacenTresBlancos) {
    BancoBoletos b;
    b.Generadas(3, "2M");
    b.comb.pleno = {'0', '0'};
    AleatoriaCon(b.comb, b.Entorno());
    const auto guardado = LeerRegistros(b.Guardado(Jugada::Condicionada));
    const auto almacen = LeerRegistros(b.Almacen(Jugada::Condicionada));
    ASSERT_EQ(guardado.size(), 4U);
    ASSERT_EQ(almacen.size(), 4U);
    EXPECT_EQ(guardado[3].pleno, (engine::PlenoBase{'2', 'M'}));
    EXPECT_EQ(guardado[3].estado, '0');
    EXPECT_EQ(almacen[3].columna, guardado[3].columna);
    EXPECT_EQ(almacen[3].pleno, (engine::PlenoBase{' ', ' '}));
    EXPECT_EQ(almacen[3].estado, ' ');
    for (char s : guardado[3].columna) EXPECT_NE(engine::IndiceSigno(s), -1);
    EXPECT_EQ(b.comb.totalGeneradas, 4);
    EXPECT_EQ(b.comb.activasGeneradas, 4);
    EXPECT_EQ(b.dialogo.Textos(), std::vector<std::string>{std::string(kMsgAleatoria)});
}

TEST(Aleatoria, LaColumnaPuedeCaerFueraDeLaBase) {
    BancoBoletos b("1 1 1 1 1 1 1 1 1 1 1 1 1 1");
    b.Generadas(1);
    for (int i = 0; i < 8; ++i) AleatoriaCon(b.comb, b.Entorno());
    int fuera = 0;
    for (const auto& r : LeerRegistros(b.Guardado(Jugada::Condicionada))) {
        fuera += engine::TextoDeColumna(r.columna) != "11111111111111" ? 1 : 0;
    }
    EXPECT_GT(fuera, 0);
}

TEST(Aleatoria, LaReducidaMuestraCuentaYPrecioEnLaFilaDeSuNivel) {
    BancoBoletos b;
    b.Columnas(Jugada::Reducida, {Registro("11111111111111"), Registro("X1111111111111")});
    AleatoriaRed(b.comb, b.Entorno());
    EXPECT_EQ(b.comb.totalReducidas, 3);
    EXPECT_EQ(b.comb.activasReducidas, 3);
    EXPECT_EQ(b.comb.panel.reducidas[1], 3);
    EXPECT_EQ(b.comb.panel.precio, 2.25);
    EXPECT_EQ(LeerRegistros(b.Guardado(Jugada::Reducida)).size(), 3U);
}

TEST(EntradaMala, SinColumnasGuardadasNadaCambia) {
    BancoBoletos b;
    const std::string antes = pruebas::BytesDeArchivo(b.comb.ruta);
    EXPECT_THROW(ElegirJugada(b.comb, Jugada::Condicionada, b.Entorno(), [] { return false; }),
                 base::Error);
    EXPECT_THROW(AleatoriaCon(b.comb, b.Entorno()), base::Error);
    EXPECT_EQ(pruebas::BytesDeArchivo(b.comb.ruta), antes);
    EXPECT_FALSE(std::filesystem::exists(b.Guardado(Jugada::Condicionada)));
}

TEST(EntradaMala, SinRedNoSeEligeLaReducida) {
    BancoBoletos b;
    b.Generadas(8);
    b.EscribirJugada("cnd");
    try {
        ElegirJugada(b.comb, Jugada::Reducida, b.Entorno(), [] { return false; });
        FAIL();
    } catch (const base::Error& e) {
        EXPECT_NE(std::string(e.what()).find("J7.red"), std::string::npos) << e.what();
    }
    EXPECT_EQ(pruebas::BytesDeArchivo(b.comb.ruta).substr(16, 3), "cnd");
    EXPECT_FALSE(std::filesystem::exists(b.Guardado(Jugada::Reducida)));
}

TEST(EntradaMala, SinArchivoDeLaCombinacion) {
    BancoBoletos b;
    b.Generadas(8);
    b.comb.ruta.clear();
    EXPECT_THROW(ElegirJugada(b.comb, Jugada::Condicionada, b.Entorno(), [] { return false; }),
                 base::Error);
}

}  // namespace
}  // namespace quinteva::builders
