#include "base/bytes.h"

#include <gtest/gtest.h>

#include <array>

#include "base/error.h"

namespace quinteva::base {
namespace {

TEST(Bytes, EnterosEnLittleEndian) {
    std::array<Byte, 16> r{};
    PonerByte(r, 0, 200);
    PonerInt16(r, 1, -2);
    PonerInt32(r, 3, 0x01020304);
    EXPECT_EQ(r[0], 200);
    EXPECT_EQ(r[1], 0xFE);
    EXPECT_EQ(r[2], 0xFF);
    EXPECT_EQ((std::array<Byte, 4>{r[3], r[4], r[5], r[6]}),
              (std::array<Byte, 4>{0x04, 0x03, 0x02, 0x01}));
    EXPECT_EQ(TomarByte(r, 0), 200);
    EXPECT_EQ(TomarInt16(r, 1), -2);
    EXPECT_EQ(TomarInt32(r, 3), 0x01020304);
}

TEST(Bytes, Float32YDouble) {
    std::array<Byte, 12> r{};
    PonerFloat32(r, 0, 0.75F);
    PonerDouble(r, 4, 1.5);
    // 0.75f = 0x3F400000; 1.5 = 0x3FF8000000000000.
    EXPECT_EQ((std::array<Byte, 4>{r[0], r[1], r[2], r[3]}),
              (std::array<Byte, 4>{0x00, 0x00, 0x40, 0x3F}));
    EXPECT_EQ(r[10], 0xF8);
    EXPECT_EQ(r[11], 0x3F);
    EXPECT_EQ(TomarFloat32(r, 0), 0.75F);
    EXPECT_EQ(TomarDouble(r, 4), 1.5);
}

TEST(Bytes, UnContadorDeUnByteNoPasaDe255) {
    std::array<Byte, 4> r{};
    EXPECT_THROW(PonerByte(r, 0, 256), Desbordamiento);
    EXPECT_THROW(PonerByte(r, 0, -1), Desbordamiento);
    EXPECT_THROW(PonerInt16(r, 0, 32768), Desbordamiento);
    EXPECT_THROW(PonerInt32(r, 0, 2147483648LL), Desbordamiento);
    EXPECT_EQ(r, (std::array<Byte, 4>{}));
    try {
        PonerByte(r, 0, 300);
    } catch (const Error& e) {
        EXPECT_STREQ(e.what(), "Desbordamiento");
    }
}

TEST(Bytes, TextoRellenoConBlancosYCortado) {
    std::array<Byte, 8> r{};
    PonerTexto(r, 0, 5, "Peña");
    EXPECT_EQ(r[2], 0xF1);  // ñ en Windows-1252
    EXPECT_EQ(r[4], ' ');
    EXPECT_EQ(TomarTexto(r, 0, 5), "Peña ");
    PonerTexto(r, 0, 3, "Valencia");
    EXPECT_EQ(TomarTexto(r, 0, 3), "Val");
}

}  // namespace
}  // namespace quinteva::base
