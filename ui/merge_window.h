#pragma once

#include <QDialog>
#include <filesystem>
#include <vector>

#include "base/chance.h"
#include "base/dialog.h"
#include "builders/merge_combinations.h"

class QLabel;
class QPushButton;
class QRadioButton;
class QTableWidget;

namespace quinteva::ui {

// "Refundir combinaciones": el archivo a generar, las Combinaciones de una misma Jornada que se
// añaden, la estructura del archivo y "Refundir".
class VentanaRefundir : public QDialog {
    Q_OBJECT

  public:
    VentanaRefundir(base::Dialogo& dialogo, base::Azar& azar, std::filesystem::path carpeta,
                    QWidget* madre = nullptr);

  private:
    void ElegirSalida();
    void Anadir();
    void Refundir();
    builders::EstructuraRefundido Estructura() const;

    base::Dialogo& dialogo_;
    base::Azar& azar_;
    std::filesystem::path carpeta_;
    std::filesystem::path salida_;
    std::vector<builders::CombinacionARefundir> filas_;
    QLabel* nombreSalida_ = nullptr;
    QTableWidget* rejilla_ = nullptr;
    QPushButton* anadir_ = nullptr;
    QPushButton* refundir_ = nullptr;
    QRadioButton* continuo_ = nullptr;
    QRadioButton* separadores_ = nullptr;
};

}  // namespace quinteva::ui
