#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "engine/columns.h"

namespace quinteva::engine {

// La garantía de una reducción: cada columna activa generada está a "radio" signos o menos de
// alguna reducida activa (al 13, radio 1; al 12, 2; al 11, 3).
struct Verificacion {
    std::int64_t generadas = 0;  // activas comprobadas
    std::int64_t reducidas = 0;  // activas que cubren
    // La primera generada sin cubrir: su número de registro (desde 1) y su columna.
    std::optional<std::int32_t> registro;
    Columna columna{};
    bool Cumple() const { return !registro.has_value(); }
};

// Se marca en un mapa de las 3^14 columnas el entorno de cada reducida y se mira cada generada.
// Una generada que no es una columna de signos no está cubierta.
Verificacion VerificarGarantia(std::span<const RegistroColumna> generadas,
                               std::span<const RegistroColumna> reducidas, int radio);

// El radio de un nivel de aciertos: 14 menos el nivel.
constexpr int RadioDelNivel(int aciertos) { return kPartidos - aciertos; }

}  // namespace quinteva::engine
