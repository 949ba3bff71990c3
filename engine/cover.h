#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/columns.h"

namespace quinteva::engine {

using SignosColumna = std::span<const Signo, kPartidos>;

// Código de columna: los 14 signos como cifras de base 3 (1 = 0, X = 1, 2 = 2, el partido 1 la
// más significativa). -1 si algún carácter no es un signo.
std::int32_t CodigoColumna(SignosColumna signos);

inline constexpr std::int32_t kCodigosColumna = 4782969;  // 3^14

// El recubrimiento voraz, columna a columna: se queda una columna si no está a "distancia" o menos
// de ninguna de las ya guardadas. Cada columna guardada marca en un mapa de bits todos los
// códigos que cubre, así que decidir cuesta una consulta. Una columna con caracteres que no son
// signos (un archivo dañado) no tiene código y se compara texto a texto con las guardadas, como
// las demás con ella.
class Recubrimiento {
  public:
    explicit Recubrimiento(int distancia);

    // Verdadero si la columna se guarda.
    bool Considerar(SignosColumna signos);

  private:
    bool Marcada(std::int32_t codigo) const {
        const auto u = static_cast<std::uint32_t>(codigo);
        return (marcadas_[u / 64] >> (u % 64)) & 1U;
    }
    void Marcar(std::int32_t codigo);
    void Poner(std::int32_t codigo) {
        const auto u = static_cast<std::uint32_t>(codigo);
        marcadas_[u / 64] |= std::uint64_t{1} << (u % 64);
    }

    int distancia_;
    std::vector<std::uint64_t> marcadas_;
    // Las guardadas con código, por su código: solo hacen falta para comparar con ellas una
    // columna sin código.
    std::vector<std::int32_t> codigosGuardados_;
    std::vector<Columna> guardadasSinCodigo_;
};

}  // namespace quinteva::engine
