#include "base/text1252.h"

#include <gtest/gtest.h>

namespace quinteva::base {
namespace {

TEST(Texto1252, IdaYVueltaDeLosCaracteresEspanoles) {
    const std::string texto = "Atlético Peña ÁÉÍÓÚÜÑ ºª €";
    const std::string bytes = AWindows1252(texto);
    EXPECT_EQ(bytes.size(), 26U);
    EXPECT_EQ(static_cast<unsigned char>(bytes.back()), 0x80);  // €
    EXPECT_EQ(DeWindows1252(bytes), texto);
}

TEST(Texto1252, UnCaracterFueraDeLaPaginaSeSustituye) {
    EXPECT_EQ(AWindows1252("a\u4e2db"), "a?b");
    EXPECT_EQ(AWindows1252("x\xff\xfey"), "x??y");  // UTF-8 mal formado
    EXPECT_EQ(AWindows1252("\xc3"), "?");
}

TEST(Texto1252, TodosLosBytesVuelven) {
    std::string todos;
    for (int b = 1; b < 256; ++b) todos += static_cast<char>(b);
    EXPECT_EQ(AWindows1252(DeWindows1252(todos)), todos);
}

TEST(Texto1252, SeComparaRecortado) {
    EXPECT_EQ(Recortar("  Betis   "), "Betis");
    EXPECT_EQ(Recortar("     "), "");
    EXPECT_TRUE(MismoTexto("Betis          ", "Betis"));
    EXPECT_FALSE(MismoTexto("Betis", "Sevilla"));
}

}  // namespace
}  // namespace quinteva::base
