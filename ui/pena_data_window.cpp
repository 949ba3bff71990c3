#include "ui/pena_data_window.h"

#include <QBoxLayout>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

#include "base/text1252.h"
#include "syndicates/ledger.h"
#include "ui/qt_text.h"
#include "ui/season_window_parts.h"

namespace quinteva::ui {

namespace {

// Los campos en su orden: los dos obligatorios y los opcionales, con su ancho en el archivo.
struct Campo {
    const char* rotulo;
    int ancho;
    std::string syndicates::RegPena::*miembro;
};
constexpr std::array<Campo, 10> kCampos = {{
    {"Nombre de la Peña", 50, &syndicates::RegPena::nombre},
    {"Nombre reducido", 15, &syndicates::RegPena::nombreReducido},
    {"Dirección", 35, &syndicates::RegPena::direccion},
    {"Código postal", 5, &syndicates::RegPena::codigoPostal},
    {"Ciudad", 35, &syndicates::RegPena::ciudad},
    {"Provincia", 25, &syndicates::RegPena::provincia},
    {"Teléfono", 9, &syndicates::RegPena::telefono},
    {"Titular de la Peña o persona de contacto", 40, &syndicates::RegPena::titular},
    {"Dirección e-mail", 50, &syndicates::RegPena::email},
    {"Dirección web", 50, &syndicates::RegPena::web},
}};
constexpr std::size_t kObligatorios = 2;

}  // namespace

VentanaDatosPena::VentanaDatosPena(std::filesystem::path carpetaTrabajo,
                                   std::optional<syndicates::ArchivosPena> existente,
                                   base::Dialogo& dialogo, QWidget* madre)
    : QDialog(madre),
      carpetaTrabajo_(std::move(carpetaTrabajo)),
      existente_(std::move(existente)),
      dialogo_(dialogo) {
    if (existente_) datos_ = existente_->LeerPena();
    setObjectName(QStringLiteral("VentanaDatosPena"));
    setWindowTitle(existente_ ? QStringLiteral("Datos de la Peña")
                              : QStringLiteral("Crear nueva Peña"));
    auto* caja = new QVBoxLayout(this);
    auto* obligatorios = new QGroupBox(QStringLiteral("Datos obligatorios"), this);
    auto* opcionales = new QGroupBox(QStringLiteral("Datos opcionales"), this);
    auto* formaObligatoria = new QFormLayout(obligatorios);
    auto* formaOpcional = new QFormLayout(opcionales);
    for (std::size_t i = 0; i < kCampos.size(); ++i) {
        auto* campo = new QLineEdit(this);
        campo->setObjectName(QStringLiteral("CampoPena%1").arg(i));
        campo->setMaxLength(kCampos[i].ancho);
        if (datos_) campo->setText(Q(base::Recortar((*datos_).*(kCampos[i].miembro))));
        (i < kObligatorios ? formaObligatoria : formaOpcional)
            ->addRow(QString::fromUtf8(kCampos[i].rotulo), campo);
        campos_[i] = campo;
    }
    // El nombre reducido es el de los archivos: no cambia al modificar.
    campos_[1]->setReadOnly(existente_.has_value());
    caja->addWidget(obligatorios);
    caja->addWidget(opcionales);
    auto* botones = new QHBoxLayout;
    connect(BotonVentana(this, botones,
                         existente_ ? QStringLiteral("&Modificar") : QStringLiteral("&Crear"),
                         QStringLiteral("BotonGuardarPena")),
            &QPushButton::clicked, this, &VentanaDatosPena::Guardar);
    botones->addStretch();
    connect(BotonVentana(this, botones, QStringLiteral("&Salir"), QStringLiteral("BotonSalir")),
            &QPushButton::clicked, this, &QDialog::close);
    caja->addLayout(botones);
}

syndicates::RegPena VentanaDatosPena::Datos() const {
    syndicates::RegPena datos = datos_.value_or(syndicates::RegPena{});
    for (std::size_t i = 0; i < kCampos.size(); ++i) {
        datos.*(kCampos[i].miembro) = S(campos_[i]->text());
    }
    if (!existente_) datos.temporada = syndicates::TemporadaEnCurso(carpetaTrabajo_);
    return datos;
}

void VentanaDatosPena::Guardar() {
    ConAviso(dialogo_, [this] {
        std::optional<std::filesystem::path> ruta;
        if (!existente_) {
            ruta = syndicates::CrearDatosPena(carpetaTrabajo_, Datos(), dialogo_);
        } else if (syndicates::ModificarDatosPena(*existente_, Datos(), dialogo_)) {
            ruta = existente_->Ruta();
        }
        if (!ruta) return;
        close();
        emit guardada(QString::fromStdString(ruta->string()));
    });
}

}  // namespace quinteva::ui
