// Los mandatos de la ventana principal que abren las ventanas de la temporada: equipos, Jornadas
// y resultados de Liga y de Quinielas, clasificaciones, estadísticas.
#include <QLabel>
#include <algorithm>

#include "seasons/league.h"
#include "seasons/season_folder.h"
#include "seasons/startup.h"
#include "ui/base_page.h"
#include "ui/history_window.h"
#include "ui/league_fixture_window.h"
#include "ui/league_results_window.h"
#include "ui/league_table_window.h"
#include "ui/main_window.h"
#include "ui/pools_results_window.h"
#include "ui/pools_slip_window.h"
#include "ui/pools_view_window.h"
#include "ui/qt_text.h"
#include "ui/statistics_window.h"
#include "ui/teams_window.h"
#include "ui/winning_columns_window.h"

namespace quinteva::ui {

void VentanaPrincipal::Equipos() {
    auto* ventana = new VentanaEquiposQt(s_.carpetaTrabajo, temporada_.carpetaTemporada, s_.ajustes,
                                         s_.dialogo, this);
    connect(ventana, &VentanaEquiposQt::temporadaNueva, this, &VentanaPrincipal::TemporadaNueva);
    AbrirVentana(ventana);
}

void VentanaPrincipal::Clasificaciones() {
    AbrirVentana(
        new VentanaClasificacion(temporada_.carpetaTemporada, s_.ajustes, s_.dialogo, this));
}

void VentanaPrincipal::JornadasLiga() {
    AbrirVentana(new VentanaJornadasLigaQt(temporada_.carpetaTemporada,
                                           seasons::TemporadaDeCarpeta(temporada_.temporadaActual),
                                           s_.ajustes, s_.dialogo, this));
}

void VentanaPrincipal::ResultadosLiga() {
    std::optional<double> fecha;
    if (!fechaJornada_.isEmpty()) {
        try {
            fecha = seasons::SerieDeFecha(S(fechaJornada_));
        } catch (const std::exception&) {
            fecha.reset();
        }
    }
    auto* ventana =
        new VentanaResultadosLigaQt(s_.carpetaTrabajo, temporada_.carpetaTemporada,
                                    seasons::TemporadaDeCarpeta(temporada_.temporadaActual),
                                    s_.ajustes, s_.dialogo, fecha, this);
    connect(ventana, &VentanaResultadosLigaQt::resultadosGuardados, this,
            &VentanaPrincipal::SeguirArchivosDeTemporada);
    AbrirVentana(ventana);
}

void VentanaPrincipal::JornadasQuiniela() {
    auto* ventana = new VentanaJornadasQuinielaQt(
        temporada_.carpetaTemporada,
        "Temporada " + seasons::TemporadaDeCarpeta(temporada_.temporadaActual), s_.dialogo, this);
    connect(ventana, &VentanaJornadasQuinielaQt::jornadaNueva, this,
            &VentanaPrincipal::SeguirArchivosDeTemporada);
    AbrirVentana(ventana);
}

void VentanaPrincipal::ResultadosQuiniela() {
    auto* ventana = new VentanaResultadosQuinielaQt(
        temporada_.carpetaTemporada, seasons::TemporadaDeCarpeta(temporada_.temporadaActual),
        s_.dialogo, this);
    connect(ventana, &VentanaResultadosQuinielaQt::resultadosGuardados, this,
            &VentanaPrincipal::SeguirArchivosDeTemporada);
    AbrirVentana(ventana);
}

void VentanaPrincipal::VerQuinielas() {
    if (trabajo_.EnCurso() || !ExigirNombre()) return;
    try {
        AbrirVentana(new VentanaVerQuinielas(outputs::VistaQuinielas(comb_.ruta, S(fechaJornada_)),
                                             s_.imprimir, this));
    } catch (const std::exception& e) {
        Fallo(e);
    }
}

void VentanaPrincipal::Estadisticas() {
    AbrirVentana(new VentanaEstadisticas(temporada_.carpetaTemporada, s_.dialogo, this));
}

void VentanaPrincipal::ColumnasGanadoras() {
    AbrirVentana(
        new VentanaColumnasGanadoras(temporada_.carpetaTemporada, s_.dialogo, s_.imprimir, this));
}

void VentanaPrincipal::HistoricoDeResultados() {
    AbrirVentana(new VentanaHistorico(
        {s_.carpetaTrabajo, s_.carpetaDatos,
         seasons::TemporadaDeCarpeta(temporada_.temporadaActual), s_.ajustes, s_.dialogo},
        this));
}

void VentanaPrincipal::TemporadaNueva(const QString& etiqueta) {
    temporadaEtiqueta_->setText(etiqueta);
    try {
        temporada_ = seasons::PrepararTemporada(s_.carpetaPrograma, s_.carpetaTrabajo, s_.ajustes);
    } catch (const std::exception& e) {
        Fallo(e);
    }
    SeguirArchivosDeTemporada();
}

void VentanaPrincipal::SeguirArchivosDeTemporada() {
    try {
        temporada_.jornadas = seasons::ListaJornadas(temporada_.carpetaTemporada);
        base_->PonerJornadas(temporada_.jornadas);
        const bool esta = std::find(temporada_.jornadas.begin(), temporada_.jornadas.end(),
                                    comb_.jornada) != temporada_.jornadas.end();
        if (esta) PonerPartidos(comb_.jornada);
    } catch (const std::exception& e) {
        Fallo(e);
    }
    Refrescar();
}

}  // namespace quinteva::ui
