#include "engine/analysis.h"

#include <gtest/gtest.h>

#include "engine/filter.h"
#include "tests/engine/random_conditions.h"

namespace quinteva::engine {
namespace {

QuinielaBase BaseTriples() {
    QuinielaBase base;
    for (int p = 1; p <= kPartidos; ++p) {
        for (int s = 0; s < 3; ++s) base.Elegir(p, s, true);
    }
    base.PonerGoles("0", "0");
    return base;
}

// Sin filas si y solo si Condicionar la acepta.
TEST(Analisis, SinFilasSiYSoloSiPasaElFiltro) {
    pruebas::Sorteo s(31);
    for (int conjunto = 0; conjunto < 200; ++conjunto) {
        const QuinielaBase base = pruebas::BaseAlAzar(s);
        const SetCondiciones c = pruebas::CondicionesAlAzar(s, base);
        const Filtro filtro(c);
        for (int i = 0; i < 200; ++i) {
            const Columna col = ColumnaDeTexto(pruebas::ColumnaDeBase(s, base));
            Rechazos r;
            const bool pasa = filtro.Condicionar(col, r);
            const auto filas = Analisis(col, base, c);
            ASSERT_EQ(pasa, filas.empty()) << TextoDeColumna(col) << " conjunto " << conjunto;
        }
    }
}

TEST(Analisis, FilasEnElOrdenDeLasPruebas) {
    QuinielaBase base = BaseTriples();
    base.Elegir(1, 0, false);
    SetCondiciones c = CondicionesIniciales(BaseTriples());
    c.casilla[kCasillaInterrupciones] = true;
    c.maxInter = 2;
    c.casilla[kCasillaParejas] = true;
    c.maxPareja[1] = 1;  // "1X"
    c.grupos[0].activo = true;
    c.grupos[0].partidos = {true, true, true};
    c.grupos[0].max[kUno] = 1;
    c.grupos[0].min[kDos] = 1;
    const auto filas = Analisis(ColumnaDeTexto("1X1X1XXXXXXXXX"), base, c);
    const std::vector<FilaInforme> esperadas = {
        {"Quiniela Base", "Fallo en pronóstico"},
        {"Interrupciones totales", "Más de 2 Interrupciones"},
        {"Parejas", "Más de 1 Parejas  1X"},
        {"Grupo nº 1", "Más de 1 Unos"},
        {"Grupo nº 1", "Menos de 1 Doses"},
    };
    EXPECT_EQ(filas, esperadas);
    // Con tolerancia no hay filas de Grupo; solo la del total si se pasa.
    c.toleranciaGrupos = 1;
    c.casilla = {};
    EXPECT_TRUE(Analisis(ColumnaDeTexto("1X1X1XXXXXXXXX"), BaseTriples(), c).empty());
    c.grupos[1] = c.grupos[0];
    c.ultimoGrupo = 1;
    EXPECT_EQ(Analisis(ColumnaDeTexto("1X1X1XXXXXXXXX"), BaseTriples(), c),
              (std::vector<FilaInforme>{{"Grupos", "Más de 1 Grupos fallados"}}));
}

TEST(Rechazadas, SinRechazosSoloElTotal) {
    EXPECT_EQ(FilasRechazadas({}, 0, 0), (std::vector<FilaInforme>{{"Total rechazadas", "0"}}));
}

TEST(Rechazadas, OrdenFijoYTotal) {
    Rechazos r;
    r.porCondicion = {1000, 2, 3, 4, 5, 6, 7, 8, 9};
    r.grupo[2] = 10;
    r.tolGrupos = 11;
    r.grupoAciertos[49] = 12;
    r.tolGruposAciertos = 13;
    const std::vector<FilaInforme> esperadas = {{"Condiciones Generales", "1.000"},
                                                {"Seguidos", "2"},
                                                {"Interrupciones", "3"},
                                                {"Interrupciones consecutivas", "4"},
                                                {"Parejas", "5"},
                                                {"Tríos", "6"},
                                                {"Grupo nº 3", "10"},
                                                {"Más de 2 Grupos fallados", "11"},
                                                {"Aciertos nº 50", "12"},
                                                {"Más de 1 Grupos de Ac. fallados", "13"},
                                                {"Sumas", "7"},
                                                {"Comparaciones", "8"},
                                                {"Repeticiones", "9"},
                                                {"Total rechazadas", "1.090"}};
    EXPECT_EQ(FilasRechazadas(r, 2, 1), esperadas);
}

}  // namespace
}  // namespace quinteva::engine
