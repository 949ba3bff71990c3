#include "outputs/pdf_writer.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <regex>

#include "outputs/print_slips.h"
#include "outputs/slip_marks.h"
#include "tests/support/temp_folder.h"

namespace quinteva::outputs {
namespace {

namespace fs = std::filesystem;

// Una imagen en grises de pdftoppm (PGM binario).
struct Gris {
    int ancho = 0;
    int alto = 0;
    std::string pixeles;

    bool Oscuro(int x, int y) const {
        if (x < 0 || y < 0 || x >= ancho || y >= alto) return false;
        return static_cast<unsigned char>(pixeles[static_cast<std::size_t>(y * ancho + x)]) < 128;
    }
    // Algún punto oscuro en el rectángulo [x0, x1) × [y0, y1).
    bool HayTinta(int x0, int y0, int x1, int y1) const {
        for (int y = y0; y < y1; ++y) {
            for (int x = x0; x < x1; ++x) {
                if (Oscuro(x, y)) return true;
            }
        }
        return false;
    }
};

Gris LeerPgm(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    std::string magia;
    int maximo = 0;
    Gris g;
    f >> magia >> g.ancho >> g.alto >> maximo;
    f.get();
    g.pixeles.assign(std::istreambuf_iterator<char>(f), {});
    return g;
}

Impresion UnBoleto() {
    std::vector<engine::RegistroColumna> columnas(3);
    columnas[0].columna = engine::ColumnaDeTexto("1X21X21X21X21X");
    columnas[0].pleno = engine::PlenoDeTexto("0M");
    columnas[1].columna = engine::ColumnaDeTexto("22222222222222");
    columnas[2].columna = engine::ColumnaDeTexto("XXXXXXXXXXXXXX");
    return ImprimirUno(
        columnas, 1,
        DisposicionDeBoletos(Direccion::Apaisada, {2340, 1040, 1850, 1130}, "09/03/24"));
}

TEST(Pdf, CadaObjetoDondeDiceLaTablaDeReferencias) {
    const std::string pdf = PdfDeImpresion(UnBoleto());
    ASSERT_EQ(pdf.rfind("%PDF-1.4\n", 0), 0U);
    EXPECT_NE(pdf.find("/Count 1"), std::string::npos);
    EXPECT_NE(pdf.find("/BaseFont /Helvetica-Bold /Encoding /WinAnsiEncoding"), std::string::npos);
    // La marca va como el byte 176 de WinAnsi; la cabecera con su "º" (186).
    EXPECT_NE(pdf.find("(\xB0) Tj"), std::string::npos);
    EXPECT_NE(pdf.find("(09/03/24 N\xBA 1) Tj"), std::string::npos);
    const auto xref = std::stoul(pdf.substr(pdf.rfind("startxref\n") + 10));
    ASSERT_EQ(pdf.compare(xref, 5, "xref\n"), 0);
    const std::regex entrada("(\\d{10}) 00000 n ");
    int objeto = 1;
    for (auto it = std::sregex_iterator(pdf.begin() + static_cast<long>(xref), pdf.end(), entrada);
         it != std::sregex_iterator(); ++it, ++objeto) {
        const auto posicion = std::stoul((*it)[1]);
        EXPECT_EQ(pdf.compare(posicion, std::to_string(objeto).size() + 6,
                              std::to_string(objeto) + " 0 obj"),
                  0)
            << objeto;
    }
    EXPECT_EQ(objeto, 9);  // catálogo, páginas, cuatro fuentes, un contenido y una página
}

TEST(Pdf, UnaPaginaEnBlancoSiNoHayNada) {
    const std::string pdf = PdfDeImpresion(Impresion{});
    EXPECT_NE(pdf.find("/Count 1"), std::string::npos);
}

// El PDF dibujado por pdftoppm a 72 puntos por pulgada (un punto, un píxel): cada marca está
// donde la pusieron las fórmulas, y las casillas sin marca están en blanco.
TEST(Pdf, LasMarcasDibujadasCaenEnSusCasillas) {
    pruebas::CarpetaTemporal carpeta;
    const Impresion hoja = UnBoleto();
    std::ofstream(carpeta / "boleto.pdf", std::ios::binary) << PdfDeImpresion(hoja);
    const std::string orden = "pdftoppm -r 72 -gray '" + (carpeta / "boleto.pdf").string() + "' '" +
                              (carpeta / "pagina").string() + "'";
    ASSERT_EQ(std::system(orden.c_str()), 0) << orden;
    const Gris pagina = LeerPgm(carpeta / "pagina-1.pgm");
    ASSERT_NEAR(pagina.ancho, 595, 1);
    const auto g = GeometriaDeBoletos(Direccion::Apaisada, {2340, 1040, 1850, 1130});
    // La marca "°" de Arial del 14 ocupa el rincón de arriba de su línea: unos 6 × 6 puntos.
    const auto marca = [&](float x, float y) {
        const int px = static_cast<int>(x / 20);
        const int py = static_cast<int>(y / 20);
        return pagina.HayTinta(px, py, px + 8, py + 9);
    };
    int encontradas = 0;
    for (const auto& t : hoja.Textos()) {
        if (t.texto != kMarca) continue;
        EXPECT_TRUE(marca(t.x, t.y)) << t.x << "," << t.y;
        ++encontradas;
    }
    EXPECT_EQ(encontradas, 3 * 14 + 2);
    // La primera columna lleva "1" en el partido 1: sus casillas "X" y "2" están vacías, y la
    // cuarta columna (sin columna) entera.
    EXPECT_FALSE(marca(g.origenX + g.pasoX, g.origenY));
    EXPECT_FALSE(marca(g.origenX + 2 * g.pasoX, g.origenY));
    for (int i = 0; i < 14; ++i) {
        EXPECT_FALSE(marca(g.origenX + 9 * g.pasoX, g.origenY + i * g.pasoY)) << i;
    }
}

}  // namespace
}  // namespace quinteva::outputs
