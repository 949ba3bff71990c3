// La escritura de un árbol de bolsas como texto JSON (JSON leído).
#include <cstdio>
#include <string>

#include "outputs/json_bag.h"
#include "outputs/utf16.h"

namespace quinteva::outputs {
namespace {

constexpr int kProfundidadMaxima = 2000;
constexpr std::string_view kFinDeLinea = "\r\n";

// Las unidades UTF-16 que salen como "\uXXXX": controles, invisibles, mitades de par y las que
// los visores confunden.
bool SaleEscapada(char32_t u) {
    return u <= 31 || (u >= 127 && u <= 159) || u == 847 || (u >= 8203 && u <= 8207) ||
           (u >= 8232 && u <= 8238) || u == 8288 || (u >= 65025 && u <= 65039) || u == 65279 ||
           u == 65533 || (u >= 55296 && u <= 57343);
}

bool SeCopia(char c) { return c >= 32 && c <= 126 && c != '"' && c != '\\'; }

void Escapar(std::string& salida, char32_t unidad) {
    char hex[16];
    std::snprintf(hex, sizeof hex, "\\u%04X", static_cast<unsigned>(unidad & 0xFFFF));
    salida += hex;
}

void AnadirUnidad(std::string& salida, char32_t u, std::string_view original) {
    switch (u) {
        case '"':
        case '\\':
            salida += '\\';
            salida += static_cast<char>(u);
            return;
        case 8:
            salida += "\\b";
            return;
        case 12:
            salida += "\\f";
            return;
        case 10:
            salida += "\\n";
            return;
        case 13:
            salida += "\\r";
            return;
        case 9:
            salida += "\\t";
            return;
        default:
            break;
    }
    if (u >= 32 && u <= 126) {
        salida += static_cast<char>(u);
    } else if (SaleEscapada(u)) {
        Escapar(salida, u);
    } else {
        salida += original;
    }
}

// "/" no se escapa, aunque al leer se admite escapada.
void Entrecomillar(std::string& salida, std::string_view texto) {
    salida += '"';
    std::size_t i = 0;
    while (i < texto.size()) {
        // Los tramos que se copian tal cual van de una vez.
        const std::size_t tramo = i;
        while (i < texto.size() && SeCopia(texto[i])) ++i;
        salida.append(texto, tramo, i - tramo);
        if (i == texto.size()) break;
        const std::size_t inicio = i;
        const char32_t punto = LeerPunto(texto, i);
        if (punto >= 0x10000) {
            // Fuera del plano básico son dos mitades de par, y las mitades salen escapadas.
            Escapar(salida, 0xD800 + ((punto - 0x10000) >> 10));
            Escapar(salida, 0xDC00 + ((punto - 0x10000) & 0x3FF));
        } else {
            AnadirUnidad(salida, punto, texto.substr(inicio, i - inicio));
        }
    }
    salida += '"';
}

class EscritorJson {
  public:
    explicit EscritorJson(bool espacios) : espacios_(espacios) {}

    std::string Escribir(const JsonBag& raiz) {
        Bolsa(raiz, 0, 0);
        return std::move(salida_);
    }

  private:
    void Sangrar(int nivel) {
        if (espacios_) salida_.append(static_cast<std::size_t>(nivel) * 4, ' ');
    }

    void FinDeLinea() {
        if (espacios_) salida_ += kFinDeLinea;
    }

    void Elemento(const std::string& nombre, bool conNombre, const Valor& valor, int nivel,
                  int profundidad) {
        Sangrar(nivel);
        if (conNombre) {
            Entrecomillar(salida_, nombre);
            salida_ += ':';
        }
        if (const auto* texto = std::get_if<std::string>(&valor)) {
            Entrecomillar(salida_, *texto);
        } else if (std::holds_alternative<Nulo>(valor) || std::holds_alternative<Vacio>(valor)) {
            salida_ += "null";
        } else if (EsNumeroOLogico(valor)) {
            Numero(nombre, valor);
        } else if (const auto* hija = std::get_if<std::shared_ptr<JsonBag>>(&valor);
                   hija && *hija) {
            Bolsa(**hija, nivel, profundidad + 1);
        } else {
            throw ErrorJson(
                51, nombre + ", unknown/unsupported type = " + std::to_string(CodigoDeTipo(valor)));
        }
    }

    void Numero(const std::string& nombre, const Valor& valor) {
        const auto texto = TextoDeNumero(valor);
        if (!texto) {
            // Solo un infinito o un NaN no tienen texto.
            const double numero = std::holds_alternative<float>(valor)
                                      ? static_cast<double>(std::get<float>(valor))
                                      : std::get<double>(valor);
            char crudo[32];
            std::snprintf(crudo, sizeof crudo, "%g", numero);
            throw ErrorJson(51, nombre + ", value " + crudo + " failed to serialize");
        }
        salida_ += *texto;
    }

    void Bolsa(const JsonBag& bolsa, int nivel, int profundidad) {
        if (profundidad > kProfundidadMaxima) throw ErrorJson(28, "Espacio de pila insuficiente");
        salida_ += bolsa.IsArray() ? '[' : '{';
        const char cierre = bolsa.IsArray() ? ']' : '}';
        if (bolsa.Count() == 0) {
            salida_ += cierre;
            return;
        }
        FinDeLinea();
        static const std::string kSinNombre;
        for (std::int32_t i = 1; i <= bolsa.Count(); ++i) {
            const bool conNombre = !bolsa.IsArray();
            Elemento(conNombre ? bolsa.Name(i) : kSinNombre, conNombre, bolsa.Item(i), nivel + 1,
                     profundidad);
            salida_ += ',';
            FinDeLinea();
        }
        // Se vuelve sobre la última coma (y su fin de línea) para cerrar.
        salida_.resize(salida_.size() - (espacios_ ? 1 + kFinDeLinea.size() : 1));
        FinDeLinea();
        Sangrar(nivel);
        salida_ += cierre;
    }

    bool espacios_;
    std::string salida_;
};

}  // namespace

std::string JsonBag::JSON() const { return EscritorJson(Whitespace).Escribir(*this); }

}  // namespace quinteva::outputs
