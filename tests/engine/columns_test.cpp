#include "engine/columns.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "base/record_files.h"
#include "tests/support/temp_folder.h"

namespace quinteva::engine {
namespace {

TEST(RegistroColumna, DiecisieteBytesEnSuSitio) {
    const RegistroColumna r{ColumnaDeTexto("1X21X21X21X21X"), PlenoDeTexto("2M"), kEliminada};
    const auto bytes = r.ABytes();
    ASSERT_EQ(bytes.size(), 17U);
    EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 14), "1X21X21X21X21X");
    EXPECT_EQ(bytes[14], '2');
    EXPECT_EQ(bytes[15], 'M');
    EXPECT_EQ(bytes[16], '1');
    EXPECT_EQ(RegistroColumna::DeBytes(bytes), r);
    EXPECT_FALSE(r.Activa());
}

TEST(RegistroColumna, UnaEliminadaConservaSuNumero) {
    pruebas::CarpetaTemporal carpeta;
    base::ArchivoDe<RegistroColumna> cmb(carpeta / "Cmb.tmp");
    for (const char* c : {"11111111111111", "XXXXXXXXXXXXXX", "22222222222222"}) {
        cmb.Anadir({ColumnaDeTexto(c), PlenoDeTexto("00"), kActiva});
    }
    auto segunda = cmb.Leer(2);
    segunda.estado = kEliminada;
    cmb.Escribir(2, segunda);
    EXPECT_EQ(cmb.Cuenta(), 3);
    EXPECT_EQ(TextoDeColumna(cmb.Leer(2).columna), "XXXXXXXXXXXXXX");
    EXPECT_FALSE(cmb.Leer(2).Activa());
    EXPECT_EQ(TextoDeColumna(cmb.Leer(3).columna), "22222222222222");
    EXPECT_TRUE(cmb.Leer(3).Activa());
}

TEST(Signo, OrdenUnoEquisDos) {
    EXPECT_EQ(IndiceSigno('1'), 0);
    EXPECT_EQ(IndiceSigno('X'), 1);
    EXPECT_EQ(IndiceSigno('2'), 2);
    EXPECT_EQ(IndiceSigno('x'), -1);
}

}  // namespace
}  // namespace quinteva::engine
