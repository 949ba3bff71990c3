#include "server/publisher.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/record_files.h"
#include "seasons/server_reply.h"
#include "tests/support/temp_folder.h"

namespace quinteva::servidor {
namespace {

TEST(Publicacion, SinArchivosPublicadosNoHayActualizacionNiVersion) {
    pruebas::CarpetaTemporal carpeta;
    const Publicacion publicacion{carpeta.Ruta()};
    EXPECT_EQ(seasons::CuerpoDeRespuesta(RespuestaCarpeta(publicacion)), "0#");
    EXPECT_FALSE(seasons::CarpetaDeActualizacion(RespuestaCarpeta(publicacion)));
    EXPECT_EQ(seasons::CuerpoDeRespuesta(RespuestaVersion(publicacion)), "2");
}

TEST(Publicacion, AnunciaSuCarpetaYLaVersionDeSuLista) {
    pruebas::CarpetaTemporal carpeta;
    const Publicacion publicacion{carpeta.Ruta(), "temporada24"};
    std::filesystem::create_directories(publicacion.Archivos());
    EXPECT_EQ(seasons::CarpetaDeActualizacion(RespuestaCarpeta(publicacion)), "temporada24");
    {
        base::ArchivoDe<seasons::RegVersion> lista(publicacion.Archivos() / "VersionQVPr.txt");
        lista.Anadir({"", "", "", 215000});
        lista.Anadir({"Quinteva.zip", "", "", 215000});
    }
    EXPECT_EQ(seasons::VersionDelServidor(RespuestaVersion(publicacion)), 215000);
}

}  // namespace
}  // namespace quinteva::servidor
