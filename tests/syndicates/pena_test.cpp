#include <gtest/gtest.h>

#include <cstring>
#include <fstream>

#include "base/record_files.h"
#include "base/text1252.h"
#include "syndicates/pena_backup.h"
#include "syndicates/pena_files.h"
#include "syndicates/pena_hits.h"
#include "tests/outputs/column_files.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"
#include "tests/syndicates/expected_bytes.h"

namespace quinteva::syndicates {
namespace {

template <std::size_t N>
std::string Cadena(const std::array<Byte, N>& bytes) {
    return {bytes.begin(), bytes.end()};
}

TEST(ArchivosDePena, RegPenaByteAByte) {
    const RegPena p{"Peña de los Lunes",
                    "Lunes",
                    "23/24",
                    "Calle Mayor 1",
                    "28001",
                    "Madrid",
                    "Madrid",
                    "912345678",
                    "Ana Pérez",
                    "ana@ejemplo.es",
                    "www.ejemplo.es"};
    const std::string esperado = Bytes(319)
                                     .Texto(0, 50,
                                            "Pe\xF1"
                                            "a de los Lunes")
                                     .Texto(50, 15, "Lunes")
                                     .Texto(65, 5, "23/24")
                                     .Texto(70, 35, "Calle Mayor 1")
                                     .Texto(105, 5, "28001")
                                     .Texto(110, 35, "Madrid")
                                     .Texto(145, 25, "Madrid")
                                     .Texto(170, 9, "912345678")
                                     .Texto(179, 40, "Ana P\xE9rez")
                                     .Texto(219, 50, "ana@ejemplo.es")
                                     .Texto(269, 50, "www.ejemplo.es")
                                     .Cadena();
    EXPECT_EQ(Cadena(p.ABytes()), esperado);
    EXPECT_EQ(RegPena::DeBytes(p.ABytes()).ABytes(), p.ABytes());
    EXPECT_EQ(base::Recortar(RegPena::DeBytes(p.ABytes()).nombre), "Peña de los Lunes");
}

TEST(ArchivosDePena, RegJornadaPenaByteAByte) {
    RegJornadaPena j;
    j.temporada = "23/24";
    j.jornada = 12;
    j.cerrada = -1;
    j.numColumnas = 64;
    j.importe = 48;
    j.acertadas = {1, 2, 3, 4, 5, 300};
    j.premios = {1000.5F, 200.25F, 30, 4, 0.5F, 0};
    j.totalCobrado = 1234.5F;
    j.gastos = 10;
    j.aRepartir = 1224.5F;
    Bytes esperado(73);
    esperado.Texto(0, 5, "23/24").Valor<std::int16_t>(5, 12).Valor<std::int16_t>(15, -1);
    esperado.Valor(17, 64.0F).Valor(21, 48.0F);
    for (std::size_t i = 0; i < 6; ++i) {
        esperado.Valor<std::int16_t>(25 + 2 * i, static_cast<std::int16_t>(j.acertadas[i]));
        esperado.Valor(37 + 4 * i, j.premios[i]);
    }
    esperado.Valor(61, 1234.5F).Valor(65, 10.0F).Valor(69, 1224.5F);
    EXPECT_EQ(Cadena(j.ABytes()), esperado.Cadena());
    EXPECT_EQ(RegJornadaPena::DeBytes(j.ABytes()).ABytes(), j.ABytes());
}

TEST(ArchivosDePena, RegApostanteByteAByte) {
    RegApostante a;
    a.temporada = "23/24";
    a.nombre = "Núñez García, Luis";
    a.nif = "12345678Z";
    a.direccion = "Plaza 3";
    a.codigoPostal = "41001";
    a.ciudad = "Sevilla";
    a.provincia = "Sevilla";
    a.telefono = "954000000";
    a.movil = "600000000";
    a.email = "luis@ejemplo.es";
    a.cuenta = "ES0012345678";
    for (std::size_t j = 0; j < RegApostante::kImportes; ++j) {
        a.cuotas[j] = static_cast<float>(j) + 0.5F;
        a.obtenido[j] = static_cast<float>(j) * 2.0F;
    }
    Bytes esperado(805);
    esperado.Texto(0, 5, "23/24")
        .Texto(5, 35,
               "N\xFA\xF1"
               "ez Garc\xED"
               "a, Luis")
        .Texto(40, 9, "12345678Z")
        .Texto(49, 35, "Plaza 3")
        .Texto(84, 5, "41001")
        .Texto(89, 35, "Sevilla")
        .Texto(124, 25, "Sevilla")
        .Texto(149, 9, "954000000")
        .Texto(158, 9, "600000000")
        .Texto(167, 50, "luis@ejemplo.es")
        .Texto(217, 20, "ES0012345678");
    for (std::size_t j = 0; j < 71; ++j) {
        esperado.Valor(237 + 4 * j, a.cuotas[j]).Valor(521 + 4 * j, a.obtenido[j]);
    }
    EXPECT_EQ(Cadena(a.ABytes()), esperado.Cadena());
    // El elemento 71 (índice 70) es la Jornada 70, en los últimos bytes de cada lista.
    const RegApostante leido = RegApostante::DeBytes(a.ABytes());
    EXPECT_EQ(leido.cuotas[70], 70.5F);
    EXPECT_EQ(leido.obtenido[70], 140.0F);
    EXPECT_EQ(leido.ABytes(), a.ABytes());
}

RegPena Pena(const std::string& reducido) {
    RegPena p;
    p.nombre = "Peña de prueba";
    p.nombreReducido = reducido;
    p.temporada = "23/24";
    return p;
}

TEST(ArchivosDePena, CrearDejaSetentaJornadasYElNombreSinBlancos) {
    pruebas::CarpetaTemporal carpeta;
    const auto ruta = CrearPena(carpeta.Ruta(), Pena(" Los  Lunes "));
    EXPECT_EQ(ruta, carpeta / "Peñas" / "Temporada 23-24" / "LosLunes");
    const base::ArchivoDe<RegPena> nmp(ArchivoPena(ruta, kExtPena));
    ASSERT_EQ(nmp.Cuenta(), 1);
    EXPECT_EQ(base::Recortar(nmp.Leer(1).nombreReducido), "LosLunes");
    const base::ArchivoDe<RegJornadaPena> jrn(ArchivoPena(ruta, kExtJornadas));
    ASSERT_EQ(jrn.Cuenta(), 70);
    for (int n = 1; n <= 70; ++n) {
        const RegJornadaPena j = jrn.Leer(n);
        EXPECT_EQ(j.temporada, "23/24");
        EXPECT_EQ(j.jornada, 0);
        EXPECT_EQ(j.acertadas, (std::array<int, 6>{}));
    }
    EXPECT_EQ(std::filesystem::file_size(ArchivoPena(ruta, kExtApostantes)), 0U);
    // Crearla otra vez no duplica las Jornadas.
    CrearPena(carpeta.Ruta(), Pena("LosLunes"));
    EXPECT_EQ(base::CuentaRegistros(ArchivoPena(ruta, kExtJornadas), 73), 70);
}

TEST(APena, CopiaLasSeisCuentasEnLaJornada) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;
    const auto ruta = CrearPena(carpeta.Ruta(), Pena("Lunes"));
    outputs::TablaAciertos tabla;
    tabla.cuentas = {1, 2, 3, 4, 5, 6, 7};
    dialogo.Responder(base::Respuesta::Si)
        .Responder(std::optional<std::filesystem::path>(ArchivoPena(ruta, kExtPena)));
    EXPECT_TRUE(CopiarAPena(carpeta.Ruta(), 12, tabla, dialogo));
    const base::ArchivoDe<RegJornadaPena> jrn(ArchivoPena(ruta, kExtJornadas));
    EXPECT_EQ(jrn.Leer(12).acertadas, (std::array<int, 6>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(jrn.Leer(11).acertadas, (std::array<int, 6>{}));
    EXPECT_EQ(dialogo.Registro(),
              (std::vector<pruebas::Intercambio>{{"PreguntaSiNo", std::string(kPreguntaAPena)},
                                                 {"ArchivoParaAbrir", ""},
                                                 {"Mensaje", "Datos copiados."}}));
}

TEST(APena, NoSinElegirOJornadaFueraDelArchivo) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;
    const auto ruta = CrearPena(carpeta.Ruta(), Pena("Lunes"));
    outputs::TablaAciertos tabla;
    tabla.cuentas[1] = 40000;  // no cabe en 16 bits
    dialogo.Responder(base::Respuesta::No)
        .Responder(base::Respuesta::Si)
        .Responder(std::optional<std::filesystem::path>())
        .Responder(base::Respuesta::Si)
        .Responder(std::optional<std::filesystem::path>(ArchivoPena(ruta, kExtPena)))
        .Responder(base::Respuesta::Si)
        .Responder(std::optional<std::filesystem::path>(ArchivoPena(ruta, kExtPena)));
    EXPECT_FALSE(CopiarAPena(carpeta.Ruta(), 12, tabla, dialogo));
    EXPECT_FALSE(CopiarAPena(carpeta.Ruta(), 12, tabla, dialogo));
    EXPECT_FALSE(CopiarAPena(carpeta.Ruta(), 12, tabla, dialogo));
    EXPECT_FALSE(CopiarAPena(carpeta.Ruta(), 71, {}, dialogo));
    const std::string pregunta(kPreguntaAPena);
    EXPECT_EQ(dialogo.Textos(), (std::vector<std::string>{
                                    pregunta, pregunta, "", pregunta, "", "Error: Desbordamiento.",
                                    pregunta, "", "Error: Número de registro incorrecto."}));
    // Nada se escribió.
    const base::ArchivoDe<RegJornadaPena> jrn(ArchivoPena(ruta, kExtJornadas));
    EXPECT_EQ(jrn.Leer(12).acertadas, (std::array<int, 6>{}));
    EXPECT_EQ(jrn.Cuenta(), 70);
}

TEST(CopiaDeSeguridad, CopiaLosTresArchivos) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;
    const auto ruta = CrearPena(carpeta.Ruta(), Pena("Lunes"));
    std::filesystem::create_directory(carpeta / "copia");
    dialogo.Responder(base::Respuesta::Si)
        .Responder(std::optional<std::filesystem::path>(carpeta / "copia"))
        .Responder(base::Respuesta::Si)
        .Responder(std::optional<std::filesystem::path>());
    EXPECT_TRUE(CopiaSeguridad(ruta, "Peña de prueba", dialogo));
    for (const auto ext : {kExtPena, kExtJornadas, kExtApostantes}) {
        EXPECT_EQ(pruebas::BytesDe(ArchivoPena(carpeta / "copia" / "Lunes", ext)),
                  pruebas::BytesDe(ArchivoPena(ruta, ext)));
    }
    EXPECT_FALSE(CopiaSeguridad(ruta, "Peña de prueba", dialogo));
    EXPECT_EQ(dialogo.Textos(),
              (std::vector<std::string>{
                  "Desea realizar copia de seguridad de los datos de Peña de prueba?",
                  std::string(kPideCarpetaCopia), "Proceso terminado",
                  "Desea realizar copia de seguridad de los datos de Peña de prueba?",
                  std::string(kPideCarpetaCopia), std::string(kMsgSinCarpetaCopia)}));
}

}  // namespace
}  // namespace quinteva::syndicates
