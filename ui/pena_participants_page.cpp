#include "ui/pena_participants_page.h"

#include <QBoxLayout>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>

#include "base/text1252.h"
#include "syndicates/ledger.h"
#include "syndicates/participants.h"
#include "ui/pena_context.h"
#include "ui/pena_import_window.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

namespace {

struct Campo {
    const char* rotulo;
    int ancho;
    std::string syndicates::RegApostante::*miembro;
};
constexpr std::array<Campo, 10> kCampos = {{
    {"Apellidos y nombre", 35, &syndicates::RegApostante::nombre},
    {"DNI/NIF", 9, &syndicates::RegApostante::nif},
    {"Dirección", 35, &syndicates::RegApostante::direccion},
    {"C.P.", 5, &syndicates::RegApostante::codigoPostal},
    {"Ciudad", 35, &syndicates::RegApostante::ciudad},
    {"Provincia", 25, &syndicates::RegApostante::provincia},
    {"Tfnº", 9, &syndicates::RegApostante::telefono},
    {"Tfnº Móvil", 9, &syndicates::RegApostante::movil},
    {"E-mail", 50, &syndicates::RegApostante::email},
    {"Cuenta corriente / Tarjeta", 20, &syndicates::RegApostante::cuenta},
}};

QLineEdit* Caja(QWidget* madre, const char* nombre, int ancho) {
    auto* caja = new QLineEdit(madre);
    caja->setObjectName(QString::fromLatin1(nombre));
    caja->setMaximumWidth(ancho);
    return caja;
}

}  // namespace

PaginaApostantesPena::PaginaApostantesPena(const syndicates::ArchivosPena& pena,
                                           base::Dialogo& dialogo, QWidget* madre)
    : QWidget(madre), pena_(pena), dialogo_(dialogo) {
    auto* caja = new QVBoxLayout(this);
    auto* arriba = new QHBoxLayout;
    auto* datos = new QGroupBox(QStringLiteral("Datos del apostante"), this);
    auto* forma = new QFormLayout(datos);
    for (std::size_t i = 0; i < kCampos.size(); ++i) {
        auto* campo = new QLineEdit(datos);
        campo->setObjectName(QStringLiteral("CampoApostante%1").arg(i));
        campo->setMaxLength(kCampos[i].ancho);
        forma->addRow(QString::fromUtf8(kCampos[i].rotulo), campo);
        campos_[i] = campo;
    }
    auto* botones = new QHBoxLayout;
    connect(BotonVentana(this, botones, QStringLiteral("Añadir"), QStringLiteral("BotonAnadir")),
            &QPushButton::clicked, this, [this] {
                ConAviso(dialogo_,
                         [this] { Hecho(syndicates::AnadirApostante(pena_, Datos(), dialogo_)); });
            });
    connect(
        BotonVentana(this, botones, QStringLiteral("Modificar"), QStringLiteral("BotonModificar")),
        &QPushButton::clicked, this, [this] {
            ConAviso(dialogo_, [this] {
                Hecho(syndicates::ModificarApostante(pena_, elegido_, Datos(), dialogo_));
            });
        });
    connect(
        BotonVentana(this, botones, QStringLiteral("Importar"), QStringLiteral("BotonImportar")),
        &QPushButton::clicked, this, &PaginaApostantesPena::Importar);
    forma->addRow(botones);
    arriba->addWidget(datos, 2);

    auto* cuotas = new QGroupBox(QStringLiteral("Introducir cuotas"), this);
    auto* filaCuotas = new QVBoxLayout(cuotas);
    filaCuotas->addWidget(
        new QLabel(QStringLiteral("Juega en cada Jornada la cantidad de euros:"), cuotas));
    importe_ = Caja(cuotas, "CajaImporteCuota", 120);
    filaCuotas->addWidget(importe_);
    auto* rango = new QHBoxLayout;
    rango->addWidget(new QLabel(QStringLiteral("entre las Jornadas"), cuotas));
    desde_ = Caja(cuotas, "CajaDesde", 60);
    hasta_ = Caja(cuotas, "CajaHasta", 60);
    rango->addWidget(desde_);
    rango->addWidget(new QLabel(QStringLiteral("y"), cuotas));
    rango->addWidget(hasta_);
    rango->addStretch();
    filaCuotas->addLayout(rango);
    auto* botonCuotas = new QHBoxLayout;
    connect(
        BotonVentana(cuotas, botonCuotas, QStringLiteral("Introducir cuotas"),
                     QStringLiteral("BotonIntroducirCuotas")),
        &QPushButton::clicked, this, [this] {
            ConAviso(dialogo_, [this] {
                Hecho(syndicates::IntroducirCuotas(pena_, elegido_, S(importe_->text()),
                                                   S(desde_->text()), S(hasta_->text()), dialogo_));
            });
        });
    filaCuotas->addLayout(botonCuotas);
    filaCuotas->addStretch();
    arriba->addWidget(cuotas, 1);
    caja->addLayout(arriba);

    rejilla_ = new QTableWidget(0, syndicates::kJornadasPena + 1, this);
    rejilla_->setObjectName(QStringLiteral("RejillaApostantes"));
    QStringList cabeceras{QStringLiteral("Apellidos y nombre")};
    for (int j = 1; j <= syndicates::kJornadasPena; ++j)
        cabeceras << QStringLiteral("Jorn. %1").arg(j);
    rejilla_->setHorizontalHeaderLabels(cabeceras);
    rejilla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla_->setSelectionBehavior(QAbstractItemView::SelectRows);
    rejilla_->setSelectionMode(QAbstractItemView::SingleSelection);
    rejilla_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(rejilla_, &QTableWidget::cellClicked, this, [this](int fila, int) { Elegir(fila); });
    connect(rejilla_, &QTableWidget::customContextMenuRequested, this, [this](QPoint donde) {
        const int fila = rejilla_->rowAt(donde.y());
        if (fila < 0) return;
        Elegir(fila);
        // Sin bucle propio: el menú se borra al cerrarse.
        auto* menu = new QMenu(this);
        menu->setObjectName(QStringLiteral("MenuApostante"));
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addAction(QStringLiteral("Eliminar"), this, [this, fila] {
            ConAviso(dialogo_, [this, fila] {
                Hecho(
                    syndicates::EliminarApostante(pena_, static_cast<std::size_t>(fila), dialogo_));
            });
        });
        menu->popup(rejilla_->viewport()->mapToGlobal(donde));
    });
    caja->addWidget(rejilla_, 1);
    Refrescar();
}

void PaginaApostantesPena::Refrescar() {
    const auto apostantes = pena_.LeerApostantes();
    rejilla_->setRowCount(static_cast<int>(apostantes.size()));
    for (std::size_t f = 0; f < apostantes.size(); ++f) {
        const auto fila = static_cast<int>(f);
        rejilla_->setItem(fila, 0, new QTableWidgetItem(Q(base::Recortar(apostantes[f].nombre))));
        for (int j = 1; j <= syndicates::kJornadasPena; ++j) {
            const float cuota = apostantes[f].cuotas[static_cast<std::size_t>(j)];
            auto* celda =
                new QTableWidgetItem(cuota > 0 ? Q(syndicates::TextoDeDinero(cuota)) : QString());
            celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            rejilla_->setItem(fila, j, celda);
        }
    }
    rejilla_->resizeColumnToContents(0);
    if (elegido_ && *elegido_ >= apostantes.size()) elegido_.reset();
}

void PaginaApostantesPena::Elegir(int fila) {
    const auto apostantes = pena_.LeerApostantes();
    if (fila < 0 || static_cast<std::size_t>(fila) >= apostantes.size()) return;
    elegido_ = static_cast<std::size_t>(fila);
    const auto& a = apostantes[*elegido_];
    for (std::size_t i = 0; i < kCampos.size(); ++i) {
        campos_[i]->setText(Q(base::Recortar(a.*(kCampos[i].miembro))));
    }
}

syndicates::RegApostante PaginaApostantesPena::Datos() const {
    syndicates::RegApostante datos;
    for (std::size_t i = 0; i < kCampos.size(); ++i)
        datos.*(kCampos[i].miembro) = S(campos_[i]->text());
    return datos;
}

void PaginaApostantesPena::Importar() {
    ConAviso(dialogo_, [this] {
        auto participes = syndicates::ElegirParticipes(pena_, pena_.Ruta().parent_path(), dialogo_);
        if (!participes) return;
        auto* ventana =
            new VentanaImportarParticipes(pena_, std::move(*participes), dialogo_, this);
        connect(ventana, &VentanaImportarParticipes::importados, this, [this] { Hecho(true); });
        AbrirSobre(ventana);
    });
}

void PaginaApostantesPena::Hecho(bool cambio) {
    if (!cambio) return;
    Refrescar();
    emit cambiados();
}

}  // namespace quinteva::ui
