#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/settings.h"
#include "engine/columns.h"
#include "seasons/record_files.h"

namespace quinteva::builders {

// Porcentajes de "1", "X" y "2" de un partido.
using Porcentajes = std::array<int, 3>;
// Un partido sin división no tiene datos de la temporada.
inline constexpr Porcentajes kPorcentajesSinDivision = {50, 30, 20};

// La forma de un equipo: 2 por victoria y 1 por empate en los partidos de su división de la
// Jornada maxJornada y las dos anteriores.
int Forma(const std::vector<seasons::RegPartidoLiga>& liga, std::string_view equipo, int division,
          int maxJornada);

// Los porcentajes de un partido desde las fichas de sus dos equipos y su forma.
Porcentajes PorcentajesDePartido(const seasons::RegEquipo& local, int formaLocal,
                                 const seasons::RegEquipo& visitante, int formaVisitante);

// "% &Automático": los porcentajes de los 14 partidos de la base ("Local - Visitante" y su
// división) desde "Nomeq.rar" y "Jlig2.rar" de la temporada; la última Jornada jugada de cada
// división sale de "MaxJor1ª" y "MaxJor2ª".
std::array<Porcentajes, engine::kPartidos> PorcentajesAutomaticos(
    const std::filesystem::path& carpetaTemporada,
    const std::array<std::string, engine::kPartidos>& partidos,
    const std::array<int, engine::kPartidos>& divisiones, const base::Ajustes& ajustes);

}  // namespace quinteva::builders
