#include "seasons/server_reply.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/error.h"
#include "base/record_files.h"
#include "tests/support/temp_folder.h"

namespace quinteva::seasons {
namespace {

std::string Pagina(std::string_view cuerpo) { return PaginaDeRespuesta(cuerpo); }

TEST(RespuestaServidor, ElCuerpoEntreLasMarcasConSusDesplazamientos) {
    EXPECT_EQ(CuerpoDeRespuesta(Pagina("1Temporadas#")), "1Temporadas#");
    EXPECT_EQ(CuerpoDeRespuesta("<BODY></BODY>"), "");
    EXPECT_EQ(CuerpoDeRespuesta("<BODY>123</BODY>"), "");
    EXPECT_FALSE(CuerpoDeRespuesta("<HTML>1Quinteva#</HTML>"));
    EXPECT_FALSE(CuerpoDeRespuesta("</BODY><BODY>\r\n 1x#"));
    EXPECT_FALSE(CuerpoDeRespuesta(""));
}

TEST(RespuestaServidor, SinBodyNoHayCodigoYNoSeHaceNada) {
    EXPECT_EQ(CarpetaDeActualizacion(Pagina("1Temporada2425#")), "Temporada2425");
    EXPECT_EQ(CarpetaDeActualizacion(Pagina("1#")), "");
    EXPECT_FALSE(CarpetaDeActualizacion("<HTML>1Temporada2425#</HTML>"));
    EXPECT_FALSE(CarpetaDeActualizacion(Pagina("0Temporada2425#")));
    EXPECT_FALSE(CarpetaDeActualizacion(Pagina("1Temporada2425")));
    EXPECT_FALSE(CarpetaDeActualizacion("<BODY></BODY>"));
}

TEST(RespuestaServidor, LaVersionDelServidor) {
    EXPECT_EQ(VersionDelServidor(Pagina("210500")), 210500);
    EXPECT_FALSE(VersionDelServidor(Pagina("21x")));
    EXPECT_FALSE(VersionDelServidor(Pagina("")));
    EXPECT_FALSE(VersionDelServidor("sin cuerpo"));
    try {
        VersionDelServidor(Pagina("2"));
        ADD_FAILURE();
    } catch (const base::Error& e) {
        EXPECT_EQ(std::string(e.what()), kMsgErrorVersion);
    }
}

// Los 64 bytes de un registro de "VersionQVPr.txt".
TEST(ListaDeVersiones, ElRegistroByteAByte) {
    const RegVersion r{"Quinteva.zip", "Quinteva.exe", "Parche", 215000};
    std::string esperado = std::string("Quinteva.zip") + std::string(8, ' ') + "Quinteva.exe" +
                           std::string(8, ' ') + "Parche" + std::string(14, ' ');
    esperado += std::string{'\xD8', '\x47', '\x03', '\x00'};
    const auto bytes = r.ABytes();
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), esperado);
    EXPECT_EQ(RegVersion::DeBytes(bytes).version, 215000);
}

TEST(ListaDeVersiones, LaUltimaYLosArchivosMasNuevosQueElPrograma) {
    pruebas::CarpetaTemporal carpeta;
    {
        base::ArchivoDe<RegVersion> lista(carpeta / "VersionQVPr.txt");
        lista.Anadir({"", "", "", 220000});
        lista.Anadir({"Viejo.dll", "", "", 205000});
        lista.Anadir({"Quinteva.zip", "", "Parche", 215000});
        lista.Anadir({"Leeme.txt", "", "", 220000});
        lista.Anadir({"Igual.dll", "", "", 210000});
    }
    const auto lista = LeerListaDeVersiones(carpeta / "VersionQVPr.txt", 210000);
    EXPECT_EQ(lista.ultima, 220000);
    ASSERT_EQ(lista.aTraer.size(), 2U);
    EXPECT_TRUE(EsZip(lista.aTraer[0].fichero));
    EXPECT_FALSE(EsZip(lista.aTraer[1].fichero));
    EXPECT_FALSE(EsZip("QUINTEVA.ZIP"));
    const auto vacia = LeerListaDeVersiones(carpeta / "no.txt", 210000);
    EXPECT_EQ(vacia.ultima, 0);
    EXPECT_TRUE(vacia.aTraer.empty());
}

}  // namespace
}  // namespace quinteva::seasons
