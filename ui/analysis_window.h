#pragma once

#include <QDialog>
#include <filesystem>

#include "base/dialog.h"

namespace quinteva::ui {

// "Quinteva [Análisis de datos]": cómo fueron las Combinaciones de la Temporada, de los registros
// que guardó "&Datos". La rejilla lleva una columna fija con los títulos de las filas y otra por
// Jornada analizada; al lado, el panel de resumen. Se llena una vez, al abrirse (`Contenido`).
class VentanaAnalisisDatos : public QDialog {
    Q_OBJECT

  public:
    VentanaAnalisisDatos(const std::filesystem::path& carpetaTemporada, base::Dialogo& dialogo,
                         QWidget* madre = nullptr);
};

}  // namespace quinteva::ui
