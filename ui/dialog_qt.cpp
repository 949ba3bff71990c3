#include "ui/dialog_qt.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QStringList>

#include "ui/dialog_folder.h"
#include "ui/qt_text.h"

namespace quinteva::ui {
namespace {

const QString kTitulo = QStringLiteral("Quinteva");

QString Ruta(const std::filesystem::path& ruta) { return QString::fromStdString(ruta.string()); }

// "Descripción (*.ext)|*.ext|Otra (*.x)|*.x|" a los filtros de Qt "Descripción (*.ext);;...".
QString FiltroQt(std::string_view filtro) {
    const QStringList partes = Q(filtro).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    QStringList filtros;
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
        filtros << partes[i].section(QLatin1Char('('), 0, 0).trimmed() + QStringLiteral(" (") +
                       partes[i + 1].split(QLatin1Char(';')).join(QLatin1Char(' ')) +
                       QLatin1Char(')');
    }
    return filtros.join(QStringLiteral(";;"));
}

base::Respuesta DeBoton(int boton) {
    switch (boton) {
        case QMessageBox::Yes:
            return base::Respuesta::Si;
        case QMessageBox::No:
            return base::Respuesta::No;
        case QMessageBox::Ok:
            return base::Respuesta::Aceptar;
        default:
            return base::Respuesta::Cancelar;
    }
}

QMessageBox::StandardButton ABoton(base::Respuesta r) {
    switch (r) {
        case base::Respuesta::Si:
            return QMessageBox::Yes;
        case base::Respuesta::No:
            return QMessageBox::No;
        case base::Respuesta::Aceptar:
            return QMessageBox::Ok;
        default:
            return QMessageBox::Cancel;
    }
}

}  // namespace

void DialogoQt::Mensaje(std::string_view texto, base::Icono icono) {
    switch (icono) {
        case base::Icono::Aviso:
            QMessageBox::warning(madre_, kTitulo, Q(texto));
            break;
        case base::Icono::Error:
            QMessageBox::critical(madre_, kTitulo, Q(texto));
            break;
        default:
            QMessageBox::information(madre_, kTitulo, Q(texto));
    }
}

base::Respuesta DialogoQt::PreguntaSiNo(std::string_view texto, base::Respuesta porDefecto) {
    return DeBoton(QMessageBox::question(madre_, kTitulo, Q(texto),
                                         QMessageBox::Yes | QMessageBox::No, ABoton(porDefecto)));
}

base::Respuesta DialogoQt::PreguntaSiNoCancelar(std::string_view texto,
                                                base::Respuesta porDefecto) {
    return DeBoton(QMessageBox::question(madre_, kTitulo, Q(texto),
                                         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                                         ABoton(porDefecto)));
}

base::Respuesta DialogoQt::AceptarCancelar(std::string_view texto, base::Respuesta porDefecto) {
    return DeBoton(QMessageBox::question(
        madre_, kTitulo, Q(texto), QMessageBox::Ok | QMessageBox::Cancel, ABoton(porDefecto)));
}

std::optional<std::string> DialogoQt::PedirTexto(std::string_view texto, std::string_view titulo,
                                                 std::string_view inicial) {
    bool aceptado = false;
    const QString valor = QInputDialog::getText(madre_, Q(titulo), Q(texto), QLineEdit::Normal,
                                                Q(inicial), &aceptado);
    if (!aceptado) return std::nullopt;
    return valor.toStdString();
}

std::filesystem::path DialogoQt::Inicial(const std::filesystem::path& dada) const {
    const std::string ultima =
        ajustes_ != nullptr ? ajustes_->Leer(base::kAplicacion, "Valores", kUltimaCarpeta, "") : "";
    return CarpetaDelDialogo(dada, ultima, DocumentosDelUsuario());
}

std::optional<std::filesystem::path> DialogoQt::Elegida(const QString& ruta, bool esCarpeta) {
    if (ruta.isEmpty()) return std::nullopt;
    const std::filesystem::path elegida = ruta.toStdString();
    if (ajustes_ != nullptr) {
        const auto carpeta = esCarpeta ? elegida : elegida.parent_path();
        ajustes_->Guardar(base::kAplicacion, "Valores", kUltimaCarpeta, carpeta.string());
    }
    return elegida;
}

std::optional<std::filesystem::path> DialogoQt::ArchivoParaAbrir(
    std::string_view titulo, std::string_view filtro, const std::filesystem::path& carpeta) {
    return Elegida(
        QFileDialog::getOpenFileName(madre_, Q(titulo), Ruta(Inicial(carpeta)), FiltroQt(filtro)),
        false);
}

std::optional<std::filesystem::path> DialogoQt::ArchivoParaGuardar(
    std::string_view titulo, std::string_view filtro, const std::filesystem::path& inicial) {
    // Quien guarda pregunta él mismo si el archivo ya existe, con el texto del sistema.
    return Elegida(
        QFileDialog::getSaveFileName(madre_, Q(titulo), Ruta(Inicial(inicial)), FiltroQt(filtro),
                                     nullptr, QFileDialog::DontConfirmOverwrite),
        false);
}

std::optional<std::filesystem::path> DialogoQt::Carpeta(std::string_view titulo,
                                                        const std::filesystem::path& inicial) {
    return Elegida(QFileDialog::getExistingDirectory(madre_, Q(titulo), Ruta(Inicial(inicial))),
                   true);
}

}  // namespace quinteva::ui
