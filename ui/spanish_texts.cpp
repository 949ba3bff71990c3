#include "ui/spanish_texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace quinteva::ui {

bool TextosDeQtEnEspanol(QCoreApplication& aplicacion) {
    const QLocale espanol(QLocale::Spanish, QLocale::Spain);
    QLocale::setDefault(espanol);
    auto* traductor = new QTranslator(&aplicacion);
    if (!traductor->load(espanol, QStringLiteral("qt"), QStringLiteral("_"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete traductor;
        return false;
    }
    return QCoreApplication::installTranslator(traductor);
}

}  // namespace quinteva::ui
