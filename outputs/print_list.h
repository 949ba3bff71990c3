#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quinteva::outputs {

// Un texto de una página impresa: su fuente y la posición de su esquina superior izquierda, en
// twips de la página con el origen arriba a la izquierda (la "posición actual" de la impresora).
struct TextoImpreso {
    int pagina = 1;
    std::string texto;
    std::string fuente;
    int tamano = 0;
    bool negrita = false;
    float x = 0;
    float y = 0;

    friend bool operator==(const TextoImpreso&, const TextoImpreso&) = default;
};

// Un trazo recto del papel blanco: las líneas de corte, de puntos, y las marcas de las casillas.
struct TrazoImpreso {
    int pagina = 1;
    float x1 = 0;
    float y1 = 0;
    float x2 = 0;
    float y2 = 0;
    bool punteado = false;

    friend bool operator==(const TrazoImpreso&, const TrazoImpreso&) = default;
};

// Lo que sale por la impresora, página a página, como lo piden las rutinas de impresión: fuente,
// posición, texto, página nueva. Lo dibujan el pintor del programa y el escritor de PDF.
class Impresion {
  public:
    void Fuente(std::string_view nombre, int tamano, bool negrita);
    void Tamano(int tamano) { tamano_ = tamano; }
    void Negrita(bool negrita) { negrita_ = negrita; }
    // Imprime en (x, y); la posición actual pasa a la línea siguiente, como en la impresora.
    void Texto(float x, float y, std::string_view texto);
    void Linea(float x1, float y1, float x2, float y2, bool punteado);
    // La página siguiente empieza con lo primero que se imprima en ella.
    void NuevaPagina();
    // Sitio para tantos textos y trazos, cuando se sabe de antemano.
    void Reservar(std::size_t textos, std::size_t trazos);

    // Las páginas con algo impreso.
    int Paginas() const;
    const std::vector<TextoImpreso>& Textos() const { return textos_; }
    const std::vector<TrazoImpreso>& Trazos() const { return trazos_; }
    // Los de una página: van en orden de página, así que se buscan sin recorrer los demás.
    std::span<const TextoImpreso> TextosDePagina(int pagina) const;
    std::span<const TrazoImpreso> TrazosDePagina(int pagina) const;
    float YActual() const { return y_; }

    // El alto de una línea de texto de ese tamaño en twips (1,15 veces el cuerpo, como Arial).
    static float AltoDeLinea(int tamano);

  private:
    std::string fuente_ = "Arial";
    int tamano_ = 10;
    bool negrita_ = false;
    int pagina_ = 1;
    float y_ = 0;
    std::vector<TextoImpreso> textos_;
    std::vector<TrazoImpreso> trazos_;
};

}  // namespace quinteva::outputs
