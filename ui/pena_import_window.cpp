#include "ui/pena_import_window.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "base/text1252.h"
#include "syndicates/participants.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

namespace {

// La fila de un partícipe: sus datos separados por tabuladores.
QString Fila(const syndicates::RegApostante& a) {
    QStringList campos;
    for (const std::string* c : {&a.nombre, &a.nif, &a.direccion, &a.codigoPostal, &a.ciudad,
                                 &a.provincia, &a.telefono, &a.movil, &a.email, &a.cuenta}) {
        campos << Q(base::Recortar(*c));
    }
    return campos.join(QLatin1Char('\t'));
}

}  // namespace

VentanaImportarParticipes::VentanaImportarParticipes(
    const syndicates::ArchivosPena& pena, std::vector<syndicates::RegApostante> participes,
    base::Dialogo& dialogo, QWidget* madre)
    : QDialog(madre), pena_(pena), participes_(std::move(participes)), dialogo_(dialogo) {
    setObjectName(QStringLiteral("VentanaImportarParticipes"));
    setWindowTitle(QStringLiteral("Importar partícipes"));
    auto* caja = new QVBoxLayout(this);
    caja->addWidget(new QLabel(QStringLiteral("Marcar los partícipes a importar"), this));
    lista_ = new QListWidget(this);
    lista_->setObjectName(QStringLiteral("ListaParticipes"));
    for (const auto& a : participes_) {
        auto* item = new QListWidgetItem(Fila(a), lista_);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    caja->addWidget(lista_, 1);
    auto* botones = new QHBoxLayout;
    connect(
        BotonVentana(this, botones, QStringLiteral("Importar"),
                     QStringLiteral("BotonImportarMarcados")),
        &QPushButton::clicked, this, [this] {
            std::vector<bool> marcados;
            for (int i = 0; i < lista_->count(); ++i) {
                marcados.push_back(lista_->item(i)->checkState() == Qt::Checked);
            }
            ConAviso(dialogo_, [&] {
                if (syndicates::ImportarParticipes(pena_, participes_, marcados, dialogo_) > 0) {
                    emit importados();
                }
            });
        });
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Salir"), QStringLiteral("BotonSalir")),
            &QPushButton::clicked, this, &QDialog::close);
    caja->addLayout(botones);
    resize(640, 360);
}

}  // namespace quinteva::ui
