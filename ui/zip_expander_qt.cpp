#include "ui/zip_expander_qt.h"

#include <quazip.h>
#include <quazipfile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "ui/qt_text.h"

namespace quinteva::ui {

namespace {

QString Nombre(const std::filesystem::path& zip) { return Q(zip.filename().string()); }

bool EntradaDentro(const QString& entrada) {
    const QString limpia = QDir::cleanPath(entrada);
    return !entrada.isEmpty() && !QDir::isAbsolutePath(entrada) && limpia != QStringLiteral("..") &&
           !limpia.startsWith(QStringLiteral("../"));
}

// Escribe la entrada actual del zip en la carpeta; el texto del fallo si no puede.
std::optional<QString> EscribirEntrada(QuaZip& archivo, const QDir& carpeta) {
    const QString entrada = archivo.getCurrentFileName();
    if (!EntradaDentro(entrada)) return QStringLiteral("tiene una entrada no válida: ") + entrada;
    const QString destino = carpeta.filePath(entrada);
    if (entrada.endsWith('/')) {
        return carpeta.mkpath(entrada)
                   ? std::nullopt
                   : std::optional(QStringLiteral("no se pudo crear ") + entrada);
    }
    carpeta.mkpath(QFileInfo(entrada).path());
    QuaZipFile dentro(&archivo);
    QFile fuera(destino);
    if (!dentro.open(QIODevice::ReadOnly)) {
        return QStringLiteral("no se pudo leer ") + entrada +
               QStringLiteral(" (error %1)").arg(dentro.getZipError());
    }
    if (!fuera.open(QIODevice::WriteOnly)) return QStringLiteral("no se pudo escribir ") + destino;
    const QByteArray datos = dentro.readAll();
    dentro.close();
    if (dentro.getZipError() != UNZ_OK) {
        return QStringLiteral("tiene dañada la entrada ") + entrada +
               QStringLiteral(" (error %1)").arg(dentro.getZipError());
    }
    if (fuera.write(datos) != datos.size()) return QStringLiteral("no se pudo escribir ") + destino;
    return std::nullopt;
}

}  // namespace

std::optional<std::string> ExpansorQuaZip::Expandir(const std::filesystem::path& zip,
                                                    const std::filesystem::path& carpeta) {
    QuaZip archivo(Q(zip.string()));
    const QString prefijo = QStringLiteral("El archivo comprimido ") + Nombre(zip) + ' ';
    if (!archivo.open(QuaZip::mdUnzip)) {
        return S(prefijo +
                 QStringLiteral("no se puede abrir (error %1).").arg(archivo.getZipError()));
    }
    const QDir destino(Q(carpeta.string()));
    for (bool hay = archivo.goToFirstFile(); hay; hay = archivo.goToNextFile()) {
        if (const auto fallo = EscribirEntrada(archivo, destino)) return S(prefijo + *fallo + '.');
    }
    return std::nullopt;
}

}  // namespace quinteva::ui
