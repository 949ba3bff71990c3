#pragma once

#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "base/dialog.h"

namespace quinteva::pruebas {

// Lo que el programa mostró o preguntó: el tipo de caja y su texto.
struct Intercambio {
    std::string tipo;  // "Mensaje", "PreguntaSiNo", "PreguntaSiNoCancelar", "AceptarCancelar",
                       // "PedirTexto", "ArchivoParaAbrir", "ArchivoParaGuardar", "Carpeta"
    std::string texto;

    friend bool operator==(const Intercambio&, const Intercambio&) = default;
};

// Dialogo con guion: contesta cada pregunta con la siguiente respuesta de la lista y anota todo lo
// que se mostró, para que una prueba compruebe los textos exactos y su orden. Una pregunta sin
// respuesta en el guion, o con una respuesta de otro tipo, lanza std::logic_error.
class DialogoGuionado : public base::Dialogo {
  public:
    using Respuesta = std::variant<base::Respuesta, std::optional<std::string>,
                                   std::optional<std::filesystem::path>>;

    DialogoGuionado& Responder(Respuesta respuesta);

    const std::vector<Intercambio>& Registro() const { return registro_; }
    // Solo los textos, en orden.
    std::vector<std::string> Textos() const;
    bool GuionAgotado() const { return guion_.empty(); }
    // El botón por defecto de cada pregunta de botones, en orden.
    const std::vector<base::Respuesta>& PorDefecto() const { return porDefecto_; }

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
    template <typename T>
    T Siguiente(std::string_view tipo, std::string_view texto);

    std::deque<Respuesta> guion_;
    std::vector<Intercambio> registro_;
    std::vector<base::Respuesta> porDefecto_;
};

}  // namespace quinteva::pruebas
