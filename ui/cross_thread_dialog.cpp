#include "ui/cross_thread_dialog.h"

#include <QMetaObject>
#include <QThread>

namespace quinteva::ui {

template <typename F>
auto DialogoEntreHilos::EnLaVentana(F llamada)
    -> decltype(llamada(std::declval<base::Dialogo&>())) {
    using Resultado = decltype(llamada(real_));
    if (ventana_ == nullptr || QThread::currentThread() == ventana_->thread()) {
        return llamada(real_);
    }
    if constexpr (std::is_void_v<Resultado>) {
        QMetaObject::invokeMethod(
            ventana_, [this, &llamada] { llamada(real_); }, Qt::BlockingQueuedConnection);
    } else {
        Resultado resultado{};
        QMetaObject::invokeMethod(
            ventana_, [this, &llamada, &resultado] { resultado = llamada(real_); },
            Qt::BlockingQueuedConnection);
        return resultado;
    }
}

void DialogoEntreHilos::Mensaje(std::string_view texto, base::Icono icono) {
    EnLaVentana([&](base::Dialogo& d) { d.Mensaje(texto, icono); });
}

base::Respuesta DialogoEntreHilos::PreguntaSiNo(std::string_view texto,
                                                base::Respuesta porDefecto) {
    return EnLaVentana([&](base::Dialogo& d) { return d.PreguntaSiNo(texto, porDefecto); });
}

base::Respuesta DialogoEntreHilos::PreguntaSiNoCancelar(std::string_view texto,
                                                        base::Respuesta porDefecto) {
    return EnLaVentana([&](base::Dialogo& d) { return d.PreguntaSiNoCancelar(texto, porDefecto); });
}

base::Respuesta DialogoEntreHilos::AceptarCancelar(std::string_view texto,
                                                   base::Respuesta porDefecto) {
    return EnLaVentana([&](base::Dialogo& d) { return d.AceptarCancelar(texto, porDefecto); });
}

std::optional<std::string> DialogoEntreHilos::PedirTexto(std::string_view texto,
                                                         std::string_view titulo,
                                                         std::string_view inicial) {
    return EnLaVentana([&](base::Dialogo& d) { return d.PedirTexto(texto, titulo, inicial); });
}

std::optional<std::filesystem::path> DialogoEntreHilos::ArchivoParaAbrir(
    std::string_view titulo, std::string_view filtro, const std::filesystem::path& carpeta) {
    return EnLaVentana(
        [&](base::Dialogo& d) { return d.ArchivoParaAbrir(titulo, filtro, carpeta); });
}

std::optional<std::filesystem::path> DialogoEntreHilos::ArchivoParaGuardar(
    std::string_view titulo, std::string_view filtro, const std::filesystem::path& inicial) {
    return EnLaVentana(
        [&](base::Dialogo& d) { return d.ArchivoParaGuardar(titulo, filtro, inicial); });
}

std::optional<std::filesystem::path> DialogoEntreHilos::Carpeta(
    std::string_view titulo, const std::filesystem::path& inicial) {
    return EnLaVentana([&](base::Dialogo& d) { return d.Carpeta(titulo, inicial); });
}

}  // namespace quinteva::ui
