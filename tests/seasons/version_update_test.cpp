#include "seasons/version_update.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/record_files.h"
#include "base/text1252.h"
#include "seasons/server_reply.h"
#include "tests/support/memory_network.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::seasons {
namespace {

namespace fs = std::filesystem;
using base::Respuesta;
using pruebas::DialogoGuionado;
using pruebas::Intercambio;

// Un expansor que anota lo que se le pide y falla con los que se le digan.
class ExpansorAnotado : public base::ExpansorZip {
  public:
    std::vector<std::string> expandidos;
    std::string queFalla;

    std::optional<std::string> Expandir(const fs::path& zip, const fs::path&) override {
        expandidos.push_back(zip.filename().string());
        if (zip.filename() == queFalla) return "El archivo " + queFalla + " está dañado";
        return std::nullopt;
    }
};

std::string ListaDeVersiones(const std::vector<RegVersion>& registros) {
    std::string bytes;
    for (const auto& r : registros) {
        const auto b = r.ABytes();
        bytes.append(b.begin(), b.end());
    }
    return bytes;
}

class ActualizacionDelPrograma : public ::testing::Test {
  protected:
    ActualizacionDelPrograma() {
        red.paginas["/VersionActual.asp"] = PaginaDeRespuesta("215000");
        red.paginas["/QVactualizar.asp"] = PaginaDeRespuesta("1Prog#");
        red.archivos["/Prog/Quinteva/VersionQVPr.txt"] = ListaDeVersiones({
            {"", "", "", 215000},
            {"Quinteva.zip", "Quinteva.exe", "", 215000},
            {"Viejo.dll", "Viejo.dll", "", 205000},
            {"Ayuda.zip", "Ayuda", "Parche", 212000},
            {"Notas.txt", "Notas.txt", "", 211000},
        });
        red.archivos["/Prog/Quinteva/CambiosQVPr.txt"] =
            base::AWindows1252("Versión 215000: más rápida");
        for (const auto* nombre : {"Quinteva.zip", "Viejo.dll", "Ayuda.zip", "Notas.txt"}) {
            red.archivos[std::string("/Prog/Quinteva/") + nombre] = nombre;
        }
    }

    ResultadoVersion Actualizar(Instalacion instalacion = Instalacion::ConActualizador,
                                EleccionCambios eleccion = EleccionCambios::Seguir) {
        return ActualizarVersion(red, dialogo, ajustes, expansor,
                                 {trabajo.Ruta(), kVersionPrograma, instalacion},
                                 [&](std::string_view texto) {
                                     cambiosVistos = texto;
                                     return eleccion;
                                 });
    }

    std::vector<std::string> Descargas() const {
        std::vector<std::string> d;
        for (const auto& p : red.peticiones) {
            if (p.starts_with("Descargar ")) d.push_back(p.substr(p.rfind('/') + 1));
        }
        return d;
    }

    pruebas::CarpetaTemporal trabajo;
    pruebas::RedEnMemoria red;
    pruebas::AjustesEnMemoria ajustes;
    DialogoGuionado dialogo;
    ExpansorAnotado expansor;
    std::string cambiosVistos;
};

TEST_F(ActualizacionDelPrograma, AlArrancarPreguntaPorUnaVersionMayor) {
    dialogo.Responder(Respuesta::Si);
    EXPECT_TRUE(ComprobarVersionAlArrancar(red, dialogo, ajustes, kVersionPrograma));
    EXPECT_EQ(red.peticiones, std::vector<std::string>{"Pedir /VersionActual.asp?a=c&PP=Quint"});
    EXPECT_EQ(dialogo.Registro(),
              (std::vector<Intercambio>{
                  {"PreguntaSiNo",
                   "Hay disponible nueva versión del programa, desea actualizar ahora?"}}));
    dialogo.Responder(Respuesta::No);
    EXPECT_FALSE(ComprobarVersionAlArrancar(red, dialogo, ajustes, kVersionPrograma));
}

TEST_F(ActualizacionDelPrograma, AlArrancarCallaConLaMismaVersionSinConexionOSinBody) {
    EXPECT_FALSE(ComprobarVersionAlArrancar(red, dialogo, ajustes, 215000));
    red.paginas["/VersionActual.asp"] = "<HTML>215000</HTML>";
    EXPECT_FALSE(ComprobarVersionAlArrancar(red, dialogo, ajustes, kVersionPrograma));
    red.errorDeConexion = 7;
    EXPECT_FALSE(ComprobarVersionAlArrancar(red, dialogo, ajustes, kVersionPrograma));
    EXPECT_TRUE(dialogo.Registro().empty());
}

TEST_F(ActualizacionDelPrograma, AlArrancarEl2EsErrorAlComprobar) {
    red.paginas["/VersionActual.asp"] = PaginaDeRespuesta("2");
    EXPECT_FALSE(ComprobarVersionAlArrancar(red, dialogo, ajustes, kVersionPrograma));
    EXPECT_EQ(dialogo.Textos(), std::vector<std::string>{"Error al comprobar versión"});
}

TEST_F(ActualizacionDelPrograma,
       LaVersionDeNoActualizarNoSeOfreceAlArrancarPeroLaVentanaLaEncuentra) {
    EXPECT_EQ(NoActualizar(ajustes), "101000");
    ajustes.Guardar(base::kAplicacion, "Opciones", "NoActualizar", "215000");
    EXPECT_FALSE(ComprobarVersionAlArrancar(red, dialogo, ajustes, kVersionPrograma));
    EXPECT_TRUE(dialogo.Registro().empty());

    dialogo.Responder(Respuesta::No).Responder(Respuesta::Cancelar);
    EXPECT_FALSE(Actualizar().traspasar);
    EXPECT_EQ(dialogo.Textos(), (std::vector<std::string>{std::string(kPreguntaVerCambios),
                                                          std::string(kAvisoInstalacion)}));
}

TEST_F(ActualizacionDelPrograma, TraeLoQueCambioDesdeLaVersionDelProgramaYExpandeLosZip) {
    dialogo.Responder(Respuesta::Si).Responder(Respuesta::Aceptar);
    EXPECT_TRUE(Actualizar().traspasar);
    EXPECT_EQ(cambiosVistos, "Versión 215000: más rápida");
    EXPECT_EQ(Descargas(), (std::vector<std::string>{"VersionQVPr.txt", "CambiosQVPr.txt",
                                                     "Quinteva.zip", "Ayuda.zip", "Notas.txt"}));
    EXPECT_EQ(expansor.expandidos, (std::vector<std::string>{"Quinteva.zip", "Ayuda.zip"}));
    EXPECT_TRUE(fs::exists(trabajo / "Notas.txt"));
    EXPECT_EQ(dialogo.Textos(), (std::vector<std::string>{std::string(kPreguntaVerCambios),
                                                          std::string(kAvisoInstalacion)}));
    EXPECT_EQ(dialogo.PorDefecto(), (std::vector{Respuesta::Si, Respuesta::Aceptar}));
}

TEST_F(ActualizacionDelPrograma, UnZipQueNoSeExpandeSeDiceYSeSigue) {
    expansor.queFalla = "Quinteva.zip";
    dialogo.Responder(Respuesta::No).Responder(Respuesta::Aceptar);
    EXPECT_TRUE(Actualizar().traspasar);
    EXPECT_EQ(dialogo.Textos().back(), "El archivo Quinteva.zip está dañado");
    EXPECT_EQ(Descargas().back(), "Notas.txt");
}

TEST_F(ActualizacionDelPrograma, NoActualizarEnLosCambiosGuardaLaVersion) {
    dialogo.Responder(Respuesta::Si);
    EXPECT_FALSE(Actualizar(Instalacion::ConActualizador, EleccionCambios::NoActualizar).traspasar);
    EXPECT_EQ(NoActualizar(ajustes), "215000");
    EXPECT_EQ(Descargas().size(), 2U);
}

TEST_F(ActualizacionDelPrograma, ConElGestorDePaquetesSeLeRemiteAEl) {
    dialogo.Responder(Respuesta::No);
    EXPECT_FALSE(Actualizar(Instalacion::GestorDePaquetes).traspasar);
    EXPECT_EQ(dialogo.Textos().back(), kMsgGestorDePaquetes);
    EXPECT_EQ(Descargas().size(), 2U);
}

TEST_F(ActualizacionDelPrograma, SinListaDeVersionesElMensajeDeLaConexion) {
    red.archivos.erase("/Prog/Quinteva/VersionQVPr.txt");
    EXPECT_EQ(Actualizar().enServidor, 0);
    EXPECT_EQ(dialogo.Textos(), std::vector<std::string>{std::string(kMsgSinDescargaVersion)});
}

TEST_F(ActualizacionDelPrograma, UnaVersionQueNoEsMayorAcabaSinPreguntar) {
    red.archivos["/Prog/Quinteva/VersionQVPr.txt"] = ListaDeVersiones({{"", "", "", 210000}});
    const auto resultado = Actualizar();
    EXPECT_EQ(resultado.enServidor, 210000);
    EXPECT_FALSE(resultado.traspasar);
    EXPECT_TRUE(dialogo.Registro().empty());
}

TEST_F(ActualizacionDelPrograma, UnArchivoQueNoLlegaParaSinTraspasar) {
    red.archivos.erase("/Prog/Quinteva/Ayuda.zip");
    dialogo.Responder(Respuesta::No).Responder(Respuesta::Aceptar);
    EXPECT_FALSE(Actualizar().traspasar);
    EXPECT_EQ(dialogo.Textos().back(), kMsgSinDescargaVersion);
    EXPECT_EQ(Descargas().back(), "Ayuda.zip");
}

TEST_F(ActualizacionDelPrograma, LaVersionDelProgramaSeGuardaEnNVers) {
    GuardarVersionDelPrograma(ajustes);
    EXPECT_EQ(ajustes.Leer("Quinteva", "Program", "NVers", ""), "210000");
}

}  // namespace
}  // namespace quinteva::seasons
