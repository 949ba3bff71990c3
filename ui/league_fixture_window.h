#pragma once

#include <QDialog>
#include <filesystem>
#include <string>

#include "base/dialog.h"
#include "base/settings.h"
#include "seasons/league.h"

class QComboBox;
class QLineEdit;
class QListWidget;
class QTableWidget;

namespace quinteva::ui {

// La ventana "Jornadas de Liga": el calendario de una Jornada (la fecha y los pares de equipos)
// con la lista de los equipos de la división a un lado. Lo que decide cada tecla y cada mandato
// está en seasons::VentanaJornadasLiga; aquí solo se lleva a la pantalla.
class VentanaJornadasLigaQt : public QDialog {
    Q_OBJECT

  public:
    VentanaJornadasLigaQt(const std::filesystem::path& carpetaTemporada, std::string temporada,
                          const base::Ajustes& ajustes, base::Dialogo& dialogo,
                          QWidget* madre = nullptr);

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void MenuDeEquipos(const QPoint& donde);
    void MenuDeRejilla(const QPoint& donde);
    void Agregar(const QString& equipo);
    void Guardar();
    void Refrescar();
    // El manejador de un mandato: el texto de un fallo al usuario; lo hecho no se deshace.
    template <typename F>
    void Manejar(F&& mandato);

    base::Dialogo& dialogo_;
    seasons::VentanaJornadasLiga jornadas_;
    QComboBox* division_ = nullptr;
    QComboBox* jornada_ = nullptr;
    QLineEdit* fecha_ = nullptr;
    QTableWidget* rejilla_ = nullptr;
    QListWidget* equipos_ = nullptr;
};

}  // namespace quinteva::ui
