#pragma once

#include <filesystem>
#include <optional>
#include <ostream>
#include <string>

#include "base/dialog.h"

namespace quinteva::cli {

// El Dialogo de la línea de órdenes: las preguntas ya las contestó el usuario con sus opciones.
// Cada mensaje sale por el flujo dado (stderr), las confirmaciones son Sí / Aceptar, la carpeta y
// el archivo son los dados, y la caja de entrada contesta una vez el texto dado: si el sistema lo
// rehúsa y vuelve a preguntar, es un Error.
class DialogoDeOrdenes : public base::Dialogo {
  public:
    DialogoDeOrdenes(std::ostream& mensajes, std::optional<std::string> texto = std::nullopt,
                     std::optional<std::filesystem::path> ruta = std::nullopt)
        : mensajes_(mensajes), texto_(std::move(texto)), ruta_(std::move(ruta)) {}

    void Mensaje(std::string_view texto, base::Icono icono) override;
    base::Respuesta PreguntaSiNo(std::string_view texto, base::Respuesta porDefecto) override;
    base::Respuesta PreguntaSiNoCancelar(std::string_view texto,
                                         base::Respuesta porDefecto) override;
    base::Respuesta AceptarCancelar(std::string_view texto, base::Respuesta porDefecto) override;
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
    std::ostream& mensajes_;
    std::optional<std::string> texto_;
    std::optional<std::filesystem::path> ruta_;
    bool preguntado_ = false;
};

}  // namespace quinteva::cli
