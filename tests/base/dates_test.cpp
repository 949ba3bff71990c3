#include "base/dates.h"

#include <gtest/gtest.h>

namespace quinteva::base {
namespace {

TEST(Fechas, ElOrigenEsEl30DeDiciembreDe1899) {
    EXPECT_EQ(FechaASerie({1899, 12, 30}), 0.0);
    EXPECT_EQ(FechaASerie({1900, 1, 1}), 2.0);
    EXPECT_EQ(FechaASerie({2024, 3, 5}), 45356.0);
    EXPECT_EQ(SerieAFecha(45356.0), (FechaHora{2024, 3, 5}));
}

TEST(Fechas, LaFraccionEsLaHora) {
    const FechaHora f{2013, 8, 18, 18, 30, 0};
    const double serie = FechaASerie(f);
    EXPECT_DOUBLE_EQ(serie, 41504.0 + 18.5 / 24.0);
    EXPECT_EQ(SerieAFecha(serie), f);
}

TEST(Fechas, AntesDelOrigenLaFraccionCuentaHaciaDelante) {
    EXPECT_DOUBLE_EQ(FechaASerie({1899, 12, 29, 6, 0, 0}), -1.25);
    EXPECT_EQ(SerieAFecha(-1.25), (FechaHora{1899, 12, 29, 6, 0, 0}));
}

TEST(Fechas, IdaYVueltaDeMuchosDias) {
    for (int dia = -1000; dia < 80000; dia += 37) {
        const FechaHora f = SerieAFecha(dia);
        EXPECT_EQ(FechaASerie(f), dia);
    }
}

}  // namespace
}  // namespace quinteva::base
