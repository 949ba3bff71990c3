#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/settings.h"

namespace quinteva::builders {

// Las cabeceras de las rejillas del panel de información.
inline constexpr std::string_view kTituloPuestos = "Puesto en la Liga por Jornadas";
inline constexpr std::array<std::string_view, 4> kCabeceraRecientes = {"Fecha", "Local",
                                                                       "Visitante", "Gol."};
inline constexpr std::array<std::string_view, 5> kCabeceraClasificacion = {
    "Clasificación", "Total", "Casa", "Fuera", "Equipo"};
// Partidos recientes que se muestran de cada equipo.
inline constexpr std::size_t kPartidosRecientes = 5;

// El texto de un partido de la Quiniela Base partido en "-": el local hasta dos caracteres antes
// del guion, el visitante desde dos después.
struct Enfrentamiento {
    std::string local;
    std::string visitante;
};
Enfrentamiento DividirPartido(std::string_view partido);

struct PartidoReciente {
    std::string fecha;  // "dd/MM/yy"
    std::string local;
    std::string visitante;
    int golesLocal = 0;
    int golesVisitante = 0;
};

// Lo que el panel muestra de un equipo.
struct FichaEquipo {
    std::string nombre;
    bool encontrado = false;  // está en "Nomeq.rar"
    // Su puesto y sus puntos en la clasificación, y su Valoracion.
    int posicion = 0;
    int puntos = 0;
    int valoracion = 0;
    // Puesto tras cada Jornada, de la 1 a la 2 x equipos - 2; 0 es un punto sin línea.
    std::vector<int> puestos;
    // Los últimos partidos jugados de su división (hasta "MaxJor"), el más reciente primero.
    std::vector<PartidoReciente> recientes;
};

struct FilaClasificacion {
    int posicion = 0;
    int puntos = 0;
    int puntosCasa = 0;
    int puntosFuera = 0;
    std::string equipo;
};

struct InfoPartido {
    int division = 0;
    int equipos = 0;  // "NEq1" o "NEq2"; 0: no hay nada que mostrar
    FichaEquipo local;
    FichaEquipo visitante;
    // La clasificación de la división por puesto.
    std::vector<FilaClasificacion> clasificacion;
};

// Info: los datos del panel para la fila de la Quiniela Base con ese texto y esa división.
InfoPartido Info(const std::filesystem::path& carpetaTemporada, std::string_view partido,
                 int division, const base::Ajustes& ajustes);

}  // namespace quinteva::builders
