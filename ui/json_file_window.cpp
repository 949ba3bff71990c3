#include "ui/json_file_window.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "outputs/printed_reports.h"
#include "ui/qt_text.h"

namespace quinteva::ui {
namespace {

QLineEdit* Campo(QWidget* madre, QFormLayout* formulario, const QString& rotulo,
                 const QString& nombre, int caracteres) {
    auto* campo = new QLineEdit(madre);
    campo->setObjectName(nombre);
    campo->setReadOnly(true);
    campo->setMinimumWidth(campo->fontMetrics().horizontalAdvance(QLatin1Char('0')) * caracteres +
                           16);
    formulario->addRow(rotulo, campo);
    return campo;
}

QPushButton* Boton(QWidget* madre, QHBoxLayout* fila, const QString& texto, const QString& nombre) {
    auto* b = new QPushButton(texto, madre);
    b->setObjectName(nombre);
    fila->addWidget(b);
    return b;
}

}  // namespace

VentanaArchivoJson::VentanaArchivoJson(base::Dialogo& dialogo, Imprimir imprimir, QWidget* madre)
    : QDialog(madre), dialogo_(dialogo), imprimir_(std::move(imprimir)) {
    setObjectName(QStringLiteral("VentanaArchivoJson"));
    setWindowTitle(QStringLiteral("Quinteva [Archivo JSON]"));
    auto* caja = new QVBoxLayout(this);
    auto* titulo = new QLabel(QStringLiteral("Datos de archivo oficial JSON"), this);
    titulo->setStyleSheet(QStringLiteral("font-weight: bold"));
    caja->addWidget(titulo);
    auto* formulario = new QFormLayout;
    editables_[0] =
        Campo(this, formulario, QStringLiteral("JORNADA"), QStringLiteral("CampoJornada"), 5);
    editables_[1] = Campo(this, formulario, QStringLiteral("AÑO"), QStringLiteral("CampoAnio"), 6);
    editables_[2] =
        Campo(this, formulario, QStringLiteral("RECEPTOR Nº"), QStringLiteral("CampoReceptor"), 7);
    hash_ = Campo(this, formulario, QStringLiteral("HASH"), QStringLiteral("CampoHash"), 34);
    apuestas_ = Campo(this, formulario, QStringLiteral("N.º APUESTAS"),
                      QStringLiteral("CampoApuestas"), 10);
    boletos_ =
        Campo(this, formulario, QStringLiteral("N.º BOLETOS"), QStringLiteral("CampoBoletos"), 10);
    importe_ =
        Campo(this, formulario, QStringLiteral("IMPORTE"), QStringLiteral("CampoImporte"), 12);
    igualPleno_ = Campo(this, formulario, QStringLiteral("Igual Pleno al 15 en todos los Boletos?"),
                        QStringLiteral("CampoIgualPleno"), 3);
    caja->addLayout(formulario);
    for (QLineEdit* campo : editables_) campo->installEventFilter(this);
    auto* botones = new QHBoxLayout;
    modificar_ =
        Boton(this, botones, QStringLiteral("&Modificar"), QStringLiteral("BotonModificar"));
    guardar_ = Boton(this, botones, QStringLiteral("&Guardar"), QStringLiteral("BotonGuardar"));
    connect(Boton(this, botones, QStringLiteral("&Imprimir"), QStringLiteral("BotonImprimir")),
            &QPushButton::clicked, this, [this] {
                imprimir_(outputs::ImpresionArchivoJson(
                    {S(editables_[0]->text()), S(editables_[1]->text()), S(editables_[2]->text()),
                     S(hash_->text()), S(apuestas_->text()), S(boletos_->text()),
                     S(importe_->text()), S(igualPleno_->text())}));
            });
    botones->addStretch();
    auto* salir = Boton(this, botones, QStringLiteral("&Salir"), QStringLiteral("BotonSalir"));
    caja->addLayout(botones);
    connect(modificar_, &QPushButton::clicked, this, &VentanaArchivoJson::Modificar);
    connect(guardar_, &QPushButton::clicked, this, &VentanaArchivoJson::Guardar);
    connect(salir, &QPushButton::clicked, this, &QDialog::accept);
    Mostrar();
}

void VentanaArchivoJson::Cargar(const std::filesystem::path& carpeta) {
    setCursor(Qt::BusyCursor);
    try {
        archivo_ = outputs::DatosArchivo(dialogo_, carpeta);
    } catch (const std::exception& e) {
        archivo_.reset();
        dialogo_.Mensaje(std::string("Error: ") + e.what(), base::Icono::Error);
    }
    unsetCursor();
    Mostrar();
}

void VentanaArchivoJson::Mostrar() {
    const outputs::CamposArchivoJson campos =
        archivo_ ? archivo_->campos : outputs::CamposArchivoJson{};
    editables_[0]->setText(Q(campos.jornada));
    editables_[1]->setText(Q(campos.anio));
    editables_[2]->setText(Q(campos.receptor));
    hash_->setText(Q(campos.hash));
    apuestas_->setText(Q(campos.apuestas));
    boletos_->setText(Q(campos.boletos));
    importe_->setText(Q(campos.importe));
    igualPleno_->setText(Q(campos.igualPleno));
    Bloquear(true);
}

void VentanaArchivoJson::Bloquear(bool bloqueados) {
    for (QLineEdit* campo : editables_) campo->setReadOnly(bloqueados);
    modificar_->setEnabled(archivo_.has_value());
    guardar_->setEnabled(archivo_.has_value());
}

void VentanaArchivoJson::Modificar() {
    outputs::Modificar(dialogo_);
    Bloquear(false);
    editables_[0]->setFocus();
}

void VentanaArchivoJson::Guardar() {
    if (!archivo_) return;
    archivo_->campos.jornada = editables_[0]->text().toStdString();
    archivo_->campos.anio = editables_[1]->text().toStdString();
    archivo_->campos.receptor = editables_[2]->text().toStdString();
    if (outputs::Guardar(*archivo_, dialogo_)) Mostrar();
}

// Los campos desbloqueados solo admiten cifras (y las teclas de edición).
bool VentanaArchivoJson::eventFilter(QObject* objeto, QEvent* evento) {
    auto* campo = qobject_cast<QLineEdit*>(objeto);
    if (evento->type() != QEvent::KeyPress || campo == nullptr || campo->isReadOnly()) {
        return QDialog::eventFilter(objeto, evento);
    }
    const QString texto = static_cast<QKeyEvent*>(evento)->text();
    if (texto.isEmpty() || !texto.at(0).isPrint() || texto.at(0).isDigit()) {
        return QDialog::eventFilter(objeto, evento);
    }
    dialogo_.Mensaje(outputs::kSoloNumeros);
    return true;
}

}  // namespace quinteva::ui
