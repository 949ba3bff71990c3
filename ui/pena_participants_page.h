#pragma once

#include <QWidget>
#include <array>
#include <optional>

#include "base/dialog.h"
#include "syndicates/pena_store.h"

class QLineEdit;
class QTableWidget;

namespace quinteva::ui {

// La página Apostantes de la ventana de la Peña: los datos del elegido, "Añadir", "Modificar" e
// "Importar", "Introducir cuotas" y la rejilla de cuotas por Jornada (menú "Eliminar").
class PaginaApostantesPena : public QWidget {
    Q_OBJECT

  public:
    PaginaApostantesPena(const syndicates::ArchivosPena& pena, base::Dialogo& dialogo,
                         QWidget* madre);

    // LlenarFlex2: la rejilla de los Apostantes en el orden del archivo.
    void Refrescar();
    std::optional<std::size_t> Elegido() const { return elegido_; }

  signals:
    // Las cuotas o los Apostantes cambiaron: la página Jornadas se rehace.
    void cambiados();

  private:
    void Elegir(int fila);
    syndicates::RegApostante Datos() const;
    void Importar();
    void Hecho(bool cambio);

    const syndicates::ArchivosPena& pena_;
    base::Dialogo& dialogo_;
    std::optional<std::size_t> elegido_;
    std::array<QLineEdit*, 10> campos_{};
    QLineEdit* importe_ = nullptr;
    QLineEdit* desde_ = nullptr;
    QLineEdit* hasta_ = nullptr;
    QTableWidget* rejilla_ = nullptr;
};

}  // namespace quinteva::ui
