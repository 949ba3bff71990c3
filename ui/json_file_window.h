#pragma once

#include <QDialog>
#include <array>
#include <optional>

#include "base/dialog.h"
#include "outputs/json_file.h"
#include "ui/printing.h"

class QLineEdit;
class QPushButton;

namespace quinteva::ui {

// "Quinteva [Archivo JSON]" ("Datos de archivo oficial JSON"): la cabecera de un archivo oficial.
// "&Modificar" desbloquea Jornada, año y Receptor (solo cifras) y "&Guardar" reescribe el archivo.
class VentanaArchivoJson : public QDialog {
    Q_OBJECT

  public:
    VentanaArchivoJson(base::Dialogo& dialogo, Imprimir imprimir, QWidget* madre = nullptr);
    // DatosArchivo: pide el archivo y llena los campos; sin archivo la ventana queda vacía.
    void Cargar(const std::filesystem::path& carpeta);

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void Mostrar();
    void Modificar();
    void Guardar();
    void Bloquear(bool bloqueados);

    base::Dialogo& dialogo_;
    Imprimir imprimir_;
    std::optional<outputs::ArchivoJson> archivo_;
    // JORNADA, AÑO, RECEPTOR Nº: los que se pueden cambiar.
    std::array<QLineEdit*, 3> editables_{};
    QLineEdit* hash_;
    QLineEdit* apuestas_;
    QLineEdit* boletos_;
    QLineEdit* importe_;
    QLineEdit* igualPleno_;
    QPushButton* modificar_;
    QPushButton* guardar_;
};

}  // namespace quinteva::ui
