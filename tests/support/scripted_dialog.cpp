#include "tests/support/scripted_dialog.h"

#include <stdexcept>

namespace quinteva::pruebas {

DialogoGuionado& DialogoGuionado::Responder(Respuesta respuesta) {
    guion_.push_back(std::move(respuesta));
    return *this;
}

std::vector<std::string> DialogoGuionado::Textos() const {
    std::vector<std::string> textos;
    for (const auto& i : registro_) textos.push_back(i.texto);
    return textos;
}

template <typename T>
T DialogoGuionado::Siguiente(std::string_view tipo, std::string_view texto) {
    registro_.push_back({std::string(tipo), std::string(texto)});
    if (guion_.empty()) {
        throw std::logic_error("El guion no tiene respuesta para: " + std::string(texto));
    }
    const Respuesta respuesta = guion_.front();
    guion_.pop_front();
    if (!std::holds_alternative<T>(respuesta)) {
        throw std::logic_error("El guion responde otra cosa a: " + std::string(texto));
    }
    return std::get<T>(respuesta);
}

void DialogoGuionado::Mensaje(std::string_view texto, base::Icono) {
    registro_.push_back({"Mensaje", std::string(texto)});
}

base::Respuesta DialogoGuionado::PreguntaSiNo(std::string_view texto, base::Respuesta porDefecto) {
    porDefecto_.push_back(porDefecto);
    return Siguiente<base::Respuesta>("PreguntaSiNo", texto);
}

base::Respuesta DialogoGuionado::PreguntaSiNoCancelar(std::string_view texto,
                                                      base::Respuesta porDefecto) {
    porDefecto_.push_back(porDefecto);
    return Siguiente<base::Respuesta>("PreguntaSiNoCancelar", texto);
}

base::Respuesta DialogoGuionado::AceptarCancelar(std::string_view texto,
                                                 base::Respuesta porDefecto) {
    porDefecto_.push_back(porDefecto);
    return Siguiente<base::Respuesta>("AceptarCancelar", texto);
}

std::optional<std::string> DialogoGuionado::PedirTexto(std::string_view texto, std::string_view,
                                                       std::string_view) {
    return Siguiente<std::optional<std::string>>("PedirTexto", texto);
}

std::optional<std::filesystem::path> DialogoGuionado::ArchivoParaAbrir(
    std::string_view titulo, std::string_view, const std::filesystem::path&) {
    return Siguiente<std::optional<std::filesystem::path>>("ArchivoParaAbrir", titulo);
}

std::optional<std::filesystem::path> DialogoGuionado::ArchivoParaGuardar(
    std::string_view titulo, std::string_view, const std::filesystem::path&) {
    return Siguiente<std::optional<std::filesystem::path>>("ArchivoParaGuardar", titulo);
}

std::optional<std::filesystem::path> DialogoGuionado::Carpeta(std::string_view titulo,
                                                              const std::filesystem::path&) {
    return Siguiente<std::optional<std::filesystem::path>>("Carpeta", titulo);
}

}  // namespace quinteva::pruebas
