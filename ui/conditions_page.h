#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <vector>

#include "base/dialog.h"
#include "engine/combination.h"
#include "engine/condition_grids.h"
#include "engine/editing_rules.h"

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
    RejillaRangos(const QStringList& columnas, int filas, const QColor& elegido, QWidget* madre);
    void Mostrar(const std::vector<engine::RangoRejilla>& rangos);
    QTableWidget* Tabla() const { return tabla_; }

  signals:
    // columna 0 es el primer límite (la columna "Nº" no cuenta).
    void pulsada(int columna, int fila);

  private:
    QTableWidget* tabla_;
    QColor elegido_;
};

// La página "Condicion.": una pestaña por familia, con su casilla de actividad y "&Reiniciar".
// Escribe en las condiciones de la Combinación y avisa con "cambiado" de que los resultados ya no
// valen.
class PaginaCondiciones : public QWidget {
    Q_OBJECT

  public:
    PaginaCondiciones(engine::Combinacion& combinacion, base::Dialogo& dialogo,
                      QWidget* madre = nullptr);

    // Vuelve a tomar todo de las condiciones (al abrir, al reiniciar) y lo pinta.
    void Mostrar();
    // Vuelve a pintar lo que pudo cambiar (tras QuinComp), sin perder las celdas en blanco de
    // Sumas.
    void Pintar();
    // "% &Automático": los porcentajes de 1, X, 2 de cada partido a la rejilla de Sumas y a
    // SumasTabla.
    void PonerPorcentajes(const std::array<std::array<int, 3>, engine::kPartidos>& tabla);
    // Al entrar en la página: una tolerancia vacía vale 0.
    void AlEntrar();
    QTabWidget* Pestanas() const { return pestanas_; }

  signals:
    void cambiado();
    // Se pulsó "% &Automático": la ventana calcula los porcentajes con la temporada.
    void automatico();
    // Se pulsó "&Histórico de condiciones": la ventana lo calcula con las temporadas en disco.
    void historico();

  private:
    // Un par mínimo/máximo de las condiciones visto desde sus dos listas: cómo se lee cada límite
    // y cómo se cambia (con la regla del par, que puede rechazarlo).
    struct Par {
        std::function<int(bool esMinimo)> leer;
        std::function<bool(bool esMinimo, int valor)> cambiar;
    };
    template <typename T>
    Par ParDe(engine::Casilla familia, T& min, T& max);
    QWidget* Pestana(const QString& titulo, const QString& casilla, engine::Casilla familia,
                     QWidget* contenido);
    // Dos listas mínimo y máximo de un par de límites, con valores de desde a hasta (que pueden
    // depender de la base).
    void ParDeListas(QGridLayout* rejilla, int fila, int columna,
                     std::function<std::pair<int, int>()> valores, Par par, const QString& nombre);
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
    void Cargar();
    void CambioEnSumas(int fila, int signo);
    void ActivarSumas();
    void MostrarSumas();

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
    QLabel* sumaMasBaja_ = nullptr;
    QLabel* sumaMasAlta_ = nullptr;
    // La rejilla de Sumas tal como se ve: una celda puede estar en blanco.
    std::array<engine::FilaSumas, engine::kPartidos> rejillaSumas_{};
    QTableWidget* listas_ = nullptr;
    std::array<std::array<QComboBox*, 5>, engine::kComparacionesFilas> datosComparacion_{};
};

}  // namespace quinteva::ui
