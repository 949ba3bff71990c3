#include "base/formats.h"

#include <gtest/gtest.h>

namespace quinteva::base {
namespace {

struct Ejemplo {
    double valor;
    const char* patron;
    const char* esperado;
};

void PrintTo(const Ejemplo& e, std::ostream* os) { *os << e.valor << " \"" << e.patron << '"'; }

class Formatos : public testing::TestWithParam<Ejemplo> {};

TEST_P(Formatos, ComoLosMuestraElSistema) {
    const Ejemplo& e = GetParam();
    EXPECT_EQ(Formato(e.valor, e.patron), e.esperado) << e.valor << " con " << e.patron;
}

INSTANTIATE_TEST_SUITE_P(
    Tabla, Formatos,
    testing::Values(Ejemplo{4782969, "#,##0", "4.782.969"}, Ejemplo{0, "#,##0", "0"},
                    Ejemplo{999, "#,##0", "999"}, Ejemplo{1000, "#,##0", "1.000"},
                    Ejemplo{-1234567, "#,##0", "-1.234.567"}, Ejemplo{1234.5, "#,##0", "1.235"},
                    Ejemplo{12 * 0.75, "#,##0.#0", "9,00"},
                    Ejemplo{3587226.75, "#,##0.#0", "3.587.226,75"},
                    Ejemplo{0.125, "#,##0.#0", "0,13"}, Ejemplo{2.675, "#,##0.#0", "2,68"},
                    Ejemplo{33.3333, "#,##0.##0", "33,333"}, Ejemplo{100, "#,##0.##0", "100,000"},
                    Ejemplo{57.5, "##0", "58"}, Ejemplo{0, "##0", "0"}, Ejemplo{7, "00#", "007"},
                    Ejemplo{123, "00#", "123"}, Ejemplo{7, "0#", "07"}, Ejemplo{24, "0#", "24"},
                    Ejemplo{99.875, "0.#0", "99,88"}, Ejemplo{0.5, "0.#0", "0,50"},
                    Ejemplo{1234.5, "standard", "1.234,50"}, Ejemplo{0, "standard", "0,00"},
                    Ejemplo{9, "currency", "9,00 €"}, Ejemplo{1500.25, "currency", "1.500,25 €"},
                    Ejemplo{-0.001, "#,##0.#0", "0,00"}));

TEST(FormatosDeFecha, DiaMesYAnioDeDosCifras) {
    const FechaHora f{2024, 3, 5, 17, 0, 0};
    EXPECT_EQ(FormatoFecha(f, "dd/mm/yy"), "05/03/24");
    EXPECT_EQ(FormatoFecha(f, "dd/MM/yy"), "05/03/24");
    EXPECT_EQ(FormatoFecha({2009, 12, 31}, "dd/MM/yy"), "31/12/09");
    EXPECT_EQ(FormatoFecha(f, "dd/mm/yyyy"), "05/03/2024");
}

}  // namespace
}  // namespace quinteva::base
