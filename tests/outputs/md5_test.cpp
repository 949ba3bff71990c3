#include "outputs/md5.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "base/error.h"
#include "tests/support/temp_folder.h"

namespace quinteva::outputs {
namespace {

struct Vector {
    std::string mensaje;
    std::string resumen;
};

// Vectores publicados y otros cuya longitud no es 56 módulo 64, donde el relleno es el de siempre.
const std::vector<Vector> kVectores = {
    {"", "D41D8CD98F00B204E9800998ECF8427E"},
    {"a", "0CC175B9C0F1B6A831C399E269772661"},
    {"abc", "900150983CD24FB0D6963F7D28E17F72"},
    {"message digest", "F96B697D7CB7938D525A2F31AAF161D0"},
    {"abcdefghijklmnopqrstuvwxyz", "C3FCD3D76192E4007DFB496CCA67E13B"},
    {std::string(55, 'x'), "04364420E25C512FD958A70738AA8F72"},
    {std::string(57, 'x'), "693037871C4A9D3D8685018905CB530A"},
    {std::string(64, 'x'), "C1BB4F81D892B2D57947682AEB252456"},
    {"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789",
     "D174AB98D277D9F5A5611C2C9F419D9F"},
    {"12345678901234567890123456789012345678901234567890123456789012345678901234567890",
     "57EDF4A22BE3C955AC49DA2E2107B67A"},
};

TEST(MD5, VectoresPublicados) {
    MD5 md5;
    for (const auto& v : kVectores) EXPECT_EQ(md5.DigestStrToHexStr(v.mensaje), v.resumen);
}

TEST(MD5, UnByteWindows1252PorCaracter) {
    MD5 md5;
    EXPECT_EQ(md5.DigestStrToHexStr("\xc3\xb1"), "EDB907361219FB8D50279EABAB0B83B1");
}

TEST(MD5, ResumenDeLaCabeceraDeEjemplo) {
    // Jornada 7 de 2024, Receptor 01234, 12 columnas a 0,75.
    MD5 md5;
    EXPECT_EQ(md5.DigestStrToHexStr(std::string("2") + "2024/007" + "1234" + "2" + "12" + "900"),
              "169023D628CB786B932585DD874167B4");
}

// Lo que da el sistema con un mensaje de 56 bytes módulo 64: el último bloque es el mensaje y la
// longitud, sin el byte 0x80.
std::string SinRelleno(const std::string& mensaje) {
    std::vector<std::uint8_t> bytes(mensaje.begin(), mensaje.end());
    const auto bits = static_cast<std::uint32_t>(mensaje.size() * 8);
    for (int i = 0; i < 4; ++i) bytes.push_back(static_cast<std::uint8_t>(bits >> (8 * i)));
    bytes.insert(bytes.end(), 4, 0);
    MD5 md5;
    md5.MD5Init();
    md5.MD5Update(bytes);
    return md5.GetValues();
}

TEST(MD5, Con56BytesModulo64NoHayRelleno) {
    MD5 md5;
    for (const std::size_t n : {56U, 120U}) {
        const std::string mensaje(n, 'x');
        EXPECT_EQ(md5.DigestStrToHexStr(mensaje), SinRelleno(mensaje));
    }
    // Y difiere, pues, del MD5 publicado de ese mensaje.
    EXPECT_NE(md5.DigestStrToHexStr(std::string(56, 'x')), "668A72D5BA17F08E62DABCAFAD6DB14B");
}

TEST(MD5, PorPartesIgualQueDeUnaVez) {
    const std::string mensaje(200, 'q');
    MD5 entero;
    const std::string esperado = entero.DigestStrToHexStr(mensaje);
    MD5 partes;
    partes.MD5Init();
    const std::vector<std::uint8_t> bytes(mensaje.begin(), mensaje.end());
    const std::span<const std::uint8_t> todo(bytes);
    partes.MD5Update(todo.subspan(0, 63));
    partes.MD5Update(todo.subspan(63, 70));
    partes.MD5Update(todo.subspan(133));
    partes.MD5Final();
    EXPECT_EQ(partes.GetValues(), esperado);
}

TEST(MD5, RegistrosYRotacion) {
    MD5 md5;
    md5.MD5Init();
    EXPECT_EQ(md5.RegisterA(), 0x67452301U);
    EXPECT_EQ(md5.RegisterB(), 0xefcdab89U);
    EXPECT_EQ(md5.RegisterC(), 0x98badcfeU);
    EXPECT_EQ(md5.RegisterD(), 0x10325476U);
    EXPECT_EQ(md5.GetValues(), "0123456789ABCDEFFEDCBA9876543210");
    EXPECT_EQ(MD5::LongLeftRotate(0x80000001U, 1), 0x00000003U);
    EXPECT_EQ(MD5::LongLeftRotate(0x12345678U, 8), 0x34567812U);
    EXPECT_EQ(MD5::LongLeftRotate(0x12345678U, 0), 0x12345678U);
}

TEST(MD5, ArchivoIgualQueTexto) {
    pruebas::CarpetaTemporal carpeta;
    const auto ruta = carpeta / "a.txt";
    std::ofstream(ruta, std::ios::binary) << "message digest";
    MD5 md5;
    EXPECT_EQ(md5.DigestFileToHexStr(ruta), "F96B697D7CB7938D525A2F31AAF161D0");
    EXPECT_THROW(md5.DigestFileToHexStr(carpeta / "no-esta.txt"), base::Error);
}

}  // namespace
}  // namespace quinteva::outputs
