#pragma once

#include <QDialog>
#include <array>
#include <filesystem>
#include <optional>

#include "base/dialog.h"
#include "syndicates/pena_store.h"

class QLineEdit;

namespace quinteva::ui {

// Los datos de una Peña: "Crear nueva Peña" o, con los de una que existe, "&Modificar" (el
// nombre reducido ya no se cambia).
class VentanaDatosPena : public QDialog {
    Q_OBJECT

  public:
    // Sin Peña, la ventana de crear una; con ella, la de modificar sus datos.
    VentanaDatosPena(std::filesystem::path carpetaTrabajo,
                     std::optional<syndicates::ArchivosPena> existente, base::Dialogo& dialogo,
                     QWidget* madre = nullptr);

  signals:
    // La Peña creada o modificada: su ruta sin extensión.
    void guardada(const QString& ruta);

  private:
    void Guardar();
    syndicates::RegPena Datos() const;

    std::filesystem::path carpetaTrabajo_;
    std::optional<syndicates::ArchivosPena> existente_;
    std::optional<syndicates::RegPena> datos_;
    base::Dialogo& dialogo_;
    std::array<QLineEdit*, 10> campos_{};
};

}  // namespace quinteva::ui
