#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "base/atomic_write.h"
#include "base/bytes.h"

namespace quinteva::syndicates {

using base::Byte;

// Una Peña son tres archivos de registros con su nombre reducido: ".nmp" (sus datos), ".jrn" (una
// Jornada por registro) y ".ptc" (un Apostante por registro). ".ptb" es el transitorio del borrado
// de un Apostante.
inline constexpr std::string_view kExtPena = ".nmp";
inline constexpr std::string_view kExtJornadas = ".jrn";
inline constexpr std::string_view kExtApostantes = ".ptc";
inline constexpr std::string_view kExtBorrado = ".ptb";
inline constexpr std::string_view kFiltroPena = "Peña de Quinteva (*.nmp)|*.nmp|";
inline constexpr std::string_view kCarpetaPenas = "Peñas";
// Jornadas de Quiniela de una Peña: los registros de ".jrn" y el último elemento de los importes.
inline constexpr int kJornadasPena = 70;

// ".nmp", un registro de 319 bytes.
struct RegPena {
    static constexpr std::size_t kLongitud = 319;
    std::string nombre;          // text(50) "Nombre de la Peña"
    std::string nombreReducido;  // text(15), sin blancos: el nombre de los archivos
    std::string temporada;       // text(5)
    std::string direccion;       // text(35)
    std::string codigoPostal;    // text(5)
    std::string ciudad;          // text(35)
    std::string provincia;       // text(25)
    std::string telefono;        // text(9)
    std::string titular;         // text(40) "Titular de la Peña o persona de contacto"
    std::string email;           // text(50)
    std::string web;             // text(50)

    std::array<Byte, kLongitud> ABytes() const;
    static RegPena DeBytes(std::span<const Byte> b);
    friend bool operator==(const RegPena&, const RegPena&) = default;
};

// ".jrn", 73 bytes; el registro n es la Jornada n.
struct RegJornadaPena {
    static constexpr std::size_t kLongitud = 73;
    static constexpr std::size_t kCategorias = 6;
    std::string temporada;  // text(5): lo único que se pone al crearla
    int jornada = 0;
    // 8 bytes que nunca se ponen ni se leen: se conservan tal cual.
    std::array<Byte, 8> reservado{};
    int cerrada = 0;  // -1 "Cerrada", 0 "Abierta"
    float numColumnas = 0;
    float importe = 0;
    // Columnas con 15, 14, 13, 12, 11 y 10 aciertos.
    std::array<int, kCategorias> acertadas{};
    // "Cobra c/u" de cada una de esas categorías.
    std::array<float, kCategorias> premios{};
    float totalCobrado = 0;
    float gastos = 0;
    float aRepartir = 0;

    std::array<Byte, kLongitud> ABytes() const;
    static RegJornadaPena DeBytes(std::span<const Byte> b);
    friend bool operator==(const RegJornadaPena&, const RegJornadaPena&) = default;
};

// ".ptc", 805 bytes, un Apostante; la clave es el nombre, recortado y sin distinguir mayúsculas.
struct RegApostante {
    static constexpr std::size_t kLongitud = 805;
    // Elementos 0 a 70: el j es la Jornada j y el 0 no se usa.
    static constexpr std::size_t kImportes = kJornadasPena + 1;
    std::string temporada;     // text(5)
    std::string nombre;        // text(35) "Apellidos y nombre"
    std::string nif;           // text(9)
    std::string direccion;     // text(35)
    std::string codigoPostal;  // text(5)
    std::string ciudad;        // text(35)
    std::string provincia;     // text(25)
    std::string telefono;      // text(9)
    std::string movil;         // text(9)
    std::string email;         // text(50)
    std::string cuenta;        // text(20)
    std::array<float, kImportes> cuotas{};
    std::array<float, kImportes> obtenido{};

    std::array<Byte, kLongitud> ABytes() const;
    static RegApostante DeBytes(std::span<const Byte> b);
    friend bool operator==(const RegApostante&, const RegApostante&) = default;
};

// CarpetaTrabajo\Peñas\Temporada aa-aa, de la Temporada "aa/aa".
std::filesystem::path CarpetaPenasTemporada(const std::filesystem::path& carpetaTrabajo,
                                            std::string_view temporada);
// La Temporada en curso ("23/24"), la de "Tempor.rar"; sin ella, Error.
std::string TemporadaEnCurso(const std::filesystem::path& carpetaTrabajo);
// La carpeta de las Peñas de la temporada en curso, donde el programa las crea.
std::filesystem::path CarpetaDePenas(const std::filesystem::path& carpetaTrabajo);

// La ruta de un archivo de la Peña: la ruta sin extensión y la extensión.
std::filesystem::path ArchivoPena(const std::filesystem::path& rutaPena,
                                  std::string_view extension);

// Crea la Peña: la carpeta de su temporada si falta, el ".nmp", el ".jrn" con sus 70 registros
// (solo la Temporada puesta) y el ".ptc" vacío. El nombre reducido se guarda sin blancos.
// Devuelve la ruta sin extensión, la que se da a las ventanas.
std::filesystem::path CrearPena(const std::filesystem::path& carpetaTrabajo, RegPena pena,
                                const base::Volcar& volcar = base::VolcarEnDisco);

}  // namespace quinteva::syndicates
