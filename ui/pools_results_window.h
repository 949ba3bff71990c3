#pragma once

#include <QDialog>
#include <filesystem>
#include <string>

#include "base/dialog.h"
#include "seasons/pools.h"

class QComboBox;
class QLabel;
class QTableWidget;

namespace quinteva::ui {

// La ventana "Introducir o Ver Resultados" de Quinielas: los 15 partidos de una Jornada con su
// signo y, en la fila 15, el Pleno ("1-M"). Los signos se escriben en la celda; lo que se toma y
// lo que hace "Guardar" está en seasons::VentanaResultadosQuiniela.
class VentanaResultadosQuinielaQt : public QDialog {
    Q_OBJECT

  public:
    VentanaResultadosQuinielaQt(const std::filesystem::path& carpetaTemporada,
                                std::string temporada, base::Dialogo& dialogo,
                                QWidget* madre = nullptr);

  signals:
    void resultadosGuardados();

  private:
    void SignoEditado(int fila, int columna);
    void Guardar();
    void Refrescar();
    template <typename F>
    void Manejar(F&& mandato);

    base::Dialogo& dialogo_;
    seasons::VentanaResultadosQuiniela resultados_;
    QComboBox* jornada_ = nullptr;
    QTableWidget* rejilla_ = nullptr;
    QLabel* fecha_ = nullptr;
};

}  // namespace quinteva::ui
