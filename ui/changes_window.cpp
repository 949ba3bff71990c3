#include "ui/changes_window.h"

#include <QBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>

#include "ui/season_window_parts.h"

namespace quinteva::ui {

VentanaCambios::VentanaCambios(const QString& cambios, QWidget* madre) : QDialog(madre) {
    setObjectName(QStringLiteral("VentanaCambios"));
    setWindowTitle(QStringLiteral("Modificaciones de la nueva versión"));
    auto* columna = new QVBoxLayout(this);
    auto* texto = new QPlainTextEdit(cambios, this);
    texto->setObjectName(QStringLiteral("TextoCambios"));
    texto->setReadOnly(true);
    columna->addWidget(texto, 1);
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    connect(
        BotonVentana(this, botones, QStringLiteral("&Actualizar"), QStringLiteral("BotonSeguir")),
        &QPushButton::clicked, this, &QDialog::accept);
    connect(BotonVentana(this, botones, QStringLiteral("&No actualizar a esta versión"),
                         QStringLiteral("BotonNoActualizar")),
            &QPushButton::clicked, this, [this] {
                eleccion_ = seasons::EleccionCambios::NoActualizar;
                reject();
            });
    columna->addLayout(botones);
    resize(520, 380);
}

seasons::EleccionCambios PreguntarCambios(const QString& cambios, QWidget* madre) {
    VentanaCambios ventana(cambios, madre);
    ventana.exec();
    return ventana.Eleccion();
}

}  // namespace quinteva::ui
