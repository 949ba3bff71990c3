#include "outputs/pdf_writer.h"

#include <array>
#include <cstdio>
#include <map>
#include <vector>

#include "base/text1252.h"

namespace quinteva::outputs {

namespace {

constexpr float kPuntosPorTwip = 1.0F / 20.0F;
// De la parte de arriba de la línea a la base de las letras, en cuerpos (Arial y Helvetica).
constexpr float kAscendente = 0.905F;

std::string Numero(float valor) {
    char texto[32];
    std::snprintf(texto, sizeof texto, "%.2f", static_cast<double>(valor));
    return texto;
}

// Un texto de PDF entre paréntesis, en Windows-1252, con sus tres caracteres escapados.
std::string Cadena(const std::string& utf8) {
    std::string pdf = "(";
    for (const char c : base::AWindows1252(utf8)) {
        if (c == '(' || c == ')' || c == '\\') pdf.push_back('\\');
        pdf.push_back(c);
    }
    return pdf + ")";
}

// Las cuatro fuentes del PDF: "Courier New" de paso fijo y las demás de palo seco, cada una en
// redonda o negrita.
constexpr std::array<std::string_view, 4> kFuentes = {"Helvetica", "Helvetica-Bold", "Courier",
                                                      "Courier-Bold"};

std::string NombreDeFuente(const TextoImpreso& t) {
    const int fija = t.fuente.starts_with("Courier") ? 2 : 0;
    return "F" + std::to_string(fija + (t.negrita ? 1 : 0) + 1);
}

// El contenido de una página: sus trazos y sus textos.
std::string Contenido(const Impresion& impresion, int pagina, float alto) {
    std::string c;
    for (const TrazoImpreso& t : impresion.TrazosDePagina(pagina)) {
        c += t.punteado ? "[2 2] 0 d\n" : "[] 0 d\n";
        c += Numero(t.x1 * kPuntosPorTwip) + " " + Numero(alto - t.y1 * kPuntosPorTwip) + " m " +
             Numero(t.x2 * kPuntosPorTwip) + " " + Numero(alto - t.y2 * kPuntosPorTwip) + " l S\n";
    }
    for (const TextoImpreso& t : impresion.TextosDePagina(pagina)) {
        const float cuerpo = static_cast<float>(t.tamano);
        const float base = alto - t.y * kPuntosPorTwip - kAscendente * cuerpo;
        c += "BT /" + NombreDeFuente(t) + " " + Numero(cuerpo) + " Tf " +
             Numero(t.x * kPuntosPorTwip) + " " + Numero(base) + " Td " + Cadena(t.texto) +
             " Tj ET\n";
    }
    return c;
}

// Los objetos numerados desde 1 y la tabla de referencias con sus posiciones.
class Documento {
  public:
    int Objeto(const std::string& cuerpo) {
        objetos_.push_back(cuerpo);
        return static_cast<int>(objetos_.size());
    }
    void Cambiar(int numero, const std::string& cuerpo) {
        objetos_[static_cast<std::size_t>(numero - 1)] = cuerpo;
    }
    std::string Bytes(int raiz) const {
        std::string pdf = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
        std::vector<std::size_t> posiciones;
        for (std::size_t i = 0; i < objetos_.size(); ++i) {
            posiciones.push_back(pdf.size());
            pdf += std::to_string(i + 1) + " 0 obj\n" + objetos_[i] + "\nendobj\n";
        }
        const std::size_t xref = pdf.size();
        pdf += "xref\n0 " + std::to_string(objetos_.size() + 1) + "\n0000000000 65535 f \n";
        for (const std::size_t p : posiciones) {
            char linea[24];
            std::snprintf(linea, sizeof linea, "%010zu 00000 n \n", p);
            pdf += linea;
        }
        pdf += "trailer\n<< /Size " + std::to_string(objetos_.size() + 1) + " /Root " +
               std::to_string(raiz) + " 0 R >>\nstartxref\n" + std::to_string(xref) + "\n%%EOF\n";
        return pdf;
    }

  private:
    std::vector<std::string> objetos_;
};

}  // namespace

std::string PdfDeImpresion(const Impresion& impresion, float anchoTwips, float altoTwips) {
    const float ancho = anchoTwips * kPuntosPorTwip;
    const float alto = altoTwips * kPuntosPorTwip;
    Documento d;
    const int raiz = d.Objeto("");
    const int paginas = d.Objeto("");
    std::string fuentes;
    for (std::size_t f = 0; f < kFuentes.size(); ++f) {
        const int objeto = d.Objeto("<< /Type /Font /Subtype /Type1 /BaseFont /" +
                                    std::string(kFuentes[f]) + " /Encoding /WinAnsiEncoding >>");
        fuentes += "/F" + std::to_string(f + 1) + " " + std::to_string(objeto) + " 0 R ";
    }
    std::string hijas;
    const int total = std::max(impresion.Paginas(), 1);
    for (int p = 1; p <= total; ++p) {
        const std::string contenido = Contenido(impresion, p, alto);
        const int flujo = d.Objeto("<< /Length " + std::to_string(contenido.size()) +
                                   " >>\nstream\n" + contenido + "endstream");
        const int pagina =
            d.Objeto("<< /Type /Page /Parent " + std::to_string(paginas) + " 0 R /MediaBox [0 0 " +
                     Numero(ancho) + " " + Numero(alto) + "] /Resources << /Font << " + fuentes +
                     ">> >> /Contents " + std::to_string(flujo) + " 0 R >>");
        hijas += std::to_string(pagina) + " 0 R ";
    }
    d.Cambiar(raiz, "<< /Type /Catalog /Pages " + std::to_string(paginas) + " 0 R >>");
    d.Cambiar(paginas,
              "<< /Type /Pages /Kids [" + hijas + "] /Count " + std::to_string(total) + " >>");
    return d.Bytes(raiz);
}

}  // namespace quinteva::outputs
