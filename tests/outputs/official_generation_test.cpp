#include "outputs/official_generation.h"

#include <gtest/gtest.h>

#include "base/error.h"
#include "outputs/json_bag.h"
#include "outputs/official_file.h"
#include "tests/outputs/column_files.h"
#include "tests/outputs/official_fixture.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::outputs {
namespace {

using base::Respuesta;
using pruebas::DialogoGuionado;
using Textos = std::vector<std::string>;

const std::string kCarpeta = "Por favor seleccione el directorio donde desea guardar el archivo.";
const std::string kJornadaPrincipal =
    "Por favor ntroduzca el número de la Jornada a efectos del archivo oficial JSON. Tenga en "
    "cuenta que no es el número de la Jornada de Quinielas, si hace falte consulte donde lo vaya "
    "a validar";
const std::string kJornadaImportacion =
    "Por favor, introduzca el nº de la Jornada a efectos del archivo JSON. Tenga en cuenta que no "
    "es el mismo número que la Jornada de Quinielas.";
const std::string kFecha =
    "Por favor introduzca la fecha de la Jornada de la Quiniela en formato 'dd/mm/aa'";
const std::string kReceptor = "La clave del Receptor debe tener cinco cifras.";

std::optional<std::string> Texto(const char* t) { return std::string(t); }

class GenerarDesdeLaPrincipal : public ::testing::Test {
  protected:
    GenerarDesdeLaPrincipal() {
        auto columnas = pruebas::ColumnasDeEjemplo();
        // Una eliminada en medio no entra en el archivo.
        columnas.insert(columnas.begin() + 3, {engine::ColumnaDeTexto("22222222222222"),
                                               engine::PlenoDeTexto("MM"), engine::kEliminada});
        pruebas::EscribirColumnas(carpeta_ / "q.cnd", columnas);
        peticion_ = {"01234", "apuesta", 9, carpeta_ / "q.cnd", 2024};
    }

    std::filesystem::path Archivo() const { return carpeta_ / "salida" / "apuesta.json"; }

    DialogoGuionado& HastaElTamano() {
        std::filesystem::create_directory(carpeta_ / "salida");
        return dialogo_.Responder(Respuesta::Aceptar)
            .Responder(std::optional<std::filesystem::path>(carpeta_ / "salida"));
    }

    ResultadoGeneracion Generar() { return GenerarDesdePrincipal(peticion_, dialogo_, ajustes_); }

    pruebas::CarpetaTemporal carpeta_;
    pruebas::AjustesEnMemoria ajustes_;
    DialogoGuionado dialogo_;
    PeticionPrincipal peticion_;
};

TEST_F(GenerarDesdeLaPrincipal, EscribeElArchivoDeReferencia) {
    HastaElTamano()
        .Responder(Respuesta::Si)
        .Responder(Texto("siete"))
        .Responder(Texto("123"))
        .Responder(std::optional<std::string>())
        .Responder(Texto("7"));
    const ResultadoGeneracion r = Generar();
    EXPECT_TRUE(r.terminado);
    EXPECT_EQ(r.archivo, Archivo());
    EXPECT_EQ(dialogo_.Textos(),
              (Textos{kCarpeta, "Generar fichero oficial",
                      "El archivo que se va a generar contiene 2 Boletos con 9 Apuestas. Desea "
                      "continuar?",
                      kJornadaPrincipal, "Debe introducir el número de jornada correctamente.",
                      kJornadaPrincipal, "Debe introducir un número comprendido entre 1 y 100.",
                      kJornadaPrincipal, "Debe introducir el número de jornada correctamente.",
                      kJornadaPrincipal, "Proceso terminado."}));
    EXPECT_TRUE(dialogo_.GuionAgotado());
    EXPECT_EQ(pruebas::BytesDe(Archivo()),
              pruebas::BytesDe(pruebas::DatoDePrueba("oficial_generado.json")));
    EXPECT_EQ(ajustes_.Leer("Quinteva", "Valores", "Receptor", ""), "01234");
}

TEST_F(GenerarDesdeLaPrincipal, ReceptorNoNumerico) {
    peticion_.receptor = "12a45";
    const ResultadoGeneracion r = Generar();
    EXPECT_EQ(r.foco, Campo::Receptor);
    EXPECT_FALSE(r.terminado);
    EXPECT_EQ(dialogo_.Textos(), Textos{kReceptor});
    EXPECT_EQ(ajustes_.Leer("Quinteva", "Valores", "Receptor", "nada"), "nada");
}

TEST_F(GenerarDesdeLaPrincipal, SinNombre) {
    peticion_.receptor = "123";  // la longitud no se mira aquí
    peticion_.nombre = "";
    const ResultadoGeneracion r = Generar();
    EXPECT_EQ(r.foco, Campo::Nombre);
    EXPECT_EQ(dialogo_.Textos(),
              Textos{"Debe introducir el nombre del archivo que se va a generar"});
    EXPECT_EQ(ajustes_.Leer("Quinteva", "Valores", "Receptor", ""), "123");
}

TEST_F(GenerarDesdeLaPrincipal, CancelarLaCarpetaNoCreaNada) {
    dialogo_.Responder(Respuesta::Cancelar);
    EXPECT_FALSE(Generar().archivo);
    dialogo_.Responder(Respuesta::Aceptar).Responder(std::optional<std::filesystem::path>());
    EXPECT_FALSE(Generar().archivo);
    EXPECT_EQ(dialogo_.Textos(), (Textos{kCarpeta, kCarpeta, "Generar fichero oficial"}));
}

TEST_F(GenerarDesdeLaPrincipal, ArchivoExistente) {
    std::filesystem::create_directory(carpeta_ / "salida");
    std::ofstream(Archivo()) << "antiguo";
    HastaElTamano().Responder(Respuesta::No);
    EXPECT_FALSE(Generar().terminado);
    EXPECT_EQ(dialogo_.Textos().back(), "Ya existe un archivo de nombre apuesta en la carpeta " +
                                            (carpeta_ / "salida").string() +
                                            ", que se eliminará. Desea continuar?");
    EXPECT_EQ(pruebas::BytesDe(Archivo()), "antiguo");
    HastaElTamano().Responder(Respuesta::Si).Responder(Respuesta::Si).Responder(Texto("7"));
    EXPECT_TRUE(Generar().terminado);
    EXPECT_EQ(pruebas::BytesDe(Archivo()),
              pruebas::BytesDe(pruebas::DatoDePrueba("oficial_generado.json")));
}

TEST_F(GenerarDesdeLaPrincipal, RehusarElTamanoDejaElArchivoVacio) {
    HastaElTamano().Responder(Respuesta::No);
    const ResultadoGeneracion r = Generar();
    EXPECT_FALSE(r.terminado);
    EXPECT_EQ(r.archivo, Archivo());
    EXPECT_TRUE(std::filesystem::exists(Archivo()));
    EXPECT_EQ(std::filesystem::file_size(Archivo()), 0U);
}

TEST_F(GenerarDesdeLaPrincipal, MasDe65535BoletosSeRehusan) {
    peticion_.columnas = 524281;
    HastaElTamano();
    EXPECT_FALSE(Generar().terminado);
    EXPECT_EQ(dialogo_.Textos().back(),
              "El número máximo de boletos permitidos en el fichero es de 65.535");
    EXPECT_EQ(std::filesystem::file_size(Archivo()), 0U);
    // 524.280 columnas son 65.535 Boletos y pasan la prueba del límite.
    std::filesystem::remove(Archivo());
    peticion_.columnas = 524280;
    HastaElTamano().Responder(Respuesta::No);
    Generar();
    EXPECT_EQ(dialogo_.Textos().back(),
              "El archivo que se va a generar contiene 65.535 Boletos con 524.280 Apuestas. "
              "Desea continuar?");
}

TEST_F(GenerarDesdeLaPrincipal, JornadaCeroONegativaPasan) {
    HastaElTamano().Responder(Respuesta::Si).Responder(Texto("-3"));
    EXPECT_TRUE(Generar().terminado);
    JsonBag raiz;
    raiz.JSON(LeerTextoArchivo(Archivo()));
    EXPECT_EQ(std::get<std::string>(raiz.Hija("asm").Hija("cabecera").Item("idSorteo")),
              "2024/-003");
}

TEST_F(GenerarDesdeLaPrincipal, UnaSolaColumnaSeEscribeSinMinimo) {
    pruebas::EscribirColumnas(peticion_.fuente, std::vector(1, pruebas::ColumnasDeEjemplo()[0]));
    peticion_.columnas = 1;
    HastaElTamano().Responder(Respuesta::Si).Responder(Texto("7"));
    EXPECT_TRUE(Generar().terminado);
    JsonBag raiz;
    raiz.JSON(LeerTextoArchivo(Archivo()));
    EXPECT_EQ(raiz.Hija("asm").Hija("apuestas").Count(), 1);
}

TEST_F(GenerarDesdeLaPrincipal, ElBoleto32768DesbordaSinCaminoDeError) {
    pruebas::EscribirColumnas(peticion_.fuente,
                              std::vector(262144, pruebas::ColumnasDeEjemplo()[0]));
    peticion_.columnas = 262144;
    HastaElTamano().Responder(Respuesta::Si).Responder(Texto("7"));
    EXPECT_THROW(Generar(), base::Desbordamiento);
    EXPECT_EQ(std::filesystem::file_size(Archivo()), 0U);
}

class GenerarDesdeLaImportacion : public ::testing::Test {
  protected:
    GenerarDesdeLaImportacion() {
        auto columnas = pruebas::ColumnasDeEjemplo();
        columnas[8].estado = engine::kEliminada;  // aquí no se mira el estado
        pruebas::EscribirColumnas(carpeta_ / "Arimp.tmp", columnas);
        std::filesystem::create_directory(carpeta_ / "salida");
        peticion_ = {"01234", "apuesta", 9, carpeta_.Ruta()};
    }

    DialogoGuionado& HastaLaJornada() {
        return dialogo_.Responder(Respuesta::Aceptar)
            .Responder(std::optional<std::filesystem::path>(carpeta_ / "salida"));
    }

    ResultadoGeneracion Generar() { return GenerarDesdeImportacion(peticion_, dialogo_, ajustes_); }

    std::filesystem::path Archivo() const { return carpeta_ / "salida" / "apuesta.json"; }

    pruebas::CarpetaTemporal carpeta_;
    pruebas::AjustesEnMemoria ajustes_;
    DialogoGuionado dialogo_;
    PeticionImportacion peticion_;
};

TEST_F(GenerarDesdeLaImportacion, OrdenDePreguntasConSusVueltas) {
    HastaLaJornada()
        .Responder(Texto(""))
        .Responder(Respuesta::No)
        .Responder(Texto("7"))
        .Responder(Texto("1/1/24"))
        .Responder(Texto("32/01/24"))
        .Responder(Texto("12/10/24"))
        .Responder(Respuesta::No)
        .Responder(Respuesta::Si)
        .Responder(Texto("12/10/24"))
        .Responder(Respuesta::No)
        .Responder(Respuesta::No)
        .Responder(Texto("7"))
        .Responder(Texto("12/10/24"))
        .Responder(Respuesta::Si)
        .Responder(Respuesta::Si);
    const ResultadoGeneracion r = Generar();
    EXPECT_TRUE(r.terminado);
    const std::string confirmar = "Es correcto Jornada nº 7, de fecha 12/10/24?";
    const std::string cambiar = "Desea cambiar la fecha de la Jornada?";
    EXPECT_EQ(dialogo_.Textos(),
              (Textos{kCarpeta, "Generar fichero oficial", kJornadaImportacion,
                      "Desea cancelar la generación del fichero?", kJornadaImportacion, kFecha,
                      kFecha, "La fecha no es correcta", kFecha, confirmar, cambiar, kFecha,
                      confirmar, cambiar, kJornadaImportacion, kFecha, confirmar,
                      "El archivo que se va a generar contiene 2 Boletos con 9 Apuestas. Desea "
                      "continuar?",
                      "Proceso terminado"}));
    EXPECT_TRUE(dialogo_.GuionAgotado());
    // Todos los registros de "Arimp.tmp", también el eliminado: el archivo de referencia.
    EXPECT_EQ(pruebas::BytesDe(Archivo()),
              pruebas::BytesDe(pruebas::DatoDePrueba("oficial_generado.json")));
}

TEST_F(GenerarDesdeLaImportacion, ReceptorCorto) {
    peticion_.receptor = "1234";
    EXPECT_EQ(Generar().foco, Campo::Receptor);
    EXPECT_EQ(dialogo_.Textos(), Textos{kReceptor});
}

TEST_F(GenerarDesdeLaImportacion, CancelarEnLaJornadaDejaElArchivoVacioSinDecirNada) {
    HastaLaJornada().Responder(std::optional<std::string>()).Responder(Respuesta::Si);
    const ResultadoGeneracion r = Generar();
    EXPECT_FALSE(r.terminado);
    EXPECT_EQ(dialogo_.Textos().back(), "Desea cancelar la generación del fichero?");
    EXPECT_EQ(std::filesystem::file_size(Archivo()), 0U);
}

TEST_F(GenerarDesdeLaImportacion, FechaVaciaCancela) {
    HastaLaJornada().Responder(Texto("7")).Responder(Texto(""));
    EXPECT_FALSE(Generar().terminado);
    EXPECT_EQ(dialogo_.Textos().back(), "Proceso cancelado");
}

TEST_F(GenerarDesdeLaImportacion, AnioDeLaFechaTecleada) {
    HastaLaJornada()
        .Responder(Texto("12"))
        .Responder(Texto("28/02/99"))
        .Responder(Respuesta::Si)
        .Responder(Respuesta::Si);
    EXPECT_TRUE(Generar().terminado);
    JsonBag raiz;
    raiz.JSON(LeerTextoArchivo(Archivo()));
    EXPECT_EQ(std::get<std::string>(raiz.Hija("asm").Hija("cabecera").Item("idSorteo")),
              "1999/012");
}

TEST_F(GenerarDesdeLaImportacion, ElDesbordamientoVaPorElCaminoDeError) {
    pruebas::EscribirColumnas(carpeta_ / "Arimp.tmp",
                              std::vector(262144, pruebas::ColumnasDeEjemplo()[0]));
    peticion_.columnas = 262144;
    HastaLaJornada()
        .Responder(Texto("7"))
        .Responder(Texto("12/10/24"))
        .Responder(Respuesta::Si)
        .Responder(Respuesta::Si);
    EXPECT_FALSE(Generar().terminado);
    EXPECT_EQ(dialogo_.Textos().back(), "Error: Desbordamiento.");
}

}  // namespace
}  // namespace quinteva::outputs
