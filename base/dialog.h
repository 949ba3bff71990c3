#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quinteva::base {

enum class Respuesta { Si, No, Cancelar, Aceptar };

enum class Icono { Informacion, Aviso, Error, Pregunta };

// Todo lo que el programa dice o pregunta al usuario pasa por aquí: en el programa son cajas de
// Qt; en las pruebas, un doble con guion que contesta de una lista y anota cada texto.
class Dialogo {
  public:
    virtual ~Dialogo() = default;

    virtual void Mensaje(std::string_view texto, Icono icono = Icono::Informacion) = 0;
    // Sí / No; porDefecto es el botón que toma Intro.
    virtual Respuesta PreguntaSiNo(std::string_view texto,
                                   Respuesta porDefecto = Respuesta::Si) = 0;
    virtual Respuesta PreguntaSiNoCancelar(std::string_view texto,
                                           Respuesta porDefecto = Respuesta::Si) = 0;
    // Aceptar / Cancelar; porDefecto es el botón que toma Intro.
    virtual Respuesta AceptarCancelar(std::string_view texto,
                                      Respuesta porDefecto = Respuesta::Aceptar) = 0;
    // Caja de entrada: nullopt si el usuario cancela.
    virtual std::optional<std::string> PedirTexto(std::string_view texto, std::string_view titulo,
                                                  std::string_view inicial = {}) = 0;
    // El filtro va con la forma "Descripción (*.ext)|*.ext|".
    virtual std::optional<std::filesystem::path> ArchivoParaAbrir(
        std::string_view titulo, std::string_view filtro, const std::filesystem::path& carpeta) = 0;
    virtual std::optional<std::filesystem::path> ArchivoParaGuardar(
        std::string_view titulo, std::string_view filtro, const std::filesystem::path& inicial) = 0;
    virtual std::optional<std::filesystem::path> Carpeta(std::string_view titulo,
                                                         const std::filesystem::path& inicial) = 0;
};

}  // namespace quinteva::base
