#pragma once

#include <QDialog>
#include <array>
#include <filesystem>

#include "base/dialog.h"
#include "base/settings.h"
#include "seasons/teams.h"

class QLineEdit;
class QListWidget;
class QRadioButton;
class QPushButton;

namespace quinteva::ui {

// La ventana "Equipos": los equipos de 1ª y 2ª División, el número de equipos de cada una, la
// Temporada, "Nueva Temporada" y "Todo a Cero". Lo que decide cada tecla y cada mandato está en
// seasons::VentanaEquipos; aquí solo se lleva a la pantalla. Con Jornadas de Liga solo se mira.
class VentanaEquiposQt : public QDialog {
    Q_OBJECT

  public:
    VentanaEquiposQt(const std::filesystem::path& carpetaTrabajo,
                     const std::filesystem::path& carpetaTemporada, base::Ajustes& ajustes,
                     base::Dialogo& dialogo, QWidget* madre = nullptr);

  signals:
    // "Nueva Temporada" creó la temporada: lo que dice ahora la etiqueta de la principal.
    void temporadaNueva(const QString& etiqueta);

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    // Los campos y la lista de una división.
    struct Columna {
        QLineEdit* numero = nullptr;
        QListWidget* lista = nullptr;
        QLineEdit* nombre = nullptr;
        QLineEdit* valoracion = nullptr;
    };

    QWidget* CrearDivision(int division, const QString& titulo);
    void MenuDeLista(int division, const QPoint& donde);
    void IntroEnNombre(int division);
    void IntroEnValoracion(int division);
    void NuevaTemporada();
    void TodoACero();
    void Refrescar();
    // El manejador de un mandato: el texto de un fallo al usuario; lo hecho no se deshace.
    template <typename F>
    void Manejar(F&& mandato);

    base::Dialogo& dialogo_;
    seasons::VentanaEquipos equipos_;
    std::array<Columna, 2> columnas_{};
    QLineEdit* temporada_ = nullptr;
    QRadioButton* anadir_ = nullptr;
    QRadioButton* modificar_ = nullptr;
};

}  // namespace quinteva::ui
