#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "base/bytes.h"

namespace quinteva::engine {

// Un signo es un carácter: "1", "X" (siempre mayúscula en las columnas) o "2". Cuando se indexa,
// el orden es siempre 1, X, 2.
using Signo = char;
inline constexpr std::array<Signo, 3> kSignos = {'1', 'X', '2'};
inline constexpr int kPartidos = 14;

// Índice 0, 1, 2 del signo en el orden 1, X, 2; -1 si no es un signo.
constexpr int IndiceSigno(Signo s) { return s == '1' ? 0 : s == 'X' ? 1 : s == '2' ? 2 : -1; }

// Una columna: 14 signos, el carácter i para el partido i + 1.
using Columna = std::array<Signo, kPartidos>;
// El Pleno al 15: goles del local y del visitante, cada uno "0", "1", "2" o "M".
using PlenoBase = std::array<char, 2>;

Columna ColumnaDeTexto(std::string_view texto);
std::string TextoDeColumna(const Columna& columna);
PlenoBase PlenoDeTexto(std::string_view texto);
std::string TextoDePleno(const PlenoBase& pleno);

// Estado de un registro: "0" activa, "1" eliminada. Las eliminadas siguen en su sitio.
inline constexpr char kActiva = '0';
inline constexpr char kEliminada = '1';

// Registro de 17 bytes de "Cmb.tmp", "Red.tmp", ".cnd" y ".red".
struct RegistroColumna {
    static constexpr std::size_t kLongitud = 17;

    Columna columna{};
    PlenoBase pleno{' ', ' '};
    char estado = kActiva;

    bool Activa() const { return estado == kActiva; }
    std::array<base::Byte, kLongitud> ABytes() const;
    static RegistroColumna DeBytes(std::span<const base::Byte> bytes);

    friend bool operator==(const RegistroColumna&, const RegistroColumna&) = default;
};

}  // namespace quinteva::engine
