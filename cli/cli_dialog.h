#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/dialog.h"

namespace quinteva::cli {

// El Dialogo de la línea de órdenes contesta como un usuario que sigue adelante: Sí y Aceptar a
// todo, salvo a lo que pide una ventana (añadir una columna a mano, rehabilitar una eliminada),
// que contesta No para que el programa complete el Boleto al azar. El archivo para guardar es el
// de --salida. Anota cada texto con la respuesta tomada.
class DialogoLineaOrdenes final : public base::Dialogo {
  public:
    explicit DialogoLineaOrdenes(std::optional<std::filesystem::path> salida = std::nullopt)
        : salida_(std::move(salida)) {}

    // Lo mostrado y preguntado, en orden: "texto" o "texto [Sí]".
    const std::vector<std::string>& Textos() const { return textos_; }
    // El último mensaje (no pregunta) mostrado; "" si ninguno.
    const std::string& UltimoMensaje() const { return ultimoMensaje_; }

    void Mensaje(std::string_view texto, base::Icono icono) override;
    base::Respuesta PreguntaSiNo(std::string_view texto, base::Respuesta porDefecto) override;
    base::Respuesta PreguntaSiNoCancelar(std::string_view texto,
                                         base::Respuesta porDefecto) override;
    base::Respuesta AceptarCancelar(std::string_view texto) override;
    std::optional<std::string> PedirTexto(std::string_view texto, std::string_view titulo,
                                          std::string_view inicial) override;
    std::optional<std::filesystem::path> ArchivoParaAbrir(
        std::string_view titulo, std::string_view filtro,
        const std::filesystem::path& carpeta) override;
    std::optional<std::filesystem::path> ArchivoParaGuardar(
        std::string_view titulo, std::string_view filtro,
        const std::filesystem::path& inicial) override;
    std::optional<std::filesystem::path> Carpeta(std::string_view titulo,
                                                 const std::filesystem::path& inicial) override;

  private:
    base::Respuesta Contestar(std::string_view texto, base::Respuesta si);

    std::optional<std::filesystem::path> salida_;
    std::vector<std::string> textos_;
    std::string ultimoMensaje_;
};

}  // namespace quinteva::cli
