#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/column_code.h"
#include "engine/reduction.h"

namespace quinteva::engine {

// El recubrimiento voraz, columna a columna: se queda una columna si no está a "distancia" o menos
// de ninguna de las ya guardadas. Cada columna guardada marca en un mapa de bits todos los
// códigos que cubre, así que decidir cuesta una consulta. Las marcas fuera de la palabra de la
// columna esperan a que se consulte otra palabra: las guardadas seguidas de una misma palabra
// (las columnas suelen llegar en el orden del desarrollo) marcan sus vecinas de una vez. Una
// columna con caracteres que no son signos (un archivo dañado) no tiene código: se compara texto a
// texto con las guardadas sin código, y con las demás, por los códigos a su distancia; las
// columnas que llegan después se comparan con ella texto a texto.
class Recubrimiento {
  public:
    explicit Recubrimiento(int distancia);

    // Verdadero si la columna se guarda.
    bool Considerar(SignosColumna signos) {
        const std::int32_t codigo = CodigoColumna(signos);
        if (codigo >= 0) {
            if (pendiente_ >= 0 && codigo / kPorPalabra != pendiente_) Vaciar();
            if (Marcada(codigo)) return false;
        }
        return ConsiderarSinMarca(signos, codigo);
    }

  private:
    bool ConsiderarSinMarca(SignosColumna signos, std::int32_t codigo);
    // Si alguna guardada con código está a la distancia de una columna sin código.
    bool GuardadaConCodigoCerca(const Columna& columna, std::size_t partido, std::int32_t codigo,
                                int margen) const;
    // Cada palabra guarda los 27 códigos de unos mismos partidos 1 a 11, uno por bit.
    static constexpr std::int32_t kPorPalabra = 27;

    bool Marcada(std::int32_t codigo) const {
        return (marcadas_[static_cast<std::size_t>(codigo / kPorPalabra)] >>
                (codigo % kPorPalabra)) &
               1U;
    }
    // Marca las palabras vecinas de la pendiente con las máscaras pendientes.
    void Vaciar();
    template <int D>
    void MarcarVecinas();

    int distancia_;
    std::vector<std::uint32_t> marcadas_;
    // Las guardadas con código, un bit por código: solo hacen falta para comparar con ellas una
    // columna sin código.
    std::vector<std::uint64_t> guardadas_;
    std::vector<Columna> guardadasSinCodigo_;
    // La palabra de las últimas guardadas, -1 si no hay marcas pendientes, y por cada radio r la
    // unión de las máscaras de sus bajos a distancia r: la que reciben las palabras vecinas a
    // distancia "distancia" - r.
    std::int32_t pendiente_ = -1;
    std::array<std::uint32_t, kDistanciaMaxima + 1> bajasPendientes_{};
};

}  // namespace quinteva::engine
