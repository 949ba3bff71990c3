#include "ui/print_window_base.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QPushButton>

#include "outputs/slip_marks.h"
#include "ui/print_range_dialog.h"
#include "ui/printer_select_window.h"
#include "ui/season_window_parts.h"
#include "ui/slip_grid.h"

namespace quinteva::ui {

VentanaDeImpresion::VentanaDeImpresion(ColumnasAImprimir columnas, base::Ajustes& ajustes,
                                       base::Dialogo& dialogo, Imprimir imprimir, QWidget* madre)
    : QDialog(madre),
      columnas_(std::move(columnas)),
      ajustes_(ajustes),
      dialogo_(dialogo),
      imprimir_(std::move(imprimir)) {}

void VentanaDeImpresion::Construir(const QString& titulo, QGroupBox* panelAjuste) {
    setWindowTitle(titulo);
    auto* fila = new QHBoxLayout(this);
    boleto_ = new RejillaBoleto(this);
    fila->addWidget(boleto_);
    auto* derecha = new QVBoxLayout;
    const auto boton = [this, derecha](const QString& texto, const char* nombre) {
        auto* b = new QPushButton(texto, this);
        b->setObjectName(QString::fromLatin1(nombre));
        b->setAutoDefault(false);
        derecha->addWidget(b);
        return b;
    };
    connect(boton(QStringLiteral("Imprimir &Uno"), "BotonImprimirUno"), &QPushButton::clicked, this,
            [this] { Enviar([this] { return Uno(BoletoElegido()); }); });
    connect(boton(QStringLiteral("Imprimir &Todos"), "BotonImprimirTodos"), &QPushButton::clicked,
            this, &VentanaDeImpresion::ImprimirTodos);
    connect(boton(QStringLiteral("&Ajustar Impresora"), "BotonAjustarImpresora"),
            &QPushButton::clicked, this, &VentanaDeImpresion::MostrarAjuste);
    connect(boton(QStringLiteral("S&eleccionar Impresora"), "BotonSeleccionarImpresora"),
            &QPushButton::clicked, this, [this] {
                auto* ventana = new VentanaSeleccionImpresora(ajustes_, this);
                ventana->setAttribute(Qt::WA_DeleteOnClose);
                ventana->open();
            });
    panel_ = panelAjuste;
    panel_->setVisible(false);
    derecha->addWidget(panel_);
    derecha->addStretch();
    connect(boton(QStringLiteral("&Salir"), "BotonSalir"), &QPushButton::clicked, this,
            &QDialog::close);
    fila->addLayout(derecha);

    boleto_->PonerBoletos(outputs::NumeroDeBoletos(columnas_.activas.size()));
    const auto mostrar = [this](int boleto) {
        boleto_->Mostrar(outputs::Escrol(columnas_.activas, boleto));
    };
    connect(boleto_, &RejillaBoleto::boletoElegido, this, mostrar);
    mostrar(1);
}

void VentanaDeImpresion::Enviar(const std::function<std::optional<outputs::Impresion>()>& mandato) {
    setCursor(Qt::WaitCursor);
    ConAviso(dialogo_, [&] {
        if (const auto hoja = mandato()) imprimir_(*hoja);
    });
    unsetCursor();
}

void VentanaDeImpresion::MostrarAjuste() {
    LlenarAjuste();
    panel_->setVisible(true);
}

void VentanaDeImpresion::OcultarAjuste() { panel_->setVisible(false); }

int VentanaDeImpresion::BoletoElegido() const { return boleto_->Boleto(); }

void VentanaDeImpresion::ImprimirTodos() {
    VentanaSeleccionImpresion::Abrir(this, boleto_->Boletos(), dialogo_,
                                     [this](outputs::RangoDeColumnas r) {
                                         Enviar([this, r] { return Todos(r.desde, r.hasta); });
                                     });
}

}  // namespace quinteva::ui
