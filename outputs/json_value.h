#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "base/error.h"

namespace quinteva::outputs {

class JsonBag;

// Fallo del modelo JSON: número, origen ("JsonBag") y texto; what() es el texto.
class ErrorJson : public base::Error {
  public:
    ErrorJson(int numero, std::string texto) : base::Error(std::move(texto)), numero_(numero) {}
    int Numero() const { return numero_; }
    std::string_view Origen() const { return "JsonBag"; }

  private:
    int numero_;
};

struct Nulo {
    friend bool operator==(Nulo, Nulo) = default;
};
struct Vacio {
    friend bool operator==(Vacio, Vacio) = default;
};
// Moneda: diezmilésimas en un entero de 64 bits.
struct Moneda {
    std::int64_t diezmilesimas = 0;
    friend bool operator==(Moneda, Moneda) = default;
};
// Una fecha se puede guardar pero no serializar.
struct Fecha {
    double serie = 0.0;
    friend bool operator==(Fecha, Fecha) = default;
};

// Decimal de hasta 29 cifras con escala de 0 a 28, guardado como su texto canónico: "." como
// punto, sin ceros sobrantes en la fracción.
class Decimal {
  public:
    // nullopt si el texto no es un número o no cabe.
    static std::optional<Decimal> DeTexto(std::string_view texto);
    const std::string& Texto() const { return texto_; }
    friend bool operator==(const Decimal&, const Decimal&) = default;

  private:
    explicit Decimal(std::string texto) : texto_(std::move(texto)) {}
    std::string texto_;
};

// Un valor del modelo: nulo, vacío, lógico, número de cualquiera de sus anchos, texto (UTF-8),
// fecha o una bolsa hija, que va por referencia.
using Valor = std::variant<Vacio, Nulo, bool, std::int16_t, std::int32_t, float, double, Moneda,
                           Decimal, std::uint8_t, std::string, Fecha, std::shared_ptr<JsonBag>>;

// El código de tipo que nombra el error de serialización (7 para una fecha...).
int CodigoDeTipo(const Valor& valor);

// Texto de un número con el punto como separador y en minúsculas: 15 cifras significativas para
// el double, 7 para el single, exponente a partir de 1e15 y por debajo de 1e-4 ("1e+20").
std::string TextoDeDouble(double valor);
std::string TextoDeSingle(float valor);
std::string TextoDeMoneda(Moneda valor);

// Los números y los lógicos, que salen como texto sin comillas.
bool EsNumeroOLogico(const Valor& valor);
// Su texto en el JSON: "true", "false", "100000", "1e+20"; nullopt si no tiene forma de texto
// (infinito, NaN).
std::optional<std::string> TextoDeNumero(const Valor& valor);

}  // namespace quinteva::outputs
