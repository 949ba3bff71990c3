#pragma once

#include <QDialog>
#include <filesystem>
#include <optional>
#include <string>

#include "base/dialog.h"
#include "base/settings.h"
#include "seasons/league_results.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace quinteva::ui {

// La ventana "Introducir o Ver Resultados" de la Liga: la rejilla de los partidos de una Jornada
// con sus goles. Una cifra ocupa la celda y pasa a la siguiente, Suprimir la vacía; "Guardar" se
// habilita con el primer gol. Lo que decide cada tecla y cada mandato está en
// seasons::VentanaResultadosLiga.
class VentanaResultadosLigaQt : public QDialog {
    Q_OBJECT

  public:
    // fechaQuiniela: la de la Quiniela elegida en la principal, si la hay; la ventana abre en la
    // Jornada de esa fecha.
    VentanaResultadosLigaQt(const std::filesystem::path& carpetaTrabajo,
                            const std::filesystem::path& carpetaTemporada, std::string temporada,
                            base::Ajustes& ajustes, base::Dialogo& dialogo,
                            std::optional<double> fechaQuiniela, QWidget* madre = nullptr);

  signals:
    // Se guardaron resultados: los signos de las Quinielas pueden haber cambiado.
    void resultadosGuardados();

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void Guardar();
    void Refrescar();
    template <typename F>
    void Manejar(F&& mandato);

    base::Dialogo& dialogo_;
    seasons::VentanaResultadosLiga resultados_;
    QComboBox* division_ = nullptr;
    QComboBox* jornada_ = nullptr;
    QTableWidget* rejilla_ = nullptr;
    QLabel* fecha_ = nullptr;
    QPushButton* guardar_ = nullptr;
};

}  // namespace quinteva::ui
