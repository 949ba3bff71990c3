#pragma once

#include <cstdint>

namespace quinteva::base {

// Avance y parada de un trabajo largo. El núcleo llama a menudo y barato; la implementación
// decide cada cuánto se refresca la pantalla (unos 50 ms en el programa) y mira si se pulsó
// "&Detener".
class Progreso {
  public:
    virtual ~Progreso() = default;
    virtual void Avance(std::int64_t hecho, std::int64_t total) = 0;
    virtual bool Detenido() const = 0;
    // Lo que el trabajo lleva escrito (las columnas que pasan), para la cuenta en marcha.
    virtual void Escritas(std::int64_t /*escritas*/) {}
};

// Para quien no muestra nada y nunca para.
class SinProgreso final : public Progreso {
  public:
    void Avance(std::int64_t, std::int64_t) override {}
    bool Detenido() const override { return false; }
};

}  // namespace quinteva::base
