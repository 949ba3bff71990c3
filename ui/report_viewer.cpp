#include "ui/report_viewer.h"

#include <QBoxLayout>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "outputs/pdf_save.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

VentanaVisor::VentanaVisor(Informe informe, base::Dialogo& dialogo, Imprimir imprimir,
                           QWidget* madre)
    : QDialog(madre),
      informe_(std::move(informe)),
      dialogo_(dialogo),
      imprimir_(std::move(imprimir)),
      vista_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
    setObjectName(QStringLiteral("VentanaVisor"));
    setWindowTitle(informe_.titulo);
    // La vista previa se pinta en un PDF: no necesita que haya impresoras.
    vista_->setOutputFormat(QPrinter::PdfFormat);
    vista_->setPageSize(QPageSize(QPageSize::A4));
    auto* caja = new QVBoxLayout(this);
    auto* previa = new QPrintPreviewWidget(vista_.get(), this);
    previa->setObjectName(QStringLiteral("VistaPrevia"));
    connect(previa, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* impresora) { ImprimirEn(*impresora, informe_.paginas); });
    previa->fitToWidth();
    caja->addWidget(previa, 1);
    auto* botones = new QHBoxLayout;
    connect(
        BotonVentana(this, botones, QStringLiteral("&Imprimir"), QStringLiteral("BotonImprimir")),
        &QPushButton::clicked, this,
        [this] { ConAviso(dialogo_, [this] { imprimir_(informe_.paginas); }); });
    connect(BotonVentana(this, botones, QStringLiteral("&Guardar PDF"),
                         QStringLiteral("BotonGuardarPdf")),
            &QPushButton::clicked, this, [this] {
                ConAviso(dialogo_,
                         [this] { outputs::GuardarPdf(dialogo_, informe_.paginas, informe_.pdf); });
            });
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Salir"), QStringLiteral("BotonSalir")),
            &QPushButton::clicked, this, &QDialog::close);
    caja->addLayout(botones);
    // Una página A4 a la vista, sin pasar de lo que cabe en la pantalla.
    const QRect pantalla = screen()->availableGeometry();
    resize(std::min(720, pantalla.width()), std::min(820, pantalla.height() * 4 / 5));
}

VentanaVisor::~VentanaVisor() = default;

}  // namespace quinteva::ui
