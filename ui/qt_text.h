#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace quinteva::ui {

// Los textos del núcleo (UTF-8) a la pantalla y de vuelta.
inline QString Q(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}
inline std::string S(const QString& texto) { return texto.toStdString(); }

}  // namespace quinteva::ui
