#include "ui/official_file_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/help_window.h"

namespace quinteva::ui {
namespace {

QLabel* Paso(QWidget* madre, const QString& texto) {
    auto* rotulo = new QLabel(texto, madre);
    QFont f = rotulo->font();
    f.setBold(true);
    rotulo->setFont(f);
    return rotulo;
}

QLineEdit* Campo(QWidget* madre, const QString& nombre, int caracteres) {
    auto* campo = new QLineEdit(madre);
    campo->setObjectName(nombre);
    campo->setMinimumWidth(campo->fontMetrics().horizontalAdvance(QLatin1Char('0')) * caracteres +
                           16);
    return campo;
}

QPushButton* Boton(QWidget* madre, const QString& texto, const QString& nombre) {
    auto* b = new QPushButton(texto, madre);
    b->setObjectName(nombre);
    return b;
}

}  // namespace

VentanaArchivoOficial::VentanaArchivoOficial(Peticion peticion, base::Dialogo& dialogo,
                                             base::Ajustes& ajustes, QWidget* madre)
    : QDialog(madre), peticion_(std::move(peticion)), dialogo_(dialogo), ajustes_(ajustes) {
    setObjectName(QStringLiteral("VentanaArchivoOficial"));
    setWindowTitle(QStringLiteral("Generar fichero oficial"));
    auto* caja = new QVBoxLayout(this);
    caja->addWidget(Paso(this, QStringLiteral("1.- Introduzca el Identificador del "
                                              "establecimiento Receptor (5 cifras)")));
    receptor_ = Campo(this, QStringLiteral("CampoReceptor"), 8);
    receptor_->setMaxLength(5);
    receptor_->setText(QString::fromStdString(
        ajustes_.Leer(base::kAplicacionPrograma, "Valores", "Receptor", "")));
    auto* filaReceptor = new QHBoxLayout;
    filaReceptor->addWidget(receptor_);
    filaReceptor->addStretch();
    caja->addLayout(filaReceptor);
    caja->addSpacing(8);
    caja->addWidget(Paso(this, QStringLiteral("2.- Introduzca el nombre del archivo a crear")));
    nombre_ = Campo(this, QStringLiteral("CampoNombre"), 30);
    auto* filaNombre = new QHBoxLayout;
    filaNombre->addWidget(nombre_);
    filaNombre->addWidget(new QLabel(QStringLiteral(".json"), this));
    caja->addLayout(filaNombre);
    caja->addSpacing(8);
    caja->addWidget(Paso(this, QStringLiteral("3.- Genere el archivo")));
    auto* botones = new QHBoxLayout;
    auto* generar = Boton(this, QStringLiteral("&Generar"), QStringLiteral("BotonGenerarOficial"));
    auto* cancelar = Boton(this, QStringLiteral("&Cancelar"), QStringLiteral("BotonCancelar"));
    auto* ayuda = Boton(this, QStringLiteral("Ay&uda"), QStringLiteral("BotonAyuda"));
    ConectarAyuda(ayuda);
    botones->addWidget(generar);
    botones->addWidget(cancelar);
    botones->addStretch();
    botones->addWidget(ayuda);
    caja->addLayout(botones);
    connect(generar, &QPushButton::clicked, this, &VentanaArchivoOficial::Generar);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
}

void VentanaArchivoOficial::Generar() {
    outputs::ResultadoGeneracion resultado;
    try {
        resultado = std::visit(
            [this](auto& peticion) {
                peticion.receptor = receptor_->text().toStdString();
                peticion.nombre = nombre_->text().toStdString();
                if constexpr (std::is_same_v<std::decay_t<decltype(peticion)>,
                                             outputs::PeticionPrincipal>) {
                    return outputs::GenerarDesdePrincipal(peticion, dialogo_, ajustes_);
                } else {
                    return outputs::GenerarDesdeImportacion(peticion, dialogo_, ajustes_);
                }
            },
            peticion_);
    } catch (const std::exception& e) {
        dialogo_.Mensaje(std::string("Error: ") + e.what(), base::Icono::Error);
        return;
    }
    if (resultado.terminado) {
        accept();
    } else if (resultado.foco == outputs::Campo::Receptor) {
        receptor_->setFocus();
    } else if (resultado.foco == outputs::Campo::Nombre) {
        nombre_->setFocus();
    }
}

}  // namespace quinteva::ui
