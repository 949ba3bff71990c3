#include "outputs/json_file.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/outputs/column_files.h"
#include "tests/outputs/json_errors.h"
#include "tests/outputs/official_fixture.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::outputs {
namespace {

using pruebas::DialogoGuionado;
using Textos = std::vector<std::string>;

const std::string kNoJson = "Posiblemente este archivo no tenga formato JSON.";

class ArchivoJsonPrueba : public ::testing::Test {
  protected:
    ArchivoJsonPrueba() {
        std::filesystem::copy_file(pruebas::DatoDePrueba("oficial_generado.json"), Ruta());
    }
    std::filesystem::path Ruta() const { return carpeta_ / "apuesta.json"; }

    pruebas::CarpetaTemporal carpeta_;
    DialogoGuionado dialogo_;
};

TEST_F(ArchivoJsonPrueba, CamposMostrados) {
    const ArchivoJson archivo = AbrirArchivoJson(Ruta(), dialogo_);
    EXPECT_EQ(archivo.campos,
              (CamposArchivoJson{"007", "2024", "1234", " 12A41531702D5EC052C295B943597A0D", "9 ",
                                 "2 ", "6,75 ", "NO"}));
    EXPECT_TRUE(dialogo_.Textos().empty());
}

TEST_F(ArchivoJsonPrueba, DatosArchivoPideElArchivo) {
    dialogo_.Responder(std::optional<std::filesystem::path>());
    EXPECT_FALSE(DatosArchivo(dialogo_));
    dialogo_.Responder(std::optional<std::filesystem::path>(Ruta()));
    const auto archivo = DatosArchivo(dialogo_);
    ASSERT_TRUE(archivo);
    EXPECT_EQ(archivo->campos.receptor, "1234");
    EXPECT_EQ(dialogo_.Textos(), (Textos{"Archivo JSON", "Archivo JSON"}));
}

TEST_F(ArchivoJsonPrueba, TextoQueNoEsJsonSubeSinCamino) {
    std::ofstream(Ruta(), std::ios::trunc) << "hola";
    pruebas::EsperarErrorJson([&] { AbrirArchivoJson(Ruta(), dialogo_); }, 13,
                              "Expected either { or [ at character 1");
}

TEST_F(ArchivoJsonPrueba, SinCabeceraPosiblementeNoEsJson) {
    std::ofstream(Ruta(), std::ios::trunc) << "{\"a\":[1,2]}";
    const ArchivoJson archivo = AbrirArchivoJson(Ruta(), dialogo_);
    EXPECT_EQ(archivo.campos.anio, "    ");
    EXPECT_EQ(dialogo_.Textos(), Textos{kNoJson});
    std::ofstream(Ruta(), std::ios::trunc).close();
    AbrirArchivoJson(Ruta(), dialogo_);
    EXPECT_EQ(dialogo_.Textos(), (Textos{kNoJson, kNoJson}));
}

TEST_F(ArchivoJsonPrueba, ModificarAvisa) {
    Modificar(dialogo_);
    EXPECT_EQ(dialogo_.Textos(),
              Textos{"Puede modificar la Jornada, Fecha y Receptor. Tras la modificación debe "
                     "utilizar el botón Guardar para que tengan efecto los cambios."});
    EXPECT_EQ(kSoloNumeros, "Sólo puede introducir números.");
}

TEST_F(ArchivoJsonPrueba, GuardarSinCambiosDaOtroOrdenYElMismoResumen) {
    ArchivoJson archivo = AbrirArchivoJson(Ruta(), dialogo_);
    EXPECT_TRUE(Guardar(archivo, dialogo_));
    EXPECT_EQ(dialogo_.Textos(), Textos{"Modificación realizada"});
    EXPECT_EQ(pruebas::BytesDe(Ruta()),
              pruebas::BytesDe(pruebas::DatoDePrueba("oficial_guardado.json")));
    EXPECT_EQ(archivo.campos.hash, " 12A41531702D5EC052C295B943597A0D");
    EXPECT_FALSE(std::filesystem::exists(Ruta().string() + "-1.json"));
}

TEST_F(ArchivoJsonPrueba, GuardarConOtraJornadaRecalculaElResumen) {
    std::ofstream(Ruta().string() + "-1.json") << "otro";
    ArchivoJson archivo = AbrirArchivoJson(Ruta(), dialogo_);
    archivo.campos.jornada = "8";
    archivo.campos.anio = "2025";
    archivo.campos.receptor = "04321";
    ASSERT_TRUE(Guardar(archivo, dialogo_));
    const std::string hash = HashCabecera("2", "2025/008", "4321", "2", "9", "675");
    EXPECT_EQ(archivo.campos.hash, " " + hash);
    const ArchivoJson releido = AbrirArchivoJson(Ruta(), dialogo_);
    EXPECT_EQ(releido.cabecera.idSorteo, "2025/008");
    EXPECT_EQ(releido.cabecera.idReceptor, 4321);
    EXPECT_EQ(releido.cabecera.hash, hash);
    EXPECT_EQ(releido.cabecera.boletos, archivo.cabecera.boletos);
    // El "-1" ocupado sigue ahí; se usó el "-2" y se renombró.
    EXPECT_EQ(pruebas::BytesDe(Ruta().string() + "-1.json"), "otro");
    EXPECT_FALSE(std::filesystem::exists(Ruta().string() + "-2.json"));
}

TEST_F(ArchivoJsonPrueba, GuardarCompruebaLosCampos) {
    ArchivoJson archivo = AbrirArchivoJson(Ruta(), dialogo_);
    const std::string original = pruebas::BytesDe(Ruta());
    archivo.campos.receptor = "12a";
    EXPECT_FALSE(Guardar(archivo, dialogo_));
    archivo.campos.receptor = "1234";
    archivo.campos.anio = "24";
    EXPECT_FALSE(Guardar(archivo, dialogo_));
    archivo.campos.anio = "20x4";
    EXPECT_FALSE(Guardar(archivo, dialogo_));
    archivo.campos.anio = "2024";
    archivo.campos.jornada = "";
    EXPECT_FALSE(Guardar(archivo, dialogo_));
    EXPECT_EQ(dialogo_.Textos(),
              (Textos{"No se ha introducido correctamente el número del Receptor. Debe tener "
                      "cinco cifras.",
                      "El Año introducido no es correcto, debe tener cuatro cifras.",
                      "El Año introducido no es correcto, debe tener cuatro cifras.",
                      "La Jornada introducida no es correcta."}));
    EXPECT_EQ(pruebas::BytesDe(Ruta()), original);
}

TEST_F(ArchivoJsonPrueba, ReceptorDeMasDe32767VaPorElCaminoDeError) {
    ArchivoJson archivo = AbrirArchivoJson(Ruta(), dialogo_);
    const std::string original = pruebas::BytesDe(Ruta());
    archivo.campos.receptor = "40000";
    EXPECT_FALSE(Guardar(archivo, dialogo_));
    EXPECT_EQ(dialogo_.Textos(), Textos{"Error: Desbordamiento."});
    EXPECT_EQ(pruebas::BytesDe(Ruta()), original);
}

}  // namespace
}  // namespace quinteva::outputs
