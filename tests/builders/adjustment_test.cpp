// "Ajustar nº de apuestas a:" con semilla fija: mensajes, preguntas, sorteos y parada.
#include "builders/adjustment.h"

#include <gtest/gtest.h>

#include <set>

#include "base/progress.h"
#include "tests/builders/boletos_fixture.h"
#include "tests/support/counting_progress.h"

namespace quinteva::builders {
namespace {

using pruebas::BancoBoletos;
using pruebas::LeerRegistros;

constexpr auto kCnd = Jugada::Condicionada;
// 3^5 = 243 columnas.
const std::string kBase243 = "1X2 1X2 1X2 1X2 1X2 1 1 1 1 1 1 1 1 1";

// Las columnas activas del almacén: ninguna dos veces y todas dentro de la base.
void ComprobarActivas(const BancoBoletos& b, std::size_t esperadas) {
    const auto base = pruebas::ColumnasDeLaBase(b.comb.base);
    const std::set<std::string> enLaBase(base.begin(), base.end());
    std::set<std::string> activas;
    for (const auto& r : LeerRegistros(b.Almacen(kCnd))) {
        if (!r.Activa()) continue;
        const auto texto = engine::TextoDeColumna(r.columna);
        EXPECT_TRUE(activas.insert(texto).second) << texto << " activa dos veces";
        EXPECT_TRUE(enLaBase.contains(texto)) << texto << " fuera de la base";
    }
    EXPECT_EQ(activas.size(), esperadas);
}

Ajuste AjustarA(BancoBoletos& b, std::string_view campo, bool preguntarSiBaja = true) {
    base::SinProgreso progreso;
    return Ajustar(b.comb, campo, b.Entorno(), progreso, preguntarSiBaja);
}

TEST(Ajustar, CampoVacioOCeroPideElNumeroYVaAlCampo) {
    for (const std::string campo : {"", "0", "  "}) {
        BancoBoletos b;
        b.Generadas(8);
        const Ajuste a = AjustarA(b, campo);
        EXPECT_EQ(a.resultado, ResultadoAjuste::Rechazada);
        EXPECT_TRUE(a.focoEnCampo);
        EXPECT_EQ(b.dialogo.Textos(), std::vector<std::string>{std::string(kMsgFaltaNumero)});
    }
}

TEST(Ajustar, YaAjustadaYBoletoDeUnaYMayorQueLaBase) {
    BancoBoletos b;
    b.Generadas(8);
    EXPECT_EQ(AjustarA(b, "8").resultado, ResultadoAjuste::YaAjustada);
    EXPECT_EQ(AjustarA(b, "9").resultado, ResultadoAjuste::Rechazada);
    EXPECT_EQ(AjustarA(b, "17").resultado, ResultadoAjuste::Rechazada);
    EXPECT_EQ(AjustarA(b, "28").resultado, ResultadoAjuste::Rechazada);
    EXPECT_EQ(b.dialogo.Textos(),
              (std::vector<std::string>{
                  "Ya está ajustada la combinación a 8 apuestas.",
                  "No es posible ajustar la combinación a 9 apuestas porque el último boleto "
                  "tendría una sola columna. Modifique el número de apuestas que desea.",
                  MsgBoletoDeUna(17), std::string(kMsgBaseCorta)}));
    EXPECT_EQ(b.comb.activasGeneradas, 8);
    EXPECT_EQ(LeerRegistros(b.Almacen(kCnd)).size(), 8U);
}

TEST(Ajustar, HaciaArribaAnadeJustoLasQueFaltanDentroDeLaBase) {
    BancoBoletos b(kBase243);
    b.Generadas(16);
    const Ajuste a = AjustarA(b, "40");
    EXPECT_EQ(a.resultado, ResultadoAjuste::Ajustada);
    EXPECT_EQ(a.cambiadas, 24);
    EXPECT_TRUE(b.dialogo.Textos().empty()) << "base holgada: ninguna pregunta";
    EXPECT_EQ(b.comb.activasGeneradas, 40);
    EXPECT_EQ(b.comb.totalGeneradas, 40);
    ComprobarActivas(b, 40);
    // Lo sorteado lleva el PlenoBase y todo queda guardado.
    const auto almacen = LeerRegistros(b.Almacen(kCnd));
    for (std::size_t i = 16; i < almacen.size(); ++i) EXPECT_EQ(almacen[i].pleno, b.comb.pleno);
    EXPECT_EQ(LeerRegistros(b.Guardado(kCnd)), almacen);
    EXPECT_EQ(engine::LeerCabecera(b.comb.ruta).condicionada, 40);
    EXPECT_EQ(engine::LeerCabecera(b.comb.ruta).jugada, "cnd");
    EXPECT_EQ(b.comb.panel.precio, 30.0);
}

TEST(Ajustar, HaciaAbajoDejaTActivasYLosMismosRegistros) {
    BancoBoletos b(kBase243);
    b.Generadas(40);
    b.dialogo.Responder(base::Respuesta::Si);
    const Ajuste a = AjustarA(b, "16");
    EXPECT_EQ(a.resultado, ResultadoAjuste::Ajustada);
    EXPECT_EQ(a.cambiadas, 24);
    EXPECT_EQ(b.dialogo.Textos(), std::vector<std::string>{std::string(kPreguntaBajar)});
    EXPECT_EQ(b.comb.activasGeneradas, 16);
    EXPECT_EQ(b.comb.totalGeneradas, 40);
    const auto guardado = LeerRegistros(b.Guardado(kCnd));
    ASSERT_EQ(guardado.size(), 40U);
    EXPECT_EQ(std::count_if(guardado.begin(), guardado.end(), [](auto& r) { return r.Activa(); }),
              16);
    EXPECT_EQ(engine::LeerCabecera(b.comb.ruta).condicionada, 16);
}

TEST(Ajustar, HaciaAbajoConNoNoTocaNadaYDesdeOtraVentanaNoPregunta) {
    BancoBoletos b(kBase243);
    b.Generadas(40);
    b.dialogo.Responder(base::Respuesta::No);
    EXPECT_EQ(AjustarA(b, "16").resultado, ResultadoAjuste::Cancelada);
    EXPECT_EQ(b.comb.activasGeneradas, 40);

    const Ajuste a = AjustarA(b, "32", false);
    EXPECT_EQ(a.resultado, ResultadoAjuste::Ajustada);
    EXPECT_EQ(b.dialogo.Textos().size(), 1U) << "la segunda vez no se pregunta";
    EXPECT_EQ(b.comb.activasGeneradas, 32);
}

TEST(Ajustar, HaciaArribaOtraVezReviveLasEliminadas) {
    // Las 243 columnas de la base ya están: toda subida cae en una eliminada y la revive.
    BancoBoletos b(kBase243);
    b.Generadas(243);
    AjustarA(b, "16", false);
    ASSERT_EQ(b.comb.activasGeneradas, 16);
    const Ajuste a = AjustarA(b, "104");
    EXPECT_EQ(a.resultado, ResultadoAjuste::Ajustada);
    EXPECT_EQ(a.cambiadas, 88);
    EXPECT_EQ(b.comb.activasGeneradas, 104);
    EXPECT_EQ(b.comb.totalGeneradas, 243) << "ningún registro nuevo";
    EXPECT_EQ(LeerRegistros(b.Almacen(kCnd)).size(), 243U);
    ComprobarActivas(b, 104);
}

TEST(Ajustar, ReviveAntesDeAnadirCuandoElSorteoCaeEnUnaEliminada) {
    BancoBoletos b(kBase243);
    b.Generadas(120);
    AjustarA(b, "8", false);
    const auto eliminadas = LeerRegistros(b.Almacen(kCnd));
    AjustarA(b, "104");
    const auto despues = LeerRegistros(b.Almacen(kCnd));
    int revividas = 0;
    for (std::size_t i = 0; i < eliminadas.size(); ++i) {
        revividas += (!eliminadas[i].Activa() && despues[i].Activa()) ? 1 : 0;
    }
    EXPECT_GT(revividas, 0);
    EXPECT_EQ(static_cast<int>(despues.size()) - 120 + revividas, 96) << "nuevas + revividas";
    ComprobarActivas(b, 104);
}

TEST(Ajustar, MuyAjustadaPreguntaConNoPorDefecto) {
    // 27 columnas y 16 activas: 11 libres (no menos del 20 % de la base), pero añadir 10 es más
    // del 80 % de ellas.
    BancoBoletos b;
    b.Generadas(16);
    b.dialogo.Responder(base::Respuesta::No);
    const Ajuste no = AjustarA(b, "26");
    EXPECT_EQ(no.resultado, ResultadoAjuste::Cancelada);
    EXPECT_TRUE(no.focoEnCampo);
    EXPECT_EQ(b.dialogo.Textos(), std::vector<std::string>{std::string(kPreguntaMuyAjustada)});
    EXPECT_EQ(b.comb.activasGeneradas, 16);

    // Con Sí sigue hasta completar aunque cueste.
    b.dialogo.Responder(base::Respuesta::Si);
    EXPECT_EQ(AjustarA(b, "26").resultado, ResultadoAjuste::Ajustada);
    EXPECT_EQ(b.comb.activasGeneradas, 26);
    ComprobarActivas(b, 26);
}

TEST(Ajustar, ConSiElBucleSigueAunqueNoPuedaCompletarseYSoloLoParaDetener) {
    // La copia en el almacén de una columna al azar no tiene estado: no está activa para Abrir,
    // pero el sorteo tampoco la revive. Con las 8 columnas de la base así, la octava nunca llega.
    BancoBoletos b("1X 1X 1X 1 1 1 1 1 1 1 1 1 1 1");
    std::vector<engine::RegistroColumna> registros;
    for (const auto& c : pruebas::ColumnasDeLaBase(b.comb.base))
        registros.push_back(pruebas::Registro(c));
    registros.back().pleno = {' ', ' '};
    registros.back().estado = ' ';
    b.Columnas(kCnd, registros);
    ASSERT_EQ(b.comb.activasGeneradas, 7);
    b.dialogo.Responder(base::Respuesta::Si);
    pruebas::ProgresoContador progreso(500);
    const Ajuste a = Ajustar(b.comb, "8", b.Entorno(), progreso);
    EXPECT_EQ(a.resultado, ResultadoAjuste::Detenida);
    EXPECT_EQ(a.cambiadas, 0);
    EXPECT_EQ(progreso.Avances(), 500);
    EXPECT_EQ(b.dialogo.Textos(), std::vector<std::string>{std::string(kPreguntaMuyAjustada)});
    EXPECT_EQ(b.comb.activasGeneradas, 7);
}

TEST(Ajustar, AlDetenerseConUnaSolaEnElUltimoBoletoPreguntaYAnadeAlAzar) {
    for (const auto respuesta : {base::Respuesta::Si, base::Respuesta::No}) {
        BancoBoletos b(kBase243);
        b.Generadas(8);
        b.dialogo.Responder(respuesta);
        pruebas::ProgresoContador progreso(1);
        const Ajuste a = Ajustar(b.comb, "16", b.Entorno(), progreso);
        EXPECT_EQ(a.resultado, ResultadoAjuste::Detenida);
        EXPECT_EQ(a.cambiadas, 1);
        std::vector<std::string> textos{std::string(kPreguntaAleatoriaTrasParar)};
        if (respuesta == base::Respuesta::Si) textos.emplace_back(kMsgAleatoria);
        EXPECT_EQ(b.dialogo.Textos(), textos);
        EXPECT_EQ(b.comb.activasGeneradas, respuesta == base::Respuesta::Si ? 10 : 9);
        EXPECT_EQ(engine::LeerCabecera(b.comb.ruta).condicionada, b.comb.activasGeneradas)
            << "se guarda también al parar";
    }
}

TEST(Ajustar, AlDetenerseBajandoTambienPregunta) {
    BancoBoletos b(kBase243);
    b.Generadas(16);
    b.dialogo.Responder(base::Respuesta::Si).Responder(base::Respuesta::No);
    pruebas::ProgresoContador progreso(3);
    const Ajuste a = Ajustar(b.comb, "8", b.Entorno(), progreso);
    EXPECT_EQ(a.resultado, ResultadoAjuste::Detenida);
    EXPECT_LE(a.cambiadas, 3);
    EXPECT_EQ(b.comb.activasGeneradas, 16 - a.cambiadas);
    if (UnaSolaEnElUltimoBoleto(b.comb.activasGeneradas)) {
        EXPECT_EQ(b.dialogo.Textos().back(), kPreguntaAleatoriaTrasParar);
    }
}

TEST(Ajustar, ElPlenoSorteadoEsElPlenoBase) {
    BancoBoletos b(kBase243);
    b.Generadas(8, "2M");
    b.comb.pleno = {'0', '1'};
    AjustarA(b, "16");
    const auto almacen = LeerRegistros(b.Almacen(kCnd));
    for (std::size_t i = 8; i < almacen.size(); ++i)
        EXPECT_EQ(almacen[i].pleno, (engine::PlenoBase{'0', '1'}));
}

TEST(Ajustar, LaReducidaAjustaRedTmpYMuestraSuFila) {
    BancoBoletos b(kBase243);
    b.Generadas(40);
    std::vector<engine::RegistroColumna> red;
    const auto todas = pruebas::ColumnasDeLaBase(b.comb.base);
    for (std::size_t i = 0; i < 10; ++i) red.push_back(pruebas::Registro(todas[i * 3]));
    b.Columnas(Jugada::Reducida, red);
    AjustarA(b, "16");
    EXPECT_EQ(b.comb.activasReducidas, 16);
    EXPECT_EQ(b.comb.activasGeneradas, 40);
    EXPECT_EQ(b.comb.panel.reducidas[1], 16);
    EXPECT_EQ(b.comb.panel.precio, 12.0);
    EXPECT_EQ(LeerRegistros(b.Guardado(Jugada::Reducida)).size(), 16U);
    EXPECT_EQ(engine::LeerCabecera(b.comb.ruta).al12, 16);
}

}  // namespace
}  // namespace quinteva::builders
