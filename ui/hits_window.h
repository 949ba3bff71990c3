#pragma once

#include <QDialog>
#include <QTimer>
#include <array>
#include <filesystem>
#include <functional>
#include <string>

#include "base/dialog.h"
#include "engine/combination.h"
#include "outputs/hit_check.h"
#include "outputs/winning_column.h"
#include "ui/background_work.h"
#include "ui/cross_thread_dialog.h"
#include "ui/printing.h"

class QLabel;
class QProgressBar;
class QPushButton;
class QTableWidget;
class QVBoxLayout;

namespace quinteva::ui {

class SaludoParpadeante;

// Lo que "Comprobación de Aciertos" toma de la ventana principal: la Jornada que se muestra, su
// Temporada y el año de su fecha, las carpetas y la Combinación abierta (la principal es su dueña
// y la ventana es modal sobre ella).
struct JornadaAciertos {
    std::filesystem::path carpetaTrabajo;
    std::filesystem::path carpetaTemporada;
    std::string temporada;
    int jornada = 0;
    std::string anio;
    const engine::Combinacion& combinacion;
    base::Dialogo& dialogo;
    // Para imprimir la localización de las columnas acertadas: su línea de la Jornada.
    std::string lineaJornada;
    Imprimir imprimir;
};

// "Comprobación de Aciertos": la columna ganadora de la Jornada en una rejilla de 15 filas y las
// siete cuentas de aciertos de lo que se juega. Las comprobaciones van en un hilo de trabajo; sus
// mensajes y preguntas vuelven a esta ventana.
class VentanaAciertos : public QDialog {
    Q_OBJECT

  public:
    explicit VentanaAciertos(JornadaAciertos jornada, QWidget* madre = nullptr);

    TrabajoEnSegundoPlano& Trabajo() { return trabajo_; }
    const outputs::ColumnaGanadora& Ganadora() const { return ganadora_; }

  public slots:
    void reject() override;

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    using Comprobar = std::function<outputs::Comprobacion(base::Dialogo&, base::Progreso&)>;

    void CrearRejilla();
    void CrearCuentas();
    QVBoxLayout* CrearBotones();
    void Abrir();

    void Aciertos();
    void Avance();
    void Otras();
    void Empezar(Comprobar comprobar, bool avance);
    void FinComprobacion();
    void Guardar();
    void Datos();
    void Fallos();
    void Columnas();
    void Pena();

    void Teclear(int fila, char tecla);
    void MenuResultado(const QPoint& donde);
    void PonerCelda(int fila, const QString& texto);
    void CambioRejilla();
    outputs::RejillaGanadora Rejilla() const;
    void MostrarCuentas(const outputs::TablaAciertos& tabla);
    void AbrirHija(QDialog* hija);

    JornadaAciertos j_;
    outputs::ColumnaGanadora ganadora_;
    outputs::TablaAciertos tabla_;
    outputs::Comprobacion resultado_;
    bool avance_ = false;

    QWidget* contenido_ = nullptr;
    QTableWidget* rejilla_ = nullptr;
    QLabel* posibilidad_ = nullptr;
    std::array<QLabel*, outputs::kLugaresAciertos> cuentas_{};
    SaludoParpadeante* saludo_ = nullptr;
    QProgressBar* barra_ = nullptr;
    QPushButton* aciertos_ = nullptr;
    QPushButton* avanceBoton_ = nullptr;
    QPushButton* fallos_ = nullptr;
    QPushButton* columnas_ = nullptr;
    QPushButton* otras_ = nullptr;
    QPushButton* guardar_ = nullptr;
    QPushButton* datos_ = nullptr;
    QPushButton* pena_ = nullptr;

    DialogoEntreHilos dialogoDelHilo_{j_.dialogo, this};
    // Después del Dialogo del hilo: al destruirse espera al hilo, que aún puede usarlo.
    TrabajoEnSegundoPlano trabajo_;
    QTimer refresco_;
};

}  // namespace quinteva::ui
