#include <gtest/gtest.h>

#include <fstream>
#include <iostream>
#include <sstream>

#include "base/dates.h"
#include "base/error.h"
#include "base/record_files.h"
#include "cli/commands.h"
#include "outputs/json_bag.h"
#include "outputs/official_file.h"
#include "seasons/record_files.h"
#include "seasons/season_folder.h"
#include "tests/outputs/column_files.h"
#include "tests/outputs/official_fixture.h"
#include "tests/support/temp_folder.h"

namespace quinteva::cli {
namespace {

// Ejecuta un subcomando como lo haría quinteva-cli, con stdout y stderr a la vista.
struct Ejecucion {
    int codigo = 0;
    std::string salida;
    std::string errores;
};

class OrdenesDelArchivoOficial : public ::testing::Test {
  protected:
    OrdenesDelArchivoOficial() {
        std::string cabecera(5189, '\0');
        cabecera[15] = 37;
        cabecera.replace(16, 3, "cnd");
        std::ofstream(carpeta_ / "q.uxd", std::ios::binary) << cabecera;
        pruebas::EscribirColumnas(carpeta_ / "q.cnd", pruebas::ColumnasDeEjemplo());
        std::filesystem::create_directory(carpeta_ / "salida");
    }

    Ejecucion Ejecutar(const std::string& nombre, std::vector<std::string> palabras) {
        palabras.push_back("--carpeta");
        palabras.push_back(carpeta_.Ruta().string());
        for (const Subcomando& s : Subcomandos()) {
            if (s.nombre != nombre) continue;
            std::ostringstream salida;
            std::ostringstream errores;
            auto* anterior = std::cerr.rdbuf(errores.rdbuf());
            Ejecucion e;
            try {
                e.codigo = s.ejecutar(Argumentos(palabras, s.opciones), salida);
            } catch (...) {
                std::cerr.rdbuf(anterior);
                throw;
            }
            std::cerr.rdbuf(anterior);
            e.salida = salida.str();
            e.errores = errores.str();
            return e;
        }
        ADD_FAILURE() << "no hay subcomando " << nombre;
        return {};
    }

    std::string Salida() const { return (carpeta_ / "salida" / "apuesta").string(); }

    void TemporadaConJornada37() {
        seasons::FijarTemporadaActual(carpeta_.Ruta(), "Temporada2425");
        const auto carpeta = seasons::CarpetaTemporada(carpeta_.Ruta(), "Temporada2425");
        std::filesystem::create_directories(carpeta);
        base::ArchivoDe<seasons::RegPartidoQuin> jquin(carpeta / seasons::kJquin);
        seasons::RegPartidoQuin partido;
        partido.jornada = 36;
        partido.fecha = base::FechaASerie({2023, 5, 1});
        jquin.Anadir(partido);
        partido.jornada = 37;
        partido.fecha = base::FechaASerie({2025, 3, 9});
        jquin.Anadir(partido);
        jquin.Cerrar();
    }

    pruebas::CarpetaTemporal carpeta_;
};

TEST_F(OrdenesDelArchivoOficial, OficialEscribeElArchivoDeReferencia) {
    const Ejecucion e =
        Ejecutar("oficial", {(carpeta_ / "q.uxd").string(), "--receptor", "01234", "--jornada", "7",
                             "--anio", "2024", "--salida", Salida()});
    EXPECT_EQ(e.codigo, 0);
    EXPECT_EQ(e.salida, Salida() + ".json\n");
    EXPECT_EQ(e.errores, "Proceso terminado.\n");
    EXPECT_EQ(pruebas::BytesDe(Salida() + ".json"),
              pruebas::BytesDe(pruebas::DatoDePrueba("oficial_generado.json")));
}

TEST_F(OrdenesDelArchivoOficial, OficialTomaElAnioDeLaFechaDeLaJornada) {
    TemporadaConJornada37();
    const Ejecucion e = Ejecutar("oficial", {(carpeta_ / "q.uxd").string(), "--receptor", "01234",
                                             "--jornada", "7", "--salida", Salida()});
    ASSERT_EQ(e.codigo, 0);
    outputs::JsonBag raiz;
    raiz.JSON(outputs::LeerTextoArchivo(Salida() + ".json"));
    EXPECT_EQ(std::get<std::string>(raiz.Hija("asm").Hija("cabecera").Item("idSorteo")),
              "2025/007");
}

TEST_F(OrdenesDelArchivoOficial, OficialSinFechaDeJornadaNiAnio) {
    try {
        Ejecutar("oficial", {(carpeta_ / "q.uxd").string(), "--receptor", "01234", "--jornada", "7",
                             "--salida", Salida()});
        ADD_FAILURE();
    } catch (const base::Error& e) {
        EXPECT_EQ(std::string(e.what()),
                  "No se encuentra la fecha de la Jornada 37 en la temporada actual; indique "
                  "--anio");
    }
}

TEST_F(OrdenesDelArchivoOficial, OficialRehusaConLosMensajesDelSistema) {
    Ejecucion e = Ejecutar("oficial", {(carpeta_ / "q.uxd").string(), "--receptor", "12a",
                                       "--jornada", "7", "--anio", "2024", "--salida", Salida()});
    EXPECT_EQ(e.codigo, 1);
    EXPECT_EQ(e.errores, "La clave del Receptor debe tener cinco cifras.\n");
    EXPECT_FALSE(std::filesystem::exists(Salida() + ".json"));
    EXPECT_THROW(Ejecutar("oficial", {(carpeta_ / "q.uxd").string(), "--receptor", "01234",
                                      "--jornada", "150", "--anio", "2024", "--salida", Salida()}),
                 base::Error);
    EXPECT_THROW(Ejecutar("oficial",
                          {(carpeta_ / "q.uxd").string(), "--receptor", "01234", "--jornada", "7"}),
                 ErrorDeUso);
    EXPECT_THROW(Ejecutar("oficial", {(carpeta_ / "no.uxd").string(), "--receptor", "01234",
                                      "--jornada", "7", "--anio", "2024", "--salida", Salida()}),
                 base::Error);
}

TEST_F(OrdenesDelArchivoOficial, JsonLeerMuestraLosCampos) {
    std::filesystem::copy_file(pruebas::DatoDePrueba("oficial_generado.json"), Salida() + ".json");
    Ejecucion e = Ejecutar("json-leer", {Salida() + ".json"});
    EXPECT_EQ(e.codigo, 0);
    EXPECT_EQ(e.salida,
              "JORNADA: 007\nAÑO: 2024\nRECEPTOR Nº: 1234\n"
              "HASH: 12A41531702D5EC052C295B943597A0D\nN.º APUESTAS: 9\nN.º BOLETOS: 2\n"
              "IMPORTE: 6,75\nIgual Pleno al 15 en todos los Boletos?: NO\n");
    e = Ejecutar("json-leer", {Salida() + ".json", "--json"});
    EXPECT_EQ(e.salida,
              "{\"JORNADA\": \"007\", \"AÑO\": \"2024\", \"RECEPTOR Nº\": \"1234\", "
              "\"HASH\": \"12A41531702D5EC052C295B943597A0D\", \"N.º APUESTAS\": \"9\", "
              "\"N.º BOLETOS\": \"2\", \"IMPORTE\": \"6,75\", "
              "\"Igual Pleno al 15 en todos los Boletos?\": \"NO\"}\n");
}

TEST_F(OrdenesDelArchivoOficial, JsonModificarGuardaConElResumenNuevo) {
    const std::string ruta = Salida() + ".json";
    std::filesystem::copy_file(pruebas::DatoDePrueba("oficial_generado.json"), ruta);
    Ejecucion e = Ejecutar("json-modificar", {ruta, "--jornada", "8"});
    EXPECT_EQ(e.codigo, 0);
    EXPECT_EQ(e.errores, "Modificación realizada\n");
    const std::string hash = outputs::HashCabecera("2", "2024/008", "1234", "2", "9", "675");
    EXPECT_NE(e.salida.find("HASH: " + hash + "\n"), std::string::npos);
    EXPECT_NE(pruebas::BytesDe(ruta).find("\"idSorteo\":\"2024/008\""), std::string::npos);
    const std::string antes = pruebas::BytesDe(ruta);
    e = Ejecutar("json-modificar", {ruta, "--anio", "24"});
    EXPECT_EQ(e.codigo, 1);
    EXPECT_EQ(e.errores, "El Año introducido no es correcto, debe tener cuatro cifras.\n");
    EXPECT_EQ(pruebas::BytesDe(ruta), antes);
}

}  // namespace
}  // namespace quinteva::cli
