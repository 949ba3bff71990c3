// Los mandatos del menú "&Peñas": crear una, abrir una y la última que se abrió.
#include <QAction>

#include "base/text1252.h"
#include "syndicates/pena_files.h"
#include "ui/main_window.h"
#include "ui/pena_data_window.h"
#include "ui/pena_window.h"
#include "ui/qt_text.h"

namespace quinteva::ui {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kValores = "Valores";

}  // namespace

void VentanaPrincipal::CrearPena() {
    auto* datos = new VentanaDatosPena(s_.carpetaTrabajo, std::nullopt, s_.dialogo, this);
    connect(datos, &VentanaDatosPena::guardada, this,
            [this](const QString& ruta) { AbrirPena(ruta.toStdString()); });
    AbrirVentana(datos);
}

void VentanaPrincipal::AbrirPenaDeArchivo() {
    fs::path carpeta = s_.carpetaTrabajo;
    try {
        if (fs::is_directory(syndicates::CarpetaDePenas(s_.carpetaTrabajo))) {
            carpeta = syndicates::CarpetaDePenas(s_.carpetaTrabajo);
        }
    } catch (const std::exception&) {
        // Sin temporada en curso se elige desde la carpeta de trabajo.
    }
    const auto nmp = s_.dialogo.ArchivoParaAbrir("Abrir Peña", syndicates::kFiltroPena, carpeta);
    if (nmp && !nmp->empty()) AbrirPena(fs::path(*nmp).replace_extension());
}

void VentanaPrincipal::AbrirUltimaPena() {
    const std::string nmp = s_.ajustes.Leer(base::kAplicacion, kValores, "UPeña", "");
    if (!nmp.empty()) AbrirPena(fs::path(nmp).replace_extension());
}

void VentanaPrincipal::AbrirPena(const fs::path& ruta) {
    try {
        const syndicates::ArchivosPena pena(ruta);
        const std::string corto(base::Recortar(pena.LeerPena().nombreReducido));
        s_.ajustes.Guardar(base::kAplicacion, kValores, "UPeña",
                           pena.Archivo(syndicates::kExtPena).string());
        s_.ajustes.Guardar(base::kAplicacion, kValores, "NPeña", corto);
        ultimaPena_->setText(Q(corto).toUpper());
        ultimaPena_->setVisible(true);
        ultimaPena_->setEnabled(true);
        AbrirVentana(
            new VentanaPena(pena, {s_.carpetaTrabajo, s_.ajustes, s_.dialogo, s_.imprimir}, this));
    } catch (const std::exception& e) {
        Fallo(e);
    }
}

}  // namespace quinteva::ui
