// Columnas manuales: incluir, eliminar por regla, jugar todas, una a una y el cierre.
#include "builders/manual.h"

#include <gtest/gtest.h>

#include "base/error.h"
#include "tests/builders/boletos_fixture.h"

namespace quinteva::builders {
namespace {

using pruebas::BancoBoletos;
using pruebas::LeerRegistros;
using pruebas::Registro;

constexpr auto kCnd = Jugada::Condicionada;

std::array<std::string, 14> Celdas(const std::string& signos) {
    std::array<std::string, 14> celdas;
    for (std::size_t i = 0; i < 14; ++i) celdas[i] = std::string(1, signos[i]);
    return celdas;
}

void ComprobarIguales(const BancoBoletos& b) {
    EXPECT_EQ(LeerRegistros(b.Almacen(kCnd)), LeerRegistros(b.Guardado(kCnd)));
}

TEST(Cumple, LosTresModos) {
    const auto c = engine::ColumnaDeTexto("111111XXXX2222");  // 6 unos, 4 equis, 4 doses
    EXPECT_TRUE(Cumple(c, ModoRegla::Mas, 6, SignoRegla::Unos));
    EXPECT_FALSE(Cumple(c, ModoRegla::Mas, 5, SignoRegla::Unos));
    EXPECT_TRUE(Cumple(c, ModoRegla::Menos, 4, SignoRegla::Equis));
    EXPECT_FALSE(Cumple(c, ModoRegla::Menos, 5, SignoRegla::Doses));
    EXPECT_FALSE(Cumple(c, ModoRegla::Igual, 8, SignoRegla::Variantes));
    EXPECT_TRUE(Cumple(c, ModoRegla::Igual, 7, SignoRegla::Variantes));
    EXPECT_TRUE(Cumple(c, ModoRegla::Menos, 0, SignoRegla::Unos));
    EXPECT_TRUE(Cumple(c, ModoRegla::Mas, 14, SignoRegla::Doses));
}

TEST(Cumple, MasDeCeroVariantesDejaSoloLaDeCatorceUnos) {
    BancoBoletos b("1X2 1X2 1 1 1 1 1 1 1 1 1 1 1 1");
    b.Generadas(9);
    VentanaEliminar v;
    EXPECT_TRUE(
        EliminarPorRegla(b.comb, {ModoRegla::Mas, 0, SignoRegla::Variantes}, v, b.Entorno()));
    EXPECT_EQ(b.comb.activasGeneradas, 1);
    for (const auto& r : LeerRegistros(b.Almacen(kCnd))) {
        EXPECT_EQ(r.Activa(), engine::TextoDeColumna(r.columna) == "11111111111111");
    }
    ComprobarIguales(b);
    EXPECT_EQ(b.comb.panel.condicionada, 1);
    EXPECT_EQ(b.comb.panel.precio, 0.75);
}

TEST(Incluir, FaltaUnSigno) {
    BancoBoletos b;
    b.Generadas(8);
    VentanaAnadir v;
    auto celdas = Celdas("22222222222222");
    celdas[13].clear();
    EXPECT_EQ(Incluir(b.comb, celdas, v, b.Entorno()), Inclusion::Rechazada);
    EXPECT_EQ(b.dialogo.Textos(), std::vector<std::string>{std::string(kMsgFaltanSignos)});
    EXPECT_FALSE(v.cambiada);
    EXPECT_EQ(b.comb.totalGeneradas, 8);
}

TEST(Incluir, LaRepeticionSoloMiraLosCatorceSignos) {
    BancoBoletos b;
    b.Columnas(kCnd, {Registro("11111111111111", "00"), Registro("X1111111111111", "00", '1')});
    VentanaAnadir v;
    b.comb.pleno = {'2', '2'};
    EXPECT_EQ(Incluir(b.comb, Celdas("11111111111111"), v, b.Entorno()), Inclusion::Rechazada);
    EXPECT_EQ(Incluir(b.comb, Celdas("X1111111111111"), v, b.Entorno()), Inclusion::Rechazada);
    EXPECT_EQ(b.dialogo.Textos(),
              (std::vector<std::string>{
                  "Esta columna ya está incluida en la combinación, columna 1",
                  "Esta columna ya está incluida en la combinación, columna 2, aunque está "
                  "excluida manualmente. Puede anular la exclusión."}));
    EXPECT_EQ(b.comb.totalGeneradas, 2);
}

TEST(Incluir, AnadeALosDosArchivosConElPlenoDelUltimoYGuarda) {
    BancoBoletos b;
    b.Columnas(kCnd, {Registro("11111111111111", "0M"), Registro("X1111111111111", "2M")});
    VentanaAnadir v;
    b.comb.pleno = {'1', '1'};
    EXPECT_EQ(Incluir(b.comb, Celdas("2x111111111111"), v, b.Entorno()), Inclusion::Incluida);
    EXPECT_TRUE(v.cambiada);
    const auto guardado = LeerRegistros(b.Guardado(kCnd));
    ASSERT_EQ(guardado.size(), 3U);
    EXPECT_EQ(guardado[2], Registro("2X111111111111", "2M"));
    ComprobarIguales(b);
    EXPECT_EQ(b.comb.activasGeneradas, 3);
    EXPECT_EQ(engine::LeerCabecera(b.comb.ruta).condicionada, 3);
    EXPECT_TRUE(b.comb.panel.guardada);
    EXPECT_TRUE(b.dialogo.Textos().empty());
}

TEST(Incluir, UnaSolaEnElUltimoBoletoPreguntaOtraAMano) {
    for (const auto respuesta : {base::Respuesta::Si, base::Respuesta::No}) {
        BancoBoletos b;
        b.Generadas(8);
        b.dialogo.Responder(respuesta);
        VentanaAnadir v;
        const Inclusion i = Incluir(b.comb, Celdas("22222222222222"), v, b.Entorno());
        std::vector<std::string> textos{std::string(kPreguntaOtraAMano)};
        if (respuesta == base::Respuesta::Si) {
            EXPECT_EQ(i, Inclusion::OtraAMano);
            EXPECT_TRUE(v.cambiada);
            EXPECT_EQ(b.comb.activasGeneradas, 9);
        } else {
            EXPECT_EQ(i, Inclusion::CompletadaAlAzar);
            EXPECT_FALSE(v.cambiada);
            EXPECT_EQ(b.comb.activasGeneradas, 10);
            textos.emplace_back(kMsgAleatoria);
        }
        EXPECT_EQ(b.dialogo.Textos(), textos);
    }
}

TEST(Incluir, UnaCeldaQueNoEsSigno) {
    BancoBoletos b;
    b.Generadas(8);
    VentanaAnadir v;
    EXPECT_THROW(Incluir(b.comb, Celdas("3111111111111X"), v, b.Entorno()), base::Error);
    EXPECT_EQ(LeerRegistros(b.Guardado(kCnd)).size(), 8U);
}

TEST(EliminarPorRegla, FaltaUnParametro) {
    BancoBoletos b;
    b.Generadas(8);
    VentanaEliminar v;
    EXPECT_FALSE(
        EliminarPorRegla(b.comb, {ModoRegla::Mas, std::nullopt, SignoRegla::Unos}, v, b.Entorno()));
    EXPECT_EQ(b.dialogo.Textos(), std::vector<std::string>{std::string(kMsgFaltanParametros)});
    EXPECT_EQ(v.eliminacionesPorRegla, 0);
}

TEST(EliminarPorRegla, LaQueNoQuitaNadaCuentaParaElAvisoAcumulativo) {
    BancoBoletos b;
    b.Generadas(27);
    const auto antes = LeerRegistros(b.Guardado(kCnd));
    VentanaEliminar v;
    EXPECT_TRUE(EliminarPorRegla(b.comb, {ModoRegla::Mas, 14, SignoRegla::Unos}, v, b.Entorno()));
    EXPECT_EQ(LeerRegistros(b.Guardado(kCnd)), antes);
    EXPECT_TRUE(b.dialogo.Textos().empty());

    b.dialogo.Responder(base::Respuesta::Cancelar);
    EXPECT_FALSE(
        EliminarPorRegla(b.comb, {ModoRegla::Igual, 0, SignoRegla::Equis}, v, b.Entorno()));
    EXPECT_EQ(b.dialogo.Textos(), std::vector<std::string>{std::string(kMsgAcumulativa)});
    EXPECT_EQ(b.comb.activasGeneradas, 27);

    b.dialogo.Responder(base::Respuesta::Aceptar);
    EXPECT_TRUE(EliminarPorRegla(b.comb, {ModoRegla::Igual, 0, SignoRegla::Equis}, v, b.Entorno()));
    EXPECT_EQ(b.comb.activasGeneradas, 19);  // quedan las 19 con alguna X entre los 3 triples
    ComprobarIguales(b);
}

TEST(EliminarPorRegla, UnaReglaNuncaDevuelveUnaColumna) {
    BancoBoletos b;
    b.Columnas(kCnd, {Registro("11111111111111", "1M", '1'), Registro("X1111111111111")});
    VentanaEliminar v;
    EliminarPorRegla(b.comb, {ModoRegla::Mas, 14, SignoRegla::Unos}, v, b.Entorno());
    EXPECT_FALSE(LeerRegistros(b.Guardado(kCnd))[0].Activa());
    EXPECT_EQ(b.comb.activasGeneradas, 1);
}

TEST(EliminarPorRegla, JugarTodasDevuelveTodoYBorraLaCuenta) {
    BancoBoletos b;
    b.Generadas(27);
    VentanaEliminar v;
    EliminarPorRegla(b.comb, {ModoRegla::Mas, 0, SignoRegla::Variantes}, v, b.Entorno());
    EXPECT_EQ(b.comb.activasGeneradas, 1);
    JugarTodas(b.comb, v, b.Entorno());
    EXPECT_EQ(v.eliminacionesPorRegla, 0);
    EXPECT_EQ(b.comb.activasGeneradas, 27);
    EXPECT_EQ(b.comb.panel.condicionada, 27);
    for (const auto& r : LeerRegistros(b.Guardado(kCnd))) EXPECT_TRUE(r.Activa());
    ComprobarIguales(b);
    EliminarPorRegla(b.comb, {ModoRegla::Menos, 14, SignoRegla::Unos}, v, b.Entorno());
    EXPECT_TRUE(b.dialogo.Textos().empty()) << "tras Jugar todas no es acumulativa";
}

TEST(UnaAUna, JugarYNoJugarColumnaEnLosDosArchivos) {
    BancoBoletos b;
    b.Generadas(10);
    JugarColumna(b.comb, 4, false, b.Entorno());
    JugarColumna(b.comb, 4, false, b.Entorno());
    EXPECT_EQ(b.comb.activasGeneradas, 9);
    EXPECT_FALSE(LeerRegistros(b.Guardado(kCnd))[3].Activa());
    ComprobarIguales(b);
    JugarColumna(b.comb, 4, true, b.Entorno());
    EXPECT_EQ(b.comb.activasGeneradas, 10);
    EXPECT_THROW(JugarColumna(b.comb, 11, true, b.Entorno()), base::Error);
    EXPECT_EQ(RegistroDeRejilla(8, 1, 1), 1);
    EXPECT_EQ(RegistroDeRejilla(8, 3, 5), 21);
    const auto pagina = PaginaDeColumnas(b.comb, 9, 8, b.Entorno());
    ASSERT_EQ(pagina.size(), 2U);
    EXPECT_EQ(pagina[0], LeerRegistros(b.Almacen(kCnd))[8]);
}

TEST(CerrarEliminar, SinUnaSolaEnElUltimoNoPreguntaYGuarda) {
    BancoBoletos b;
    b.Generadas(1);
    JugarColumna(b.comb, 1, false, b.Entorno());
    EXPECT_EQ(b.comb.activasGeneradas, 0);
    EXPECT_TRUE(CerrarEliminar(b.comb, b.Entorno(), [] { FAIL(); }));
    EXPECT_TRUE(b.dialogo.Textos().empty()) << "0 no deja una sola columna";
    EXPECT_EQ(engine::LeerCabecera(b.comb.ruta).condicionada, 0);
}

TEST(CerrarEliminar, ConUnaSolaPreguntaRehabilitarOAnadir) {
    BancoBoletos b;
    b.Generadas(10);
    JugarColumna(b.comb, 1, false, b.Entorno());
    b.dialogo.Responder(base::Respuesta::Si);
    EXPECT_FALSE(CerrarEliminar(b.comb, b.Entorno(), [] { FAIL(); }));
    EXPECT_EQ(b.dialogo.Textos(), (std::vector<std::string>{std::string(kPreguntaMantenerEliminada),
                                                            std::string(kMsgRehabilite)}));

    int abierta = 0;
    b.dialogo.Responder(base::Respuesta::No).Responder(base::Respuesta::Si);
    EXPECT_TRUE(CerrarEliminar(b.comb, b.Entorno(), [&] { ++abierta; }));
    EXPECT_EQ(abierta, 1);

    b.dialogo.Responder(base::Respuesta::No).Responder(base::Respuesta::No);
    EXPECT_TRUE(CerrarEliminar(b.comb, b.Entorno(), [] { FAIL(); }));
    EXPECT_EQ(b.dialogo.Textos().back(), kMsgAleatoria);
    EXPECT_EQ(b.comb.activasGeneradas, 10);
    EXPECT_EQ(engine::LeerCabecera(b.comb.ruta).condicionada, 10);
}

}  // namespace
}  // namespace quinteva::builders
