// La actualización por Internet de punta a punta: quinteva-cli contra quinteva-servidor en
// 127.0.0.1, con una temporada publicada que difiere de la del usuario.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "cli/http_network.h"
#include "seasons/season_folder.h"
#include "tests/cli/cli_runner.h"
#include "tests/support/publisher_process.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {
namespace {

namespace fs = std::filesystem;

std::string Leer(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

const std::vector<std::string_view> kDeLaTemporada = {seasons::kJlig2, seasons::kJquin,
                                                      seasons::kJornadas, seasons::kNomeq};

// Dado un usuario con la temporada de demostración y un servidor que publica la misma temporada
// con un resultado más (la columna de la Jornada 12).
class ActualizacionPorInternet : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(EjecutarCli("demo" + Carpeta(usuario)).codigo, 0);
        ASSERT_EQ(EjecutarCli("demo" + Carpeta(editor)).codigo, 0);
        ASSERT_EQ(EjecutarCli("quiniela-resultados --jornada 12 --signos 1X21X21X21X21X --pleno "
                              "1-2" +
                              Carpeta(editor))
                      .codigo,
                  0);
        fs::create_directories(publicados);
        const auto temporadaEditor = seasons::CarpetaTemporadaEnCurso(editor.Ruta());
        for (const auto nombre : kDeLaTemporada) {
            fs::copy_file(temporadaEditor / nombre, publicados / nombre);
        }
        std::ofstream(publicados / seasons::kHist, std::ios::binary) << "historico del editor";
        servidor = std::make_unique<ServidorPublicando>(QUINTEVA_SERVIDOR, publicacion.Ruta());
    }

    static std::string Carpeta(const CarpetaTemporal& c) {
        return " --carpeta '" + c.Ruta().string() + "'";
    }
    Salida Actualizar(const std::string& direccion) {
        return EjecutarCli("actualizar --servidor " + direccion + Carpeta(usuario));
    }
    fs::path Temporada() const { return seasons::CarpetaTemporadaEnCurso(usuario.Ruta()); }

    CarpetaTemporal usuario, editor, publicacion;
    fs::path publicados = publicacion / "descargas" / "Quinteva";
    std::unique_ptr<ServidorPublicando> servidor;
};

TEST_F(ActualizacionPorInternet, LosArchivosDelServidorSustituyenALosDeLaTemporada) {
    ASSERT_NE(Leer(Temporada() / seasons::kJornadas), Leer(publicados / seasons::kJornadas));
    const Salida salida = Actualizar(servidor->Direccion());
    EXPECT_EQ(salida.codigo, 0) << salida.errores;
    EXPECT_EQ(salida.errores, "Descargando...\nActualizando...\nActualización completa !!\n");
    for (const auto nombre : kDeLaTemporada) {
        EXPECT_EQ(Leer(Temporada() / nombre), Leer(publicados / nombre)) << nombre;
        EXPECT_TRUE(fs::exists(usuario / nombre)) << nombre;
    }
    EXPECT_EQ(Leer(usuario / seasons::kHist), "historico del editor");
    // Lo que se trajo se lee como la temporada: la Jornada 12 es la del editor.
    EXPECT_EQ(EjecutarCli("quiniela --jornada 12" + Carpeta(usuario)).salida,
              EjecutarCli("quiniela --jornada 12" + Carpeta(editor)).salida);
}

TEST_F(ActualizacionPorInternet, ConElServidorCaidoElErrorDeConexion) {
    const std::string antes = Leer(Temporada() / seasons::kJornadas);
    const Salida salida = Actualizar(kServidorCaido);
    EXPECT_EQ(salida.codigo, 1);
    EXPECT_EQ(salida.errores,
              "Error: 2:No se pudo conectar con el servidor\n"
              "Error: No se ha podido realizar la actualización\n");
    EXPECT_EQ(Leer(Temporada() / seasons::kJornadas), antes);
}

TEST_F(ActualizacionPorInternet, SinNomeqSeParaYLoTraidoSeQuedaEnLaCarpetaDeTrabajo) {
    fs::remove(publicados / seasons::kNomeq);
    const std::string antes = Leer(Temporada() / seasons::kJornadas);
    const Salida salida = Actualizar(servidor->Direccion());
    EXPECT_EQ(salida.codigo, 1);
    EXPECT_EQ(salida.errores, "Descargando...\nNo ha sido posible realizar la descarga.\n");
    EXPECT_EQ(Leer(usuario / seasons::kJornadas), Leer(publicados / seasons::kJornadas));
    EXPECT_EQ(Leer(Temporada() / seasons::kJornadas), antes);
    EXPECT_FALSE(fs::exists(usuario / seasons::kNomeq));
    EXPECT_FALSE(fs::exists(usuario / fs::path("Nomeq.rar.nuevo")));
}

TEST_F(ActualizacionPorInternet, SinHistSeSigue) {
    fs::remove(publicados / seasons::kHist);
    const Salida salida = Actualizar(servidor->Direccion());
    EXPECT_EQ(salida.codigo, 0) << salida.errores;
    EXPECT_EQ(salida.errores, "Descargando...\nActualizando...\nActualización completa !!\n");
    EXPECT_FALSE(fs::exists(usuario / seasons::kHist));
    EXPECT_EQ(Leer(Temporada() / seasons::kNomeq), Leer(publicados / seasons::kNomeq));
}

TEST_F(ActualizacionPorInternet, UnaRespuestaSinBodyNoHaceNada) {
    // Un archivo de la carpeta con el nombre de la página la sustituye.
    std::ofstream(publicacion / "QVactualizar.asp") << "<HTML>1descargas#</HTML>";
    const std::string antes = Leer(Temporada() / seasons::kJornadas);
    const Salida salida = Actualizar(servidor->Direccion());
    EXPECT_EQ(salida.codigo, 1);
    EXPECT_EQ(salida.errores, "");
    EXPECT_EQ(Leer(Temporada() / seasons::kJornadas), antes);
}

TEST_F(ActualizacionPorInternet, ElClienteTraeEnteroONadaYPideLaVersionConSuConsulta) {
    cli::RedHttp red(servidor->Direccion());
    const base::Pagina version = red.Pedir("/VersionActual.asp", {{"a", "c"}, {"PP", "Quint"}});
    EXPECT_EQ(version.error, 0);
    EXPECT_NE(version.html.find("<BODY>\r\n 2\r\n</BODY>"), std::string::npos) << version.html;
    EXPECT_EQ(red.Descargar("/descargas/Quinteva/NoEsta.rar", usuario / "NoEsta.rar"), 404);
    EXPECT_FALSE(fs::exists(usuario / "NoEsta.rar"));
    EXPECT_EQ(red.Descargar("/descargas/Quinteva/Hist.rar", usuario / "Hist.rar"), 0);
    EXPECT_EQ(Leer(usuario / "Hist.rar"), "historico del editor");
}

}  // namespace
}  // namespace quinteva::pruebas
