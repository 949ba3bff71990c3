// El programa de escritorio con la plataforma offscreen: el arranque en una carpeta de trabajo
// vacía (instala la temporada de demostración) hasta la ventana mostrada, y cuánto tarda
// "&Detener" en parar una generación de catorce triples 40 ms después de empezar (-1: ya había
// acabado). Imprime milisegundos.
#include <QApplication>
#include <QPushButton>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <thread>

#include "engine/combination_files.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"
#include "ui/main_window.h"
#include "ui/program_reducer.h"

namespace {

using namespace quinteva;
using Reloj = std::chrono::steady_clock;

double Milisegundos(Reloj::time_point desde) {
    return std::chrono::duration<double, std::milli>(Reloj::now() - desde).count();
}

struct Programa {
    pruebas::CarpetaTemporal carpetaPrograma, trabajo, documentos;
    pruebas::AjustesEnMemoria ajustes;
    pruebas::DialogoGuionado dialogo;
    ui::ReductorDelPrograma reductor;

    Programa() {
        std::filesystem::copy(QUINTEVA_DATOS, carpetaPrograma.Ruta(),
                              std::filesystem::copy_options::recursive);
        ajustes.Guardar(base::kAplicacion, "Inic05", "VerBien", "NO");
    }
    ui::Servicios Servicios() {
        return {trabajo.Ruta(),
                carpetaPrograma.Ruta(),
                carpetaPrograma.Ruta(),
                ajustes,
                dialogo,
                &reductor,
                {}};
    }
};

double Arranque() {
    Programa p;
    const auto inicio = Reloj::now();
    ui::VentanaPrincipal v(p.Servicios());
    v.Arrancar();
    v.show();
    QApplication::processEvents();
    return Milisegundos(inicio);
}

// Una Combinación guardada con catorce triples y el Pleno puesto.
std::filesystem::path CatorceTriples(Programa& p) {
    engine::Combinacion c;
    for (int partido = 1; partido <= engine::kPartidos; ++partido) {
        for (int s = 0; s < 3; ++s) c.base.Elegir(partido, s, true);
    }
    c.base.PonerGoles("1", "1");
    c.pleno = c.base.Pleno();
    c.ruta = p.documentos / "Catorce.uxd";
    engine::Guardar(c, p.trabajo.Ruta(), p.ajustes);
    return c.ruta;
}

double Parada() {
    Programa p;
    const auto ruta = CatorceTriples(p);
    ui::VentanaPrincipal v(p.Servicios());
    v.Arrancar(ruta);
    v.show();
    v.findChild<QPushButton*>(QStringLiteral("BotonGenerar"))->click();
    for (const auto hasta = Reloj::now() + std::chrono::milliseconds(40); Reloj::now() < hasta;) {
        QApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    if (!v.Trabajo().EnCurso()) return -1;  // ya había acabado
    const auto inicio = Reloj::now();
    v.findChild<QPushButton*>(QStringLiteral("BotonDetenerGenerar"))->click();
    while (v.Trabajo().EnCurso()) QApplication::processEvents();
    return Milisegundos(inicio);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication aplicacion(argc, argv);
    for (int i = 0; i < 5; ++i) std::printf("Arranque hasta la ventana: %.1f ms\n", Arranque());
    for (int i = 0; i < 5; ++i) std::printf("Detener la generación: %.1f ms\n", Parada());
    return 0;
}
