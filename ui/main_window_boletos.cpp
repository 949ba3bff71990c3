// Los mandatos de la página Boletos de la ventana principal y las ventanas que abren.
#include <QAction>
#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "builders/manual.h"
#include "builders/merge.h"
#include "engine/prize_odds.h"
#include "ui/add_columns_window.h"
#include "ui/bets_list_window.h"
#include "ui/json_file_window.h"
#include "ui/main_window.h"
#include "ui/odds_window.h"
#include "ui/official_file_window.h"
#include "ui/remove_columns_window.h"
#include "ui/status_panel.h"
#include "ui/text_type_window.h"
#include "ui/work_pages.h"

namespace quinteva::ui {
namespace {

constexpr std::string_view kGuardeAntes = "Por favor guarde antes la combinación";

// Marca la opción que toca; ninguna si aún no se eligió (los botones de radio exclusivos no se
// dejan desmarcar sin más).
void Marcar(QRadioButton* opcion, bool marcada) {
    opcion->setAutoExclusive(false);
    opcion->setChecked(marcada);
    opcion->setAutoExclusive(true);
}

}  // namespace

void VentanaPrincipal::ConectarBoletos() {
    connect(boletos_->condicionada, &QRadioButton::clicked, this,
            [this] { ElegirJuego(builders::Jugada::Condicionada); });
    connect(boletos_->reducida, &QRadioButton::clicked, this,
            [this] { ElegirJuego(builders::Jugada::Reducida); });
    connect(boletos_->ajustar, &QPushButton::clicked, this, &VentanaPrincipal::Ajustar);
    connect(boletos_->campoAjustar, &QLineEdit::returnPressed, this, &VentanaPrincipal::Ajustar);
    connect(boletos_->detener, &QPushButton::clicked, this, &VentanaPrincipal::Detener);
    connect(boletos_->oficial, &QPushButton::clicked, this, &VentanaPrincipal::ArchivoOficial);
    connect(boletos_->txt, &QPushButton::clicked, this, &VentanaPrincipal::ArchivoTxt);
    connect(boletos_->imprimirBoletos, &QPushButton::clicked, this,
            &VentanaPrincipal::ImprimirEnBoletos);
    connect(boletos_->imprimirPapel, &QPushButton::clicked, this,
            &VentanaPrincipal::ImprimirEnPapel);
    connect(boletos_->eliminarManual, &QPushButton::clicked, this,
            &VentanaPrincipal::EliminarManual);
    connect(boletos_->anadirManual, &QPushButton::clicked, this, &VentanaPrincipal::AnadirManual);
    connect(boletos_->probabilidades, &QPushButton::clicked, this,
            &VentanaPrincipal::ProbabilidadesJugadas);
}

builders::EntornoBoletos VentanaPrincipal::Entorno() {
    return {s_.carpetaTrabajo, s_.ajustes, s_.dialogo, azar_};
}

builders::EntornoBoletos VentanaPrincipal::EntornoDelHilo() {
    return {s_.carpetaTrabajo, s_.ajustes, dialogoDelHilo_, azar_};
}

bool VentanaPrincipal::ExigirNombre() {
    if (!comb_.ruta.empty()) return true;
    s_.dialogo.Mensaje(kGuardeAntes);
    return GuardarComo() && !comb_.ruta.empty();
}

void VentanaPrincipal::ElegirJuego(builders::Jugada jugada) {
    if (trabajo_.EnCurso()) return;
    if (ExigirNombre()) {
        try {
            builders::ElegirJugada(comb_, jugada, Entorno(), [this] {
                AbrirAnadir(true);
                return true;
            });
        } catch (const std::exception& e) {
            Fallo(e);
        }
    }
    Refrescar();
}

void VentanaPrincipal::Ajustar() {
    if (trabajo_.EnCurso()) return;
    const std::string campo = boletos_->campoAjustar->text().toStdString();
    ajustando_ = true;
    Ocupado(true);
    // Hasta "terminado" la Combinación es del hilo de trabajo; sus preguntas vuelven a este.
    trabajo_.Empezar([this, campo](base::Progreso& progreso) {
        ajuste_ = builders::Ajustar(comb_, campo, EntornoDelHilo(), progreso);
    });
}

void VentanaPrincipal::FinAjuste() {
    ajustando_ = false;
    Ocupado(false);
    if (ajuste_.focoEnCampo) boletos_->campoAjustar->setFocus();
    SeguirAsistente(true);
}

int VentanaPrincipal::AnioDeLaJornada() const {
    // "dd/MM/yy": el año de dos cifras va de 1930 a 2029.
    bool numero = false;
    const int aa = fechaJornada_.right(2).toInt(&numero);
    if (fechaJornada_.size() != 8 || !numero) return QDate::currentDate().year();
    return aa < 30 ? 2000 + aa : 1900 + aa;
}

void VentanaPrincipal::ArchivoOficial() {
    if (!ExigirNombre()) return;
    try {
        const builders::Jugada jugada = builders::JugadaElegida(comb_);
        outputs::PeticionPrincipal peticion;
        peticion.columnas = builders::ApuestasJugadas(comb_, jugada);
        peticion.fuente = builders::ConjuntoDe(comb_, jugada, s_.carpetaTrabajo).guardado;
        peticion.anio = AnioDeLaJornada();
        AbrirVentana(new VentanaArchivoOficial(peticion, s_.dialogo, s_.ajustes, this));
    } catch (const std::exception& e) {
        Fallo(e);
    }
}

void VentanaPrincipal::ArchivoTxt() {
    if (!ExigirNombre()) return;
    auto* tipo = new VentanaTipoArchivo(this);
    connect(tipo, &VentanaTipoArchivo::elegido, this, [this](int codigo) {
        setCursor(Qt::BusyCursor);
        try {
            builders::GenerarArchivoTxt(comb_, codigo, s_.dialogo);
        } catch (const std::exception& e) {
            Fallo(e);
        }
        unsetCursor();
    });
    AbrirVentana(tipo);
}

void VentanaPrincipal::EliminarManual() {
    if (!ExigirNombre()) return;
    auto* ventana = new VentanaEliminarColumnas(
        comb_, Entorno(), [this] { AbrirAnadir(false); }, this);
    connect(ventana, &VentanaEliminarColumnas::cambiado, this, &VentanaPrincipal::Refrescar);
    AbrirVentana(ventana);
}

void VentanaPrincipal::AnadirManual() {
    if (ExigirNombre()) AbrirAnadir(false);
}

void VentanaPrincipal::AbrirAnadir(bool alAzarSiVuelveSin) {
    auto* ventana = new VentanaAnadirColumnas(comb_, Entorno(), this);
    connect(ventana, &VentanaAnadirColumnas::cambiado, this, &VentanaPrincipal::Refrescar);
    if (alAzarSiVuelveSin) {
        connect(ventana, &QDialog::finished, this, [this, ventana] {
            if (ventana->Cambiada()) return;
            try {
                builders::Aleatoria(comb_, builders::JugadaElegida(comb_), Entorno());
            } catch (const std::exception& e) {
                Fallo(e);
            }
            Refrescar();
        });
    }
    AbrirVentana(ventana);
}

void VentanaPrincipal::Listado(bool condicionadas) {
    AbrirVentana(new VentanaListado(condicionadas ? QStringLiteral("Apuestas Condicionadas")
                                                  : QStringLiteral("Apuestas Reducidas"),
                                    s_.carpetaTrabajo, comb_.totalGeneradas, comb_.totalReducidas,
                                    {LineaJornada(), s_.dialogo, s_.imprimir}, this));
}

void VentanaPrincipal::ArchivoJson() {
    auto* ventana = new VentanaArchivoJson(s_.dialogo, s_.imprimir, this);
    AbrirVentana(ventana);
    ventana->Cargar(comb_.ruta.parent_path());
}

void VentanaPrincipal::ProbabilidadesJugadas() {
    try {
        const auto jugada = builders::JugadaElegida(comb_);
        const auto conjunto = builders::ConjuntoDe(comb_, jugada, s_.carpetaTrabajo);
        AbrirVentana(new VentanaProbabilidades(
            jugada == builders::Jugada::Reducida ? "reducida" : "condicionada",
            engine::OrigenDeLasProbabilidades(comb_),
            engine::ProbabilidadesDeArchivo(comb_, conjunto.almacen), this));
    } catch (const base::Error& e) {
        Fallo(e);
    }
}

void VentanaPrincipal::RefrescarPaginaBoletos() {
    const bool elegida = comb_.jugada == "cnd" || comb_.jugada == "red";
    boletos_->condicionada->setEnabled(comb_.totalGeneradas > 0);
    boletos_->reducida->setEnabled(comb_.totalReducidas > 0);
    Marcar(boletos_->condicionada, comb_.jugada == "cnd");
    Marcar(boletos_->reducida, comb_.jugada == "red");
    const std::int32_t jugadas =
        comb_.jugada == "red" ? comb_.activasReducidas : comb_.activasGeneradas;
    boletos_->enTotal->setText(Cifra(static_cast<double>(jugadas)));
    for (QWidget* w : std::initializer_list<QWidget*>{
             boletos_->campoAjustar, boletos_->ajustar, boletos_->oficial, boletos_->txt,
             boletos_->imprimirBoletos, boletos_->imprimirPapel, boletos_->eliminarManual,
             boletos_->anadirManual, boletos_->probabilidades}) {
        w->setEnabled(elegida);
    }
    boletos_->detener->setEnabled(false);
    listadoCondicionadas_->setEnabled(comb_.totalGeneradas > 0);
    listadoReducidas_->setEnabled(comb_.totalReducidas > 0);
    listadoJugado_->setEnabled(elegida);
    visorQuinielas_->setEnabled(elegida);
}

}  // namespace quinteva::ui
