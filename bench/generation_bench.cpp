// Generación de las 4.782.969 columnas de catorce triples, sin condiciones y con todas las
// familias y diez Grupos, al lado del tiempo de copiar un archivo del mismo tamaño en la misma
// ejecución, y la memoria máxima (VmHWM).
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "base/progress.h"
#include "bench/generation_cases.h"
#include "engine/generation.h"

namespace {

using namespace quinteva;
using Reloj = std::chrono::steady_clock;

double Segundos(Reloj::time_point desde) {
    return std::chrono::duration<double>(Reloj::now() - desde).count();
}

std::string VmHWM() {
    std::ifstream f("/proc/self/status");
    for (std::string linea; std::getline(f, linea);) {
        if (linea.rfind("VmHWM:", 0) == 0) return linea.substr(6);
    }
    return "?";
}

class NadaQueGuardar : public base::Ajustes {
  public:
    std::string Leer(std::string_view, std::string_view, std::string_view,
                     std::string_view defecto) const override {
        return std::string(defecto);
    }
    void Guardar(std::string_view, std::string_view, std::string_view, std::string_view) override {}
};

double Copiar(const std::filesystem::path& origen, const std::filesystem::path& destino) {
    std::filesystem::remove(destino);
    const auto t = Reloj::now();
    std::filesystem::copy_file(origen, destino);
    return Segundos(t);
}

}  // namespace

int main() {
    const auto carpeta = std::filesystem::temp_directory_path() / "quinteva-bench-generacion";
    std::filesystem::create_directories(carpeta);
    NadaQueGuardar ajustes;
    base::SinProgreso progreso;
    const auto cmb = carpeta / "Cmb.tmp";

    for (const bool condiciones : {false, true}) {
        engine::Combinacion c;
        c.base = medicion::CatorceTriples();
        c.pleno = c.base.Pleno();
        c.condiciones =
            condiciones ? medicion::TodasLasFamilias(c.base) : engine::CondicionesIniciales(c.base);
        double mejor = 1e9;
        std::int32_t generadas = 0;
        for (int vuelta = 0; vuelta < 3; ++vuelta) {
            const auto t = Reloj::now();
            const auto r = engine::Generar(c, carpeta, progreso, ajustes);
            mejor = std::min(mejor, Segundos(t));
            generadas = r.totalGeneradas;
        }
        // Copia de un archivo del mismo tamaño que el escrito.
        double copia = 1e9;
        for (int vuelta = 0; vuelta < 3; ++vuelta)
            copia = std::min(copia, Copiar(cmb, carpeta / "copia.tmp"));
        // Y de uno del tamaño de las 4.782.969 columnas (el de (a)).
        std::printf(
            "%s: %d columnas escritas de 4782969 en %.3f s; copia del mismo archivo (%.1f MB) %.3f "
            "s; razon %.2f\n",
            condiciones ? "(b) todas las familias y diez Grupos" : "(a) sin condiciones", generadas,
            mejor, static_cast<double>(generadas) * 17 / 1e6, copia, mejor / copia);
        if (condiciones) {
            // La referencia pedida: copiar un archivo del tamaño de la base entera.
            engine::Combinacion sin;
            sin.base = c.base;
            sin.pleno = c.pleno;
            sin.condiciones = engine::CondicionesIniciales(sin.base);
            engine::Generar(sin, carpeta, progreso, ajustes);
            double copiaEntera = 1e9;
            for (int vuelta = 0; vuelta < 3; ++vuelta) {
                copiaEntera = std::min(copiaEntera, Copiar(cmb, carpeta / "copia.tmp"));
            }
            std::printf(
                "    frente a copiar 81,3 MB (el archivo de las 4.782.969 columnas): %.3f s; razon "
                "%.2f\n",
                copiaEntera, mejor / copiaEntera);
        }
    }
    std::printf("Memoria maxima (VmHWM):%s\n", VmHWM().c_str());
    std::filesystem::remove_all(carpeta);
    return 0;
}
