// Los mandatos de la ventana principal que imprimen: las columnas que se juegan, su informe, el de
// las condiciones, las listas importadas y la impresora.
#include <QApplication>

#include "builders/boletos.h"
#include "outputs/conditions_report.h"
#include "outputs/played_set.h"
#include "outputs/printed_reports.h"
#include "ui/import_window.h"
#include "ui/main_window.h"
#include "ui/paper_print_window.h"
#include "ui/printer_select_window.h"
#include "ui/qt_text.h"
#include "ui/report_viewer.h"
#include "ui/slip_print_window.h"

namespace quinteva::ui {

namespace fs = std::filesystem;

std::optional<ColumnasAImprimir> VentanaPrincipal::ColumnasJugadas() {
    if (!ExigirNombre()) return std::nullopt;
    try {
        const builders::Jugada jugada = builders::JugadaElegida(comb_);
        const auto conjunto = builders::ConjuntoDe(comb_, jugada, s_.carpetaTrabajo);
        builders::ExigirColumnasGuardadas(conjunto, jugada);
        return ColumnasAImprimir{outputs::LeerColumnas(conjunto.guardado, true), S(fechaJornada_)};
    } catch (const std::exception& e) {
        Fallo(e);
        return std::nullopt;
    }
}

std::string VentanaPrincipal::LineaJornada() const {
    return "Jornada " + std::to_string(comb_.jornada) + ", " + S(fechaJornada_);
}

void VentanaPrincipal::ImprimirEnBoletos() {
    if (auto columnas = ColumnasJugadas()) {
        AbrirVentana(new VentanaImprimirBoletos(std::move(*columnas), s_.ajustes, s_.dialogo,
                                                s_.imprimir, this));
    }
}

void VentanaPrincipal::ImprimirEnPapel() {
    if (auto columnas = ColumnasJugadas()) {
        AbrirVentana(new VentanaImprimirPapel(std::move(*columnas), s_.ajustes, s_.dialogo,
                                              s_.imprimir, this));
    }
}

void VentanaPrincipal::VisorDeQuinielas() {
    const auto columnas = ColumnasJugadas();
    if (!columnas) return;
    const fs::path ruta = comb_.ruta;
    auto informe = outputs::InformeQuinielas({comb_.jornada, columnas->fecha, ruta.stem().string()},
                                             columnas->activas);
    AbrirVentana(new VentanaVisor({QStringLiteral("Visor de Quinielas"), std::move(informe),
                                   fs::path(ruta).replace_extension(".pdf")},
                                  s_.dialogo, s_.imprimir, this));
}

void VentanaPrincipal::ResumenDeCondiciones() {
    if (trabajo_.EnCurso()) return;
    const fs::path ruta = comb_.ruta;
    const std::string nombre = ruta.stem().string();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    try {
        const auto datos = outputs::LeerDatosPrevios(comb_, s_.carpetaTrabajo, s_.ajustes);
        auto informe =
            outputs::InformeCondiciones(comb_, {comb_.jornada, S(fechaJornada_), nombre}, datos);
        QApplication::restoreOverrideCursor();
        const fs::path carpeta = ruta.empty() ? s_.carpetaTrabajo : ruta.parent_path();
        AbrirVentana(new VentanaVisor(
            {QStringLiteral("Quinteva [Condiciones]"), std::move(informe),
             carpeta / ((nombre.empty() ? std::string("Quiniela") : nombre) + " Condiciones.pdf")},
            s_.dialogo, s_.imprimir, this));
    } catch (const std::exception& e) {
        QApplication::restoreOverrideCursor();
        Fallo(e);
    }
}

void VentanaPrincipal::ImportarArchivo() {
    AbrirVentana(new VentanaImportar(
        {s_.carpetaTrabajo, s_.ajustes, s_.dialogo, azar_, s_.imprimir, S(fechaJornada_)}, this));
}

void VentanaPrincipal::SeleccionarImpresora() {
    AbrirVentana(new VentanaSeleccionImpresora(s_.ajustes, this));
}

}  // namespace quinteva::ui
