#include "ui/settings_qt.h"
#include "ui/qt_text.h"

#include <QSettings>
#include <QString>

namespace quinteva::ui {
namespace {

QString Clave(std::string_view seccion, std::string_view clave) {
    return Q(seccion) + QLatin1Char('/') + Q(clave);
}

}  // namespace

AjustesQt::AjustesQt(std::filesystem::path carpeta) : carpeta_(std::move(carpeta)) {}

std::string AjustesQt::Leer(std::string_view aplicacion, std::string_view seccion,
                            std::string_view clave, std::string_view defecto) const {
    const QSettings ajustes(
        QString::fromStdString((carpeta_ / (std::string(aplicacion) + ".ini")).string()),
        QSettings::IniFormat);
    return ajustes.value(Clave(seccion, clave), Q(defecto)).toString().toStdString();
}

void AjustesQt::Guardar(std::string_view aplicacion, std::string_view seccion,
                        std::string_view clave, std::string_view valor) {
    QSettings ajustes(
        QString::fromStdString((carpeta_ / (std::string(aplicacion) + ".ini")).string()),
        QSettings::IniFormat);
    ajustes.setValue(Clave(seccion, clave), Q(valor));
    ajustes.sync();
}

}  // namespace quinteva::ui
