#pragma once

#include <QDialog>

#include "builders/conditions_history.h"

namespace quinteva::ui {

// "Histórico de condiciones": las columnas ganadoras guardadas frente a las condiciones de la
// Combinación: cuántas cumplen todas, cuántas deja pasar cada familia sola, y por Jornada la
// condición que la rechaza.
class VentanaHistoricoCondiciones : public QDialog {
    Q_OBJECT

  public:
    explicit VentanaHistoricoCondiciones(const builders::HistoricoCondiciones& historico,
                                         QWidget* madre = nullptr);
};

}  // namespace quinteva::ui
