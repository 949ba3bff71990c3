// Los asistentes de un paso en quinteva-cli: muy-reducida, porcentajes y rapida-basica, cada uno
// con la Combinación nueva guardada y su conjunto para jugar; y el informe de sus condiciones.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <set>

#include "builders/merge_combinations.h"
#include "outputs/played_set.h"
#include "tests/cli/cli_runner.h"
#include "tests/support/temp_folder.h"

namespace quinteva::pruebas {
namespace {

TEST(CliMuyReducida, TresDoblesAlTreceSonDosColumnas) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    const auto uxd = trabajo / "Muy.uxd";
    const Salida s =
        EjecutarCli("muy-reducida '" + uxd.string() +
                    "' --base \"1X 1X 1X 1 1 1 1 1 1 1 1 1 1 1\" --pleno 1-0 --nivel 13 "
                    "--json" +
                    carpeta);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    EXPECT_EQ(s.salida,
              "{\"NivelReducida\": 0, \"TotalGeneradas\": 8, \"TotalReducidas\": 2, \"Jugada\": "
              "\"red\"}\n");
    EXPECT_EQ(s.errores, "Proceso terminado. Ya puede imprimir sus boletos\n");
    EXPECT_EQ(outputs::LeerJuegoJugado(uxd).juego, "red");
    EXPECT_EQ(outputs::LeerColumnas(trabajo / "Muy.red", true).size(), 2U);
}

TEST(CliVerificar, LaMuyReducidaCumpleYSinReducidasNo) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    const auto uxd = trabajo / "Verif.uxd";
    ASSERT_EQ(
        EjecutarCli("muy-reducida '" + uxd.string() +
                    "' --base \"1X2 1X2 1X2 1X2 1 1 1 1 1 1 1 1 1 1\" --pleno 1-0 --nivel 13" +
                    carpeta)
            .codigo,
        0);
    const Salida si = EjecutarCli("verificar '" + uxd.string() + "' --al 13" + carpeta);
    EXPECT_EQ(si.codigo, 0) << si.errores;
    // Las 9 del sistema y la que se añade al azar para que el último boleto no lleve una sola.
    EXPECT_EQ(si.salida, "Cumple la garantía al 13: 10 reducidas cubren 81 generadas.\n");
    // Sin el ".red", nada cubre: la primera generada.
    std::filesystem::remove(trabajo / "Verif.red");
    const Salida no = EjecutarCli("verificar '" + uxd.string() + "' --al 12" + carpeta);
    EXPECT_EQ(no.codigo, 1);
    EXPECT_EQ(no.salida,
              "No cumple la garantía al 12: la columna 1 (11111111111111) no está cubierta.\n");
    EXPECT_EQ(EjecutarCli("verificar '" + uxd.string() + "' --al 10" + carpeta).codigo, 2);
}

TEST(CliMuyReducida, UnaBaseSinFilaNoSeGenera) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    const auto uxd = trabajo / "Cuatro.uxd";
    const Salida s = EjecutarCli(
        "muy-reducida '" + uxd.string() +
        "' --base \"1X 1X 1X 1X 1 1 1 1 1 1 1 1 1 1\" --pleno 1-0 --nivel 13" + carpeta);
    EXPECT_EQ(s.codigo, 1);
    EXPECT_EQ(s.errores,
              "Error: La Quiniela Base no es ninguna de las combinaciones de la tabla de "
              "reducciones.\n");
    EXPECT_FALSE(std::filesystem::exists(uxd));
    EXPECT_EQ(EjecutarCli("muy-reducida '" + uxd.string() +
                          "' --base \"1X\" --pleno 1-0 --nivel 10" + carpeta)
                  .codigo,
              2);
}

}  // namespace
}  // namespace quinteva::pruebas

namespace quinteva::pruebas {
namespace {

// Los 14 tríos de --porcentajes: los mismos en todos los partidos.
std::string Trios(const std::string& trio) {
    std::string trios;
    for (int p = 0; p < 14; ++p) trios += (p > 0 ? " " : "") + trio;
    return trios;
}

const std::string kOchoTriples = "1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1 1 1 1 1 1";

TEST(CliPorcentajes, LasColumnasPedidasGuardadasSinRepetidasYParaJugar) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    const auto uxd = trabajo / "Porc.uxd";
    const std::string orden = "porcentajes '" + uxd.string() + "' --base \"" + kOchoTriples +
                              "\" --pleno 1-0 --columnas 40 --semilla 3 --porcentajes \"" +
                              Trios("50-30-20") + "\" --json" + carpeta;
    const Salida s = EjecutarCli(orden);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    EXPECT_EQ(s.salida,
              "{\"TotalGeneradas\": 40, \"ValorPorcentajes\": 40, \"Jugada\": \"cnd\"}\n");
    EXPECT_EQ(s.errores, "Proceso terminado. Ya puede imprimir sus boletos\n");
    const auto columnas = outputs::LeerColumnas(trabajo / "Porc.cnd", true);
    ASSERT_EQ(columnas.size(), 40U);
    std::set<std::string> distintas;
    for (const auto& r : columnas) distintas.insert(engine::TextoDeColumna(r.columna));
    EXPECT_EQ(distintas.size(), 40U);
    // La misma semilla, las mismas columnas.
    const auto primero = std::filesystem::path(trabajo / "Porc.cnd");
    std::filesystem::copy_file(primero, trabajo / "Antes.cnd");
    ASSERT_EQ(EjecutarCli(orden).codigo, 0);
    EXPECT_EQ(outputs::LeerColumnas(trabajo / "Antes.cnd", true), columnas);
}

TEST(CliPorcentajes, UnaLineaQueNoSumaCienONumeroMaloNoCambianNada) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    const auto uxd = trabajo / "Mala.uxd";
    const std::string comun = "porcentajes '" + uxd.string() + "' --base \"" + kOchoTriples +
                              "\" --pleno 1-0 --semilla 3" + carpeta;
    std::string trios = Trios("50-30-20");
    trios.replace(trios.find("50-30-20", 9), 8, "50-31-20");
    const Salida s = EjecutarCli(comun + " --columnas 40 --porcentajes \"" + trios + "\"");
    EXPECT_EQ(s.codigo, 1);
    EXPECT_EQ(s.errores, "Los porcentajes del partido 2 no suman 100\n");
    EXPECT_FALSE(std::filesystem::exists(uxd));
    EXPECT_FALSE(std::filesystem::exists(trabajo / "Mala.cnd"));
    // Un número que no lo es, y un número que deja un boleto de una columna.
    const Salida letras =
        EjecutarCli(comun + " --columnas doce --porcentajes \"" + Trios("50-30-20") + "\"");
    EXPECT_EQ(letras.codigo, 1);
    EXPECT_EQ(letras.errores,
              "Tiene que indicar el número de columnas que debe tener la combinación\n");
    const Salida nueve =
        EjecutarCli(comun + " --columnas 9 --porcentajes \"" + Trios("50-30-20") + "\"");
    EXPECT_EQ(nueve.codigo, 1);
    EXPECT_FALSE(std::filesystem::exists(uxd));
    // Tríos mal escritos o que no son 14: error de uso.
    EXPECT_EQ(EjecutarCli(comun + " --columnas 40 --porcentajes \"50-30\"").codigo, 2);
    EXPECT_EQ(
        EjecutarCli(comun + " --columnas 40 --porcentajes \"" + Trios("50-30-20") + " 1-1-98\"")
            .codigo,
        2);
}

TEST(CliRapidaBasica, LasFilasALasCondicionesYAjustadaAlNumero) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    const auto uxd = trabajo / "Basica.uxd";
    const Salida s = EjecutarCli("rapida-basica '" + uxd.string() +
                                 "' --base \"1X2 1X2 1X2 1X2 1X2 1X 1X 1 1 1 1 1 1 1\" --pleno "
                                 "1-0 --columnas 40 --equis 2-3 --interrupciones 4- --semilla 5 "
                                 "--json" +
                                 carpeta);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    EXPECT_EQ(s.salida,
              "{\"NumCondiciones\": 2, \"TotalGeneradas\": 459, \"ActivasGeneradas\": 40, "
              "\"Jugada\": \"cnd\"}\n");
    EXPECT_EQ(outputs::LeerColumnas(trabajo / "Basica.cnd", true).size(), 40U);
    for (const auto& r : outputs::LeerColumnas(trabajo / "Basica.cnd", true)) {
        const auto equis = std::count(r.columna.begin(), r.columna.end(), 'X');
        EXPECT_GE(equis, 2);
        EXPECT_LE(equis, 3);
    }
}

TEST(CliRapidaBasica, SinFilasNingunaCondicionYElAjusteTomaDelDesarrolloEntero) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    const auto uxd = trabajo / "Libre.uxd";
    const Salida s =
        EjecutarCli("rapida-basica '" + uxd.string() +
                    "' --base \"1X2 1X2 1X2 1 1 1 1 1 1 1 1 1 1 1\" --pleno 1-0 --columnas 16 "
                    "--semilla 4 --json" +
                    carpeta);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    EXPECT_EQ(s.salida,
              "{\"NumCondiciones\": 0, \"TotalGeneradas\": 27, \"ActivasGeneradas\": 16, "
              "\"Jugada\": \"cnd\"}\n");
    // El desarrollo entero (27) menos las 11 que quitó el ajuste: ninguna fuera de la base.
    const auto todas = outputs::LeerColumnas(trabajo / "Libre.cnd", false);
    EXPECT_EQ(todas.size(), 27U);
    for (const auto& r : todas) {
        EXPECT_EQ(engine::TextoDeColumna(r.columna).substr(3), std::string(11, '1'));
    }
}

TEST(CliRapidaBasica, UnaFilaFueraDeSuRangoOMinimoSobreMaximo) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    const std::string comun = "rapida-basica '" + (trabajo / "B.uxd").string() +
                              "' --base \"1X2 1X2 1X2 1 1 1 1 1 1 1 1 1 1 1\" --pleno 1-0" +
                              carpeta;
    EXPECT_EQ(EjecutarCli(comun + " --columnas 16 --interrupciones 3-14").codigo, 2);
    EXPECT_EQ(EjecutarCli(comun + " --columnas 16 --equis 2").codigo, 2);
    const Salida s = EjecutarCli(comun + " --columnas 16 --doses 3-1");
    EXPECT_EQ(s.codigo, 1);
    EXPECT_EQ(s.errores, "El número máximo de Doses no puede ser menor que el mínimo de Doses\n");
    EXPECT_FALSE(std::filesystem::exists(trabajo / "B.cnd"));
}

}  // namespace
}  // namespace quinteva::pruebas

namespace quinteva::pruebas {
namespace {

// Lo que pdftotext saca de un PDF.
std::string TextoDelPdf(const std::filesystem::path& pdf, const std::filesystem::path& txt) {
    const std::string orden = "pdftotext -layout '" + pdf.string() + "' '" + txt.string() + "'";
    if (std::system(orden.c_str()) != 0) return {};
    std::ifstream f(txt);
    return {std::istreambuf_iterator<char>(f), {}};
}

TEST(CliInformeCondiciones, ElPdfLlevaElResumenLaBaseYSoloLasFamiliasActivas) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    const auto uxd = trabajo / "Informe.uxd";
    ASSERT_EQ(EjecutarCli("rapida-basica '" + uxd.string() +
                          "' --base \"1X2 1X2 1X2 1X2 1X2 1X 1X 1 1 1 1 1 1 1\" --pleno 1-0 "
                          "--columnas 40 --equis 2-3 --unos-seguidos 7-9 --semilla 5 --jornada 12" +
                          carpeta)
                  .codigo,
              0);
    const auto pdf = trabajo / "Informe.pdf";
    const Salida s = EjecutarCli("informe-condiciones '" + uxd.string() + "' --pdf '" +
                                 pdf.string() + "'" + carpeta);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    EXPECT_EQ(s.salida, "Páginas: 1\n");
    const std::string texto = TextoDelPdf(pdf, trabajo / "Informe.txt");
    for (const char* esperado :
         {"Quinteva - Condiciones de la Combinación", "Jornada: 12", "Nombre: Informe",
          // pdftotext junta los blancos entre las partes del resumen.
          "Sin reducir", "Apuestas eliminadas manual.: 480", "Apuestas jugadas: 40 (30,00 €)",
          "Quiniela Base", "Generales", "Nº de Equis", "Seguidos", "Unos seguidos", "Página 1",
          "Quinteva (quinteva.example)"}) {
        EXPECT_NE(texto.find(esperado), std::string::npos) << esperado;
    }
    for (const char* ausente : {"Interrupciones", "Parejas", "Tríos", "Sumas", "Grupos"}) {
        EXPECT_EQ(texto.find(ausente), std::string::npos) << ausente;
    }
    // Una página: pdftotext las separa con un salto de página.
    EXPECT_EQ(std::count(texto.begin(), texto.end(), '\f'), 1);
    EXPECT_EQ(EjecutarCli("informe-condiciones '" + uxd.string() + "'" + carpeta).codigo, 2);
    const Salida falta = EjecutarCli("informe-condiciones '" + (trabajo / "No.uxd").string() +
                                     "' --pdf '" + pdf.string() + "'" + carpeta);
    EXPECT_EQ(falta.codigo, 1);
}

}  // namespace
}  // namespace quinteva::pruebas

namespace quinteva::pruebas {
namespace {

TEST(CliRefundir, DosCombinacionesAUnTextoSinRepetidas) {
    CarpetaTemporal trabajo;
    const std::string carpeta = " --carpeta '" + trabajo.Ruta().string() + "'";
    // Dos Combinaciones de la Jornada 4 que comparten columnas.
    for (const char* nombre : {"A", "B"}) {
        ASSERT_EQ(
            EjecutarCli("rapida-basica '" + (trabajo / (std::string(nombre) + ".uxd")).string() +
                        "' --base \"1X2 1X2 1 1 1 1 1 1 1 1 1 1 1 1\" --pleno 1-0 "
                        "--columnas 8 --semilla " +
                        (nombre[0] == 'A' ? "1" : "2") + " --jornada 4" + carpeta)
                .codigo,
            0);
    }
    const auto salida = trabajo / "Juntas.txt";
    const Salida s = EjecutarCli(
        "refundir '" + salida.string() + "' '" + (trabajo / "A.uxd").string() + "' '" +
        (trabajo / "B.uxd").string() + "' --estructura continuo --semilla 3 --json" + carpeta);
    ASSERT_EQ(s.codigo, 0) << s.errores;
    // 8 de las 9 columnas de la base en cada una (semillas fijas): entre las dos, las 9, que dejan
    // un boleto de una y piden una al azar.
    EXPECT_EQ(s.salida, "{\"Columnas\": 10, \"Repetidas\": 7, \"Agregadas\": 1}\n");
    EXPECT_EQ(std::filesystem::file_size(salida), 10U * 16U);
    EXPECT_EQ(s.errores.find(std::string(builders::kMsgRefundirLargo)), 0U);
    // Una Combinación de otra Jornada: su mensaje y código 1.
    ASSERT_EQ(EjecutarCli("rapida-basica '" + (trabajo / "C.uxd").string() +
                          "' --base \"1X2 1X2 1 1 1 1 1 1 1 1 1 1 1 1\" --pleno 1-0 --columnas 8 "
                          "--jornada 5" +
                          carpeta)
                  .codigo,
              0);
    const Salida otra =
        EjecutarCli("refundir '" + salida.string() + "' '" + (trabajo / "A.uxd").string() + "' '" +
                    (trabajo / "C.uxd").string() + "'" + carpeta);
    EXPECT_EQ(otra.codigo, 1);
    EXPECT_NE(otra.errores.find(std::string(builders::kMsgOtraJornada)), std::string::npos);
    EXPECT_EQ(EjecutarCli("refundir '" + salida.string() + "'" + carpeta).codigo, 2);
}

}  // namespace
}  // namespace quinteva::pruebas
