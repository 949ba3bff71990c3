#include "base/chance.h"

#include <gtest/gtest.h>

#include <set>

namespace quinteva::base {
namespace {

TEST(Azar, ConLaMismaSemillaRepiteLosSorteos) {
    AzarEstandar a(42);
    AzarEstandar b(42);
    for (int i = 0; i < 100; ++i) EXPECT_EQ(a.Siguiente(), b.Siguiente());
}

TEST(Azar, LosEnterosCaenEnElIntervaloYLoCubren) {
    AzarEstandar azar(7);
    std::set<std::int64_t> vistos;
    for (int i = 0; i < 2000; ++i) {
        const auto n = azar.Entero(1, 8);
        ASSERT_GE(n, 1);
        ASSERT_LE(n, 8);
        vistos.insert(n);
    }
    EXPECT_EQ(vistos.size(), 8U);
}

}  // namespace
}  // namespace quinteva::base
