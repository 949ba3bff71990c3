#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "engine/columns.h"

namespace quinteva::outputs {

inline constexpr std::string_view kSinQuinielas = "No hay columnas que ver.";

// "Ver Quinielas": las columnas del juego elegido de la Combinación guardada (el ".cnd" o el
// ".red" que está al lado de su ".uxd"), las que se juegan, una a una sobre el boleto.
class VistaQuinielas {
  public:
    // fecha: la de la Jornada, como la muestra la ventana principal ("dd/mm/aa").
    VistaQuinielas(const std::filesystem::path& uxd, std::string fecha);

    int Cuenta() const { return static_cast<int>(columnas_.size()); }
    // "JORNADA " & n & ",  Fecha " & fecha.
    std::string Cabecera() const;
    // "Quiniela Nº" & número, desde 1.
    static std::string Titulo(int numero);
    const engine::RegistroColumna& Columna(int indice) const {
        return columnas_.at(static_cast<std::size_t>(indice));
    }
    // "Ver Todas": una línea por columna, su título, sus 14 signos y el Pleno ("1-M").
    std::vector<std::string> Todas() const;

  private:
    int jornada_ = 0;
    std::string fecha_;
    std::vector<engine::RegistroColumna> columnas_;
};

}  // namespace quinteva::outputs
