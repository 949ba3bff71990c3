#include <gtest/gtest.h>

#include <fstream>

#include "outputs/ad243.h"
#include "outputs/hit_check.h"
#include "outputs/hit_files.h"
#include "outputs/json_bag.h"
#include "outputs/official_file.h"
#include "tests/builders/boletos_fixture.h"
#include "tests/outputs/ad243_bytes.h"
#include "tests/support/counting_progress.h"

namespace quinteva::outputs {
namespace {

using builders::Jugada;
using pruebas::BytesAD243;
using pruebas::Registro;

constexpr int kJornada = 7;
const std::string kGanadora =
    "1X21X111111111"
    "1M";

void Escribir(const std::filesystem::path& ruta, const std::string& bytes) {
    std::ofstream(ruta, std::ios::binary) << bytes;
}

class ComprobacionDeAciertos : public ::testing::Test {
  protected:
    pruebas::BancoBoletos banco{"1X2 1X2 1X2 1X2 1X2 1 1 1 1 1 1 1 1 1"};
    pruebas::DialogoGuionado dialogo;
    pruebas::ProgresoContador progreso;

    // Las 243 columnas de la base con un Pleno por Boleto, y unas cuantas eliminadas.
    std::vector<engine::RegistroColumna> Juego() {
        std::vector<engine::RegistroColumna> registros;
        const auto todas = pruebas::ColumnasDeLaBase(banco.comb.base);
        int activas = 0;
        for (std::size_t i = 0; i < todas.size(); ++i) {
            const bool eliminada = i % 7 == 3;
            const std::string pleno = std::string("012M").substr(activas / 8 % 4, 1) + "M";
            registros.push_back(
                Registro(todas[i], pleno, eliminada ? engine::kEliminada : engine::kActiva));
            activas += eliminada ? 0 : 1;
        }
        return registros;
    }

    static std::vector<engine::RegistroColumna> Activas(
        const std::vector<engine::RegistroColumna>& registros) {
        std::vector<engine::RegistroColumna> activas;
        for (const auto& r : registros) {
            if (r.Activa()) activas.push_back(r);
        }
        return activas;
    }
};

TEST_F(ComprobacionDeAciertos, ElPlenoEsElDeLaPrimeraColumnaDelBloqueDeOcho) {
    // La columna 2 acierta los 14 y su propio Pleno, pero el del Boleto es el de la primera.
    std::vector<engine::RegistroColumna> registros = {
        Registro("22222222222222", "00"), Registro("1X21X111111111", "1M"),
        Registro("1X21X111111111", "1M", engine::kEliminada)};
    for (int i = 0; i < 6; ++i) registros.push_back(Registro("22222222222222", "00"));
    registros.push_back(Registro("1X21X111111112", "1M"));
    banco.Columnas(Jugada::Condicionada, registros);
    Comprobacion c = Aciertos(banco.comb.ruta, kGanadora, dialogo, progreso);
    ASSERT_TRUE(c.hecha);
    EXPECT_EQ(c.tabla.cuentas, (std::array<std::int32_t, 7>{0, 1, 1, 0, 0, 0, 0}));
    // Los números son entre las activas: la eliminada no cuenta.
    EXPECT_EQ(c.tabla.listas[1], std::vector<std::int32_t>{2});
    EXPECT_EQ(c.tabla.listas[2], std::vector<std::int32_t>{9});
    EXPECT_EQ(c.saludo, "Muy bien!");
    EXPECT_TRUE(c.parpadea && c.columnas && c.pena && c.datos && !c.fallos);
    EXPECT_TRUE(dialogo.Textos().empty());
    EXPECT_GE(progreso.Avances(), 1);
    EXPECT_EQ(progreso.UltimoHecho(), 10);
}

TEST_F(ComprobacionDeAciertos, ConQuinceEnhorabuenaYSinCatorceFallos) {
    banco.Columnas(Jugada::Condicionada, {Registro("1X21X111111111", "1M")});
    EXPECT_EQ(Aciertos(banco.comb.ruta, kGanadora, dialogo, progreso).saludo, "Enhorabuena!!!");
    banco.Columnas(Jugada::Condicionada, {Registro("2X21X111111111", "1M")});
    const Comprobacion c = Aciertos(banco.comb.ruta, kGanadora, dialogo, progreso);
    EXPECT_TRUE(c.fallos);
    EXPECT_FALSE(c.saludo.has_value());
    EXPECT_FALSE(c.parpadea);
}

TEST_F(ComprobacionDeAciertos, SinGuardarOSinJugadaLoDiceYNoCuenta) {
    EXPECT_FALSE(Aciertos({}, kGanadora, dialogo, progreso).hecha);
    EXPECT_FALSE(Aciertos(banco.comb.ruta, kGanadora, dialogo, progreso).hecha);
    EXPECT_FALSE(Avance({}, kGanadora, "1 M", dialogo, progreso).hecha);
    EXPECT_EQ(dialogo.Textos(),
              (std::vector<std::string>{std::string(kMsgNoGuardada), std::string(kMsgNoGenerada),
                                        std::string(kMsgNoGuardada)}));
}

TEST_F(ComprobacionDeAciertos, UnaCabeceraDanadaVaPorElCaminoDeError) {
    Escribir(banco.comb.ruta, "corta");
    EXPECT_FALSE(Aciertos(banco.comb.ruta, kGanadora, dialogo, progreso).hecha);
    ASSERT_EQ(dialogo.Textos().size(), 1U);
    EXPECT_TRUE(dialogo.Textos()[0].starts_with("Error: ")) << dialogo.Textos()[0];
    EXPECT_TRUE(dialogo.Textos()[0].ends_with(".")) << dialogo.Textos()[0];
}

TEST_F(ComprobacionDeAciertos, AvanceSobreLosPartidosConocidosYElQuinceDelCatorce) {
    banco.Columnas(Jugada::Condicionada,
                   {Registro("1X21X111111111", "00"), Registro("1X2XX222222222", "00"),
                    Registro("2222X111111111", "00")});
    const std::string ganadora = "1X21X         1M";
    Comprobacion c = Avance(banco.comb.ruta, ganadora, "1 M", dialogo, progreso);
    ASSERT_TRUE(c.hecha);
    EXPECT_EQ(c.tabla.cuentas, (std::array<std::int32_t, 7>{1, 1, 2, 2, 3, 3, 3}));
    EXPECT_TRUE(std::all_of(c.tabla.listas.begin(), c.tabla.listas.end(),
                            [](const auto& l) { return l.empty(); }));
    // La celda del Pleno vacía o distinta: el 15 se queda en 0.
    EXPECT_EQ(Avance(banco.comb.ruta, ganadora, "", dialogo, progreso).tabla.cuentas[0], 0);
    EXPECT_EQ(Avance(banco.comb.ruta, ganadora, "1 2", dialogo, progreso).tabla.cuentas[0], 0);
}

TEST_F(ComprobacionDeAciertos, LaMismaApuestaDeTresManerasDaLasMismasCuentas) {
    const auto registros = Juego();
    banco.Columnas(Jugada::Condicionada, registros);
    // La ganadora es la activa 39, del quinto Boleto, que lleva "0M".
    const std::string ganadora =
        "1X21X111111111"
        "0M";
    const Comprobacion combinacion = Aciertos(banco.comb.ruta, ganadora, dialogo, progreso);

    JsonBag raiz;
    ArbolGenerado(raiz, Activas(registros), {12345, "2024/007", 0.75F});
    EscribirArchivoOficial(banco.carpeta / "oficial.json", raiz);
    dialogo.Responder(base::Respuesta::Si);
    const Comprobacion json =
        AciertosJSON(banco.carpeta / "oficial.json", ganadora, kJornada, "2024", dialogo);

    Escribir(banco.carpeta / "ad243.txt", BytesAD243(Activas(registros)));
    const Comprobacion ad243 =
        AciertosAD243(banco.carpeta / "ad243.txt", ganadora, kJornada, dialogo);

    ASSERT_TRUE(combinacion.hecha && json.hecha && ad243.hecha);
    EXPECT_GT(combinacion.tabla.cuentas[0], 0);
    EXPECT_GT(combinacion.tabla.cuentas[6], 0);
    EXPECT_EQ(json.tabla.cuentas, combinacion.tabla.cuentas);
    EXPECT_EQ(ad243.tabla.cuentas, combinacion.tabla.cuentas);
    EXPECT_EQ(json.tabla.listas, combinacion.tabla.listas);
    EXPECT_EQ(ad243.tabla.listas, combinacion.tabla.listas);
    EXPECT_EQ(
        dialogo.Textos(),
        (std::vector<std::string>{
            "El archivo corresponde al Sorteo de Quinielas nº 007. Está seguro de que este "
            "fichero corresponde a la Jornada nº 7 de Quinielas?",
            std::string(kMsgComprobacionFinalizada), std::string(kMsgComprobacionFinalizada)}));
    EXPECT_TRUE(json.columnas && json.parpadea && !json.saludo && !json.pena && !json.datos);
}

TEST(AciertosAD243, SoloCabeceraDaTodasLasCuentasACero) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;
    Escribir(carpeta / "a.txt", BytesAD243({}));
    const Comprobacion c = AciertosAD243(carpeta / "a.txt", kGanadora, kJornada, dialogo);
    ASSERT_TRUE(c.hecha);
    EXPECT_EQ(TextosCuentas(c.tabla),
              (std::array<std::string, 7>{"0 ", "0 ", "0 ", "0 ", "0 ", "0 ", "0 "}));
    EXPECT_FALSE(c.columnas);
    EXPECT_EQ(dialogo.Textos(), std::vector<std::string>{"Comprobación finalizada."});
}

TEST(AciertosAD243, LosDosRechazosYLaJornada) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;
    const auto comprobar = [&](const std::string& bytes) {
        Escribir(carpeta / "a.txt", bytes);
        return AciertosAD243(carpeta / "a.txt", kGanadora, kJornada, dialogo).hecha;
    };
    const std::string bueno = BytesAD243({Registro("1X21X111111111")});
    EXPECT_FALSE(comprobar(bueno + " "));            // 125 + 124 bytes
    EXPECT_FALSE(comprobar(bueno.substr(0, 125)));   // 125 bytes
    EXPECT_FALSE(comprobar("X" + bueno.substr(1)));  // no es "C"
    EXPECT_FALSE(comprobar(bueno.substr(0, 3) + "244" + bueno.substr(6)));
    EXPECT_FALSE(comprobar(""));  // vacío: sin cabecera
    EXPECT_FALSE(comprobar(BytesAD243({}, "08")));
    EXPECT_FALSE(comprobar(BytesAD243({}, " 7")));
    const std::string punto(kMsgNoAD243);
    const std::string sinPunto = punto.substr(0, punto.size() - 1);
    EXPECT_EQ(punto, "El archivo que se quiere importar no es un archivo AD243 o es erróneo.");
    EXPECT_EQ(dialogo.Textos(),
              (std::vector<std::string>{punto, punto, sinPunto, sinPunto, sinPunto,
                                        "El archivo no corresponde a la Jornada nº 7",
                                        "El archivo no corresponde a la Jornada nº 7"}));
    EXPECT_TRUE(comprobar(bueno));
}

TEST(AciertosAD243, CadaRegistroCuentaOchoColumnasConSuPleno) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;
    // Un Boleto de una sola columna: las otras siete en blanco cuentan como columnas (fuera).
    Escribir(carpeta / "a.txt",
             BytesAD243({Registro("2X21X111111111", "0M"), Registro("1X21X111111111", "1M"),
                         Registro("1X21X111111111", "1M"), Registro("1X21X111111111", "1M"),
                         Registro("1X21X111111111", "1M"), Registro("1X21X111111111", "1M"),
                         Registro("1X21X111111111", "1M"), Registro("1X21X111111111", "1M"),
                         Registro("1X21X111111111", "1M")}));
    const Comprobacion c = AciertosAD243(carpeta / "a.txt", kGanadora, kJornada, dialogo);
    EXPECT_EQ(c.tabla.cuentas, (std::array<std::int32_t, 7>{1, 8, 1, 0, 0, 0, 0}));
    EXPECT_EQ(c.tabla.listas[0], std::vector<std::int32_t>{9});
}

TEST(AciertosJSON, NoALaPreguntaOAnioDistintoTerminan) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;
    JsonBag raiz;
    const std::vector<engine::RegistroColumna> una = {Registro("1X21X111111111")};
    ArbolGenerado(raiz, una, {12345, "2023/012", 0.75F});
    EscribirArchivoOficial(carpeta / "o.json", raiz);
    dialogo.Responder(base::Respuesta::No).Responder(base::Respuesta::Si);
    EXPECT_FALSE(AciertosJSON(carpeta / "o.json", kGanadora, 12, "2023", dialogo).hecha);
    EXPECT_FALSE(AciertosJSON(carpeta / "o.json", kGanadora, 12, "2024", dialogo).hecha);
    EXPECT_EQ(dialogo.Textos(),
              (std::vector<std::string>{
                  "El archivo corresponde al Sorteo de Quinielas nº 012. Está seguro de que este "
                  "fichero corresponde a la Jornada nº 12 de Quinielas?",
                  "El archivo corresponde al Sorteo de Quinielas nº 012. Está seguro de que este "
                  "fichero corresponde a la Jornada nº 12 de Quinielas?",
                  "El archivo no corresponde a la fecha de la Jornada nº 12"}));
    EXPECT_FALSE(AciertosJSON({}, kGanadora, 12, "2023", dialogo).hecha);
    EXPECT_EQ(dialogo.Textos().size(), 3U);
}

TEST(AciertosJSON, ElBoletoAcabaEnNumApuestasOEnLosDosPuntos) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;
    const std::string catorce = ".1=1,X,2,1,X,1,1,1,1,1,1,1,1,1";
    const std::string dos = catorce + ".2=1,X,2,1,X,1,1,1,1,1,1,1,1,1";
    Escribir(carpeta / "o.json",
             "{\"asm\":{\"cabecera\":{\"idSorteo\":\"2024/007\",\"totalBoletos\":3},"
             "\"apuestas\":[{\"combinacion\":\"" +
                 dos +
                 ":.1=1-M\",\"numApuestas\":1},"
                 "{\"combinacion\":\"" +
                 dos +
                 ":.1=1-M\",\"numApuestas\":0},"
                 "{\"combinacion\":\"" +
                 catorce + ".2=1,X:.1=0-0\",\"numApuestas\":8}]}}");
    dialogo.Responder(base::Respuesta::Si);
    const Comprobacion c = AciertosJSON(carpeta / "o.json", kGanadora, kJornada, "2024", dialogo);
    ASSERT_TRUE(c.hecha);
    // 1 del primer Boleto, 2 del segundo y 2 del tercero (la segunda, cortada, no acierta).
    EXPECT_EQ(c.tabla.listas[0], (std::vector<std::int32_t>{1, 2, 3}));
    EXPECT_EQ(c.tabla.listas[1], (std::vector<std::int32_t>{1, 2, 3, 4}));
    EXPECT_EQ(c.tabla.cuentas[6] + c.tabla.cuentas[5], 0);
}

TEST(AciertosJSON, ArchivosMalosDanSuMensajeSinCaer) {
    pruebas::CarpetaTemporal carpeta;
    pruebas::DialogoGuionado dialogo;
    const auto comprobar = [&](const std::string& texto) {
        Escribir(carpeta / "o.json", texto);
        return AciertosJSON(carpeta / "o.json", kGanadora, kJornada, "2024", dialogo).hecha;
    };
    EXPECT_FALSE(comprobar(""));
    EXPECT_FALSE(comprobar("{\"a\": 1}"));
    EXPECT_FALSE(comprobar("{\"asm\":{\"cabecera\":{\"idSorteo\":\"2024/007\""));
    EXPECT_FALSE(comprobar("{\"asm\":{\"cabecera\":{\"totalBoletos\":\"muchos\"}}}"));
    const auto textos = dialogo.Textos();
    ASSERT_EQ(textos.size(), 4U);
    EXPECT_EQ(textos[0], kMsgNoJson);
    EXPECT_EQ(textos[1], kMsgNoJson);
    EXPECT_TRUE(textos[2].starts_with("Error: ")) << textos[2];
    EXPECT_EQ(textos[3], "Error: No coinciden los tipos.");
}

TEST(OrigenDeArchivo, PorElContenidoYSiNoPorLaExtension) {
    pruebas::CarpetaTemporal carpeta;
    Escribir(carpeta / "a.json", BytesAD243({}));
    Escribir(carpeta / "b.txt", " {\"asm\":{}}");
    Escribir(carpeta / "c.dat", std::string(engine::RegistroCabecera::kLongitud, '\0'));
    Escribir(carpeta / "d.json", "");
    Escribir(carpeta / "e.uxd", "");
    Escribir(carpeta / "f.txt", "nada");
    EXPECT_EQ(OrigenDeArchivo(carpeta / "a.json"), OrigenAciertos::AD243);
    EXPECT_EQ(OrigenDeArchivo(carpeta / "b.txt"), OrigenAciertos::Json);
    EXPECT_EQ(OrigenDeArchivo(carpeta / "c.dat"), OrigenAciertos::Combinacion);
    EXPECT_EQ(OrigenDeArchivo(carpeta / "d.json"), OrigenAciertos::Json);
    EXPECT_EQ(OrigenDeArchivo(carpeta / "e.uxd"), OrigenAciertos::Combinacion);
    EXPECT_EQ(OrigenDeArchivo(carpeta / "f.txt"), OrigenAciertos::AD243);
}

}  // namespace
}  // namespace quinteva::outputs
