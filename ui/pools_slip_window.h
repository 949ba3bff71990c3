#pragma once

#include <QDialog>
#include <filesystem>
#include <string>

#include "base/dialog.h"
#include "seasons/pools.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTableWidget;

namespace quinteva::ui {

// La ventana "Jornadas de Quinielas": el boleto de una Jornada (15 partidos con su división), su
// fecha y las Jornadas de Liga de 1ª y 2ª que entran, con la lista de equipos de cada división y
// la de "Otros Equipos" a un lado. Lo que decide cada tecla y cada mandato está en
// seasons::VentanaJornadasQuiniela.
class VentanaJornadasQuinielaQt : public QDialog {
    Q_OBJECT

  public:
    VentanaJornadasQuinielaQt(const std::filesystem::path& carpetaTemporada, std::string cabecera,
                              base::Dialogo& dialogo, QWidget* madre = nullptr);

  signals:
    // Se guardó un boleto nuevo: la principal lo añade a su lista de Jornadas.
    void jornadaNueva(int jornada);

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    int DivisionDeLista() const;
    void LlenarLista();
    void MenuDeEquipos(const QPoint& donde);
    void MenuDeRejilla(const QPoint& donde);
    void Agregar(const QString& equipo);
    void ElegirJornada();
    void Guardar();
    void Refrescar();
    template <typename F>
    void Manejar(F&& mandato);

    base::Dialogo& dialogo_;
    seasons::VentanaJornadasQuiniela boleto_;
    QComboBox* jornada_ = nullptr;
    QLineEdit* fecha_ = nullptr;
    std::array<QLineEdit*, 2> jornadasLiga_{};
    QTableWidget* rejilla_ = nullptr;
    QComboBox* division_ = nullptr;
    QListWidget* equipos_ = nullptr;
    QLineEdit* otro_ = nullptr;
};

}  // namespace quinteva::ui
