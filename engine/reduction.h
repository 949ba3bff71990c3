#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "base/progress.h"
#include "base/settings.h"
#include "engine/combination.h"

namespace quinteva::engine {

// DistanciaMaxima: 1, 2 o 3 para "al 13", "al 12" y "al 11".
inline constexpr int kDistanciaMinima = 1;
inline constexpr int kDistanciaMaxima = 3;

// Verdadero en cuanto las dos columnas difieren en más de "limite" partidos.
bool DifierenMasDe(const Columna& a, const Columna& b, int limite);

// Lo que la ventana muestra al acabar una reducción.
struct ResultadoReduccion {
    std::int32_t reducidas = 0;
    // Se paró con "&Detener": lo guardado hasta ahí está en "Red.tmp" y no tiene garantía.
    bool detenida = false;
};

// El comienzo común de las dos reducciones: etiquetas de reducidas y precio en blanco,
// "Guardada" en "NO", contadores de reducidas a 0 y "Red.tmp" borrado.
void PrepararReduccion(Combinacion& combinacion, const std::filesystem::path& carpetaTrabajo);

// El final común: TotalReducidas y ActivasReducidas, la cuenta en la fila del nivel (las otras
// en blanco) y el precio, o en blanco si no queda ninguna.
void TerminarReduccion(Combinacion& combinacion, int distancia, std::int32_t reducidas,
                       const base::Ajustes& ajustes);

// ReducirConCondiciones: el recubrimiento voraz de "Cmb.tmp". Se recorren los TotalGeneradas
// registros en orden (también los eliminados) y se queda cada columna que no está a "distancia"
// o menos de otra ya guardada: la primera pendiente siempre gana. Es lo mismo que hacerlo por
// rondas con listas de pendientes, pero cada columna guardada marca en un mapa de bits, sobre los
// 3^14 códigos de columna, todas las que cubre. Escribe las guardadas en "Red.tmp" en su orden,
// con el PlenoBase y estado "0". Mira Progreso tras cada columna guardada.
ResultadoReduccion ReducirConCondiciones(Combinacion& combinacion,
                                         const std::filesystem::path& carpetaTrabajo, int distancia,
                                         base::Progreso& progreso, const base::Ajustes& ajustes);

}  // namespace quinteva::engine
