#include "outputs/numeric_text.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "base/error.h"

namespace quinteva::outputs {
namespace {

TEST(TextoNumerico, QueEsUnNumero) {
    for (const char* si : {"7", " 01234 ", "-3", "+5", "1.234", "7,5", "1.234,5"}) {
        EXPECT_TRUE(EsNumerico(si)) << si;
    }
    for (const char* no : {"", "   ", "-", "12a", "1,2,3", "siete", "1 2"}) {
        EXPECT_FALSE(EsNumerico(no)) << no;
    }
}

TEST(TextoNumerico, SuValorEnEspanol) {
    EXPECT_EQ(ValorNumerico(" 01234 "), 1234.0);
    EXPECT_EQ(ValorNumerico("1.234"), 1234.0);
    EXPECT_EQ(ValorNumerico("7,5"), 7.5);
    EXPECT_EQ(ValorNumerico("-3"), -3.0);
}

TEST(TextoNumerico, EnteroRedondeaAlParYDesborda) {
    EXPECT_EQ(EnteroDe<std::int16_t>(2.5), 2);
    EXPECT_EQ(EnteroDe<std::int16_t>(3.5), 4);
    EXPECT_EQ(EnteroDe<std::int16_t>(32767), 32767);
    EXPECT_THROW(EnteroDe<std::int16_t>(32768), base::Desbordamiento);
    EXPECT_THROW(EnteroDe<std::int32_t>(1e10), base::Desbordamiento);
}

}  // namespace
}  // namespace quinteva::outputs
