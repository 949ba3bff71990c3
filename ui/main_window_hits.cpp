// Los mandatos de la ventana principal que abren la comprobación de aciertos y el análisis de
// datos.
#include "seasons/season_folder.h"
#include "ui/analysis_window.h"
#include "ui/hits_window.h"
#include "ui/main_window.h"

namespace quinteva::ui {

void VentanaPrincipal::ComprobarAciertos() {
    if (trabajo_.EnCurso() || fechaJornada_.isEmpty()) return;
    AbrirVentana(new VentanaAciertos(
        {s_.carpetaTrabajo, temporada_.carpetaTemporada,
         seasons::TemporadaDeCarpeta(temporada_.temporadaActual), comb_.jornada,
         std::to_string(AnioDeLaJornada()), comb_, s_.dialogo, LineaJornada(), s_.imprimir},
        this));
}

void VentanaPrincipal::AnalisisDeDatos() {
    if (trabajo_.EnCurso()) return;
    AbrirVentana(new VentanaAnalisisDatos(temporada_.carpetaTemporada, s_.dialogo, this));
}

}  // namespace quinteva::ui
