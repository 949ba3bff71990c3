#include "seasons/update.h"

#include <gtest/gtest.h>

#include <fstream>
#include <vector>

#include "seasons/season_folder.h"
#include "seasons/server_reply.h"
#include "tests/support/memory_network.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::seasons {
namespace {

namespace fs = std::filesystem;
using pruebas::DialogoGuionado;
using pruebas::Intercambio;
using pruebas::RedEnMemoria;

void Escribir(const fs::path& ruta, const std::string& contenido) {
    std::ofstream(ruta, std::ios::binary) << contenido;
}

std::string Leer(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

const std::vector<std::string_view> kCinco = {kJlig2, kJquin, kJornadas, kNomeq, kHist};

// Dado un servidor con los cinco archivos en "Temp24/Quinteva" y una temporada con los suyos.
class ActualizacionDeTemporada : public ::testing::Test {
  protected:
    ActualizacionDeTemporada() {
        fs::create_directories(temporada);
        red.paginas["/QVactualizar.asp"] = PaginaDeRespuesta("1Temp24#");
        for (const auto nombre : kCinco) {
            red.archivos["/Temp24/Quinteva/" + std::string(nombre)] =
                "servidor " + std::string(nombre);
            Escribir(temporada / nombre, "local " + std::string(nombre));
            Escribir(trabajo.Ruta() / nombre, "viejo " + std::string(nombre));
        }
    }

    bool Actualizar() {
        return ActualizarTemporada(red, dialogo, trabajo.Ruta(), temporada,
                                   [this](PasoActualizacion p) { pasos.push_back(p); });
    }

    pruebas::CarpetaTemporal trabajo;
    fs::path temporada = trabajo / "Temporada 2024-2025";
    RedEnMemoria red;
    DialogoGuionado dialogo;
    std::vector<PasoActualizacion> pasos;
};

TEST_F(ActualizacionDeTemporada, TraeLosCincoEnSuOrdenYCopiaCuatroALaTemporada) {
    EXPECT_TRUE(Actualizar());
    EXPECT_EQ(red.peticiones, (std::vector<std::string>{
                                  "Pedir /QVactualizar.asp?a=c",
                                  "Descargar /Temp24/Quinteva/Jlig2.rar",
                                  "Descargar /Temp24/Quinteva/Jquin.rar",
                                  "Descargar /Temp24/Quinteva/Jornadas.rar",
                                  "Descargar /Temp24/Quinteva/Nomeq.rar",
                                  "Descargar /Temp24/Quinteva/Hist.rar",
                              }));
    EXPECT_EQ(pasos, (std::vector{PasoActualizacion::Descargando, PasoActualizacion::Actualizando,
                                  PasoActualizacion::Completa}));
    for (const auto nombre : {kJlig2, kJquin, kJornadas, kNomeq}) {
        EXPECT_EQ(Leer(temporada / nombre), "servidor " + std::string(nombre));
        // Las copias de la carpeta de trabajo quedan hasta el próximo arranque.
        EXPECT_EQ(Leer(trabajo / nombre), "servidor " + std::string(nombre));
    }
    // "Hist.rar" vive en la carpeta de trabajo: llega allí y no se copia.
    EXPECT_EQ(Leer(trabajo / kHist), "servidor Hist.rar");
    EXPECT_EQ(Leer(temporada / kHist), "local Hist.rar");
    EXPECT_TRUE(dialogo.Registro().empty());
}

TEST_F(ActualizacionDeTemporada, LosTextosDeLosPasos) {
    EXPECT_EQ(TextoDelPaso(PasoActualizacion::Descargando), "Descargando...");
    EXPECT_EQ(TextoDelPaso(PasoActualizacion::Actualizando), "Actualizando...");
    EXPECT_EQ(TextoDelPaso(PasoActualizacion::Completa), "Actualización completa !!");
    EXPECT_EQ(TextoDelPaso(PasoActualizacion::SinConexion),
              "Error: No se ha podido realizar la actualización");
}

TEST_F(ActualizacionDeTemporada, UnErrorDeConexionDiceCodigoYTextoYNoTocaNada) {
    red.errorDeConexion = 1;
    EXPECT_FALSE(Actualizar());
    EXPECT_EQ(dialogo.Registro(),
              (std::vector<Intercambio>{{"Mensaje", "Error: 1:Conexión rechazada"}}));
    EXPECT_EQ(pasos, std::vector{PasoActualizacion::SinConexion});
    EXPECT_EQ(Leer(trabajo / kHist), "viejo Hist.rar");
    EXPECT_EQ(Leer(temporada / kJquin), "local Jquin.rar");
}

TEST_F(ActualizacionDeTemporada, UnaRespuestaSinBodyNoHaceNada) {
    red.paginas["/QVactualizar.asp"] = "<HTML>1Temp24#</HTML>";
    EXPECT_FALSE(Actualizar());
    EXPECT_EQ(red.peticiones.size(), 1U);
    EXPECT_TRUE(pasos.empty());
    EXPECT_TRUE(dialogo.Registro().empty());
    EXPECT_EQ(Leer(trabajo / kJlig2), "viejo Jlig2.rar");
}

TEST_F(ActualizacionDeTemporada, UnCodigoDistintoDe1NoHaceNada) {
    red.paginas["/QVactualizar.asp"] = PaginaDeRespuesta("0Temp24#");
    EXPECT_FALSE(Actualizar());
    EXPECT_EQ(red.peticiones.size(), 1U);
    EXPECT_TRUE(pasos.empty());
}

TEST_F(ActualizacionDeTemporada, SiFaltaNomeqSeParaConLoYaTraidoYSinCopiar) {
    red.archivos.erase("/Temp24/Quinteva/Nomeq.rar");
    EXPECT_FALSE(Actualizar());
    EXPECT_EQ(dialogo.Registro(),
              (std::vector<Intercambio>{{"Mensaje", "No ha sido posible realizar la descarga."}}));
    EXPECT_EQ(pasos, std::vector{PasoActualizacion::Descargando});
    EXPECT_EQ(red.peticiones.back(), "Descargar /Temp24/Quinteva/Nomeq.rar");
    for (const auto nombre : {kJlig2, kJquin, kJornadas}) {
        EXPECT_EQ(Leer(trabajo / nombre), "servidor " + std::string(nombre));
        EXPECT_EQ(Leer(temporada / nombre), "local " + std::string(nombre));
    }
    EXPECT_FALSE(fs::exists(trabajo / kNomeq));
    EXPECT_FALSE(fs::exists(trabajo / kHist));
}

TEST_F(ActualizacionDeTemporada, SiFaltaHistSeSigueYSeQuedaSinEl) {
    red.archivos.erase("/Temp24/Quinteva/Hist.rar");
    EXPECT_TRUE(Actualizar());
    EXPECT_TRUE(dialogo.Registro().empty());
    EXPECT_EQ(pasos.back(), PasoActualizacion::Completa);
    EXPECT_FALSE(fs::exists(trabajo / kHist));
    EXPECT_EQ(Leer(temporada / kNomeq), "servidor Nomeq.rar");
}

TEST_F(ActualizacionDeTemporada, UnaTemporadaDistintaDeLaDelServidorTambienSeSobrescribe) {
    const fs::path otra = trabajo / "Temporada 2019-2020";
    fs::create_directories(otra);
    Escribir(otra / kJquin, "local de otra temporada");
    EXPECT_TRUE(ActualizarTemporada(red, dialogo, trabajo.Ruta(), otra, [](PasoActualizacion) {}));
    EXPECT_EQ(Leer(otra / kJquin), "servidor Jquin.rar");
}

TEST(ServidorDeActualizaciones, VacioDeFabricaYHttpsSinEsquema) {
    pruebas::AjustesEnMemoria ajustes;
    EXPECT_FALSE(ServidorDeActualizaciones(ajustes));
    GuardarServidorDeActualizaciones(ajustes, "   ");
    EXPECT_FALSE(ServidorDeActualizaciones(ajustes));
    GuardarServidorDeActualizaciones(ajustes, " quinteva.example.es ");
    EXPECT_EQ(ServidorDeActualizaciones(ajustes), "https://quinteva.example.es");
    GuardarServidorDeActualizaciones(ajustes, "http://127.0.0.1:8080");
    EXPECT_EQ(ServidorDeActualizaciones(ajustes), "http://127.0.0.1:8080");
}

TEST(ServidorDeActualizaciones, LaRutaDeUnArchivoPublicado) {
    EXPECT_EQ(RutaEnServidor("Temp24", "Jlig2.rar"), "/Temp24/Quinteva/Jlig2.rar");
    EXPECT_EQ(RutaEnServidor("/Temp24", "Quinteva.zip        "), "/Temp24/Quinteva/Quinteva.zip");
    EXPECT_EQ(RutaEnServidor("", "Jlig2.rar"), "/Quinteva/Jlig2.rar");
}

}  // namespace
}  // namespace quinteva::seasons
