#include "ui/merge_window.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>

#include "ui/help_window.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

VentanaRefundir::VentanaRefundir(base::Dialogo& dialogo, base::Azar& azar,
                                 std::filesystem::path carpeta, QWidget* madre)
    : QDialog(madre), dialogo_(dialogo), azar_(azar), carpeta_(std::move(carpeta)) {
    setObjectName(QStringLiteral("VentanaRefundir"));
    setWindowTitle(QStringLiteral("Refundir combinaciones"));
    auto* caja = new QVBoxLayout(this);
    auto* texto = new QLabel(Q(builders::kTextoRefundir), this);
    texto->setWordWrap(true);
    caja->addWidget(texto);

    auto* filaSalida = new QHBoxLayout;
    connect(
        BotonVentana(this, filaSalida, QStringLiteral("Nombre y dirección del Archivo a generar"),
                     QStringLiteral("BotonArchivoRefundido")),
        &QPushButton::clicked, this, &VentanaRefundir::ElegirSalida);
    nombreSalida_ = new QLabel(this);
    nombreSalida_->setObjectName(QStringLiteral("NombreArchivoRefundido"));
    filaSalida->addWidget(nombreSalida_, 1);
    caja->addLayout(filaSalida);

    rejilla_ = new QTableWidget(0, 3, this);
    rejilla_->setObjectName(QStringLiteral("RejillaRefundir"));
    rejilla_->setHorizontalHeaderLabels(
        {QStringLiteral("Combinación"), QStringLiteral("Archivo"), QStringLiteral("Jornada")});
    rejilla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rejilla_->horizontalHeader()->setStretchLastSection(true);
    caja->addWidget(rejilla_, 1);

    auto* estructura = new QGroupBox(QStringLiteral("Estructura Archivo resultante"), this);
    auto* opciones = new QHBoxLayout(estructura);
    continuo_ = new QRadioButton(QStringLiteral("Texto continuo"), estructura);
    continuo_->setObjectName(QStringLiteral("OpcionTextoContinuo"));
    separadores_ = new QRadioButton(QStringLiteral("Texto con separadores"), estructura);
    separadores_->setObjectName(QStringLiteral("OpcionTextoSeparadores"));
    auto* columna = new QRadioButton(QStringLiteral("Texto en columna"), estructura);
    columna->setObjectName(QStringLiteral("OpcionTextoColumna"));
    columna->setChecked(true);
    for (QRadioButton* o : {continuo_, separadores_, columna}) opciones->addWidget(o);
    caja->addWidget(estructura);

    auto* botones = new QHBoxLayout;
    anadir_ = BotonVentana(this, botones, QStringLiteral("Añadir las combinaciones a refundir"),
                           QStringLiteral("BotonAnadirRefundir"));
    anadir_->setEnabled(false);
    connect(anadir_, &QPushButton::clicked, this, &VentanaRefundir::Anadir);
    refundir_ =
        BotonVentana(this, botones, QStringLiteral("Refundir"), QStringLiteral("BotonRefundir"));
    refundir_->setEnabled(false);
    connect(refundir_, &QPushButton::clicked, this, &VentanaRefundir::Refundir);
    connect(
        BotonVentana(this, botones, QStringLiteral("&Cancelar"), QStringLiteral("BotonCancelar")),
        &QPushButton::clicked, this, &QDialog::close);
    ConectarAyuda(
        BotonVentana(this, botones, QStringLiteral("&Ayuda"), QStringLiteral("BotonAyuda")));
    caja->addLayout(botones);
    resize(sizeHint().width() * 5 / 4, sizeHint().height());
}

void VentanaRefundir::ElegirSalida() {
    ConAviso(dialogo_, [this] {
        const auto ruta = builders::ElegirArchivoRefundido(dialogo_, carpeta_);
        if (!ruta) return;
        salida_ = *ruta;
        nombreSalida_->setText(QString::fromStdString(salida_.string()));
        anadir_->setEnabled(true);
    });
}

void VentanaRefundir::Anadir() {
    const auto fila = builders::AnadirParaRefundir(filas_, carpeta_, dialogo_);
    if (!fila) return;
    filas_.push_back(*fila);
    const int n = rejilla_->rowCount();
    rejilla_->insertRow(n);
    rejilla_->setItem(n, 0, new QTableWidgetItem(QString::fromStdString(fila->nombre)));
    rejilla_->setItem(n, 1, new QTableWidgetItem(QString::fromStdString(fila->columnas.string())));
    rejilla_->setItem(n, 2, new QTableWidgetItem(QString::number(fila->jornada)));
    rejilla_->resizeColumnsToContents();
    refundir_->setEnabled(true);
}

builders::EstructuraRefundido VentanaRefundir::Estructura() const {
    if (continuo_->isChecked()) return builders::EstructuraRefundido::Continuo;
    if (separadores_->isChecked()) return builders::EstructuraRefundido::Separadores;
    return builders::EstructuraRefundido::Columna;
}

void VentanaRefundir::Refundir() {
    if (builders::Refundir(filas_, salida_, Estructura(), azar_, dialogo_)) close();
}

}  // namespace quinteva::ui
