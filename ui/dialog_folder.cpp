#include "ui/dialog_folder.h"

#include <QDir>
#include <QStandardPaths>
#include <system_error>

namespace quinteva::ui {
namespace fs = std::filesystem;

namespace {

bool EsCarpeta(const fs::path& ruta) {
    std::error_code error;
    return ruta.is_absolute() && fs::is_directory(ruta, error);
}

}  // namespace

fs::path CarpetaDelDialogo(const fs::path& dada, const fs::path& ultima,
                           const fs::path& documentos) {
    if (EsCarpeta(dada) || (dada.has_filename() && EsCarpeta(dada.parent_path()))) return dada;
    const fs::path carpeta = EsCarpeta(ultima) ? ultima : documentos;
    return dada.has_filename() ? carpeta / dada.filename() : carpeta;
}

fs::path DocumentosDelUsuario() {
    const QString documentos = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const fs::path ruta = documentos.toStdString();
    return EsCarpeta(ruta) ? ruta : fs::path(QDir::homePath().toStdString());
}

}  // namespace quinteva::ui
