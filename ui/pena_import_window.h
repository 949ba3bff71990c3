#pragma once

#include <QDialog>
#include <vector>

#include "base/dialog.h"
#include "syndicates/pena_store.h"

class QListWidget;

namespace quinteva::ui {

// Los partícipes de otro ".ptc", uno por fila con su marca: "Marcar los partícipes a importar" e
// "Importar".
class VentanaImportarParticipes : public QDialog {
    Q_OBJECT

  public:
    VentanaImportarParticipes(const syndicates::ArchivosPena& pena,
                              std::vector<syndicates::RegApostante> participes,
                              base::Dialogo& dialogo, QWidget* madre = nullptr);

  signals:
    void importados();

  private:
    const syndicates::ArchivosPena& pena_;
    std::vector<syndicates::RegApostante> participes_;
    base::Dialogo& dialogo_;
    QListWidget* lista_ = nullptr;
};

}  // namespace quinteva::ui
