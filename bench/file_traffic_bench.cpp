// El tráfico de archivos de generar y reducir el desarrollo de catorce triples (4.782.969
// columnas, un ".cnd" de 81 MB), cada paso frente a copiar ese ".cnd" una vez con cp en la misma
// ejecución: desde fuera, "quinteva-cli generar" y "quinteva-cli reducir --al 13", y dentro del
// programa, "&Reducir" + "&Guardar" de la ventana y "&Generar" + "&Guardar" con otras columnas.
// Mediana de cinco veces.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "base/progress.h"
#include "builders/reduce.h"
#include "engine/combination_files.h"
#include "engine/generation.h"
#include "tests/support/memory_settings.h"

namespace {

using namespace quinteva;
using Reloj = std::chrono::steady_clock;
namespace fs = std::filesystem;

const fs::path kCarpeta = fs::temp_directory_path() / "quinteva-trafico";

double Mediana(const std::function<void()>& paso) {
    std::vector<double> veces;
    for (int i = 0; i < 5; ++i) {
        const auto inicio = Reloj::now();
        paso();
        veces.push_back(std::chrono::duration<double>(Reloj::now() - inicio).count());
    }
    std::sort(veces.begin(), veces.end());
    return veces[2];
}

void Orden(const std::string& orden) {
    if (std::system((orden + " > /dev/null").c_str()) != 0) {
        std::fprintf(stderr, "Falló: %s\n", orden.c_str());
        std::exit(1);
    }
}

std::string Cli(const std::string& argumentos) {
    return std::string(QUINTEVA_CLI) + " " + argumentos + " --carpeta '" +
           (kCarpeta / "t").string() + "'";
}

void Fila(const char* paso, double segundos, double copia) {
    std::printf("| %s | %.3f s | %.2f |\n", paso, segundos, segundos / copia);
}

}  // namespace

int main() {
    fs::remove_all(kCarpeta);
    fs::create_directories(kCarpeta / "t");
    const std::string uxd = "'" + (kCarpeta / "C.uxd").string() + "'";
    const std::string cnd = "'" + (kCarpeta / "C.cnd").string() + "'";
    Orden(Cli("nueva " + uxd +
              " --base \"1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2 1X2\" --pleno 1-0"));
    Orden(Cli("generar " + uxd));

    const double copia =
        Mediana([&] { Orden("cp " + cnd + " '" + (kCarpeta / "copia").string() + "'"); });
    std::printf("| paso | tiempo | veces la copia |\n|---|---|---|\n");
    Fila("cp del \".cnd\" (81,3 MB)", copia, copia);
    Fila("quinteva-cli generar", Mediana([&] { Orden(Cli("generar " + uxd)); }), copia);
    Fila("quinteva-cli reducir --al 13",
         Mediana([&] { Orden(Cli("reducir " + uxd + " --al 13")); }), copia);

    // La ventana: la Combinación abierta, "&Reducir" y "&Guardar".
    pruebas::AjustesEnMemoria ajustes;
    engine::Combinacion c;
    c.ruta = kCarpeta / "C.uxd";
    engine::Abrir(c, kCarpeta / "t", ajustes);
    builders::ClaseBase clases{};
    base::SinProgreso progreso;
    Fila("\"&Reducir\" + \"&Guardar\" (al 13)", Mediana([&] {
             builders::Reducir(c, kCarpeta / "t", 0, std::nullopt, clases, progreso, ajustes);
             engine::Guardar(c, kCarpeta / "t", ajustes);
         }),
         copia);
    const std::int32_t reducidas = c.totalReducidas;
    // "&Generar" + "&Guardar" cuando las columnas cambian (otro Pleno al 15 en cada vuelta): el
    // ".cnd" se reescribe entero.
    bool otroPleno = false;
    Fila("\"&Generar\" + \"&Guardar\" con otras columnas", Mediana([&] {
             otroPleno = !otroPleno;
             c.pleno = engine::PlenoDeTexto(otroPleno ? "21" : "10");
             engine::Generar(c, kCarpeta / "t", progreso, ajustes);
             engine::Guardar(c, kCarpeta / "t", ajustes);
         }),
         copia);
    std::printf("\nReducidas al 13: %d\n", reducidas);
    fs::remove_all(kCarpeta);
    return 0;
}
