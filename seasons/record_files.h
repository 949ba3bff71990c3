#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "base/bytes.h"

namespace quinteva::seasons {

using base::Byte;

// Los registros de los archivos de la temporada. Los textos se guardan tal como se leen (con sus
// blancos); los contadores de un byte van como int para que un valor por encima de 255 sea un
// Desbordamiento al escribir y no una vuelta a cero.

// "Tempor.rar": qué temporada está en curso.
struct RegTempor {
    static constexpr std::size_t kLongitud = 13;
    std::string carpetaTemporada;

    std::array<Byte, kLongitud> ABytes() const;
    static RegTempor DeBytes(std::span<const Byte> b);
    friend bool operator==(const RegTempor&, const RegTempor&) = default;
};

// "Nomeq.rar": un equipo de las dos divisiones con sus cifras de la clasificación.
struct RegEquipo {
    static constexpr std::size_t kLongitud = 85;
    static constexpr std::size_t kJornadas = 45;
    std::string temporada;
    std::string nombre;
    int division = 0;
    int valoracion = 0;
    int posicion = 0;
    int jugados = 0;
    int puntos = 0;
    int ganados = 0;
    int empatados = 0;
    int perdidos = 0;
    int golesFavor = 0;
    int golesContra = 0;
    int diferencia = 0;
    int puntosCasa = 0;
    int ganadosCasa = 0;
    int empatadosCasa = 0;
    int perdidosCasa = 0;
    int puntosFuera = 0;
    int ganadosFuera = 0;
    int empatadosFuera = 0;
    int perdidosFuera = 0;
    // Elemento j - 1: puesto tras la Jornada j; 0 si no se calculó.
    std::array<int, kJornadas> posicionJornada{};

    std::array<Byte, kLongitud> ABytes() const;
    static RegEquipo DeBytes(std::span<const Byte> b);
    friend bool operator==(const RegEquipo&, const RegEquipo&) = default;
};

// "Jlig2.rar", "Jlig2.bak", "Hist.rar": un partido de liga.
struct RegPartidoLiga {
    static constexpr std::size_t kLongitud = 51;
    int jornada = 0;
    std::string siglo = "20";
    double fecha = 0.0;
    std::string temporada;
    int division = 0;
    int partido = 0;
    std::string local;
    std::string visitante;
    int golesLocal = 0;
    int golesVisitante = 0;
    std::string reservado = " ";

    std::array<Byte, kLongitud> ABytes() const;
    static RegPartidoLiga DeBytes(std::span<const Byte> b);
    friend bool operator==(const RegPartidoLiga&, const RegPartidoLiga&) = default;
};

// "Jquin.rar": un partido de una Jornada de Quiniela; el 15 es el Pleno al 15.
struct RegPartidoQuin {
    static constexpr std::size_t kLongitud = 51;
    int jornada = 0;
    std::string siglo = "20";
    double fecha = 0.0;
    int partido = 0;
    std::string temporada;
    int jornadaDiv1 = 0;
    int jornadaDiv2 = 0;
    int division = 0;
    std::string local;
    std::string visitante;
    // "1", "X", "2" (blanco si no se sabe); en el partido 15 la letra de "A" a "P" del Pleno.
    std::string signo = " ";

    std::array<Byte, kLongitud> ABytes() const;
    static RegPartidoQuin DeBytes(std::span<const Byte> b);
    friend bool operator==(const RegPartidoQuin&, const RegPartidoQuin&) = default;
};

// "Jornadas.rar": la columna ganadora de una Jornada de Quiniela.
struct RegJornadaQuin {
    static constexpr std::size_t kLongitud = 22;
    std::string temporada;
    int jornada = 0;
    // Posición p: el signo del partido p; la 15 la letra del Pleno. Se crea en blanco.
    std::string signos = std::string(15, ' ');

    std::array<Byte, kLongitud> ABytes() const;
    static RegJornadaQuin DeBytes(std::span<const Byte> b);
    friend bool operator==(const RegJornadaQuin&, const RegJornadaQuin&) = default;
};

// "Rean.rar": cómo le fue a la Combinación del usuario en una Jornada.
struct RegReanalisis {
    static constexpr std::size_t kLongitud = 178;
    static constexpr std::size_t kEstados = 13;
    int jornada = 0;
    std::int32_t columnas = 0;
    int variantes0 = 0;
    int variantes1 = 0;
    std::array<std::int32_t, 7> premios{};
    std::array<int, 4> reducida{};
    int condicionada = 0;
    // Base, Generales, totales, Consecutivas, Parejas, Tríos, Seguidos, Repeticiones, Sumas,
    // Comparaciones, Grupo, Aciertos, Eliminadas.
    std::array<std::string, kEstados> estados;

    std::array<Byte, kLongitud> ABytes() const;
    static RegReanalisis DeBytes(std::span<const Byte> b);
    friend bool operator==(const RegReanalisis&, const RegReanalisis&) = default;
};

}  // namespace quinteva::seasons
