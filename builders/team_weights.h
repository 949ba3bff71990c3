#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "engine/columns.h"

namespace quinteva::builders {

// "Ponderar equipos": seis circunstancias por equipo; las marcas 0 a 5 son del local y las 6 a
// 11 del visitante.
inline constexpr int kFactores = 6;
inline constexpr std::array<std::string_view, kFactores> kCircunstancias = {
    "Bajas importantes",
    "El equipo contrario se le da mal",
    "Estado del campo le perjudica",
    "El árbitro no le favorece",
    "Otras circunstancias desfavorables",
    "Circunstancias favorables",
};
// Lo que cuenta una marca: -6 las desfavorables, +8 la favorable.
int PesoDeCircunstancia(int factor);

// PesoLocal y PesoVisitante: la suma de las marcas de cada equipo, por partido (de -30 a +8).
// Duran lo que el programa; nadie más los lee.
struct PesosEquipos {
    std::array<std::int16_t, engine::kPartidos> local{};
    std::array<std::int16_t, engine::kPartidos> visitante{};
};

using MarcasDelPartido = std::array<bool, 2 * kFactores>;

// La ventana: el partido que se ve (1 a 14), sus doce marcas y MarcasPonderacion mientras dura.
class Ponderacion {
  public:
    explicit Ponderacion(PesosEquipos& pesos) : pesos_(pesos) {}

    int Partido() const { return partido_; }
    const MarcasDelPartido& Marcas() const { return actuales_; }
    // Una circunstancia no puede ir a los dos equipos: marcar una quita la del otro.
    void Marcar(int marca, bool marcada);

    // "&Anterior", "&Siguiente", al 1 y al 14: FijarVar, el partido nuevo y DevolverVar. No se
    // pasa del 1 ni del 14.
    void IrA(int partido);
    // "&Terminar": FijarVar y se borran las marcas; los pesos se quedan.
    void Terminar();

  private:
    void FijarVar();
    void DevolverVar();

    PesosEquipos& pesos_;
    std::array<std::array<std::int16_t, engine::kPartidos + 1>, 2 * kFactores> marcas_{};
    MarcasDelPartido actuales_{};
    int partido_ = 1;
};

// Los equipos de un partido de la rejilla de la Quiniela Base: lo que hay antes de " -" y lo
// que hay después.
std::pair<std::string, std::string> EquiposDelPartido(std::string_view etiqueta);

}  // namespace quinteva::builders
