#include "engine/pricing.h"

#include <gtest/gtest.h>

#include "tests/support/memory_settings.h"

namespace quinteva::engine {
namespace {

Combinacion Generada(std::int32_t total, std::int32_t activas) {
    Combinacion c;
    c.totalGeneradas = total;
    c.activasGeneradas = activas;
    c.panel.reducidas = {std::int32_t{9}, std::nullopt, std::int32_t{4}, std::nullopt};
    return c;
}

TEST(PrecioComb, CuentaLasActivasPorElPrecioYBorraLasReducidas) {
    pruebas::AjustesEnMemoria ajustes;
    Combinacion c = Generada(120, 96);
    PrecioComb(c, ajustes);
    EXPECT_EQ(c.panel.condicionada, 96);
    ASSERT_TRUE(c.panel.precio.has_value());
    EXPECT_DOUBLE_EQ(*c.panel.precio, 96 * 0.75);
    for (const auto& r : c.panel.reducidas) EXPECT_FALSE(r.has_value());
}

TEST(PrecioComb, ElPrecioDeLosAjustesConComa) {
    pruebas::AjustesEnMemoria ajustes;
    ajustes.Guardar(base::kAplicacion, "Opciones", "PrecioApu15", "1,5");
    Combinacion c = Generada(10, 10);
    PrecioComb(c, ajustes);
    EXPECT_DOUBLE_EQ(*c.panel.precio, 15.0);
}

TEST(PrecioComb, SinColumnasGeneradasElPrecioQuedaEnBlanco) {
    pruebas::AjustesEnMemoria ajustes;
    Combinacion c = Generada(0, 0);
    c.panel.precio = 3.0;
    c.panel.condicionada = 0;
    PrecioComb(c, ajustes);
    EXPECT_FALSE(c.panel.precio.has_value());
    EXPECT_EQ(c.panel.condicionada, 0);
    EXPECT_EQ(c.panel.reducidas[0], 9);
}

}  // namespace
}  // namespace quinteva::engine
