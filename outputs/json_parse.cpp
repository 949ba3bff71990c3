// La lectura de un texto JSON (JSON escrito) a un árbol de bolsas.
#include <charconv>
#include <string>

#include "outputs/json_bag.h"
#include "outputs/utf16.h"

namespace quinteva::outputs {
namespace {

// Sin límite de profundidad el anidamiento desmedido agotaría la pila: se corta antes con el
// error de pila de la plataforma.
constexpr int kProfundidadMaxima = 2000;

bool EsBlanco(char16_t c) { return c == u'\t' || c == u'\n' || c == u'\r' || c == u' '; }
bool EsCifra(char16_t c) { return c >= u'0' && c <= u'9'; }
bool Corriente(char16_t c) { return c >= 32 && c != u'"' && c != u'\\'; }
char16_t Minuscula(char16_t c) { return c >= u'A' && c <= u'Z' ? c - u'A' + u'a' : c; }

int ValorHex(char16_t c) {
    if (EsCifra(c)) return c - u'0';
    const char16_t m = Minuscula(c);
    return m >= u'a' && m <= u'f' ? m - u'a' + 10 : -1;
}

ErrorJson Sintaxis(const std::string& texto, std::int32_t posicion) {
    return ErrorJson(13, texto + std::to_string(posicion));
}

}  // namespace

// Cursor y longitud del texto que se lee, con posiciones desde 1 en unidades UTF-16.
class AnalizadorJson {
  public:
    explicit AnalizadorJson(std::string_view utf8)
        : texto_(AUtf16(utf8)), longitud_(static_cast<std::int32_t>(texto_.size())) {}

    void Raiz(JsonBag& bolsa) {
        Saltar();
        const char16_t c = Actual();
        if (c != u'{' && c != u'[') throw Sintaxis("Expected either { or [ at character ", cursor_);
        ++cursor_;
        Contenedor(bolsa, c, 0);
        // Lo que sigue al cierre de la raíz no se mira.
    }

  private:
    // El carácter del cursor; un nulo pasado el final, que no casa con nada esperado.
    char16_t Actual() const { return cursor_ <= longitud_ ? texto_[Lugar(cursor_)] : u'\0'; }
    static std::size_t Lugar(std::int32_t posicion) {
        return static_cast<std::size_t>(posicion - 1);
    }
    bool Fin() const { return cursor_ > longitud_; }

    void Saltar() {
        while (!Fin() && EsBlanco(Actual())) ++cursor_;
    }

    void Contenedor(JsonBag& bolsa, char16_t apertura, int profundidad) {
        if (profundidad > kProfundidadMaxima) throw ErrorJson(28, "Espacio de pila insuficiente");
        if (apertura == u'{') {
            Objeto(bolsa, profundidad);
        } else {
            Array(bolsa, profundidad);
        }
    }

    void Objeto(JsonBag& bolsa, int profundidad) {
        bool visto = false;
        for (;;) {
            Saltar();
            const std::int32_t posicion = cursor_;
            const char16_t c = Actual();
            ++cursor_;
            if (c == u'"') {
                std::string nombre = Texto();
                Saltar();
                if (Actual() != u':') throw Sintaxis("Expected : at character ", cursor_);
                ++cursor_;
                bolsa.Item(std::move(nombre), LeerValor(bolsa, profundidad));
                visto = true;
            } else if (c == u',') {
                // Tras el primer miembro pasan cuantas comas haya: {"a":1,,,"b":2,}.
                if (!visto) {
                    throw Sintaxis("Found \",\" before first item at character ", posicion);
                }
            } else if (c == u'}') {
                return;
            } else {
                throw Sintaxis("Expected , or } at character ", posicion);
            }
        }
    }

    void Array(JsonBag& bolsa, int profundidad) {
        bolsa.esArray_ = true;
        for (;;) {
            Saltar();
            if (Actual() == u',') {
                // Las comas no se comprueban: [,,1,,2,] da dos elementos.
                ++cursor_;
            } else if (Actual() == u']') {
                ++cursor_;
                return;
            } else {
                bolsa.Anadir({}, LeerValor(bolsa, profundidad));
            }
        }
    }

    Valor LeerValor(const JsonBag& madre, int profundidad) {
        Saltar();
        const char16_t c = Actual();
        if (c == u'"') {
            ++cursor_;
            return Texto();
        }
        if (c == u'{' || c == u'[') {
            ++cursor_;
            auto hija = std::make_shared<JsonBag>();
            hija->DecimalMode(madre.DecimalMode());
            Contenedor(*hija, c, profundidad + 1);
            return hija;
        }
        if (c == u'-' || EsCifra(c)) return Numero(madre.DecimalMode());
        if (Palabra(u"null")) return Nulo{};
        if (Palabra(u"true")) return true;
        if (Palabra(u"false")) return false;
        throw Sintaxis("Bad value at character ", cursor_);
    }

    // La palabra sin mirar mayúsculas ("NULL", "True"); si está, el cursor la salta.
    bool Palabra(std::u16string_view palabra) {
        const auto n = static_cast<std::int32_t>(palabra.size());
        if (cursor_ + n - 1 > longitud_) return false;
        for (std::int32_t i = 0; i < n; ++i) {
            if (Minuscula(texto_[Lugar(cursor_ + i)]) != palabra[static_cast<std::size_t>(i)]) {
                return false;
            }
        }
        cursor_ += n;
        return true;
    }

    // Con el cursor tras la comilla de apertura.
    std::string Texto() {
        std::u16string salida;
        for (;;) {
            if (Fin()) throw Sintaxis("Expected \" at character ", longitud_ + 1);
            const char16_t c = Actual();
            if (c < 32) throw Sintaxis("Invalid string character at ", cursor_);
            if (c == u'"') {
                // Una comilla de cierre que es el último carácter del texto también falla.
                if (cursor_ == longitud_)
                    throw Sintaxis("Expected \" at character ", longitud_ + 1);
                ++cursor_;
                return DeUtf16(salida);
            }
            ++cursor_;
            if (c == u'\\') {
                salida += Escape();
                continue;
            }
            // El resto del tramo sin comillas, barras ni controles va de una vez.
            const std::int32_t inicio = cursor_ - 1;
            while (!Fin() && Corriente(Actual())) ++cursor_;
            salida.append(texto_, Lugar(inicio), static_cast<std::size_t>(cursor_ - inicio));
        }
    }

    // Con el cursor en la letra que sigue a la barra; se toma en minúscula ("\N", "\U0041").
    char16_t Escape() {
        const std::int32_t posicion = cursor_;
        const char16_t letra = Minuscula(Actual());
        ++cursor_;
        switch (letra) {
            case u'"':
            case u'\\':
            case u'/':
                return letra;
            case u'b':
                return 8;
            case u'f':
                return 12;
            case u'n':
                return 10;
            case u'r':
                return 13;
            case u't':
                return 9;
            case u'u':
                return Unidad(posicion);
            default:
                throw Sintaxis("Bad string character escape at character ", posicion);
        }
    }

    char16_t Unidad(std::int32_t posicion) {
        if (cursor_ + 3 > longitud_) {
            throw Sintaxis("Bad string character escape at character ", posicion);
        }
        int unidad = 0;
        for (int i = 0; i < 4; ++i) {
            const int cifra = ValorHex(texto_[Lugar(cursor_ + i)]);
            if (cifra < 0) throw Sintaxis("Bad string character escape at character ", posicion);
            unidad = unidad * 16 + cifra;
        }
        cursor_ += 4;
        return static_cast<char16_t>(unidad);
    }

    Valor Numero(bool decimal) {
        const std::int32_t inicio = cursor_;
        std::string copia(1, static_cast<char>(Actual()));
        ++cursor_;
        bool punto = false;
        for (char16_t c = Siguiente(); c == u'.' || EsCifra(c); c = Siguiente()) {
            if (c == u'.') {
                if (punto) throw Sintaxis("Second decimal point at character ", cursor_);
                if (copia == "-") throw Sintaxis("Digit expected at character ", cursor_);
                punto = true;
            }
            copia += static_cast<char>(c);
            ++cursor_;
        }
        if (Siguiente() == u'e') {
            copia += 'e';
            ++cursor_;
            bool signo = false;
            for (char16_t c = Siguiente(); c == u'+' || c == u'-' || EsCifra(c); c = Siguiente()) {
                if (c == u'+' || c == u'-') {
                    if (signo) throw Sintaxis("Second exponent sign at character ", cursor_);
                    signo = true;
                }
                copia += static_cast<char>(c);
                ++cursor_;
            }
        }
        return Convertir(copia, decimal, inicio);
    }

    // El carácter siguiente del número, en minúscula; acabar el texto dentro de él es un error.
    char16_t Siguiente() const {
        if (Fin()) throw ErrorJson(13, "Ran off end of string while parsing a number");
        return Minuscula(Actual());
    }

    static Valor Convertir(const std::string& copia, bool decimal, std::int32_t inicio) {
        if (decimal) {
            if (auto valor = Decimal::DeTexto(copia)) return *valor;
        } else {
            double valor = 0.0;
            const auto [fin, error] = std::from_chars(copia.data(), copia.data() + copia.size(),
                                                      valor, std::chars_format::general);
            if (error == std::errc() && fin == copia.data() + copia.size()) return valor;
        }
        throw Desborde(inicio);
    }

    static ErrorJson Desborde(std::int32_t inicio) {
        return ErrorJson(6,
                         "Number overflow or parse error at character " + std::to_string(inicio));
    }

    std::u16string texto_;
    std::int32_t longitud_;
    std::int32_t cursor_ = 1;
};

void JsonBag::JSON(std::string_view texto) {
    Clear();
    AnalizadorJson(texto).Raiz(*this);
}

}  // namespace quinteva::outputs
