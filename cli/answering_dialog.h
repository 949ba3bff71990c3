#pragma once

#include <deque>
#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "base/dialog.h"

namespace quinteva::cli {

// El Dialogo de la línea de órdenes: las preguntas ya las contestó el usuario con sus opciones.
// Cada mensaje sale por el flujo dado (stderr), las confirmaciones son Sí / Aceptar, la carpeta y
// el archivo son los dados, y las cajas de entrada contestan los textos dados, uno cada vez y en
// su orden: una caja de más (el sistema rehúsa uno y vuelve a preguntar) es un Error.
class DialogoDeOrdenes : public base::Dialogo {
  public:
    DialogoDeOrdenes(std::ostream& mensajes, std::vector<std::string> textos = {},
                     std::optional<std::filesystem::path> ruta = std::nullopt)
        : mensajes_(mensajes), textos_(textos.begin(), textos.end()), ruta_(std::move(ruta)) {}

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
    std::deque<std::string> textos_;
    std::optional<std::filesystem::path> ruta_;
};

}  // namespace quinteva::cli
