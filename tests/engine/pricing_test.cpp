#include "engine/pricing.h"

#include <gtest/gtest.h>

#include "tests/support/memory_settings.h"

namespace quinteva::engine {
namespace {

TEST(PrecioColumna, DeLosAjustesConComaOPunto) {
    pruebas::AjustesEnMemoria ajustes;
    EXPECT_EQ(PrecioColumna(ajustes), 0.75F);
    ajustes.Guardar(base::kAplicacion, "Opciones", "PrecioApu15", "1,5");
    EXPECT_EQ(PrecioColumna(ajustes), 1.5F);
    ajustes.Guardar(base::kAplicacion, "Opciones", "PrecioApu15", "0.5");
    EXPECT_EQ(PrecioColumna(ajustes), 0.5F);
    EXPECT_DOUBLE_EQ(Importe(12, ajustes), 6.0);
}

TEST(PrecioColumna, UnValorIlegibleVale075) {
    pruebas::AjustesEnMemoria ajustes;
    ajustes.Guardar(base::kAplicacion, "Opciones", "PrecioApu15", "caro");
    EXPECT_EQ(PrecioColumna(ajustes), 0.75F);
}

}  // namespace
}  // namespace quinteva::engine
