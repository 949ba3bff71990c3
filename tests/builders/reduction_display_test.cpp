#include "builders/reduction_display.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "builders/reduction_tables.h"
#include "tests/builders/development.h"
#include "tests/builders/shown_rows.h"
#include "tests/support/counting_progress.h"

namespace quinteva::builders {
namespace {

// Columnas que da la reducción por tablas de un desarrollo completo: filas x 2^(D - dobles
// usados) x 3^(T - triples usados), con las filas del sistema o con las que muestra el programa.
long Formula(int nivel, int triples, int dobles, bool mostradas = false) {
    const SistemaReducido* s = ElegirSistema(nivel, triples, dobles);
    if (s == nullptr) return 0;
    const long filas = mostradas ? pruebas::FilasMostradas(nivel, triples, dobles)
                                 : static_cast<long>(s->filas.size());
    return filas * (1L << (dobles - s->dobles)) *
           static_cast<long>(std::pow(3, triples - s->triples));
}

TEST(TablaReducciones, SetentaYTresFilasConSusEtiquetas) {
    const auto& filas = TablaReducciones();
    ASSERT_EQ(filas.size(), 73U);
    EXPECT_EQ(filas.front().etiqueta, "3 Dobles");
    EXPECT_EQ(filas.back().etiqueta, "11 Triples");
    int rarezas = 0;
    for (const auto& f : filas) {
        if (f.etiqueta == "1 Triples y 4 Dobles" || f.etiqueta == "5 Triples y 6 dobles") ++rarezas;
        EXPECT_FALSE(f.triples == 0 && f.dobles == 4) << "no hay fila de 4 dobles";
    }
    EXPECT_EQ(rarezas, 2);
}

TEST(TablaReducciones, CadaCifraEsLaFormulaSalvoLosGuionesFijos) {
    for (const auto& f : TablaReducciones()) {
        for (int i = 0; i < 3; ++i) {
            const int nivel = 13 - i;
            const auto& celda = f.cifras[static_cast<std::size_t>(i)];
            const long formula = Formula(nivel, f.triples, f.dobles, true);
            const bool guionFijo = (f.etiqueta == "2 Triples y 5 Dobles" && nivel == 11) ||
                                   (f.etiqueta == "4 Triples y 2 Dobles" && nivel == 11) ||
                                   (f.etiqueta == "10 Triples" && nivel == 12);
            if (celda.texto == "-") {
                EXPECT_TRUE(guionFijo || formula == 0) << f.etiqueta << " al " << nivel;
            } else {
                EXPECT_EQ(std::stol(std::string(celda.texto)), formula)
                    << f.etiqueta << " al " << nivel;
            }
        }
    }
}

TEST(TablaReducciones, NegritaCuandoElSistemaCubreLaBaseSalvoDosExcepciones) {
    for (const auto& f : TablaReducciones()) {
        for (int i = 0; i < 3; ++i) {
            const int nivel = 13 - i;
            const SistemaReducido* s = ElegirSistema(nivel, f.triples, f.dobles);
            const bool exacto = s != nullptr && s->triples == f.triples && s->dobles == f.dobles &&
                                f.cifras[static_cast<std::size_t>(i)].texto != "-";
            const bool excepcion =
                nivel == 12 && (f.etiqueta == "1 Triples y 6 Dobles" || f.etiqueta == "4 Triples");
            EXPECT_EQ(f.cifras[static_cast<std::size_t>(i)].negrita, exacto && !excepcion)
                << f.etiqueta << " al " << nivel;
        }
    }
}

// Cada fila de la tabla reducida de verdad a cada nivel: la cifra mostrada (o la fórmula donde
// hay un guion fijo) y cada columna desarrollada dentro del radio de una reducida.
TEST(TablaReducciones, ElDesarrolloReducidoDaLaCifraYCubre) {
    for (const auto& f : TablaReducciones()) {
        pruebas::Desarrollo d(f.triples, f.dobles);
        const auto cmb = d.Leer("Cmb.tmp");
        for (int i = 0; i < 3; ++i) {
            const int nivel = 13 - i;
            ClaseBase clases{};
            pruebas::ProgresoContador progreso;
            const auto r = ReducirPorTablas(d.combinacion, d.carpeta.Ruta(), nivel, std::nullopt,
                                            clases, progreso, d.ajustes);
            const long esperadas = Formula(nivel, f.triples, f.dobles);
            EXPECT_EQ(r.reduccion.reducidas, esperadas) << f.etiqueta << " al " << nivel;
            if (esperadas == 0) continue;
            const auto& celda = f.cifras[static_cast<std::size_t>(i)];
            EXPECT_EQ(esperadas, Formula(nivel, f.triples, f.dobles, true)) << f.etiqueta;
            if (celda.texto != "-") {
                EXPECT_EQ(std::to_string(esperadas), celda.texto);
            }
            EXPECT_TRUE(pruebas::Cubre(d.Leer("Red.tmp"), cmb, 14 - nivel))
                << f.etiqueta << " al " << nivel;
        }
    }
}

}  // namespace
}  // namespace quinteva::builders
