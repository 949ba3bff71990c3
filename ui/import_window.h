#pragma once

#include <QDialog>
#include <array>
#include <filesystem>

#include "base/chance.h"
#include "base/dialog.h"
#include "base/settings.h"
#include "outputs/import_list.h"
#include "ui/printing.h"

class QLabel;
class QRadioButton;

namespace quinteva::ui {

class RejillaBoleto;

// "Importar archivo": una lista de columnas hecha fuera (texto con o sin el Pleno, o un archivo
// oficial JSON) en "Arimp.tmp", vista boleto a boleto, impresa en uno de los cuatro modos,
// completada hasta 100 columnas o escrita como archivo oficial.
class VentanaImportar : public QDialog {
    Q_OBJECT

  public:
    struct Entorno {
        std::filesystem::path carpetaTrabajo;
        base::Ajustes& ajustes;
        base::Dialogo& dialogo;
        base::Azar& azar;
        Imprimir imprimir;
        // La fecha de la Jornada de la ventana principal, para la cabecera de los boletos.
        std::string fecha;
    };
    explicit VentanaImportar(Entorno entorno, QWidget* madre = nullptr);

  private:
    void Importar(int tipo);
    void Mostrar(int boleto);
    void Poner(outputs::ListaImportada lista);
    void ImprimirUno();
    void ImprimirTodos();
    void Enviar(std::int32_t desde, std::int32_t hasta);
    void AjustesDeImpresion();
    void GenerarOficial();
    void Completar();
    outputs::ModoImportado Modo() const;

    Entorno e_;
    outputs::ListaImportada lista_;
    RejillaBoleto* boleto_ = nullptr;
    QLabel* cuenta_ = nullptr;
    std::array<QRadioButton*, 4> modos_{};
};

}  // namespace quinteva::ui
