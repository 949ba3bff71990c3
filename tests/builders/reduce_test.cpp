#include "builders/reduce.h"

#include <gtest/gtest.h>

#include <tuple>

#include "tests/builders/development.h"
#include "tests/support/counting_progress.h"

namespace quinteva::builders {
namespace {

TEST(Reducir, SinCondicionesVaPorTablas) {
    pruebas::Desarrollo d(0, 7);
    d.combinacion.condiciones.casilla[0] = true;  // NumCondiciones manda, no las casillas
    d.combinacion.numCondiciones = 0;
    ClaseBase clases{};
    pruebas::ProgresoContador progreso;
    const auto r =
        Reducir(d.combinacion, d.carpeta.Ruta(), 0, std::nullopt, clases, progreso, d.ajustes);
    EXPECT_EQ(r.reduccion.reducidas, 16);
    EXPECT_EQ(d.combinacion.nivelReducida, 0);
    EXPECT_TRUE(r.avisoBoletos);
}

TEST(Reducir, ConCondicionesUnaSolaColumnaSeQueda) {
    pruebas::Desarrollo d(0, 0);
    d.combinacion.numCondiciones = 2;
    ClaseBase clases{};
    pruebas::ProgresoContador progreso;
    d.ajustes.Guardar(base::kAplicacion, "Valores", "AvBoletos", "NO");
    const auto r =
        Reducir(d.combinacion, d.carpeta.Ruta(), 0, std::nullopt, clases, progreso, d.ajustes);
    EXPECT_EQ(r.reduccion.reducidas, 1);
    EXPECT_EQ(d.Leer("Red.tmp").size(), 1U);
    EXPECT_EQ(d.Leer("Red.tmp")[0].columna, d.Leer("Cmb.tmp")[0].columna);
    EXPECT_FALSE(r.avisoBoletos);
}

TEST(Reducir, ConCondicionesUsaElRecubrimientoALaDistanciaDeLaOpcion) {
    pruebas::Desarrollo d(3, 0);
    d.combinacion.numCondiciones = 1;
    ClaseBase clases{};
    pruebas::ProgresoContador progreso;
    const auto r =
        Reducir(d.combinacion, d.carpeta.Ruta(), 1, std::nullopt, clases, progreso, d.ajustes);
    EXPECT_EQ(d.combinacion.nivelReducida, 1);
    EXPECT_EQ(d.combinacion.panel.reducidas[1], r.reduccion.reducidas);
    EXPECT_TRUE(pruebas::Cubre(d.Leer("Red.tmp"), d.Leer("Cmb.tmp"), 2));
    EXPECT_EQ(clases, ClaseBase{});  // el recubrimiento no toca las clases
}

// La optimizada empieza también por el sistema de las tablas: sin condiciones nunca guarda más
// que él, y cubre al nivel pedido. No toca la ClaseBase del programa.
TEST(Reducir, OptimizadaNuncaGuardaMasQueElSistemaDeLasTablas) {
    for (const auto& [triples, dobles, opcion] :
         {std::tuple{2, 5, 0}, std::tuple{4, 4, 1}, std::tuple{6, 2, 2}}) {
        pruebas::Desarrollo porTablas(triples, dobles);
        ClaseBase clases{};
        pruebas::ProgresoContador progreso;
        const auto tablas = Reducir(porTablas.combinacion, porTablas.carpeta.Ruta(), opcion,
                                    std::nullopt, clases, progreso, porTablas.ajustes);
        ASSERT_FALSE(tablas.sinSistema);

        pruebas::Desarrollo d(triples, dobles);
        ClaseBase otras{};
        const auto r = Reducir(d.combinacion, d.carpeta.Ruta(), opcion, std::nullopt, otras,
                               progreso, d.ajustes, engine::OpcionesOptimizada{5.0, 1, 5});
        ASSERT_TRUE(r.optimizada.has_value());
        EXPECT_LE(r.reduccion.reducidas, tablas.reduccion.reducidas) << triples << " " << dobles;
        EXPECT_TRUE(pruebas::Cubre(d.Leer("Red.tmp"), d.Leer("Cmb.tmp"), opcion + 1));
        EXPECT_EQ(otras, ClaseBase{});
    }
}

TEST(Reducir, AlDiezNoHaceNada) {
    pruebas::Desarrollo d(0, 7);
    ClaseBase clases{};
    pruebas::ProgresoContador progreso;
    const auto r =
        Reducir(d.combinacion, d.carpeta.Ruta(), 3, std::nullopt, clases, progreso, d.ajustes);
    EXPECT_TRUE(r.sinAccion);
    EXPECT_FALSE(std::filesystem::exists(d.carpeta / "Red.tmp"));
}

}  // namespace
}  // namespace quinteva::builders
