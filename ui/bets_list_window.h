#pragma once

#include <QDialog>
#include <cstdint>
#include <filesystem>
#include <string>

#include "base/dialog.h"
#include "ui/printing.h"

class QLabel;
class QListWidget;
class QScrollBar;

namespace quinteva::ui {

// "Quinteva [Listado de Apuestas]": las columnas de un almacén de 50 en 50, las eliminadas en
// rojo. El almacén sale del rótulo que pone la ventana principal: si acaba en "adas"
// ("Apuestas Condicionadas") es "Cmb.tmp" con TotalGeneradas; si no, "Red.tmp" con
// TotalReducidas.
class VentanaListado : public QDialog {
    Q_OBJECT

  public:
    static constexpr int kFilasPorPagina = 50;

    // Lo que "&Imprimir" necesita: la línea de la Jornada, el Dialogo y la impresora.
    struct Impresion {
        std::string jornada;
        base::Dialogo& dialogo;
        Imprimir imprimir;
    };
    VentanaListado(const QString& rotulo, const std::filesystem::path& carpetaTrabajo,
                   std::int32_t totalGeneradas, std::int32_t totalReducidas, Impresion impresion,
                   QWidget* madre = nullptr);

  private:
    // Escrol: la página que señala la barra.
    void Escrol();
    void ImprimirListado();

    std::filesystem::path almacen_;
    std::int32_t total_;
    Impresion impresion_;
    QListWidget* lista_;
    QScrollBar* barra_;
};

}  // namespace quinteva::ui
