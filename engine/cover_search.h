#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

#include "engine/neighbourhoods.h"

namespace quinteva::engine {

// La búsqueda local sobre un recubrimiento: se toma al azar una elegida y se cambia por otra
// columna que cubra cuanto solo ella cubría (la que deja más columnas cubiertas dos veces,
// entre unas pocas al azar, y nunca una quitada hace poco); las elegidas que el cambio deja
// sobrando se quitan. Cada paso deja un recubrimiento, nunca mayor que el anterior.
class BusquedaLocal {
  public:
    BusquedaLocal(const Entornos& entornos, int radio, const std::vector<std::size_t>& elegidas,
                  std::uint64_t semilla);

    // Un cambio; verdadero si el recubrimiento menguó.
    bool Paso();
    std::size_t Tamano() const { return elegidas_.size(); }
    // Las elegidas en orden de índice.
    std::vector<std::size_t> Elegidas() const;

  private:
    static constexpr std::int32_t kFuera = -1;
    // Candidatas que se puntúan en cada cambio, y pasos durante los que una quitada no vuelve.
    static constexpr int kMuestras = 4;
    static constexpr std::uint32_t kVeda = 8;

    void Poner(std::size_t columna, std::vector<std::size_t>* cubiertasDos);
    void Quitar(std::size_t columna);
    bool Sobra(std::size_t columna) const;
    // Las columnas que solo cubre la elegida e.
    void SoloDe(std::size_t e, std::vector<std::size_t>& solas) const;
    // Las que cubren todas las solas (menos e, las ya elegidas y las vedadas).
    void Candidatas(std::size_t e, const std::vector<std::size_t>& solas,
                    std::vector<std::size_t>& candidatas) const;
    // Cuántas columnas que otra elegida (no e) cubre sola cubriría también c.
    int Puntos(std::size_t c, std::size_t e) const;
    std::size_t Azar(std::size_t n) { return static_cast<std::size_t>(azar_() % n); }

    const Entornos& entornos_;
    int radio_;
    std::mt19937_64 azar_;
    std::uint32_t pasos_ = 0;
    std::vector<std::size_t> elegidas_;
    std::vector<std::int32_t> posicion_;  // en elegidas_, o kFuera
    std::vector<std::uint16_t> veces_;    // cuántas elegidas cubren cada columna
    std::vector<std::uint32_t> cubren_;   // el o exclusivo de sus índices: con una sola, ella
    std::vector<std::uint32_t> quitadaEn_;
    std::vector<std::size_t> solas_, candidatas_, cubiertasDos_;
};

}  // namespace quinteva::engine
