#pragma once

#include <QObject>
#include <QPointer>

#include "base/dialog.h"

namespace quinteva::ui {

// El Dialogo para un trabajo en el hilo de fondo: cada mensaje o pregunta se hace en el hilo de
// la ventana, que la muestra, y el trabajo espera la respuesta. Desde el hilo de la ventana llama
// directamente al Dialogo del programa.
class DialogoEntreHilos final : public base::Dialogo {
  public:
    DialogoEntreHilos(base::Dialogo& real, QObject* ventana) : real_(real), ventana_(ventana) {}

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
    // Ejecuta la llamada en el hilo de la ventana y devuelve lo que dé.
    template <typename F>
    auto EnLaVentana(F llamada) -> decltype(llamada(std::declval<base::Dialogo&>()));

    base::Dialogo& real_;
    QPointer<QObject> ventana_;
};

}  // namespace quinteva::ui
