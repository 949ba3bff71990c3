#include "ui/working_folder_qt.h"

#include <QStandardPaths>
#include <cstdlib>

#include "base/working_folder.h"

namespace quinteva::ui {

std::filesystem::path CarpetaTrabajoDelPrograma() {
    const char* indicada = std::getenv(base::kVariableCarpeta);
    if (indicada != nullptr && *indicada != '\0') return indicada;
    const QString datos = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return std::filesystem::path(datos.toStdString()) / "Quinteva";
}

}  // namespace quinteva::ui
