#include "builders/columns_and_price.h"

#include <gtest/gtest.h>

namespace quinteva::builders {
namespace {

TEST(CajasColumnasPrecio, ElNumeroSoloCifrasYSinCeroDelante) {
    EXPECT_EQ(LimpiarNumero("0120"), "120");
    EXPECT_EQ(LimpiarNumero("1a2.3"), "123");
    EXPECT_EQ(LimpiarNumero("000"), "");
    EXPECT_EQ(LimpiarNumero("12345678901"), "123456789");
}

TEST(CajasColumnasPrecio, ElPrecioConComaYSinComaDelante) {
    EXPECT_EQ(LimpiarPrecio("7.5"), "7,5");
    EXPECT_EQ(LimpiarPrecio(",75"), "75");
    EXPECT_EQ(LimpiarPrecio(".75"), "75");
    EXPECT_EQ(LimpiarPrecio("7,50 €"), "7,50");
    EXPECT_EQ(LimpiarPrecio("1,2,3"), "1,23");
}

TEST(CajasColumnasPrecio, CadaCajaRecalculaLaOtra) {
    EXPECT_EQ(PrecioDeColumnas("16", 0.75F), "12,00 €");
    EXPECT_EQ(PrecioDeColumnas("", 0.75F), "");
    EXPECT_EQ(ColumnasDePrecio("12", 0.75F), "16");
    EXPECT_EQ(ColumnasDePrecio("7,5", 0.75F), "10");
    EXPECT_EQ(ColumnasDePrecio("10", 0.75F), "13");
    EXPECT_EQ(ColumnasDePrecio("0", 0.75F), std::nullopt);
    EXPECT_EQ(ColumnasDePrecio("0,00", 0.75F), std::nullopt);
    EXPECT_EQ(ColumnasDePrecio("", 0.75F), std::nullopt);
    EXPECT_EQ(ColumnasDePrecio("0,5", 0.75F), "");
}

}  // namespace
}  // namespace quinteva::builders
