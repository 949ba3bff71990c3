#pragma once

#include <QDialog>
#include <optional>
#include <string>
#include <vector>

#include "base/dialog.h"
#include "base/settings.h"
#include "engine/columns.h"
#include "outputs/print_list.h"
#include "ui/printing.h"

class QBoxLayout;
class QGroupBox;

namespace quinteva::ui {

class RejillaBoleto;

// Lo que se imprime: las columnas activas del conjunto que se juega y la fecha de su Jornada.
struct ColumnasAImprimir {
    std::vector<engine::RegistroColumna> activas;
    std::string fecha;
};

// Lo común de "Imprimir en Boletos oficiales" e "Imprimir en papel blanco": el boleto en
// pantalla con su barra, "Imprimir &Uno", "Imprimir &Todos" (por "Selección de Impresión"),
// "&Ajustar Impresora", que muestra el panel de ajuste de cada una, "S&eleccionar Impresora" y
// "&Salir".
class VentanaDeImpresion : public QDialog {
    Q_OBJECT

  public:
    // "&Ajustar Impresora": el panel de ajuste con lo guardado (también desde la importación).
    void MostrarAjuste();

  protected:
    VentanaDeImpresion(ColumnasAImprimir columnas, base::Ajustes& ajustes, base::Dialogo& dialogo,
                       Imprimir imprimir, QWidget* madre);
    // Pone el título y el panel de ajuste, oculto hasta que se pida.
    void Construir(const QString& titulo, QGroupBox* panelAjuste);

    virtual std::optional<outputs::Impresion> Uno(int boleto) = 0;
    virtual std::optional<outputs::Impresion> Todos(std::int32_t desde, std::int32_t hasta) = 0;
    // Antes de mostrar el panel: sus campos con lo guardado.
    virtual void LlenarAjuste() = 0;

    // Imprime lo que dé el mandato (nada si el usuario canceló); un error se dice.
    void Enviar(const std::function<std::optional<outputs::Impresion>()>& mandato);
    void OcultarAjuste();
    int BoletoElegido() const;

    ColumnasAImprimir columnas_;
    base::Ajustes& ajustes_;
    base::Dialogo& dialogo_;

  private:
    void ImprimirTodos();

    Imprimir imprimir_;
    RejillaBoleto* boleto_ = nullptr;
    QGroupBox* panel_ = nullptr;
};

}  // namespace quinteva::ui
