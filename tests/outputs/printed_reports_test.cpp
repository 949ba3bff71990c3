#include "outputs/printed_reports.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "outputs/line_pages.h"
#include "outputs/pdf_save.h"
#include "outputs/pdf_writer.h"
#include "outputs/slip_marks.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"

namespace quinteva::outputs {
namespace {

std::vector<engine::RegistroColumna> Columnas(int n) {
    std::vector<engine::RegistroColumna> columnas(static_cast<std::size_t>(n));
    for (auto& c : columnas) {
        c.columna = engine::ColumnaDeTexto("1X21X21X21X21X");
        c.pleno = engine::PlenoDeTexto("1M");
    }
    return columnas;
}

std::vector<std::string> TextosDeLaPagina(const Impresion& hoja, int pagina) {
    std::vector<std::string> textos;
    for (const auto& t : hoja.Textos()) {
        if (t.pagina == pagina) textos.push_back(t.texto);
    }
    return textos;
}

// Nada se sale de la hoja por abajo.
void DentroDeLaHoja(const Impresion& hoja) {
    for (const auto& t : hoja.Textos()) {
        EXPECT_LE(t.y + Impresion::AltoDeLinea(t.tamano), kAltoA4 - HojaDeLineas::kMargen + 700)
            << t.texto;
    }
}

TEST(ListadoImpreso, ElTituloLaJornadaYUnaColumnaPorLineaEnVariasHojas) {
    EXPECT_EQ(PreguntaImprimirListado(1234),
              "La combinación tiene 1.234 columnas. Desea no obstante imprimirlas?");
    const Impresion hoja = ImpresionListado("Jornada 12, 29/10/23", Columnas(200));
    const auto& t = hoja.Textos();
    EXPECT_EQ(t[0].texto, "Quinteva");
    EXPECT_EQ(t[0].fuente, "Arial");
    EXPECT_EQ(t[0].tamano, 16);
    EXPECT_TRUE(t[0].negrita);
    EXPECT_EQ(t[1].texto, "Jornada 12, 29/10/23");
    EXPECT_EQ(t[2].texto, "1         1X21X21X21X21X");
    EXPECT_EQ(t[2].fuente, "Courier New");
    EXPECT_EQ(t.back().texto, "200       1X21X21X21X21X");
    EXPECT_EQ(t.size(), 202U);
    EXPECT_GT(hoja.Paginas(), 1);
    DentroDeLaHoja(hoja);
}

TEST(ListadoImpreso, LasColumnasLocalizadasConSusTresTitulos) {
    const Impresion hoja =
        ImpresionColumnasLocalizadas("Jornada 7, 05/10/24", {{"1", "3", "14"}, {"2", "8", "13"}});
    EXPECT_EQ(
        TextosDeLaPagina(hoja, 1),
        (std::vector<std::string>{
            "Quinteva", "Jornada 7, 05/10/24", "Localización de Columnas acertadas",
            "Boleto    Columna   Aciertos  ", "1         3         14", "2         8         13"}));
    EXPECT_EQ(hoja.Textos()[3].fuente, "Courier New");
}

TEST(VisorDeQuinielas, BloquesDeOchoConSuNumeroYElPieEnCadaPagina) {
    const Impresion hoja = InformeQuinielas({12, "29/10/23", "J12"}, Columnas(30));
    const auto primera = TextosDeLaPagina(hoja, 1);
    EXPECT_EQ(primera[0], "Quinteva - Quinielas");
    EXPECT_EQ(primera[1], "Jornada nº: 12, Fecha: 29/10/23, Nombre: J12");
    EXPECT_EQ(primera[2], "Quin. nº 1");
    EXPECT_EQ(primera[3], "1   1    1    1    1    1    1    1    1    ");
    EXPECT_EQ(primera[17], "P15 1-M  1-M  1-M  1-M  1-M  1-M  1-M  1-M  ");
    std::vector<std::string> bloques;
    for (const auto& t : hoja.Textos()) {
        if (t.texto.starts_with("Quin. nº ")) bloques.push_back(t.texto);
    }
    EXPECT_EQ(bloques,
              (std::vector<std::string>{"Quin. nº 1", "Quin. nº 9", "Quin. nº 17", "Quin. nº 25"}));
    for (int p = 1; p <= hoja.Paginas(); ++p) {
        const auto textos = TextosDeLaPagina(hoja, p);
        EXPECT_EQ(textos.back(), "Página " + std::to_string(p));
        EXPECT_EQ(textos[textos.size() - 2], kLineaProducto);
    }
    EXPECT_GT(hoja.Paginas(), 1);
    // Un bloque no se parte entre dos hojas.
    for (const auto& t : hoja.Textos()) {
        if (!t.texto.starts_with("Quin. nº ")) continue;
        int filas = 0;
        for (const auto& u : hoja.Textos()) filas += u.pagina == t.pagina && u.y > t.y ? 1 : 0;
        EXPECT_GE(filas, 15) << t.texto;
    }
    DentroDeLaHoja(hoja);
}

TEST(GuardarPdf, PreguntaAntesDeSobrescribir) {
    pruebas::CarpetaTemporal carpeta;
    const auto ruta = carpeta / "quinielas.pdf";
    const Impresion hoja = InformeQuinielas({1, "f", "n"}, Columnas(3));
    pruebas::DialogoGuionado dialogo;
    dialogo.Responder(std::optional<std::filesystem::path>());
    EXPECT_FALSE(GuardarPdf(dialogo, hoja, ruta));
    dialogo.Responder(std::optional(ruta));
    EXPECT_TRUE(GuardarPdf(dialogo, hoja, ruta));
    std::ofstream(ruta, std::ios::binary) << "mio";
    dialogo.Responder(std::optional(ruta)).Responder(base::Respuesta::No);
    EXPECT_FALSE(GuardarPdf(dialogo, hoja, ruta));
    std::ifstream f(ruta, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(f), {}), "mio");
    dialogo.Responder(std::optional(ruta)).Responder(base::Respuesta::Si);
    EXPECT_TRUE(GuardarPdf(dialogo, hoja, ruta));
    std::ifstream g(ruta, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(g), {}), PdfDeImpresion(hoja));
    EXPECT_EQ(dialogo.Registro().back().texto, kPreguntaSobrescribir);
    EXPECT_EQ(dialogo.Registro()[0].texto, "Guardar PDF");
}

}  // namespace
}  // namespace quinteva::outputs
