#include "ui/pena_window.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

#include "base/text1252.h"
#include "syndicates/participants.h"
#include "syndicates/pena_backup.h"
#include "syndicates/reports.h"
#include "ui/pena_accounts_window.h"
#include "ui/pena_data_window.h"
#include "ui/pena_matchday_page.h"
#include "ui/pena_participants_page.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

VentanaPena::VentanaPena(syndicates::ArchivosPena pena, EntornoPena entorno, QWidget* madre)
    : QDialog(madre), pena_(std::move(pena)), entorno_(std::move(entorno)) {
    setObjectName(QStringLiteral("VentanaPena"));
    auto* caja = new QVBoxLayout(this);
    auto* arriba = new QHBoxLayout;
    nombre_ = new QLabel(this);
    nombre_->setObjectName(QStringLiteral("NombrePena"));
    QFont negrita = nombre_->font();
    negrita.setBold(true);
    negrita.setPointSizeF(negrita.pointSizeF() * 1.3);
    nombre_->setFont(negrita);
    arriba->addWidget(nombre_, 1);
    connect(BotonVentana(this, arriba, QStringLiteral("&Apostantes"),
                         QStringLiteral("BotonPaginaApostantes")),
            &QPushButton::clicked, this, [this] { IrA(0); });
    connect(BotonVentana(this, arriba, QStringLiteral("&Jornadas"),
                         QStringLiteral("BotonPaginaJornadas")),
            &QPushButton::clicked, this, [this] { IrA(1); });
    caja->addLayout(arriba);
    paginas_ = new QStackedWidget(this);
    apostantes_ = new PaginaApostantesPena(pena_, entorno_.dialogo, paginas_);
    jornadas_ = new PaginaJornadasPena(pena_, entorno_, paginas_);
    paginas_->addWidget(apostantes_);
    paginas_->addWidget(jornadas_);
    connect(apostantes_, &PaginaApostantesPena::cambiados, jornadas_,
            &PaginaJornadasPena::Refrescar);
    caja->addWidget(paginas_, 1);

    auto* botones = new QHBoxLayout;
    const auto boton = [&](const QString& texto, const char* nombre, auto accion) {
        connect(BotonVentana(this, botones, texto, QString::fromLatin1(nombre)),
                &QPushButton::clicked, this, accion);
    };
    boton(QStringLiteral("I&nforme Peña"), "BotonInformePena", [this] { InformePena(); });
    boton(QStringLiteral("Detalle de Jornadas"), "BotonDetalleApostante",
          [this] { DetalleApostante(); });
    boton(QStringLiteral("Informe de Apostantes"), "BotonInformeApostantes", [this] {
        Documento(QStringLiteral("Informe de Apostantes"),
                  syndicates::ImpresionApostantes(pena_.LeerPena(), pena_.LeerApostantes()),
                  " Apostantes.pdf");
    });
    boton(QStringLiteral("Relación de Apostantes"), "BotonRelacion", [this] {
        Documento(QStringLiteral("Relación de Apostantes en base de datos"),
                  syndicates::ImpParticipes(pena_.LeerPena(), pena_.LeerApostantes()),
                  " Relación.pdf");
    });
    boton(QStringLiteral("Datos de la Peña"), "BotonDatosPena", [this] {
        auto* datos = new VentanaDatosPena(entorno_.carpetaTrabajo, pena_, entorno_.dialogo, this);
        connect(datos, &VentanaDatosPena::guardada, this, &VentanaPena::Titulo);
        AbrirSobre(datos);
    });
    boton(QStringLiteral("Copia de Seguridad"), "BotonCopiaSeguridad", [this] {
        ConAviso(entorno_.dialogo, [this] {
            syndicates::CopiaSeguridad(pena_.Ruta(),
                                       std::string(base::Recortar(pena_.LeerPena().nombre)),
                                       entorno_.dialogo);
        });
    });
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Salir"), QStringLiteral("BotonSalir")),
            &QPushButton::clicked, this, &QDialog::close);
    caja->addLayout(botones);
    Titulo();
    IrA(0);
    resize(1000, 680);
}

void VentanaPena::Titulo() {
    ConAviso(entorno_.dialogo, [this] {
        const auto datos = pena_.LeerPena();
        const QString nombre = Q(base::Recortar(datos.nombre));
        setWindowTitle(QStringLiteral("Peña ") + nombre);
        nombre_->setText(nombre + QStringLiteral("   (Temporada ") + Q(datos.temporada) +
                         QStringLiteral(")"));
    });
}

void VentanaPena::IrA(int pagina) { paginas_->setCurrentIndex(pagina); }

void VentanaPena::Documento(const QString& titulo, outputs::Impresion paginas,
                            const std::string& sufijo) {
    AbrirEnVisor(this, entorno_, titulo, std::move(paginas), pena_.Ruta().string() + sufijo);
}

void VentanaPena::InformePena() {
    ConAviso(entorno_.dialogo, [this] {
        const auto cuentas = syndicates::CuentasDePena(pena_.LeerJornadas());
        AbrirSobre(new VentanaCuentas(
            QStringLiteral("Informe Peña"), {Q(base::Recortar(pena_.LeerPena().nombre))}, cuentas,
            true,
            [this, cuentas] {
                Documento(QStringLiteral("Detalle de Jornadas jugadas"),
                          syndicates::ImpresionInformePena(pena_.LeerPena(), cuentas),
                          " Informe.pdf");
            },
            this));
    });
}

void VentanaPena::DetalleApostante() {
    const auto elegido = apostantes_->Elegido();
    if (!elegido) {
        entorno_.dialogo.Mensaje(syndicates::kMsgSeleccioneDeLaLista, base::Icono::Aviso);
        return;
    }
    ConAviso(entorno_.dialogo, [this, elegido] {
        const auto a = pena_.LeerApostantes().at(*elegido);
        AbrirSobre(new VentanaCuentas(
            QStringLiteral("Detalle de Jornadas"),
            {Q(base::Recortar(a.nombre)), QStringLiteral("DNI: ") + Q(base::Recortar(a.nif))},
            syndicates::CuentasDeApostante(a), false,
            [this, a] {
                Documento(QStringLiteral("Informe de Apostantes"),
                          syndicates::ImpresionApostantes(pena_.LeerPena(), {a}), " Apostante.pdf");
            },
            this));
    });
}

}  // namespace quinteva::ui
