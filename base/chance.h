#pragma once

#include <cstdint>
#include <random>

namespace quinteva::base {

// Los sorteos del programa (columnas aleatorias, registros a eliminar).
class Azar {
  public:
    virtual ~Azar() = default;
    // Un número en [0, 1).
    virtual double Siguiente() = 0;
    // Un entero en [desde, hasta], con Siguiente como en el sistema: Int((hasta - desde + 1) * r).
    std::int64_t Entero(std::int64_t desde, std::int64_t hasta);
};

// Generador de la biblioteca estándar: con la hora como semilla en el programa, fija en pruebas.
class AzarEstandar final : public Azar {
  public:
    explicit AzarEstandar(std::uint64_t semilla);
    double Siguiente() override;

    // Semilla tomada del reloj.
    static std::uint64_t SemillaDelReloj();

  private:
    std::mt19937_64 motor_;
};

}  // namespace quinteva::base
