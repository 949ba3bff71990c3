#pragma once

#include <QDialog>

#include "syndicates/pena_store.h"
#include "ui/pena_context.h"

class QLabel;
class QStackedWidget;

namespace quinteva::ui {

class PaginaApostantesPena;
class PaginaJornadasPena;

// La ventana de una Peña: las páginas "&Apostantes" y "&Jornadas", sus datos, sus informes y la
// copia de seguridad.
class VentanaPena : public QDialog {
    Q_OBJECT

  public:
    VentanaPena(syndicates::ArchivosPena pena, EntornoPena entorno, QWidget* madre = nullptr);

  private:
    void IrA(int pagina);
    void InformePena();
    void DetalleApostante();
    void Documento(const QString& titulo, outputs::Impresion paginas, const std::string& sufijo);
    void Titulo();

    syndicates::ArchivosPena pena_;
    EntornoPena entorno_;
    QLabel* nombre_ = nullptr;
    QStackedWidget* paginas_ = nullptr;
    PaginaApostantesPena* apostantes_ = nullptr;
    PaginaJornadasPena* jornadas_ = nullptr;
};

}  // namespace quinteva::ui
