#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <vector>

#include "base/dialog.h"
#include "engine/combination.h"

class QCheckBox;
class QGridLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTabWidget;
class QTableWidget;

namespace quinteva::ui {

// Una rejilla de rangos (Generales, Interrupciones, límites de un Grupo): filas de 0 a n, una
// columna por límite. Las filas fuera de lo posible van en gris, las posibles en blanco y las del
// rango elegido en verde (magenta en los Grupos).
class RejillaRangos : public QWidget {
    Q_OBJECT

  public:
    struct Rango {
        int posMin, posMax, min, max;
    };
    RejillaRangos(const QStringList& columnas, int filas, const QColor& elegido, QWidget* madre);
    void Mostrar(const std::vector<Rango>& rangos);
    QTableWidget* Tabla() const { return tabla_; }

  signals:
    // columna 0 es el primer límite (la columna "Nº" no cuenta).
    void pulsada(int columna, int fila);

  private:
    QTableWidget* tabla_;
    QColor elegido_;
};

// Lo que hace un clic en una fila de una rejilla de rangos: fuera de lo posible, nada; fuera del
// rango, lo alarga hasta ella; en un extremo, lo acorta; dentro, empieza en ella.
RejillaRangos::Rango PulsarRango(RejillaRangos::Rango r, int fila);

// La página "Condicion.": una pestaña por familia, con su casilla de actividad y "&Reiniciar".
// Escribe en las condiciones de la Combinación y avisa con "cambiado" de que los resultados ya no
// valen.
class PaginaCondiciones : public QWidget {
    Q_OBJECT

  public:
    PaginaCondiciones(engine::Combinacion& combinacion, base::Dialogo& dialogo,
                      QWidget* madre = nullptr);

    // Vuelve a pintar todo desde las condiciones.
    void Mostrar();
    // La base cambió: los límites posibles se recalculan.
    void CambioDeBase();
    // Al entrar en la página: una tolerancia vacía vale 0.
    void AlEntrar();
    QTabWidget* Pestanas() const { return pestanas_; }

  signals:
    void cambiado();

  private:
    // Un valor de las condiciones visto desde una lista: cómo se lee y cómo se pone.
    struct Campo {
        std::function<int()> leer;
        std::function<void(int)> poner;
    };
    QWidget* Pestana(const QString& titulo, const QString& casilla, engine::Casilla familia,
                     QWidget* contenido);
    // Dos listas mínimo y máximo de un par de límites, con valores de desde a hasta (que pueden
    // depender de la base).
    void ParDeListas(QGridLayout* rejilla, int fila, int columna,
                     std::function<std::pair<int, int>()> valores, Campo min, Campo max,
                     engine::Casilla familia, const QString& nombre);
    void Marcar(engine::Casilla familia);
    void CrearGenerales();
    void CrearSeguidos();
    void CrearInterrupciones();
    void CrearParejasYTrios();
    void CrearGrupos();
    void CrearGruposAciertos();
    void CrearSumas();
    void CrearComparaciones();
    void CrearRepeticiones();
    void CrearConsecutivas();
    void MostrarGrupo();
    void MostrarGrupoAc();
    void MostrarComparaciones();

    engine::Combinacion& comb_;
    base::Dialogo& dialogo_;
    QTabWidget* pestanas_;
    std::array<QCheckBox*, engine::kCasillas> casillas_{};
    std::vector<std::function<void()>> pintores_;
    bool pintando_ = false;
    int grupo_ = 0;
    int grupoAc_ = 0;

    RejillaRangos* generales_ = nullptr;
    RejillaRangos* interrupciones_ = nullptr;
    RejillaRangos* limitesGrupo_ = nullptr;
    RejillaRangos* limitesGrupoAc_ = nullptr;
    QLabel* tituloGrupo_ = nullptr;
    QLabel* tituloGrupoAc_ = nullptr;
    QTableWidget* partidosGrupo_ = nullptr;
    QTableWidget* partidosGrupoAc_ = nullptr;
    QSpinBox* toleranciaGrupos_ = nullptr;
    QSpinBox* toleranciaGruposAc_ = nullptr;
    QTableWidget* sumas_ = nullptr;
    QLineEdit* sumaMinima_ = nullptr;
    QLineEdit* sumaMaxima_ = nullptr;
    QTableWidget* listas_ = nullptr;
};

}  // namespace quinteva::ui
