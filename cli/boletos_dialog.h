#pragma once

#include <filesystem>
#include <optional>
#include <ostream>
#include <string_view>

#include "cli/answering_dialog.h"

namespace quinteva::cli {

// El Dialogo de los subcomandos de Boletos: contesta como un usuario que sigue adelante, Sí y
// Aceptar, salvo a lo que abriría una ventana (añadir una columna a mano, rehabilitar una
// eliminada), que contesta No para que el programa complete el último Boleto al azar. Cada
// pregunta sale por el flujo con la respuesta tomada: "texto [Sí]".
class DialogoDeBoletos final : public DialogoDeOrdenes {
  public:
    explicit DialogoDeBoletos(std::ostream& mensajes,
                              std::optional<std::filesystem::path> ruta = std::nullopt)
        : DialogoDeOrdenes(mensajes, {}, std::move(ruta)), mensajes_(mensajes) {}

    base::Respuesta PreguntaSiNo(std::string_view texto, base::Respuesta porDefecto) override;
    base::Respuesta PreguntaSiNoCancelar(std::string_view texto,
                                         base::Respuesta porDefecto) override;
    base::Respuesta AceptarCancelar(std::string_view texto, base::Respuesta porDefecto) override;

  private:
    base::Respuesta Contestar(std::string_view texto, base::Respuesta siguiendo);

    std::ostream& mensajes_;
};

}  // namespace quinteva::cli
