#pragma once

#include <QDialog>
#include <filesystem>
#include <string>

#include "base/dialog.h"
#include "base/settings.h"

class QComboBox;
class QLineEdit;
class QRadioButton;
class QTableWidget;

namespace quinteva::ui {

// "Histórico de Resultados": los partidos de "Hist.rar" de un equipo, de dos o de una Jornada, y
// sus dos herramientas, "Añadir del Jlig2 temporada a hist." y "Cambiar nombre Eq". Las búsquedas
// están en seasons/statistics.
class VentanaHistorico : public QDialog {
    Q_OBJECT

  public:
    struct Entorno {
        std::filesystem::path carpetaTrabajo;
        std::filesystem::path carpetaDatos;
        std::string temporadaEnCurso;  // "23/24"
        const base::Ajustes& ajustes;
        base::Dialogo& dialogo;
    };
    explicit VentanaHistorico(Entorno entorno, QWidget* madre = nullptr);

  private:
    QWidget* CrearSeleccion();
    void Buscar();
    void AnadirJlig2();
    void CambiarNombre();
    void LlenarTemporadas();

    Entorno e_;
    QRadioButton* equipos_ = nullptr;
    QRadioButton* partidos_ = nullptr;
    QRadioButton* jornadas_ = nullptr;
    QComboBox* equipo1_ = nullptr;
    QComboBox* equipo2_ = nullptr;
    QComboBox* temporada_ = nullptr;
    QComboBox* division_ = nullptr;
    QComboBox* jornada_ = nullptr;
    QLineEdit* existente_ = nullptr;
    QLineEdit* nuevo_ = nullptr;
    QTableWidget* tabla_ = nullptr;
};

}  // namespace quinteva::ui
