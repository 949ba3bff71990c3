#include "base/pleno_letter.h"

#include <gtest/gtest.h>

#include <string>

namespace quinteva::base {
namespace {

TEST(Pleno, LasDieciseisLetras) {
    const char* pares[] = {"00", "01", "02", "0M", "10", "11", "12", "1M",
                           "20", "21", "22", "2M", "M0", "M1", "M2", "MM"};
    for (int i = 0; i < 16; ++i) {
        const std::string letra(1, static_cast<char>('A' + i));
        const std::string par = pares[i];
        EXPECT_EQ(PlenoALetra(par.substr(0, 1), par.substr(1, 1)), letra);
        EXPECT_EQ(LetraAPleno(letra), par);
    }
}

TEST(Pleno, LoDesconocidoDaTextoVacio) {
    EXPECT_EQ(PlenoALetra("3", "0"), "");
    EXPECT_EQ(PlenoALetra("", "0"), "");
    EXPECT_EQ(PlenoALetra("m", "0"), "");
    EXPECT_EQ(PlenoALetra("00", "0"), "");
    EXPECT_EQ(LetraAPleno("Q"), "");
    EXPECT_EQ(LetraAPleno("a"), "");
    EXPECT_EQ(LetraAPleno(""), "");
    EXPECT_EQ(LetraAPleno("AB"), "");
    EXPECT_EQ(LetraAPleno(" "), "");
}

}  // namespace
}  // namespace quinteva::base
