#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "outputs/winning_column.h"

namespace quinteva::outputs {

// La tabla de aciertos de la ventana, siete lugares: 0 "Quince Aciertos" (ningún fallo y el
// Pleno acertado), 1 "Catorce Aciertos" (ningún fallo) ... 6 "Nueve Aciertos" (cinco fallos).
inline constexpr int kLugaresAciertos = 7;
// Los lugares 0 a 5 guardan la lista de números de columna; el 6 solo la cuenta.
inline constexpr int kLugaresConLista = 6;
inline constexpr std::array<std::string_view, kLugaresAciertos> kTitulosAciertos = {
    "Quince Aciertos", "Catorce Aciertos", "Trece Aciertos", "Doce Aciertos",
    "Once Aciertos",   "Diez Aciertos",    "Nueve Aciertos"};
// Con seis fallos la columna queda fuera.
inline constexpr int kFallosFuera = 6;

struct TablaAciertos {
    std::array<std::int32_t, kLugaresAciertos> cuentas{};
    // Números de columna desde 1, por lugar, en el orden en que se encontraron.
    std::array<std::vector<std::int32_t>, kLugaresConLista> listas;
};

// Una cuenta como la muestra la ventana: "#,##0" y un blanco detrás ("0 " si no hay ninguna).
std::string TextoCuenta(std::int32_t cuenta);
std::array<std::string, kLugaresAciertos> TextosCuentas(const TablaAciertos& tabla);
// Alguna lista de 14 a 10 aciertos tiene columnas: se puede ver "Colu&mnas".
bool HayLocalizadas(const TablaAciertos& tabla);

// La comparación de una columna con la ColumnaGanadora, igual para las tres fuentes. Compara como
// texto los 14 caracteres, ocho a la vez: cada palabra de 64 bits lleva 8 signos y los bytes
// distintos del XOR con la ganadora son los fallos. El resultado es el del recorrido carácter a
// carácter que se para al sexto fallo: por encima de 5 fallos la cuenta exacta no cambia nada.
class Comparador {
  public:
    // soloConocidos: "A&vance", que no cuenta los partidos con la ganadora en blanco. Una
    // ganadora corta se completa con blancos.
    explicit Comparador(std::string_view ganadora, bool soloConocidos = false);

    // Fallos de los 14 caracteres de signos (hay que poder leer los 14), hasta kFallosFuera.
    int Fallos(const char* signos) const;

    // Cuenta la columna número `numero` con el Pleno de su Boleto (2 caracteres) y la anota en
    // las listas.
    void Anotar(const char* signos, std::string_view plenoBoleto, std::int32_t numero,
                TablaAciertos& tabla) const;

    // "A&vance": con e fallos (menos de 6) suma uno a cada lugar de e + 1 a 6, sin listas.
    void AnotarAvance(const char* signos, TablaAciertos& tabla) const;

    const std::string& Pleno() const { return pleno_; }

  private:
    std::uint64_t primeros_ = 0;
    std::uint64_t ultimos_ = 0;
    std::uint64_t mascaraPrimeros_ = 0;
    std::uint64_t mascaraUltimos_ = 0;
    std::string pleno_;
};

}  // namespace quinteva::outputs
